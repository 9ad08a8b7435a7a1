#include "platform/qt/flow_layout.h"

#include <QStyle>
#include <QWidget>
#include <algorithm>

namespace tendo {
namespace {

QSize Around(const QMargins& margins) {
    return {margins.left() + margins.right(), margins.top() + margins.bottom()};
}

}  // namespace

FlowLayout::FlowLayout(QWidget* parent) : QLayout(parent) {}

FlowLayout::~FlowLayout() {
    qDeleteAll(items_);
}

void FlowLayout::addItem(QLayoutItem* item) {
    items_.append(item);
}

QLayoutItem* FlowLayout::itemAt(int index) const {
    return items_.value(index);
}

QLayoutItem* FlowLayout::takeAt(int index) {
    return index >= 0 && index < items_.size() ? items_.takeAt(index) : nullptr;
}

int FlowLayout::heightForWidth(int width) const {
    return LayOut(width, nullptr);
}

void FlowLayout::setGeometry(const QRect& rect) {
    QLayout::setGeometry(rect);
    LayOut(rect.width(), &rect);
}

/// One line of all items.
QSize FlowLayout::sizeHint() const {
    QSize size;
    for (const QLayoutItem* item : items_) {
        if (item->isEmpty()) continue;
        const int gap = size.isEmpty() ? 0 : spacing();
        size.rwidth() += item->sizeHint().width() + gap;
        size.setHeight(std::max(size.height(), item->sizeHint().height()));
    }
    return size + Around(contentsMargins());
}

/// An item a line.
QSize FlowLayout::minimumSize() const {
    QSize size;
    for (const QLayoutItem* item : items_)
        if (!item->isEmpty()) size = size.expandedTo(item->sizeHint());
    return size + Around(contentsMargins());
}

int FlowLayout::LayOut(int width, const QRect* place) const {
    const QMargins margins = contentsMargins();
    const int room = width - margins.left() - margins.right();
    int y = margins.top(), x = 0, height = 0, from = 0;
    const auto endLine = [&](int to) {
        if (place) PlaceLine(from, to, QPoint(margins.left(), y), height, *place);
        y += height;
    };
    for (int i = 0; i < count(); ++i) {
        if (items_[i]->isEmpty()) continue;
        const QSize size = items_[i]->sizeHint();
        if (x > 0 && x + spacing() + size.width() > room) {
            endLine(i);
            y += spacing();
            x = height = 0;
            from = i;
        }
        x += size.width() + (x > 0 ? spacing() : 0);
        height = std::max(height, size.height());
    }
    endLine(count());
    return y + margins.bottom();
}

void FlowLayout::PlaceLine(int from, int to, QPoint corner, int height, const QRect& rect) const {
    QPoint at = rect.topLeft() + corner;
    for (int i = from; i < to; ++i) {
        if (items_[i]->isEmpty()) continue;
        const QSize size = items_[i]->sizeHint();
        const QRect box(at + QPoint(0, (height - size.height()) / 2), size);
        items_[i]->setGeometry(QStyle::visualRect(parentWidget()->layoutDirection(), rect, box));
        at.rx() += size.width() + spacing();
    }
}

}  // namespace tendo
