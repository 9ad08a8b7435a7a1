#include <gtest/gtest.h>

#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QListView>
#include <QMouseEvent>
#include <QScrollArea>
#include <QScrollBar>
#include <QToolButton>
#include <QWheelEvent>

#include "platform/print/layout_surface.h"
#include "platform/qt/text_measurer_qt.h"
#include "reports/screens/page_thumbnails.h"
#include "reports/screens/page_view.h"
#include "reports/screens/preview_pane.h"
#include "running_program.h"

namespace tendo {
namespace {

constexpr int Notch = 120;

int pagesOfReport = 0;
bool reportFails = false;

bool WritePages(ReportContext& context) {
    context.surface.Action(3);
    for (int page = 1; page <= pagesOfReport; ++page) {
        if (page > 1) context.surface.NewPage();
        for (int line = 1; line <= 40; ++line)
            context.surface.Paragraph("Line " + std::to_string(line) + " of page " +
                                      std::to_string(page));
    }
    context.surface.Action(6);
    if (reportFails) context.Problems = {"The Sales Report is not complete.", "Another one."};
    return true;
}

const ReportChoice choices[] = {{"All Reports", WritePages},
                                {"Kept", WritePages, false},
                                {"Unwritten", WritePages, false, [] { return false; }}};

/// A preview in a window of its own, on reports of as many pages as a test wants.
class Preview : public RunningProgram {
  protected:
    void SetUp() override {
        RunningProgram::SetUp();
        reportFails = false;
        pane = std::make_unique<PreviewPane>(choices, nullptr);
        pane->AddThumbnails();
        pane->AddSearch();
        pane->resize(1100, 700);
        pane->show();
        view = pane->findChild<PageView*>("vsPreview");
        area = pane->findChild<QScrollArea*>("ViewPort");
        Settle();
    }
    void TearDown() override {
        pane.reset();
        RunningProgram::TearDown();
    }

    static void Settle() {
        for (int i = 0; i < 3; ++i)
            QApplication::processEvents();
    }
    void Run(int pages, int choice = 0) {
        pagesOfReport = pages;
        pane->RunReport(choice);
        Settle();
    }
    void Turn(int angle, Qt::KeyboardModifiers modifiers = Qt::NoModifier,
              QPoint pixels = {}) const {
        const QPointF at = area->viewport()->rect().center();
        QWheelEvent event(at, area->viewport()->mapToGlobal(at), pixels, {0, angle}, Qt::NoButton,
                          modifiers, Qt::NoScrollPhase, false);
        QApplication::sendEvent(area->viewport(), &event);
        Settle();
    }
    void Mouse(QEvent::Type type, QPoint at, Qt::MouseButton button) const {
        QMouseEvent event(type, at, view->mapToGlobal(at), button,
                          type == QEvent::MouseButtonRelease ? Qt::NoButton : button,
                          Qt::NoModifier);
        QApplication::sendEvent(view, &event);
    }
    std::string Text(const char* name) const {
        auto* entry = pane->findChild<QWidget*>(name);
        if (auto* combo = qobject_cast<QComboBox*>(entry))
            return combo->currentText().toStdString();
        if (auto* label = qobject_cast<QLabel*>(entry)) return label->text().toStdString();
        return qobject_cast<QLineEdit*>(entry)->text().toStdString();
    }
    QScrollBar& Bar() const { return *area->verticalScrollBar(); }

