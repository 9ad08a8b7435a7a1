#include "app/screens/toolbar_commands.h"

#include <QMainWindow>
#include <QPointer>
#include <QToolBar>

#include "app/screens/bar.h"
#include "app/screens/frm_customize_toolbar.h"
#include "platform/files/profile.h"
#include "project/program_state.h"

namespace tendo {
namespace {

constexpr const char* section = "Main Toolbar";

QPointer<QMainWindow> mainWindow;
QPointer<QToolBar> mainToolbar;
std::function<void(const QStringList&)> fillToolbar;
QStringList hiddenTools;

struct Side {
    const char* name;
    const char* tool;
    Qt::ToolBarArea area;
};
const Side sides[] = {{"Top", "ToolAlignTop", Qt::TopToolBarArea},
                      {"Left", "ToolAlignLeft", Qt::LeftToolBarArea},
                      {"Right", "ToolAlignRight", Qt::RightToolBarArea},
                      {"Bottom", "ToolAlignBottom", Qt::BottomToolBarArea}};

void Dock(Qt::ToolBarArea area) {
    if (!mainWindow || !mainToolbar) return;
    mainWindow->addToolBar(area, mainToolbar);
    for (const Side& side : sides)
        MainBar().SetChecked(side.tool, side.area == area);
}

std::string LayoutFile() {
    return State().ProgramDirectory + "toolbar.lyt";
}

const Side& StoredSide() {
    const std::string name = ReadProfileString(LayoutFile(), section, "Side", "");
    for (const Side& side : sides)
        if (name == side.name) return side;
    return sides[0];
}

}  // namespace

void SetMainToolbar(QMainWindow* window, QToolBar* bar,
                    std::function<void(const QStringList& hidden)> fill) {
    mainWindow = window;
    mainToolbar = bar;
    fillToolbar = std::move(fill);
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

void mnuToolbarCustomizeToolbar_Click() {
    if (AskHiddenTools(hiddenTools)) fillToolbar(hiddenTools);
}

void RestoreToolbarLayout() {
    const std::string hidden = ReadProfileString(LayoutFile(), section, "Hidden", "");
    hiddenTools = QString::fromStdString(hidden).split(',', Qt::SkipEmptyParts);
    if (!hiddenTools.isEmpty()) fillToolbar(hiddenTools);  // it is made with every tool
    Dock(StoredSide().area);
}

void StoreToolbarLayout() {
    const Qt::ToolBarArea area = mainWindow->toolBarArea(mainToolbar);
    for (const Side& side : sides) {
        if (side.area != area) continue;
        WriteProfileSection(LayoutFile(), section,
                            {{"Side", side.name}, {"Hidden", hiddenTools.join(',').toStdString()}});
    }
}

}  // namespace tendo
