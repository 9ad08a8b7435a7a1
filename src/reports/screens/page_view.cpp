#include "reports/screens/page_view.h"

#include <QMouseEvent>
#include <QPainter>
#include <QWheelEvent>

#include "platform/qt/painter_page.h"
#include "platform/qt/theme.h"

namespace tendo {
namespace {

constexpr int Surround = 24;  // pixels of ground around the paper
constexpr double ScreenDpi = 96;

}  // namespace

PageView::PageView(QWidget* parent) : QWidget(parent) {
    setAccessibleName("Page");
    setFocusPolicy(Qt::StrongFocus);
}

void PageView::ShowPage(const Document* document, int page) {
    document_ = document;
    page_ = page;
    Refresh();
}

void PageView::SetZoom(int percent) {
    zoom_ = percent;
    Refresh();
}

void PageView::Refresh() {
    image_ = {};
    setMinimumSize(sizeHint());
    updateGeometry();
    update();
}

QSize PageView::sizeHint() const {
    const double scale = ScreenDpi / 1440 * zoom_ / 100;
    return QSize(qRound(page_geometry::PaperWidth * scale),
                 qRound(page_geometry::PaperHeight * scale)) +
           QSize(2 * Surround, 2 * Surround);
}

QRect PageView::PaperRect() const {
    const QSize paper = sizeHint() - QSize(2 * Surround, 2 * Surround);
    return QRect(QPoint(std::max(Surround, (width() - paper.width()) / 2), Surround), paper);
}

void PageView::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.fillRect(rect(), Theme().workspace);
    const bool present =
        document_ && page_ >= 0 && page_ < static_cast<int>(document_->pages.size());
    if (!present) {
        painter.setPen(Theme().secondary);
        painter.drawText(rect(), Qt::AlignCenter,
                         "The reports have no pages. Mark a report in the report options.");
        return;
    }
    const double ratio = devicePixelRatioF();
    if (image_.isNull()) {
        image_ = PageImage(*document_, page_, ScreenDpi * zoom_ / 100 * ratio);
        image_.setDevicePixelRatio(ratio);
    }
    const QRect paper = PaperRect();
    painter.setPen(Qt::NoPen);
    for (int i = 6; i > 0; --i) {
        painter.setBrush(QColor(0, 0, 0, 8));
        painter.drawRoundedRect(paper.adjusted(-i, -i + 2, i, i + 2), 4, 4);
    }
    painter.drawImage(paper.topLeft(), image_);
}

void PageView::mouseReleaseEvent(QMouseEvent* event) {
    if (event->button() == Qt::LeftButton) Q_EMIT ZoomWanted(10);
    if (event->button() == Qt::RightButton) Q_EMIT ZoomWanted(-10);
}

void PageView::wheelEvent(QWheelEvent* event) {
    if (!(event->modifiers() & Qt::ControlModifier)) return QWidget::wheelEvent(event);
    Q_EMIT ZoomWanted(event->angleDelta().y() > 0 ? 10 : -10);
    event->accept();
}

}  // namespace tendo
