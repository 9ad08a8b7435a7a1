#pragma once

#include <QWidget>
#include <functional>
#include <span>

#include "reports/screens/report_run.h"

class QComboBox;
class QHBoxLayout;
class QKeyEvent;
class QLabel;
class QLineEdit;
class QScrollArea;
class QToolButton;

namespace tendo {

class PageView;
class ReportContext;

/// An entry of a preview's report list and what it runs; false when no document could be started.
struct ReportChoice {
    const char* name;
    bool (*run)(ReportContext&);
};

/// A document of reports, a page at a time, under a bar of tools; the tools are controls of the
/// screen under the names of the preview toolbar.
class PreviewPane : public QWidget {
    Q_OBJECT
  public:
    PreviewPane(std::span<const ReportChoice> choices, QWidget* parent);

    /// What runs ahead of every report, before the fields of all screens are stored.
    std::function<void()> BeforeRun;

    /// One more tool at the right end of the bar.
    void AddTool(const char* name, const char* icon, const QString& text,
                 std::function<void()> run);

    /// Runs a report of the list and shows its first page.
    void RunReport(int index);
    /// Runs the chosen report again and stays on its page.
    void Refresh();
    /// Page, zoom and refresh keys; false for any other.
    bool HandleKey(const QKeyEvent& event);
    void ZoomTo(int percent);
    const Document& ShownDocument() const { return document_; }
    /// From 0.
    int ShownPage() const { return page_; }

  private:
    /// Beside the options it stands in narrow room: its tools take two lines.
    bool IsNarrow() const { return choices_.size() == 1; }
    QWidget* MakeToolbar();
    void AddLabelled(const QString& text, QWidget* control);
    void AddZoom();
    void AddPages();
    QToolButton* MakeTool(const char* name, const char* icon, const QString& text,
                          std::function<void()> run);
    void ShowPage(int page);
    void GoToTypedPage();
    void ZoomToTyped();
    int PageCount() const { return static_cast<int>(document_.pages.size()); }

    std::span<const ReportChoice> choices_;
    Document document_;
    int page_ = 0;
    QHBoxLayout* tools_ = nullptr;
    QComboBox* reportName_ = nullptr;
    QComboBox* zoom_ = nullptr;
    QLineEdit* pageNumber_ = nullptr;
    QLabel* pageCount_ = nullptr;
    QToolButton* previous_ = nullptr;
    QToolButton* next_ = nullptr;
    PageView* view_ = nullptr;
    QScrollArea* viewPort_ = nullptr;
};

}  // namespace tendo
