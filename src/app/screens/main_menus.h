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
    /// Puts the tools on the toolbar, but for the hidden ones.
    void FillToolbar(const QStringList& hidden);
    /// The Window menu's list of loaded screens.
    void ShowWindowList();

  private:
    void MakeActions();
    void MakeMenus();
    void MakeToolbar();
    void ShowTool(const QString& name);

    QMainWindow* window_;
    QToolBar* toolbar_ = nullptr;
    QAction* gap_ = nullptr;  // what stands right of the tools begins here
    QMenu* windowMenu_ = nullptr;
    QList<QAction*> windowEntries_;
    QMap<QString, QAction*> actions_;
};

}  // namespace tendo
