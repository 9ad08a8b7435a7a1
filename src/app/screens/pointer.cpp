#include "app/screens/pointer.h"

#include <QApplication>

namespace tendo {

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

}  // namespace tendo
