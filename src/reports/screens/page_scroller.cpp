#include "reports/screens/page_scroller.h"

#include <QKeyEvent>
#include <QScrollBar>
#include <QWheelEvent>
#include <algorithm>
#include <cmath>
#include <cstdlib>
#include <utility>

#include "reports/preview_entries.h"
#include "reports/screens/page_view.h"

namespace tendo {
namespace {

constexpr int WheelStep = 120;
constexpr int WheelZoom = 10;
constexpr int PauseOfTouch = 250;  // milliseconds after scrolling in which a touch turns no page

}  // namespace

PageScroller::PageScroller(PageView* view, QWidget* parent) : QScrollArea(parent), view_(view) {
    setObjectName("ViewPort");
    setFocusPolicy(Qt::NoFocus);
    setWidget(view);
    sinceScroll_.start();
    connect(view, &PageView::Dragged, this, [this](QPoint by) {
        horizontalScrollBar()->setValue(horizontalScrollBar()->value() - by.x());
        verticalScrollBar()->setValue(verticalScrollBar()->value() - by.y());
    });
}

/// The view fills the window where its page is smaller; a bar that comes or goes changes the
/// window, so it takes a second round.
void PageScroller::Arrange() {
    if (std::exchange(arranging_, true)) return;
    for (int round = 0; round < 2; ++round)
        view_->resize(view_->sizeHint().expandedTo(viewport()->size()));
    arranging_ = false;
}

void PageScroller::resizeEvent(QResizeEvent* event) {
    QScrollArea::resizeEvent(event);
    Arrange();
    if (!arranging_) Q_EMIT Resized();
}

void PageScroller::keyPressEvent(QKeyEvent* event) {
    event->ignore();
}

QPoint PageScroller::Middle() const {
    return view_->mapFrom(viewport(), viewport()->rect().center());
}

void PageScroller::ZoomTo(int percent, QPoint at) {
    const QPoint onScreen = view_->mapTo(viewport(), at);
    const QPointF onPaper = QPointF(at - view_->PaperRect().topLeft()) / view_->Zoom();
    view_->SetZoom(percent);
    Arrange();
    const QPoint now = view_->PaperRect().topLeft() + (onPaper * percent).toPoint();
    horizontalScrollBar()->setValue(now.x() - onScreen.x());
    verticalScrollBar()->setValue(now.y() - onScreen.y());
}

int PageScroller::ZoomOfFit(PageFit fit) const {
    const QSizeF paper = PageView::PaperSize();
    QSizeF room = maximumViewportSize() - PageView::Ground();
    const auto zoomOfWidth = [&] { return room.width() / paper.width(); };
    const double zoomOfHeight = room.height() / paper.height();
    double zoom = zoomOfWidth();
    if (fit == PageFit::Width && zoom > zoomOfHeight) {
        room.rwidth() -= verticalScrollBar()->sizeHint().width();
        zoom = zoomOfWidth();
    }
    if (fit == PageFit::Page) zoom = std::min(zoom, zoomOfHeight);
    return std::clamp(static_cast<int>(std::floor(zoom * 100)), SmallestZoom, LargestZoom);
}

bool PageScroller::Scroll(Qt::Orientation orientation, int direction, int by) {
    QScrollBar* bar = orientation == Qt::Vertical ? verticalScrollBar() : horizontalScrollBar();
    const int before = bar->value();
    if (by == 0) by = bar->pageStep() * 9 / 10;
    bar->setValue(before + direction * by);
    return bar->value() != before;
}

void PageScroller::GoToTop() {
    verticalScrollBar()->setValue(0);
}

void PageScroller::GoToFoot() {
    verticalScrollBar()->setValue(verticalScrollBar()->maximum());
}

void PageScroller::BringIntoView(const QRect& place) {
    if (place.isEmpty()) return;
    const QPoint middle = place.center();
    ensureVisible(middle.x(), middle.y(), place.width() / 2 + 24, viewport()->height() / 4);
}

void PageScroller::wheelEvent(QWheelEvent* event) {
    if (event->modifiers() & Qt::ControlModifier) {
        ZoomByWheel(*event);
        return event->accept();
    }
    const int angle = event->angleDelta().y();
    const QScrollBar* bar = verticalScrollBar();
    const bool atEnd = angle < 0 ? bar->value() == bar->maximum() : bar->value() == bar->minimum();
    if (angle == 0 || !atEnd || (event->modifiers() & Qt::ShiftModifier)) {
        turnAngle_ = 0;
        sinceScroll_.start();
        return QScrollArea::wheelEvent(event);
    }
    TurnByWheel(angle, !event->pixelDelta().isNull());
    event->accept();
}

void PageScroller::ZoomByWheel(const QWheelEvent& event) {
    zoomAngle_ += event.angleDelta().y();
    const int steps = zoomAngle_ / WheelStep;
    zoomAngle_ -= steps * WheelStep;
    const QPoint at = view_->mapFromGlobal(event.globalPosition()).toPoint();
    if (steps != 0) Q_EMIT ZoomWanted(steps * WheelZoom, at);
}

/// What is left of a push on a touch pad shall not run through the document.
void PageScroller::TurnByWheel(int angle, bool touchPad) {
    if (touchPad && !sinceScroll_.hasExpired(PauseOfTouch)) return sinceScroll_.start();
    turnAngle_ += angle;
    if (std::abs(turnAngle_) < WheelStep) return;
    const int direction = std::exchange(turnAngle_, 0) < 0 ? 1 : -1;
    sinceScroll_.start();
    Q_EMIT TurnWanted(direction);
}

}  // namespace tendo
