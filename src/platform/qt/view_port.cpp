#include "platform/qt/view_port.h"

#include <QApplication>
#include <QCloseEvent>
#include <QScrollBar>

namespace tendo {
namespace {

constexpr QSize smallestSize(160, 80);

}  // namespace

ViewPort::ViewPort(const QString& title) {
    setObjectName("View_Port");
    horizontalScrollBar()->setObjectName("View_Hscr");
    verticalScrollBar()->setObjectName("View_Vscr");
    setFrameShape(NoFrame);
    setFocusPolicy(Qt::NoFocus);
    setWidgetResizable(true);
    setWindowTitle(title);
    connect(qApp, &QApplication::focusChanged, this,
            [this](QWidget*, QWidget* focus) { ShowFocus(focus); });
}

void ViewPort::Show(QWidget* screen) {
    setWindowTitle(screen->windowTitle());
    setWidget(screen);
    connect(screen, &QWidget::windowTitleChanged, this, &QWidget::setWindowTitle);
}

QSize ViewPort::sizeHint() const {
    return widget() ? widget()->sizeHint().expandedTo(widget()->minimumSize()) : smallestSize;
}

QSize ViewPort::minimumSizeHint() const {
    return widget() ? smallestSize.boundedTo(widget()->minimumSizeHint()) : smallestSize;
}

void ViewPort::closeEvent(QCloseEvent* event) {
    event->setAccepted(!widget() || widget()->close());
}

void ViewPort::ShowFocus(QWidget* focus) {
    constexpr int margin = 8;
    if (!focus || !widget() || !widget()->isAncestorOf(focus)) return;
    ensureWidgetVisible(focus, margin, margin);
    // Labels stand at the left; they are seen whenever the field is seen with them.
    const int right = focus->mapTo(widget(), QPoint(focus->width(), 0)).x();
    if (right <= viewport()->width()) horizontalScrollBar()->setValue(0);
}

}  // namespace tendo
