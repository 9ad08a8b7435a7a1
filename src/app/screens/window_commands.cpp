#include "app/screens/window_commands.h"

#include <QMdiArea>
#include <QMdiSubWindow>
#include <algorithm>

#include "app/screens/project_commands.h"
#include "platform/qt/form.h"

namespace tendo {
namespace {

/// Screens that keep their own size.
const char* const fixedForms[] = {"frmMDI",      "frmPrint",       "frmExplorer", "BrowseForm",
                                  "frmAbout",    "frmColorSelect", "frmHelpInfo", "frmSplash",
                                  "frmTempFile", "frmTip",         "frmPreview"};

bool KeepsItsSize(const QString& name) {
    return std::any_of(std::begin(fixedForms), std::end(fixedForms),
                       [&](const char* fixed) { return name == fixed; });
}

QList<QMdiSubWindow*> OpenWindows(bool minimized) {
    QList<QMdiSubWindow*> windows;
    if (const QMdiArea* area = Form::Workspace())
        for (QMdiSubWindow* window : area->subWindowList())
            if (window->isVisible() && window->isMinimized() == minimized) windows.append(window);
    return windows;
}

void FillWorkspace(QMdiSubWindow* window) {
    window->showNormal();
    window->setGeometry(Form::Workspace()->viewport()->rect());
}

/// Lays the windows out as bands, one below the other or side by side.
void Tile(bool side) {
    const QList<QMdiSubWindow*> windows = OpenWindows(false);
    if (windows.isEmpty()) return;
    const QRect room = Form::Workspace()->viewport()->rect();
    const int count = static_cast<int>(windows.size());
    for (int i = 0; i < count; ++i) {
        const int from = (side ? room.width() : room.height()) * i / count;
        const int to = (side ? room.width() : room.height()) * (i + 1) / count;
        windows[i]->showNormal();
        windows[i]->setGeometry(side ? QRect(from, 0, to - from, room.height())
                                     : QRect(0, from, room.width(), to - from));
    }
}

/// The corner at which a new window stands when nothing else is known.
constexpr QPoint firstPlace(24, 16);
constexpr const char* placedFlag = "placed";

void PlaceWindow(QMdiSubWindow* window, const QSize& room) {
    const QPoint spare(std::max(0, room.width() - window->width()),
                       std::max(0, room.height() - window->height()));
    QPoint place = window->pos();
    if (place.isNull()) place = firstPlace;
    window->move(std::clamp(place.x(), 0, spare.x()), std::clamp(place.y(), 0, spare.y()));
}

}  // namespace

void PlaceNewWindows() {
    for (QMdiSubWindow* window : OpenWindows(false)) {
        if (window->property(placedFlag).toBool() || window->isMaximized()) continue;
        window->setProperty(placedFlag, true);
        PlaceWindow(window, Form::Workspace()->viewport()->size());
    }
}

void mnuWindowCascade_Click() {
    if (QMdiArea* area = Form::Workspace()) area->cascadeSubWindows();
}

void mnuWindowTileHorizontal_Click() {
    Tile(false);
}

void mnuWindowTileVertical_Click() {
    Tile(true);
}

void mnuWindowArrange_Click() {
    int left = 0;
    for (QMdiSubWindow* window : OpenWindows(true)) {
        window->move(left, Form::Workspace()->viewport()->height() - window->height());
        left += window->width();
    }
}

void mnuWindowResetToFullSize_Click() {
    Form* active = Form::Active();
    if (active && active->SubWindow()) FillWorkspace(active->SubWindow());
}

void mnuWindowResetAllToFullSize_Click() {
    for (Form* form : Form::Loaded())
        if (form->SubWindow() && form->SubWindow()->isVisible() && !KeepsItsSize(form->Name()))
            FillWorkspace(form->SubWindow());
}

void mnuWindowCloseWindow_Click() {
    if (Form* active = Form::Active()) active->Unload();
}

void mnuWindowCloseAllProjectWindows_Click() {
    CloseProjectWindows();
}

}  // namespace tendo
