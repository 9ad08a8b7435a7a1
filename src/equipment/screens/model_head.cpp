#include "equipment/screens/model_head.h"

#include <QEvent>
#include <QPainter>

#include "platform/qt/theme.h"

namespace tendo {

ModelHead::ModelHead(QWidget* parent) : QHeaderView(Qt::Horizontal, parent) {
    setSectionsClickable(true);
    setHighlightSections(false);
    setStretchLastSection(true);
}

QSize ModelHead::sizeHint() const {
    if (count() > 0 && !hint_.isValid()) {
        ensurePolished();
        hint_ = sectionSizeFromContents(0);
    }
    return hint_;
}

void ModelHead::ShowSort(int column, bool descending) {
    sortColumn_ = column;
    descending_ = descending;
    viewport()->update();
}

/// The sort's triangle stands in the margin right of the heading, which so loses no room.
void ModelHead::paintSection(QPainter* painter, const QRect& area, int column) const {
    painter->save();  // the style leaves its clipping behind
    QHeaderView::paintSection(painter, area, column);
    painter->restore();
    if (column != sortColumn_) return;
    constexpr double half = 3.5;
    const QPointF middle(area.right() - 5.0, area.center().y() + 0.5);
    const double tip = descending_ ? 2.5 : -2.5;
    painter->save();
    painter->setRenderHint(QPainter::Antialiasing);
    painter->setPen(Qt::NoPen);
    painter->setBrush(Theme().accent);
    painter->drawPolygon(QPolygonF(
        {middle + QPointF(-half, -tip), middle + QPointF(half, -tip), middle + QPointF(0, tip)}));
    painter->restore();
}

void ModelHead::changeEvent(QEvent* event) {
    if (event->type() == QEvent::FontChange || event->type() == QEvent::StyleChange) hint_ = {};
    QHeaderView::changeEvent(event);
}

}  // namespace tendo
