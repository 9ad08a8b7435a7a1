#pragma once

#include <QWidget>
#include <functional>
#include <span>

#include "reports/screens/preview_search.h"
#include "reports/screens/preview_tools.h"
#include "reports/screens/report_run.h"

class QKeyEvent;
class QLabel;
class QPushButton;
class QSplitter;
class QStackedWidget;
class QToolButton;

namespace tendo {

class FindBar;
class PageThumbnails;
class PageView;

/// A document of reports, a page at a time, under a bar of tools; the tools are controls of the
/// screen under the names of the preview toolbar.
class PreviewPane : public QWidget {
    Q_OBJECT
  public:
    PreviewPane(std::span<const ReportChoice> choices, QWidget* parent);

    /// Opens the report options, which a document without pages offers; without it nothing is
    /// offered.
    void OfferOptions(std::function<void()> open);

    /// What runs ahead of every report, before the fields of all screens are stored.
    std::function<void()> BeforeRun;

    PreviewTools& Tools() { return *tools_; }
    /// The side list of pages and the search, which a preview in narrow room goes without.
    void AddThumbnails();
    void AddSearch();

    /// Runs a report of the list and shows its first page.
    void RunReport(int index);
    /// Runs the chosen report again, where the list says so, and stays on its page.
    void Refresh();
    /// Page, zoom, search and refresh keys; false for any other.
    bool HandleKey(const QKeyEvent& event);
    void ZoomTo(int percent);
    void FitTo(PageFit fit);
    void FocusPage();
    /// A line above the page that tells what was done; empty: none.
    void ShowNote(const QString& text);
    const Document& ShownDocument() const { return document_; }
    /// From 0.
    int ShownPage() const { return page_; }

  private:
    QWidget* MakeStrips();
    QWidget* MakeEmptyPage();
    void ShowDocument(Document document, const std::vector<std::string>& problems);
    void ShowPage(int page);
    void ShowThumbnails();
    void ZoomAround(int percent, QPoint at);
    void ApplyFit();
    void Turn(int pages);
    bool ScrollOrTurn(Qt::Orientation orientation, int direction, int by);
    bool HandlePageKey(const QKeyEvent& event);
    bool HandleScrollKey(const QKeyEvent& event);
    bool HandleZoomKey(const QKeyEvent& event);
    bool HandleSearchKey(const QKeyEvent& event);
    void OpenSearch();
    void CloseSearch();
    void Find();
    void StepToMatch(int direction);
    void ShowMatches();
    int PageCount() const { return static_cast<int>(document_.pages.size()); }

    std::span<const ReportChoice> choices_;
    Document document_;
    int page_ = 0;
    PageFit fit_ = PageFit::None;
    PreviewSearch search_;
    PreviewTools* tools_ = nullptr;
    QLabel* lblProblems_ = nullptr;
    QLabel* lblNote_ = nullptr;
    FindBar* find_ = nullptr;
    QSplitter* splitter_ = nullptr;
    PageThumbnails* thumbnails_ = nullptr;
    QToolButton* ToolThumbnails_ = nullptr;
    QStackedWidget* stack_ = nullptr;
    QLabel* lblNoPages_ = nullptr;
    QPushButton* btnReportOptions_ = nullptr;
    PageView* view_ = nullptr;
    PageScroller* scroller_ = nullptr;
};

}  // namespace tendo
