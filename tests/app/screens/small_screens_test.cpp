#include <QCheckBox>
#include <QKeyEvent>
#include <QLabel>
#include <QPlainTextEdit>
#include <QProgressBar>
#include <QPushButton>
#include <QRadioButton>
#include <QTimer>

#include "app/screens/frm_splash.h"
#include "app/screens/frm_status.h"
#include "app/screens/screen_table.h"
#include "platform/qt/fields.h"
#include "project/screens/frm_help_info.h"
#include "running_program.h"

namespace tendo {
namespace {

class HelpInfoScreen : public RunningProgram {
  protected:
    /// Lets `look` see the screen and closes it by one of its buttons.
    template <class Look>
    void Answer(const char* button, Look look) {
        Form::SetModalObserver([button, look](Form& form) {
            look(form);
            static_cast<QAbstractButton*>(form.Control(button))->click();
        });
    }
};

TEST_F(HelpInfoScreen, OffersUpToFiveOptionsAndHandsTheChoiceBack) {
    HelpInfo info{.title = "Colors", .text = "Which?"};
    info.options = {"Red", "Green & Blue", "Cyan", "Pink", "Grey"};
    info.option = 2;
    Answer("btnOk", [](Form& form) {
        EXPECT_EQ(form.windowTitle(), "Colors");
        EXPECT_EQ(form.findChild<QLabel*>("lblHelpCaptionText")->text(), "Which?");
        for (int i = 1; i <= 5; ++i) {
            auto* option = form.findChild<QRadioButton*>(QString("optOption%1").arg(i));
            ASSERT_NE(option, nullptr);
            EXPECT_EQ(option->isChecked(), i == 2);
        }
        EXPECT_EQ(form.Control("txtAmountCaption"), nullptr);
        EXPECT_EQ(form.Control("chkCheck"), nullptr);
        EXPECT_EQ(form.Control("txtNotes"), nullptr);
        form.findChild<QRadioButton*>("optOption5")->setChecked(true);
    });
    EXPECT_TRUE(ShowHelpInfo(info));
    EXPECT_EQ(info.option, 5);
}

TEST_F(HelpInfoScreen, TakesAnAmountATickAndNotesAtOnce) {
    HelpInfo info{.title = "All", .text = "Text"};
    info.amountCaption = "&Amount:";
    info.amount = "1.50";
    info.checkCaption = "Tick";
    info.checked = true;
    info.notes = "First line\nsecond line";
    Answer("btnOk", [](Form& form) {
        EXPECT_EQ(form.findChild<QLineEdit*>("txtAmountCaption")->text(), "1.50");
        EXPECT_EQ(form.findChild<QPlainTextEdit*>("txtNotes")->toPlainText(),
                  "First line\nsecond line");
        form.findChild<QLineEdit*>("txtAmountCaption")->setText("2.75");
        form.findChild<QCheckBox*>("chkCheck")->setChecked(false);
    });
    EXPECT_TRUE(ShowHelpInfo(info));
    EXPECT_EQ(info.amount, "2.75");
    EXPECT_FALSE(info.checked);
}

TEST_F(HelpInfoScreen, ClosedWithoutItsButtonChangesNothing) {
    HelpInfo info{.title = "Tick", .text = "Text"};
    info.checkCaption = "Tick";
    Answer("btnCancel",
           [](Form& form) { form.findChild<QCheckBox*>("chkCheck")->setChecked(true); });
    EXPECT_FALSE(ShowHelpInfo(info));
    EXPECT_FALSE(info.checked);
    Form::SetModalObserver([](Form& form) {
        form.findChild<QCheckBox*>("chkCheck")->setChecked(true);
        form.Unload();
    });
    EXPECT_FALSE(ShowHelpInfo(info));
    EXPECT_FALSE(info.checked);
}

class StatusScreen : public RunningProgram {};

TEST_F(StatusScreen, ShowsHowFarALongWorkHasCome) {
    StartProgram();
    auto* status = qobject_cast<frmStatus*>(LoadScreen("frmStatus"));
    ASSERT_NE(status, nullptr);
    EXPECT_EQ(status->windowTitle(), "Converting...");
    status->ShowForm();
    status->ShowProgress("Page 3 of 12", 3, 12);
    EXPECT_EQ(status->findChild<QLabel*>("lblStatus")->text(), "Page 3 of 12");
    auto* bar = status->findChild<QProgressBar*>("ProgressBar");
    EXPECT_EQ(bar->value(), 3);
    EXPECT_EQ(bar->maximum(), 12);
    status->ShowProgress("Counting", 0, 0);  // a bar that runs to and fro
    EXPECT_EQ(bar->minimum(), bar->maximum());
}

class LogoScreen : public RunningProgram {
  protected:
    static void Press(QWidget* widget) {
        QKeyEvent key(QEvent::KeyPress, Qt::Key_A, Qt::NoModifier, "a");
        QApplication::sendEvent(widget, &key);
    }
};

TEST_F(LogoScreen, TellsTheVersionAndEndsItsWaitOnce) {
    State().ProgramVersionText = "5.1.2";
    int ends = 0;
    frmSplash splash([&ends] { ++ends; });
    EXPECT_EQ(splash.findChild<QLabel*>("lblVersion")->text(), "Version 5.1.2");
    auto* timer = splash.findChild<QTimer*>("tmrLetUserSeeLogo");
    EXPECT_EQ(timer->interval(), 1000);
    splash.ShowLogo();
    EXPECT_TRUE(timer->isActive());
    Press(&splash);
    EXPECT_EQ(ends, 1);
    EXPECT_FALSE(timer->isActive());
    Press(&splash);
    splash.EndWait();
    EXPECT_EQ(ends, 1);
}

TEST_F(LogoScreen, ALogoThatIsNoPictureGivesThePlainScreen) {
    Write("tenlogo.wmf", std::string(5000, '\x7f'));
    State().ProgramDirectory = directory;
    State().LogoFileName = "tenlogo.wmf";
    frmSplash splash([] {});
    EXPECT_NE(splash.findChild<QLabel*>("lblTitle"), nullptr);
}

}  // namespace
}  // namespace tendo
