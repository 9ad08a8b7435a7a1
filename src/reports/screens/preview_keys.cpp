#include <QApplication>
#include <QKeyEvent>
#include <QToolButton>

#include "reports/screens/find_bar.h"
#include "reports/screens/page_thumbnails.h"
#include "reports/screens/page_view.h"
#include "reports/screens/preview_pane.h"

namespace tendo {
namespace {

constexpr int LineOfKeys = 48;  // pixels that an arrow key scrolls
constexpr int ZoomOfKeys = 10;

}  // namespace

/// Keys that other controls of a screen might be thought to take serve only within the pane.
bool PreviewPane::HandleKey(const QKeyEvent& event) {
    if (HandlePageKey(event) || HandleSearchKey(event)) return true;
    const QWidget* focus = QApplication::focusWidget();
    return focus && isAncestorOf(focus) && (HandleScrollKey(event) || HandleZoomKey(event));
}

/// On by a part of the page, and to the next page where it ends.
bool PreviewPane::ScrollOrTurn(Qt::Orientation orientation, int direction, int by) {
    if (scroller_->Scroll(orientation, direction, by)) return true;
    const int before = page_;
    Turn(direction);
    if (page_ != before && direction < 0) scroller_->GoToFoot();
    return true;
}

bool PreviewPane::HandlePageKey(const QKeyEvent& event) {
    switch (event.key()) {
        case Qt::Key_PageUp:
            return Turn(-1), true;
        case Qt::Key_PageDown:
            return Turn(1), true;
        case Qt::Key_Home:
            return ShowPage(0), true;
        case Qt::Key_End:
            return ShowPage(PageCount() - 1), true;
        case Qt::Key_F5:
            return Refresh(), true;
        default:
            return false;
    }
}

bool PreviewPane::HandleScrollKey(const QKeyEvent& event) {
    const bool shift = event.modifiers() & Qt::ShiftModifier;
    switch (event.key()) {
        case Qt::Key_Up:
            return ScrollOrTurn(Qt::Vertical, -1, LineOfKeys);
        case Qt::Key_Down:
            return ScrollOrTurn(Qt::Vertical, 1, LineOfKeys);
        case Qt::Key_Left:
            return ScrollOrTurn(Qt::Horizontal, -1, LineOfKeys);
        case Qt::Key_Right:
            return ScrollOrTurn(Qt::Horizontal, 1, LineOfKeys);
        case Qt::Key_Space:
            return ScrollOrTurn(Qt::Vertical, shift ? -1 : 1, 0);
        default:
            return false;
    }
}

bool PreviewPane::HandleZoomKey(const QKeyEvent& event) {
    switch (event.key()) {
        case Qt::Key_Plus:
        case Qt::Key_Equal:
            return ZoomTo(view_->Zoom() + ZoomOfKeys), true;
        case Qt::Key_Minus:
            return ZoomTo(view_->Zoom() - ZoomOfKeys), true;
        case Qt::Key_0:
            return ZoomTo(100), true;
        case Qt::Key_W:
            return FitTo(fit_ == PageFit::Width ? PageFit::None : PageFit::Width), true;
        case Qt::Key_F:
            if (event.modifiers() & Qt::ControlModifier) return false;
            return FitTo(fit_ == PageFit::Page ? PageFit::None : PageFit::Page), true;
        default:
            return false;
    }
}

bool PreviewPane::HandleSearchKey(const QKeyEvent& event) {
    if (event.key() == Qt::Key_F4 && thumbnails_ && event.modifiers() == Qt::NoModifier) {
        ToolThumbnails_->click();
        return true;
    }
    if (!find_) return false;
    if (event.key() == Qt::Key_F && event.modifiers() == Qt::ControlModifier)
        return OpenSearch(), true;
    if (event.key() == Qt::Key_F3) {
        StepToMatch(event.modifiers() & Qt::ShiftModifier ? -1 : 1);
        return true;
    }
    if (event.key() != Qt::Key_Escape || !find_->isVisible()) return false;
    return CloseSearch(), true;
}

void PreviewPane::OpenSearch() {
    find_->Open();
    Find();
}

void PreviewPane::CloseSearch() {
    find_->hide();
    search_.Clear();
    ShowMatches();
    FocusPage();
}

void PreviewPane::Find() {
    search_.Find(document_, find_->Wanted().toStdString(), page_);
    if (search_.Count() > 0 && search_.Page() != page_) ShowPage(search_.Page());
    ShowMatches();
    scroller_->BringIntoView(view_->CurrentMark());
}

/// With the bar closed the last text is looked for again.
void PreviewPane::StepToMatch(int direction) {
    if (!find_->isVisible()) {
        find_->show();
        Find();
    } else {
        search_.Step(direction);
    }
    if (search_.Count() > 0 && search_.Page() != page_) ShowPage(search_.Page());
    ShowMatches();
    scroller_->BringIntoView(view_->CurrentMark());
}

void PreviewPane::ShowMatches() {
    if (!find_) return;
    view_->ShowMarks(search_.MarksOn(document_, page_));
    find_->ShowCount(search_.Current(), search_.Count());
}

}  // namespace tendo
