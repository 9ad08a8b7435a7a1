#include "screens.h"

#include <QAbstractButton>
#include <QAbstractItemView>
#include <QAbstractSpinBox>
#include <QComboBox>
#include <QHeaderView>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPointer>
#include <QTabWidget>
#include <QTextEdit>
#include <QToolBar>

#include "app/screens/frm_customize_toolbar.h"
#include "app/screens/frm_splash.h"
#include "app/screens/frm_temp_file.h"
#include "app/screens/screen_table.h"
#include "equipment/screens/frm_model_selection.h"
#include "materials/screens/frm_labor_list.h"
#include "materials/screens/frm_mat_list.h"
#include "project/screens/frm_help_info.h"
#include "reports/screens/frm_owner.h"
#include "reports/screens/frm_preview.h"

namespace tendo {
namespace {

/// Screens that come up by a procedure of their own.
struct Opening {
    const char* screen;
    void (*open)();
};
const Opening openings[] = {
    {"frmMDI", [] {}},
    {"frmModelSelection", [] { ShowModelSelection(SelectionMode::Cooling); }},
    {"frmModelSelection", [] { ShowModelSelection(SelectionMode::WaterHeater); }},
    {"frmPreview", ShowPreview},
    {"frmOwner", [] { (new FrmOwner("&Later"))->ShowModal(); }},
    {"frmHelpInfo",
     [] {
         HelpInfo info{.title = "Proposal Type Help",
                       .text = "A Single Price Proposal lists all items as one price.",
                       .options = {"Single Price Proposal", "Multiple Price Proposal"},
                       .option = 1,
                       .amountCaption = "Please Enter your Labor Rate:",
                       .amount = "1,234,567.89",
                       .checkCaption = " Import General Project Data",
                       .notes = "Notes"};
         ShowHelpInfo(info);
     }},
    {"frmTempFile", [] { AskAboutTempFile("C:\\Projects\\Maple Street 12.tmp"); }},
    {"frmCustomizeToolbar",
     [] {
         QStringList hidden;
         AskHiddenTools(hidden);
     }},
    {"frmLaborList", [] { MakeLaborListEditor("Boiler replacement", false)->ShowForm(); }},
    {"frmMatList", [] { MakeMaterialListEditor("Comfort package", false)->ShowForm(); }},
    {"frmSplash", [] { (new frmSplash([] {}))->ShowLogo(); }},
};

template <class... Kinds>
bool IsOneOf(const QWidget* widget) {
    return (qobject_cast<const Kinds*>(widget) || ...);
}

bool IsControl(const QWidget* widget) {
    return IsOneOf<QLineEdit, QAbstractButton, QComboBox, QAbstractSpinBox, QPlainTextEdit,
                   QTextEdit, QAbstractItemView, QTabBar>(widget) &&
           !qobject_cast<const QHeaderView*>(widget);
}

/// A part of a compound control: the list of a combo box, the arrows of a row of tabs.
bool IsPart(const QWidget* widget) {
    const QWidget* parent = widget->parentWidget();
    if (widget->objectName().startsWith("qt_")) return true;
    for (; parent && !qobject_cast<const Form*>(parent); parent = parent->parentWidget())
        if (IsControl(parent) || qobject_cast<const QHeaderView*>(parent)) return true;
    return false;
}

/// TENDO_TEST_PICTURES names a folder for pictures of all screens, to look at.
void TakePicture(Form& form) {
    const QString folder = qEnvironmentVariable("TENDO_TEST_PICTURES");
    if (folder.isEmpty()) return;
    QWidget* window = form.SubWindow() ? form.SubWindow() : static_cast<QWidget*>(&form);
    window->grab().save(folder + "/" + form.Name() + ".png");
}

}  // namespace

void Screens::SetUp() {
    RunningProgram::SetUp();
    NeverAskForOwner();
    StartProgram();
    dialogs->files = {Place("Maple Street 12.tdw")};
    ActiveBarClick("ToolOpen");
    ASSERT_NE(Form::Find("frmGPD"), nullptr) << "the sample job did not open";
    Form::Find("frmGPD")->Unload();
    QApplication::processEvents();
}

void Screens::Visit(const QString& name, const std::function<void()>& open,
                    const std::function<void(Form&)>& check) {
    SCOPED_TRACE(name.toStdString());
    bool seen = false;
    const auto look = [&](Form& form) {
        if (form.Name() != name) return;
        QApplication::processEvents();
        seen = true;
        TakePicture(form);
        check(form);
    };
    Form::SetModalObserver([&](Form& form) {
        look(form);
        form.Unload();
    });
    open();
    QPointer<Form> form = Form::Find(name);
    if (form && !seen) look(*form);
    Form::SetModalObserver({});
    EXPECT_TRUE(seen) << "the screen did not come up";
    for (Form* loaded : Form::Loaded())
        if (loaded->Name() != "frmMDI") loaded->Unload();
    QApplication::processEvents();
}

void Screens::ForEachScreen(const std::function<void(Form&)>& check) {
    for (const QString& name : ScreenNames())
        Visit(
            name, [&name] { ShowScreen(name); }, check);
    for (const Opening& opening : openings)
        Visit(opening.screen, opening.open, check);
}

void Screens::ForEachPage(Form& form, const std::function<void()>& check) {
    const auto tabs = form.findChildren<QTabWidget*>();
    if (tabs.isEmpty()) return check();
    for (QTabWidget* tab : tabs)
        for (int page = 0; page < tab->count(); ++page) {
            if (!tab->isTabVisible(page)) continue;
            tab->setCurrentIndex(page);
            QApplication::processEvents();
            check();
        }
}

bool IsOf(const QWidget* widget, const Form& form) {
    const QWidget* screen = widget->parentWidget();
    while (screen && !qobject_cast<const Form*>(screen))
        screen = screen->parentWidget();
    return screen == &form;
}

QList<QWidget*> ControlsOf(const Form& form) {
    QList<QWidget*> controls;
    for (QWidget* widget : form.findChildren<QWidget*>())
        if (widget->isVisible() && IsControl(widget) && !IsPart(widget) && IsOf(widget, form))
            controls << widget;
    return controls;
}

std::string Told(const QWidget* control) {
    return (control->objectName() + " (" + control->metaObject()->className() + " '" +
            control->accessibleName() + "')")
        .toStdString();
}

QRect PlaceOn(const QWidget* control, const QWidget* screen) {
    return QRect(control->mapTo(screen, QPoint(0, 0)), control->size());
}

}  // namespace tendo
