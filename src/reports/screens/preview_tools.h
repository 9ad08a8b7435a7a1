#pragma once

#include <QWidget>
#include <functional>
#include <span>

#include "reports/generate_reports.h"
#include "reports/screens/page_scroller.h"

class QComboBox;
class QLabel;
class QLineEdit;
class QToolButton;

namespace tendo {

/// An entry of a preview's report list and what it runs.
struct ReportChoice {
    const char* name;
    /// False when no document could be started.
    bool (*run)(ReportContext&);
    /// The refresh tool runs it again; without this the document stays as it is shown.
    bool refreshes = true;
    /// One that isn't written can't be chosen; nullptr: it is.
    bool (*isWritten)() = nullptr;

    bool IsWritten() const { return !isWritten || isWritten(); }
};

/// A tool of a bar: its control's name, its icon, and its name with its key, which are its tip.
struct ToolSpec {
    const char* name;
    const char* icon;
    const char* text;
};
QToolButton* MakeTool(const ToolSpec& spec, QWidget* parent);
/// Has a screen reader say a text that came up without the focus going there.
void SpeakOf(QWidget* label);

/// The bar of a preview: the controls of the preview toolbar and what they ask for. It takes as
/// many lines as its width needs.
class PreviewTools : public QWidget {
    Q_OBJECT
  public:
    PreviewTools(std::span<const ReportChoice> choices, QWidget* parent);

    /// One more tool at the end of the bar.
    QToolButton* AddTool(const ToolSpec& spec, std::function<void()> run = {});
    void AddRule();

    int ChosenReport() const;
    void ShowReport(int index);
    void ShowZoom(int percent);
    void ShowFit(PageFit fit);
    /// `page` from 0; the entry stays at 1 for a document without pages.
    void ShowPage(int page, int pages);

  Q_SIGNALS:
    void ReportChosen(int index);
    void ZoomTyped(int percent);
    void FitChosen(PageFit fit);
    void PageTyped(int page);
    void TurnWanted(int pages);
    void RefreshWanted();

  private:
    void AddReports(std::span<const ReportChoice> choices);
    void AddZoom();
    void AddPages();
    void AddGroup(const QString& label, const QList<QWidget*>& controls);
    void TakeZoom();
    void TakePage();

    QComboBox* ToolReportName_;
    QComboBox* ToolZoom_;
    QLineEdit* ToolPageNumber_;
    QLabel* lblPageCount_;
    QToolButton* ToolPreviousPage_;
    QToolButton* ToolNextPage_;
    QToolButton* ToolFitWidth_;
    QToolButton* ToolFitPage_;
    int report_ = 0, zoom_ = 100, page_ = 0, pages_ = 0;
};

}  // namespace tendo
