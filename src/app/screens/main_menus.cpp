#include "app/screens/main_menus.h"

#include <QAction>
#include <QActionGroup>
#include <QMainWindow>
#include <QMenuBar>
#include <QShortcut>
#include <QToolBar>
#include <QToolButton>

#include "app/command_table.h"
#include "app/screens/bar.h"
#include "app/screens/command_dispatch.h"
#include "app/screens/command_search.h"
#include "platform/qt/form.h"
#include "platform/qt/icons.h"

namespace tendo {
namespace {

/// A caption for a menu: a file name's own "&" stands for itself.
QString MenuCaption(const QString& name, const std::string& caption) {
    QString text = QString::fromStdString(caption);
    if (RecentFileNumber(name.toStdString())) text = "&" + text.mid(1).replace("&", "&&");
    return text;
}

QString TipText(const QAction& action) {
    QString tip = action.text();
    tip.remove('&');
    if (tip.endsWith("...")) tip.chop(3);
    const QString keys = action.shortcut().toString(QKeySequence::NativeText);
    return keys.isEmpty() ? tip : tip + "  (" + keys + ")";
}

}  // namespace

MainMenus::MainMenus(QMainWindow* window) : QObject(window), window_(window) {
    MakeActions();
    MakeMenus();
    MakeToolbar();
    MainBar().Changed = [this](const std::string& name, const ActiveBar::Tool&) {
        ShowTool(QString::fromStdString(name));
    };
}

MainMenus::~MainMenus() {
    MainBar().Changed = nullptr;
}

void MainMenus::MakeActions() {
    for (const Command& command : Commands()) {
        auto* action = new QAction(window_);
        const QString name = command.tool;
        action->setObjectName(name);
        action->setIcon(*command.icon ? LineIcon(command.icon) : QIcon());
        if (*command.shortcut) action->setShortcut(QKeySequence(command.shortcut));
        connect(action, &QAction::triggered, this, [this, name] {
            ActiveBar_Click(name.toStdString());
            ShowTool(name);
        });
        window_->addAction(action);
        actions_[name] = action;
        ShowTool(name);
    }
}

void MainMenus::ShowTool(const QString& name) {
    QAction* action = actions_.value(name);
    const ActiveBar::Tool* tool = MainBar().Find(name.toStdString());
    if (!action || !tool) return;
    action->setText(MenuCaption(name, tool->caption));
    action->setToolTip(TipText(*action));
    action->setEnabled(tool->enabled && tool->available);
    action->setVisible(tool->visible);
    action->setCheckable(tool->checked);
    action->setChecked(tool->checked);
}

void MainMenus::MakeMenus() {
    for (const char* band : Bands()) {
        QMenu* menu = window_->menuBar()->addMenu(QString("&") + band);
        menu->setObjectName(band);
        for (const Command& command : Commands()) {
            if (QString(command.band) != band) continue;
            if (command.startsGroup) menu->addSeparator();
            menu->addAction(actions_[command.tool]);
        }
        for (const MenuGuest& guest : MenuGuests()) {
            if (QString(guest.band) != band) continue;
            if (guest.startsGroup) menu->addSeparator();
            menu->addAction(actions_[guest.tool]);
        }
        if (QString(band) == "Window") windowMenu_ = menu;
    }
    connect(windowMenu_, &QMenu::aboutToShow, this, &MainMenus::ShowWindowList);
}

void MainMenus::MakeToolbar() {
    toolbar_ = window_->addToolBar("Main Toolbar");
    toolbar_->setObjectName("MainToolbar");
    toolbar_->setMovable(false);
    toolbar_->setFloatable(false);
    toolbar_->setContextMenuPolicy(Qt::PreventContextMenu);
    auto* gap = new QWidget(toolbar_);
    gap->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Preferred);
    gap_ = toolbar_->addWidget(gap);
    FillToolbar({});
    auto* search = new CommandSearch(toolbar_);
    QAction* place = toolbar_->addWidget(search);
    connect(toolbar_, &QToolBar::orientationChanged, this, [place](Qt::Orientation orientation) {
        place->setVisible(orientation == Qt::Horizontal);
    });
    auto* keys = new QShortcut(QKeySequence("Ctrl+Shift+P"), window_);
    connect(keys, &QShortcut::activated, search,
            [search] { search->setFocus(Qt::ShortcutFocusReason); });
}

void MainMenus::FillToolbar(const QStringList& hidden) {
    for (QAction* action : toolbar_->actions()) {
        if (action == gap_) break;
        toolbar_->removeAction(action);
        if (action->isSeparator()) action->deleteLater();
    }
    bool separator = false;  // stands only between tools
    bool first = true;
    for (const char* tool : MainToolbarTools()) {
        separator = separator || !*tool;
        if (!*tool || hidden.contains(tool)) continue;
        if (separator && !first) toolbar_->insertSeparator(gap_);
        toolbar_->insertAction(gap_, actions_[tool]);
        separator = false;
        first = false;
    }
}

void MainMenus::ShowWindowList() {
    qDeleteAll(windowEntries_);
    windowEntries_.clear();
    int number = 0;
    for (Form* form : Form::Loaded()) {
        if (!form->SubWindow()) continue;
        if (number == 0) {
            windowEntries_ << windowMenu_->addSeparator();
        }
        ++number;
        auto* entry = windowMenu_->addAction(
            QString("&%1 %2").arg(number).arg(form->windowTitle().replace("&", "&&")));
        entry->setCheckable(true);
        entry->setChecked(form->IsActiveForm());
        connect(entry, &QAction::triggered, form, [form] { form->ShowForm(); });
        windowEntries_ << entry;
    }
}

}  // namespace tendo
