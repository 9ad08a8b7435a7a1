#include "equipment/screens/find_label.h"

#include "platform/qt/theme.h"

namespace tendo {
namespace {

constexpr int pauseThatEnds = 1500;  // milliseconds
constexpr int gap = 8;

}  // namespace

FindLabel::FindLabel(QWidget* grid) : QLabel(grid) {
    setAccessibleName("Finding");
    setProperty("typed", true);
    hide();
    pause_.setSingleShot(true);
    pause_.setInterval(pauseThatEnds);
    connect(&pause_, &QTimer::timeout, this, &FindLabel::End);
}

void FindLabel::Show(const QString& typed, bool found, const QRect& area) {
    typed_ = typed;
    setText(found ? typed : typed + "  –  none");
    SetStyleFlag(this, "negative", !found);
    Place(area);
    show();
    pause_.start();
}

void FindLabel::Place(const QRect& area) {
    adjustSize();
    move(area.right() - width() - gap, area.bottom() - height() - gap);
}

void FindLabel::End() {
    pause_.stop();
    typed_.clear();
    hide();
}

}  // namespace tendo
