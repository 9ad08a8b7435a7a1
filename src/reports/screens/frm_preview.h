#pragma once

#include "platform/qt/form.h"
#include "reports/screens/report_run.h"

class QComboBox;
class QLabel;
class QLineEdit;
class QScrollArea;
class QToolButton;

namespace tendo {

class PageView;

/// The preview of the reports, a page at a time. Its tools are controls of the screen under the
/// names of the preview toolbar.
class FrmPreview : public Form {
    Q_OBJECT
  public:
    FrmPreview();

    /// Runs all marked reports and shows the first page.
    void ShowAllReports();

    QSize sizeHint() const override { return {980, 1080}; }

  protected:
    void keyPressEvent(QKeyEvent* event) override;

  private:
    QWidget* MakeToolbar();
    QToolButton* MakeTool(const char* name, const char* icon, const QString& text,
                          void (FrmPreview::*run)());
    void RunChosenReport(int index);
    void Refresh();
    void ShowPage(int page);
    void GoToTypedPage();
    void PreviousPage() { ShowPage(page_ - 1); }
    void NextPage() { ShowPage(page_ + 1); }
    void ZoomTo(int percent);
    void ZoomToTyped();
    void PrintPages() { PrintDocument(document_); }
    void SavePdf() { ExportDocument(document_); }
    void CloseWindow() { Unload(); }
    int PageCount() const { return static_cast<int>(document_.pages.size()); }

    Document document_;
    int page_ = 0;
    QComboBox* reportName_ = nullptr;
    QComboBox* zoom_ = nullptr;
    QLineEdit* pageNumber_ = nullptr;
    QLabel* pageCount_ = nullptr;
    QToolButton* previous_ = nullptr;
    QToolButton* next_ = nullptr;
    PageView* view_ = nullptr;
    QScrollArea* viewPort_ = nullptr;
};

/// The preview command: opens the screen, or brings it forward, and runs all marked reports.
void ShowPreview();

}  // namespace tendo
