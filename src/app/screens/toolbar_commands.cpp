#include "app/screens/toolbar_commands.h"

#include <QByteArray>
#include <QMainWindow>
#include <QPointer>
#include <QToolBar>

#include "app/screens/bar.h"
#include "platform/files/paths.h"
#include "platform/files/safe_file.h"
#include "platform/text/runtime_error.h"
#include "project/program_state.h"

namespace tendo {
namespace {

constexpr int layoutVersion = 1;
constexpr std::uint64_t longestLayout = 1 << 16;

QPointer<QMainWindow> mainWindow;
QPointer<QToolBar> mainToolbar;

struct Side {
    const char* tool;
    Qt::ToolBarArea area;
};
const Side sides[] = {{"ToolAlignTop", Qt::TopToolBarArea},
                      {"ToolAlignLeft", Qt::LeftToolBarArea},
                      {"ToolAlignRight", Qt::RightToolBarArea},
                      {"ToolAlignBottom", Qt::BottomToolBarArea}};

void ShowSide() {
    const Qt::ToolBarArea area = mainWindow->toolBarArea(mainToolbar);
    for (const Side& side : sides)
        MainBar().SetChecked(side.tool, side.area == area);
}

void Dock(Qt::ToolBarArea area) {
    if (!mainWindow || !mainToolbar) return;
    mainWindow->addToolBar(area, mainToolbar);
    ShowSide();
}

std::string LayoutFile() {
    return State().ProgramDirectory + "toolbar.lyt";
}

}  // namespace

void SetMainToolbar(QMainWindow* window, QToolBar* bar) {
    mainWindow = window;
    mainToolbar = bar;
}

void mnuToolbarAlignTop_Click() {
    Dock(Qt::TopToolBarArea);
}

void mnuToolbarAlignLeft_Click() {
    Dock(Qt::LeftToolBarArea);
}

void mnuToolbarAlignRight_Click() {
    Dock(Qt::RightToolBarArea);
}

void mnuToolbarAlignBottom_Click() {
    Dock(Qt::BottomToolBarArea);
}

void RestoreToolbarLayout() {
    if (FileExists(LayoutFile())) {
        try {
            const std::string bytes = ReadWholeFile(LayoutFile(), longestLayout);
            mainWindow->restoreState(QByteArray::fromStdString(bytes), layoutVersion);
        } catch (const RuntimeError&) {
            // An unreadable layout leaves the design's own.
        }
    }
    ShowSide();
}

void StoreToolbarLayout() {
    ReplaceFile(LayoutFile(), mainWindow->saveState(layoutVersion).toStdString());
}

}  // namespace tendo
