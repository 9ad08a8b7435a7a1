#include "reports/screens/page_view.h"

#include <QApplication>
#include <QMouseEvent>
#include <QPainter>
#include <cmath>

#include "platform/qt/painter_page.h"
#include "platform/qt/theme.h"

namespace tendo {
namespace {

constexpr int Surround = 24;  // pixels of ground around the paper
constexpr double TwipsPerPixel = 1440.0 / 96;
constexpr int ClickZoom = 10;
/// Device pixels of a page that is drawn as a whole; of larger ones the part that is seen.
constexpr qint64 LargestWhole = 10'000'000;
constexpr qsizetype CacheKilobytes = 96 << 10;
constexpr QColor MarkColor(255, 205, 40), CurrentMarkColor(255, 140, 0);

QSize DevicePaper(int zoom, double ratio) {
    const QSizeF paper = PageView::PaperSize() * (zoom / 100.0 * ratio);
    return {static_cast<int>(std::lround(paper.width())),
            static_cast<int>(std::lround(paper.height()))};
}

}  // namespace

PageView::PageView(QWidget* parent) : QWidget(parent), drawn_(CacheKilobytes) {
    setAccessibleName("Page");
    setFocusPolicy(Qt::StrongFocus);
    setAttribute(Qt::WA_OpaquePaintEvent);
}

QSizeF PageView::PaperSize() {
    return {page_geometry::PaperWidth / TwipsPerPixel, page_geometry::PaperHeight / TwipsPerPixel};
}

QSize PageView::Ground() {
    return {2 * Surround, 2 * Surround};
}

QSize PageView::SizeAt(int percent) {
    return DevicePaper(percent, 1) + Ground();
}

void PageView::ShowDocument(const Document* document) {
    document_ = document;
    marks_.clear();
    drawn_.clear();
    ShowPage(0);
}

void PageView::ShowPage(int page) {
    page_ = page;
    if (HasPage()) {
        setAccessibleName(QString("Page %1 of %2").arg(page + 1).arg(document_->pages.size()));
        setAccessibleDescription(
            QString::fromStdString(PageText(document_->pages[static_cast<std::size_t>(page_)])));
    }
    Refresh();
}

void PageView::SetZoom(int percent) {
    zoom_ = percent;
    Refresh();
}

void PageView::ShowMarks(std::vector<Mark> marks) {
    marks_ = std::move(marks);
    update();
}

void PageView::Refresh() {
    updateGeometry();
    update();
}

bool PageView::HasPage() const {
    return document_ && page_ >= 0 && page_ < static_cast<int>(document_->pages.size());
}

QRect PageView::PaperRect() const {
    const QSize paper = DevicePaper(zoom_, 1);
    const QPoint middle((width() - paper.width()) / 2, (height() - paper.height()) / 2);
    return {QPoint(std::max(Surround, middle.x()), std::max(Surround, middle.y())), paper};
}

QRectF PageView::Placed(const QRectF& box) const {
    const double scale = zoom_ / 100.0 / TwipsPerPixel;
    const QPointF margin(page_geometry::PaperMargin, page_geometry::PaperMargin);
    return {QPointF(PaperRect().topLeft()) + (box.topLeft() + margin) * scale, box.size() * scale};
}

QRect PageView::CurrentMark() const {
    for (const Mark& mark : marks_)
        if (mark.current) return Placed(mark.box).toAlignedRect();
    return {};
}

PageView::Drawn PageView::Draw(const QRect& part, double ratio) const {
    Drawn drawn{part, QImage(part.size(), QImage::Format_RGB32)};
    drawn.image.fill(Qt::white);
    QPainter painter(&drawn.image);
    painter.translate(-part.topLeft());
    PaintPage(painter, *document_, page_, zoom_ / 100.0 * ratio / TwipsPerPixel);
    painter.end();
    drawn.image.setDevicePixelRatio(ratio);
    return drawn;
}

const PageView::Drawn& PageView::DrawnAround(const QRect& seen, double ratio) {
    const QString key = QString("%1 %2 %3").arg(page_).arg(zoom_).arg(ratio);
    if (const Drawn* drawn = drawn_.object(key); drawn && drawn->part.contains(seen)) return *drawn;
    const QSize size = DevicePaper(zoom_, ratio);
    const bool whole = qint64{size.width()} * size.height() <= LargestWhole;
    // The room around lets the page be moved a little before it is drawn again.
    const QMargins around(seen.width() / 4, seen.height() / 4, seen.width() / 4, seen.height() / 4);
    const QRect paper({0, 0}, size);
    auto* drawn = new Drawn(Draw(whole ? paper : (seen + around) & paper, ratio));
    // The cache must keep at least the page on the screen.
    drawn_.insert(key, drawn, std::min(drawn->image.sizeInBytes() >> 10, CacheKilobytes / 2));
    return *drawn;
}

void PageView::PaintGround(QPainter& painter) const {
    constexpr int Shadow = 6;
    const QRect paper = PaperRect();
    painter.setPen(Qt::NoPen);
    for (int i = Shadow; i > 0; --i) {
        painter.setBrush(QColor(0, 0, 0, 5));
        painter.drawRoundedRect(paper.adjusted(-i, -i + 2, i, i + 2), 4, 4);
    }
    if (!hasFocus()) return;
    painter.setPen(QPen(Theme().accent, 2));
    painter.setBrush(Qt::NoBrush);
    painter.drawRoundedRect(paper.adjusted(-3, -3, 3, 3), 3, 3);
}

void PageView::PaintMarks(QPainter& painter) const {
    for (const Mark& mark : marks_) {
        const QRectF box = Placed(mark.box).adjusted(-1, -1, 1, 1);
        painter.setCompositionMode(QPainter::CompositionMode_Multiply);
        painter.fillRect(box, mark.current ? CurrentMarkColor : MarkColor);
        painter.setCompositionMode(QPainter::CompositionMode_SourceOver);
        if (!mark.current) continue;
        painter.setPen(QPen(Qt::black, 1));
        painter.setBrush(Qt::NoBrush);
        painter.drawRect(box);
    }
}

void PageView::paintEvent(QPaintEvent* event) {
    QPainter painter(this);
    painter.fillRect(event->rect(), Theme().workspace);
    if (!HasPage()) return;
    painter.setRenderHint(QPainter::Antialiasing);
    PaintGround(painter);
    const QRect paper = PaperRect();
    const double ratio = devicePixelRatioF();
    const QRect seen = visibleRegion().boundingRect().united(event->rect()) & paper;
    if (seen.isEmpty()) return;
    const QRectF onPaper = seen.translated(-paper.topLeft());
    const QRect device = QRectF(onPaper.topLeft() * ratio, onPaper.size() * ratio).toAlignedRect() &
                         QRect({0, 0}, DevicePaper(zoom_, ratio));
    const Drawn& drawn = DrawnAround(device, ratio);
    painter.drawImage(QPointF(paper.topLeft()) + QPointF(drawn.part.topLeft()) / ratio,
                      drawn.image);
    PaintMarks(painter);
}

void PageView::mousePressEvent(QMouseEvent* event) {
    pressed_ = event->button();
    pressedAt_ = draggedTo_ = event->globalPosition().toPoint();
    dragging_ = false;
}

void PageView::mouseMoveEvent(QMouseEvent* event) {
    const QPoint at = event->globalPosition().toPoint();
    if (pressed_ != Qt::LeftButton) return;
    if ((at - pressedAt_).manhattanLength() >= QApplication::startDragDistance()) dragging_ = true;
    if (!dragging_) return;
    setCursor(Qt::ClosedHandCursor);
    Q_EMIT Dragged(at - draggedTo_);
    draggedTo_ = at;
}

void PageView::mouseReleaseEvent(QMouseEvent* event) {
    unsetCursor();
    const bool click = !dragging_ && event->button() == pressed_;
    pressed_ = Qt::NoButton;
    if (!click) return;
    const QPoint at = event->position().toPoint();
    if (event->button() == Qt::LeftButton) Q_EMIT ZoomWanted(ClickZoom, at);
    if (event->button() == Qt::RightButton) Q_EMIT ZoomWanted(-ClickZoom, at);
}

void PageView::focusInEvent(QFocusEvent* event) {
    QWidget::focusInEvent(event);
    update();
}

void PageView::focusOutEvent(QFocusEvent* event) {
    QWidget::focusOutEvent(event);
    update();
}

}  // namespace tendo
