#include "platform/qt/form.h"

#include <QApplication>
#include <QCloseEvent>
#include <QEventLoop>
#include <QLabel>
#include <QLayout>
#include <QMdiArea>
#include <QMdiSubWindow>
#include <QScreen>
#include <QScrollArea>
#include <QStyle>
#include <QTimer>

#include "platform/files/ini_file_handler.h"
#include "platform/files/profile.h"
#include "platform/qt/fields.h"
#include "platform/qt/mnemonics.h"
#include "platform/qt/spoken_names.h"
#include "platform/qt/tab_order.h"
#include "platform/qt/view_port.h"
#include "platform/text/runtime_error.h"

namespace tendo {
namespace {

QList<Form*> loadedForms;
QPointer<QMdiArea> workspace;
std::function<void(Form&)> modalObserver;
std::function<void()> listObserver;

void TellList() {
    if (listObserver) listObserver();
}

/// A size or place as stored; the default when the key is missing.
int StoredNumber(const QString& section, const char* key, int defaultValue) {
    const std::string text = Ini().MyGetAppProfileString(section.toStdString(), key, "");
    bool ok = false;
    const int value = QString::fromStdString(text).toInt(&ok);
    return ok ? value : defaultValue;
}

}  // namespace

Form::Form(const QString& name, const QString& caption, Place place,
           const QString& placementSection)
    : place_(place), placementSection_(placementSection) {
    setObjectName(name);
    setWindowTitle(caption);
    setAttribute(Qt::WA_DeleteOnClose, place != Place::Main);
    if (place == Place::Dialog) {
        setWindowFlags(Qt::Dialog | Qt::WindowTitleHint | Qt::WindowCloseButtonHint |
                       Qt::WindowMaximizeButtonHint);
        setWindowModality(Qt::ApplicationModal);
    }
    loadedForms.append(this);
}

Form::~Form() {
    loadedForms.removeAll(this);
    TellList();
}

void Form::MakeSubWindow() {
    auto* window = new QMdiSubWindow;
    auto* port = new ViewPort(windowTitle());
    window->setAttribute(Qt::WA_DeleteOnClose);
    window->setWidget(port);
    const QSize frame(8, style()->pixelMetric(QStyle::PM_TitleBarHeight) + 8);
    const QSize room = workspace->viewport()->size();
    window->resize((sizeHint() + frame).boundedTo(room.isEmpty() ? sizeHint() + frame : room));
    workspace->addSubWindow(window);
    window->setWindowIcon(QIcon());
    port->Show(this);
    subWindow_ = window;
    if (!placementSection_.isEmpty()) RestorePlacement(window, placementSection_);
}

void Form::PrepareControls() {
    if (place_ == Place::Main || place_ == Place::Free) return;
    NameControls(this);
    OrderTabsByLayout(this);
    const bool besideMenus = place_ == Place::Child && workspace;
    AssignMnemonics(this, besideMenus ? MenuBarLetters(workspace) : QString());
    // Only the style sheet tells what a control needs.
    for (const auto* control : findChildren<QWidget*>())
        control->ensurePolished();
    KeepRoomForControls();
}

/// A screen that scrolls its content asks for the room of all of it.
QSize Form::sizeHint() const {
    constexpr int scrollBar = 24;
    const auto* scroll = findChild<QScrollArea*>(QString(), Qt::FindDirectChildrenOnly);
    if (!scroll || !scroll->widget() || layout()->count() > 1) return QWidget::sizeHint();
    const QWidget* content = scroll->widget();
    return {content->sizeHint().width() + scrollBar, content->sizeHint().height()};
}

/// Texts that run over lines need the more height the narrower a screen is, which its own minimum
/// doesn't tell.
void Form::KeepRoomForControls() {
    if (!layout() || place_ == Place::Main || place_ == Place::Free) return;
    if (designMinimum_.isNull()) designMinimum_ = minimumSize();
    QSize smallest = designMinimum_.expandedTo(layout()->minimumSize());
    if (layout()->hasHeightForWidth())
        smallest.setHeight(
            std::max(smallest.height(), layout()->minimumHeightForWidth(smallest.width())));
    setMinimumSize(smallest);
}

bool Form::event(QEvent* event) {
    if (event->type() == QEvent::LayoutRequest && isVisible()) KeepRoomForControls();
    return QWidget::event(event);
}

void Form::ShowCaption(QLabel* label, const QString& text) {
    if (OwnCaption(label) == text) return;
    label->setText(text);
    if (isVisible()) PrepareControls();
}

void Form::ShowForm() {
    if (place_ == Place::Dialog) return ShowModal();
    PrepareControls();
    if (place_ == Place::Child && workspace) {
        if (!subWindow_) MakeSubWindow();
        if (subWindow_->isMinimized()) subWindow_->showNormal();
        show();
        subWindow_->show();
        subWindow_->raise();
        workspace->setActiveSubWindow(subWindow_);
        setFocus();
        if (!focusWidget() || !isAncestorOf(QApplication::focusWidget())) focusNextChild();
    } else {
        show();
        raise();
        activateWindow();
    }
    TellList();
}

void Form::ShowModal() {
    PrepareControls();
    if (!placementSection_.isEmpty()) RestorePlacement(this, placementSection_);
    QPointer<Form> self(this);
    QEventLoop loop;
    connect(this, &QObject::destroyed, &loop, &QEventLoop::quit);
    modalLoop_ = true;
    show();
    raise();
    activateWindow();
    TellList();
    QTimer::singleShot(0, this, [self] {
        if (self && modalObserver) modalObserver(*self);
    });
    loop.exec(QEventLoop::DialogExec);
}

bool Form::Unload() {
    QPointer<Form> self(this);
    if (subWindow_)
        subWindow_->close();
    else
        close();
    return !self || self->unloaded_;
}

bool Form::IsActiveForm() const {
    return Active() == this;
}

QWidget* Form::Control(const QString& name) const {
    return findChild<QWidget*>(name);
}

Form* Form::Find(const QString& name) {
    for (Form* form : loadedForms)
        if (!form->unloaded_ && form->objectName().compare(name, Qt::CaseInsensitive) == 0)
            return form;
    return nullptr;
}

QList<Form*> Form::Loaded() {
    QList<Form*> forms;
    for (Form* form : loadedForms)
        if (!form->unloaded_) forms.append(form);
    return forms;
}

Form* Form::TopModal() {
    Form* top = nullptr;
    for (Form* form : loadedForms)
        if (!form->unloaded_ && form->modalLoop_ && form->isVisible()) top = form;
    return top;
}

Form* Form::Active() {
    if (Form* modal = TopModal()) return modal;
    const QMdiSubWindow* front = workspace ? workspace->activeSubWindow() : nullptr;
    for (Form* form : loadedForms)
        if (front && form->subWindow_ == front) return form;
    return nullptr;
}

void Form::SetWorkspace(QMdiArea* area) {
    workspace = area;
}

QMdiArea* Form::Workspace() {
    return workspace;
}

void Form::SetModalObserver(std::function<void(Form&)> observer) {
    modalObserver = std::move(observer);
}

void Form::SetListObserver(std::function<void()> observer) {
    listObserver = std::move(observer);
}

void Form::CommitFocusedField() {
    if (auto* field = qobject_cast<TextField*>(QApplication::focusWidget())) field->Commit();
}

void Form::CommitAllEdits() {
    CommitFocusedField();
    for (Form* form : Loaded())
        form->CommitEdits();
}

void Form::StoreAllFields() {
    CommitAllEdits();
    for (Form* form : Loaded())
        form->StoreFields();
}

void Form::closeEvent(QCloseEvent* event) {
    if (unloaded_) return;
    if (QWidget* focus = QApplication::focusWidget(); focus && isAncestorOf(focus))
        CommitFocusedField();
    if (!QueryUnload()) {
        event->ignore();
        return;
    }
    FormUnload();
    unloaded_ = true;
    if (!placementSection_.isEmpty()) KeepPlacement();
    event->accept();
    TellList();
}

void Form::KeepPlacement() {
    if (place_ == Place::Child && workspace && !subWindow_) return;  // never shown: it has no place
    try {
        StorePlacement(subWindow_ ? static_cast<QWidget*>(subWindow_) : this, placementSection_);
    } catch (const RuntimeError&) {
        // A profile that can't be written costs the window's place, which is not worth a message.
    }
}

void Form::RestorePlacement(QWidget* window, const QString& section) {
    const QWidget* frame = window->parentWidget();
    const QRect room = frame ? frame->rect() : window->screen()->availableGeometry();
    const QRect design = window->geometry();
    const int left = StoredNumber(section, "Left", -1);
    const int top = StoredNumber(section, "Top", -1);
    const int width = StoredNumber(section, "Width", 0);
    const int height = StoredNumber(section, "Height", 0);
    QSize size = design.size();
    if (width > 0 && width <= room.width()) size.setWidth(width);
    if (height > 0 && height <= room.height()) size.setHeight(height);
    window->resize(size);
    QPoint place = design.topLeft();
    if (left >= 0 && left < room.width()) place.setX(left);
    if (top >= 0 && top < room.height()) place.setY(top);
    if (left >= 0 || top >= 0) window->move(place);
}

void Form::StorePlacement(const QWidget* window, const QString& section) {
    const bool normal = !window->isMinimized() && !window->isMaximized();
    const int state = window->isMinimized() ? 1 : window->isMaximized() ? 2 : 0;
    std::vector<std::pair<std::string, std::string>> values;
    if (normal) {
        values = {{"Left", std::to_string(window->x())},
                  {"Top", std::to_string(window->y())},
                  {"Width", std::to_string(window->width())},
                  {"Height", std::to_string(window->height())}};
    }
    values.emplace_back("WindowState", std::to_string(state));
    WriteProfileSection(Ini().AppProfileFileName, section.toStdString(), values);
}

Hourglass::Hourglass() {
    QApplication::setOverrideCursor(Qt::WaitCursor);
}

Hourglass::~Hourglass() {
    QApplication::restoreOverrideCursor();
}

}  // namespace tendo
