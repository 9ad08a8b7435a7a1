#pragma once

#include <QMdiSubWindow>
#include <QPointer>
#include <QString>
#include <QWidget>
#include <functional>

class QLabel;
class QMdiArea;

namespace tendo {

/// Base of all screens. A screen's object name is its name ("frmSumModelData"), its window title
/// its caption; its controls are its descendants, found by their object names. A loaded form is
/// registered by name until it unloads; then it is deleted.
class Form : public QWidget {
    Q_OBJECT
  public:
    /// Where a form stands: inside the main window, as a modal window before it, as the main window
    /// itself, or as a free window (the logo).
    enum class Place { Child, Dialog, Main, Free };

    /// `placementSection`: the section of Tendo.ini that keeps the place; empty: the place isn't
    /// kept.
    Form(const QString& name, const QString& caption, Place place,
         const QString& placementSection = {});
    ~Form() override;

    QString Name() const { return objectName(); }
    Place FormPlace() const { return place_; }
    bool IsModal() const { return modalLoop_; }

    /// Shows the form and brings it forward; a minimized one is restored.
    void ShowForm();
    /// Shows the form as a modal window and returns when it has unloaded.
    void ShowModal();
    /// Closes the form as its user would. False when it refused.
    bool Unload();
    /// Stands in front of the other screens.
    bool IsActiveForm() const;

    /// A control by its name; nullptr when there is none.
    QWidget* Control(const QString& name) const;

    static Form* Find(const QString& name);
    /// Loaded forms in the order of their loading.
    static QList<Form*> Loaded();
    /// The screen in front inside the main window, or the modal one; nullptr without any.
    static Form* Active();
    /// The innermost modal form; nullptr without one.
    static Form* TopModal();

    /// The area of the main window in which child forms stand.
    static void SetWorkspace(QMdiArea* area);
    static QMdiArea* Workspace();
    /// Called in the modal loop of a form as soon as it is shown; the driver answers forms through
    /// it.
    static void SetModalObserver(std::function<void(Form&)> observer);
    /// Called after a form was loaded, shown or unloaded (Window menu).
    static void SetListObserver(std::function<void()> observer);

    /// Commits the field in focus without moving the focus: what closing a form and a command of
    /// its own do first.
    static void CommitFocusedField();

    /// The same, and the edits of all loaded forms: what a menu or toolbar command does first.
    static void CommitAllEdits();

    /// Commits the field in focus and lets every loaded form put what it holds in its fields into
    /// the records: what a save, a preview or a print does first, so that paper and file tell what
    /// the screens show.
    static void StoreAllFields();

    /// Reads and stores the place of any window under its section.
    static void RestorePlacement(QWidget* window, const QString& section);
    static void StorePlacement(const QWidget* window, const QString& section);

    /// Writes a label's text; its letter for Alt is found anew.
    void ShowCaption(QLabel* label, const QString& text);

    QSize sizeHint() const override;

    QMdiSubWindow* SubWindow() const { return subWindow_; }

  protected:
    /// Asked before the form unloads; false keeps it open.
    virtual bool QueryUnload() { return true; }
    /// Puts what the form holds in its fields into the records.
    virtual void StoreFields() {}
    /// Commits what is edited in the form otherwise than in fields, such as the rows of a grid.
    virtual void CommitEdits() {}
    /// Runs when the form unloads, after QueryUnload agreed.
    virtual void FormUnload() {}
    bool event(QEvent* event) override;
    void closeEvent(QCloseEvent* event) override;

  private:
    void MakeSubWindow();
    void PrepareControls();
    void KeepRoomForControls();
    void KeepPlacement();

    Place place_;
    QString placementSection_;
    QPointer<QMdiSubWindow> subWindow_;
    QSize designMinimum_;
    bool modalLoop_ = false;
    bool unloaded_ = false;
};

/// The hourglass pointer for as long as the object lives.
class Hourglass {
  public:
    Hourglass();
    ~Hourglass();
    Hourglass(const Hourglass&) = delete;
    Hourglass& operator=(const Hourglass&) = delete;
};

}  // namespace tendo
