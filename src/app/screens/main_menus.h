#pragma once

#include <QMap>
#include <QObject>
#include <QString>

class QAction;
class QMainWindow;
class QMenu;
class QToolBar;

namespace tendo {

class CommandSearch;

/// Menus and main toolbar from the command table; every action goes through ActiveBar_Click.
class MainMenus : public QObject {
    Q_OBJECT
  public:
    explicit MainMenus(QMainWindow* window);
    ~MainMenus() override;

    QToolBar* Toolbar() const { return toolbar_; }
    /// The Window menu's list of loaded screens.
    void ShowWindowList();

  private:
    void MakeActions();
    void MakeMenus();
    void MakeToolbar();
    void ShowTool(const QString& name);

    QMainWindow* window_;
    QToolBar* toolbar_ = nullptr;
    QMenu* windowMenu_ = nullptr;
    QList<QAction*> windowEntries_;
    QMap<QString, QAction*> actions_;
};

}  // namespace tendo