    std::unique_ptr<PreviewPane> pane;
    PageView* view = nullptr;
    QScrollArea* area = nullptr;
};

TEST_F(Preview, TheWheelTurnsThePageAtItsEndAndNotBefore) {
    Run(3);
    ASSERT_GT(Bar().maximum(), 0);
    Turn(-Notch);
    EXPECT_EQ(Text("ToolPageNumber"), "1");
    EXPECT_GT(Bar().value(), 0);
    Bar().setValue(Bar().maximum());
    Turn(-Notch);
    EXPECT_EQ(Text("ToolPageNumber"), "2");
    EXPECT_EQ(Bar().value(), 0);
    Turn(Notch);
    EXPECT_EQ(Text("ToolPageNumber"), "1");
    EXPECT_EQ(Bar().value(), Bar().maximum());
}

TEST_F(Preview, TheWheelEndsAtTheFirstAndTheLastPage) {
    Run(1);
    pane->FitTo(PageFit::Page);
    Turn(-Notch);
    Turn(Notch);
    EXPECT_EQ(Text("ToolPageNumber"), "1");
}

TEST_F(Preview, WhatIsLeftOfAPushOnATouchPadTurnsNoPage) {
    Run(3);
    Bar().setValue(Bar().maximum() - 5);
    for (int i = 0; i < 20; ++i)
        Turn(-40, Qt::NoModifier, {0, -20});
    EXPECT_EQ(Text("ToolPageNumber"), "1");
}

TEST_F(Preview, TheWheelWithCtrlZoomsAndTheEntryFollows) {
    Run(2);
    Turn(Notch, Qt::ControlModifier);
    EXPECT_EQ(Text("ToolZoom"), "110");
    Turn(-2 * Notch, Qt::ControlModifier);
    EXPECT_EQ(Text("ToolZoom"), "90");
    // Two halves of a notch are one.
    Turn(Notch / 2, Qt::ControlModifier);
    EXPECT_EQ(Text("ToolZoom"), "90");
    Turn(Notch / 2, Qt::ControlModifier);
    EXPECT_EQ(Text("ToolZoom"), "100");
    EXPECT_EQ(Text("ToolPageNumber"), "1");
}

TEST_F(Preview, ZoomStaysWithinItsBounds) {
    Run(1);
    for (int i = 0; i < 60; ++i)
        Turn(Notch, Qt::ControlModifier);
    EXPECT_EQ(Text("ToolZoom"), "400");
    for (int i = 0; i < 60; ++i)
        Turn(-Notch, Qt::ControlModifier);
    EXPECT_EQ(Text("ToolZoom"), "10");
}

TEST_F(Preview, AClickZoomsAndLeavesThePlaceUnderThePointer) {
    Run(1);
    pane->ZoomTo(200);
    Settle();
    const QPoint inPort(300, 200);
    const QPoint before = view->mapFrom(area->viewport(), inPort);
    const QPointF onPaper = QPointF(before - view->PaperRect().topLeft()) / 200.0;
    Mouse(QEvent::MouseButtonPress, before, Qt::LeftButton);
    Mouse(QEvent::MouseButtonRelease, before, Qt::LeftButton);
    Settle();
    EXPECT_EQ(Text("ToolZoom"), "210");
    const QPoint after = view->mapFrom(area->viewport(), inPort);
    const QPointF now = QPointF(after - view->PaperRect().topLeft()) / 210.0;
    EXPECT_NEAR(now.x(), onPaper.x(), 0.02);
    EXPECT_NEAR(now.y(), onPaper.y(), 0.02);
}

TEST_F(Preview, DraggingMovesThePageAndDoesNotZoom) {
    Run(1);
    pane->ZoomTo(200);
    Settle();
    const QPoint from = view->mapFrom(area->viewport(), QPoint(300, 300));
    const int before = Bar().value();
    Mouse(QEvent::MouseButtonPress, from, Qt::LeftButton);
    Mouse(QEvent::MouseMove, from - QPoint(0, 100), Qt::LeftButton);
    EXPECT_EQ(Bar().value(), before + 100);
    Mouse(QEvent::MouseButtonRelease, from, Qt::LeftButton);
    EXPECT_EQ(Text("ToolZoom"), "200");
}

TEST_F(Preview, AFittedPageKeepsFittingWhenTheWindowChanges) {
    Run(1);
    pane->FitTo(PageFit::Width);
    Settle();
    EXPECT_EQ(area->horizontalScrollBar()->maximum(), 0);
    const int before = view->Zoom();
    pane->resize(1400, 700);
    Settle();
    EXPECT_GT(view->Zoom(), before);
    EXPECT_EQ(area->horizontalScrollBar()->maximum(), 0);
    EXPECT_EQ(Text("ToolZoom"), std::to_string(view->Zoom()));
    pane->FitTo(PageFit::Page);
    Settle();
    EXPECT_EQ(area->horizontalScrollBar()->maximum(), 0);
    EXPECT_EQ(Bar().maximum(), 0);
}

TEST_F(Preview, RefreshRunsTheFirstEntriesAnewAndKeepsTheOthersDocument) {
    Run(2);
    pagesOfReport = 3;
    pane->Refresh();
    EXPECT_EQ(pane->ShownDocument().pages.size(), 3U);
    Run(2, 1);
    pagesOfReport = 4;
    pane->Refresh();
    EXPECT_EQ(pane->ShownDocument().pages.size(), 2U);
}

TEST_F(Preview, RefreshGoesToTheLastPageWhenItsOwnIsGone) {
    Run(5);
    pane->findChild<QListView*>("lstThumbnails")
        ->setCurrentIndex(pane->findChild<QListView*>("lstThumbnails")->model()->index(4, 0));
    EXPECT_EQ(Text("ToolPageNumber"), "5");
    pagesOfReport = 2;
    pane->Refresh();
    EXPECT_EQ(Text("ToolPageNumber"), "2");
}

TEST_F(Preview, AnUnwrittenReportIsNotRun) {
    Run(2);
    pagesOfReport = 7;
    pane->RunReport(2);
    EXPECT_EQ(pane->ShownDocument().pages.size(), 2U);
    EXPECT_EQ(Text("ToolReportName"), "All Reports");
}

TEST_F(Preview, ADocumentOfNoPagesLeavesTheEntryAtOne) {
    Run(3);
    Run(0);
    EXPECT_EQ(Text("ToolPageNumber"), "1");
    EXPECT_EQ(Text("lblPageCount"), "of 0");
    EXPECT_TRUE(pane->findChild<QLabel*>("lblNoPages")->isVisible());
    EXPECT_FALSE(view->isVisible());
    Run(3);
    EXPECT_TRUE(view->isVisible());
}

TEST_F(Preview, ProblemsOfTheReportsStandAboveThePage) {
    Run(1);
    const auto* strip = pane->findChild<QLabel*>("lblProblems");
    EXPECT_FALSE(strip->isVisible());
    reportFails = true;
    Run(1);
    EXPECT_TRUE(strip->isVisible());
    EXPECT_EQ(Text("lblProblems"), "The Sales Report is not complete.\nAnother one.");
    EXPECT_TRUE(strip->textInteractionFlags() & Qt::TextSelectableByMouse);
    reportFails = false;
    Run(1);
    EXPECT_FALSE(strip->isVisible());
}

/// 200 pages: only those that can be seen at the side are drawn.
TEST_F(Preview, SmallPagesAreDrawnAsTheyAreSeen) {
    Run(200);
    auto* list = pane->findChild<PageThumbnails*>("lstThumbnails");
    for (int i = 0; i < 60; ++i)
        QApplication::processEvents();
    const int first = list->DrawnPages();
    EXPECT_GE(first, 3);
    EXPECT_LE(first, 10);
    list->setCurrentIndex(list->model()->index(199, 0));
    for (int i = 0; i < 60; ++i)
        QApplication::processEvents();
    EXPECT_GT(list->DrawnPages(), first);
    EXPECT_LE(list->DrawnPages(), 2 * first + 2);
    EXPECT_EQ(Text("ToolPageNumber"), "200");
}

TEST_F(Preview, AllToolsAreSeenInANarrowWindow) {
    Run(2);
    for (const int width : {1100, 700, 520, 420}) {
        pane->resize(width, 700);
        Settle();
        for (const auto* tool : pane->findChildren<QToolButton*>()) {
            if (!tool->isVisible()) continue;
            const QRect place(tool->mapTo(pane.get(), QPoint()), tool->size());
            EXPECT_TRUE(pane->rect().contains(place))
                << tool->objectName().toStdString() << " at " << width;
        }
    }
}

}  // namespace
}  // namespace tendo
