#include "app/screens/bar.h"

#include <QLabel>

#include "platform/qt/form.h"

namespace tendo {

ActiveBar& MainBar() {
    static ActiveBar bar;
    return bar;
}

void ShowAutosavePanel(const QString& text) {
    Form* main = Form::Find("frmMDI");
    auto* panel = main ? main->findChild<QLabel*>("StatusBarPanel2") : nullptr;
    if (panel) panel->setText(text);
}

}  // namespace tendo
