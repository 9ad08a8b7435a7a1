#include "app/screens/pointer.h"

#include <QApplication>
#include <utility>

namespace tendo {
namespace {

bool leftOn = false;

}  // namespace

void HourglassPointer() {
    if (!QApplication::overrideCursor()) QApplication::setOverrideCursor(Qt::WaitCursor);
}

void NormalPointer() {
    while (QApplication::overrideCursor())
        QApplication::restoreOverrideCursor();
}

bool PointerIsHourglass() {
    return QApplication::overrideCursor() != nullptr;
}

void LeaveHourglassOn() {
    leftOn = true;
}

bool HourglassWasLeftOn() {
    return std::exchange(leftOn, false);
}

}  // namespace tendo
