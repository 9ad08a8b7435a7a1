#include "pricing/screens/view_switch.h"

namespace tendo {

void ShowInPlaceOf(Form& shown, Form& next) {
    next.ShowForm();
    if (!shown.SubWindow() || !next.SubWindow()) return;
    if (shown.SubWindow()->isMaximized()) {
        next.SubWindow()->showMaximized();
    } else {
        next.SubWindow()->showNormal();
        next.SubWindow()->setGeometry(shown.SubWindow()->geometry());
    }
    shown.SubWindow()->hide();
}

}  // namespace tendo
