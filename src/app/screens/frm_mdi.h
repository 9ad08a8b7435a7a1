#pragma once

#include <QPointer>
#include <QTimer>
#include <string>
#include <vector>

#include "platform/qt/form.h"

class QMainWindow;

namespace tendo {

class MainMenus;
class StatusLine;
class WorkspaceArea;

/// The one main window: menus, toolbar, the area of the screens, status bar and the autosave timer.
class frmMDI : public Form {
    Q_OBJECT
  public:
    frmMDI();
    ~frmMDI() override;

    /// What the window does when it comes up, up to the end of the program's start; `args` is the
    /// command line.
    void MDIForm_Load(const std::vector<std::string>& args);
    void DrawBackground();

  protected:
    bool QueryUnload() override;
    void FormUnload() override;
    void dragEnterEvent(QDragEnterEvent* event) override;
    void dropEvent(QDropEvent* event) override;

  private:
    void RestoreWindow();
    void OpenStartupProject(const std::vector<std::string>& args);
    void MakeMissingFormats();
    void LoadMaterials();
    void Observe();

    QMainWindow* window_;
    WorkspaceArea* workspace_;
    MainMenus* menus_;
    StatusLine* status_;
    QTimer* tmrAutoSave_;
};

}  // namespace tendo
