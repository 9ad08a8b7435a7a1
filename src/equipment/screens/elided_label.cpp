#include "equipment/screens/elided_label.h"

#include <QPainter>

#include "platform/qt/theme.h"

namespace tendo {

ElidedLabel::ElidedLabel(QWidget* parent) : QLabel(parent) {
    setProperty("quiet", true);
    setAlignment(Qt::AlignRight | Qt::AlignVCenter);
}

QSize ElidedLabel::minimumSizeHint() const {
    return {0, QLabel::minimumSizeHint().height()};
}

void ElidedLabel::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.setPen(Theme().secondary);
    painter.drawText(rect(), static_cast<int>(alignment()),
                     fontMetrics().elidedText(text(), Qt::ElideRight, width()));
}

}  // namespace tendo
