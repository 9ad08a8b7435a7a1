#include <QCheckBox>
#include <QLabel>
#include <QRadioButton>

#include "platform/qt/fields.h"
#include "running_program.h"

namespace tendo {
namespace {

/// Colours as the profile keeps them: 0xBBGGRR.
constexpr const char* colors =
    "lblDefault=255\nCheck=65280\nSSCheck=65280\nOption=16711680\nSSOption=16711680\n"
    "TextColor=65535\nlblHelpCaptionText=16776960\nlblHelpCaptionBackground=8421504\n";

class ScreenColors : public RunningProgram {
  protected:
    void Start(const std::string& showDefaults) {
        Write("Tendo.ini", "[Colors]\nShowDefaultColors=" + showDefaults + "\n" + colors);
        StartProgram();
        ActiveBarClick("ToolNew");
        QApplication::processEvents();
    }
    /// The colour of a control's text as it is drawn.
    static QString Drawn(const char* control) {
        QWidget* widget = Form::Find("frmGPD")->Control(control);
        widget->ensurePolished();
        return widget->palette().color(widget->foregroundRole()).name();
    }
};

TEST_F(ScreenColors, OfTheUsersChoiceAreGivenToEachScreen) {
    Start("0 'False");
    EXPECT_EQ(Drawn("chkImportData"), "#00ff00");
    EXPECT_EQ(Drawn("OptTaxYes"), "#0000ff");
    EXPECT_EQ(Drawn("txtProjectTitle"), "#ffff00");
    auto* label = Form::Find("frmGPD")->findChild<QLabel*>(QString(), Qt::FindChildrenRecursively);
    ASSERT_NE(label, nullptr);
    label->ensurePolished();
    EXPECT_EQ(label->palette().color(label->foregroundRole()).name(), "#ff0000");
}

TEST_F(ScreenColors, OfHelpCaptionsAreTextAndGround) {
    Start("0 'False");
    QString text;
    QString ground;
    Form::SetModalObserver([&](Form& form) {
        QWidget* caption = form.Control("lblHelpCaptionText");
        caption->ensurePolished();
        text = caption->palette().color(caption->foregroundRole()).name();
        ground = caption->palette().color(QPalette::Window).name();
        form.Unload();
    });
    static_cast<QAbstractButton*>(Form::Find("frmGPD")->Control("btnTaxLabor"))->click();
    EXPECT_EQ(text, "#00ffff");
    EXPECT_EQ(ground, "#808080");
}

TEST_F(ScreenColors, ThatAreTheDesktopsChangeNothing) {
    Write("Tendo.ini", "[Colors]\nShowDefaultColors=0\nTextColor=-2147483640\n");
    StartProgram();
    ActiveBarClick("ToolNew");
    EXPECT_EQ(Form::Find("frmGPD")->Control("txtProjectTitle")->styleSheet(), "");
}

TEST_F(ScreenColors, AreTheProgramsOwnWhileTheDefaultsAreShown) {
    Start("1 'True");
    EXPECT_NE(Drawn("chkImportData"), "#00ff00");
    EXPECT_NE(Drawn("txtProjectTitle"), "#ffff00");
    EXPECT_EQ(Form::Find("frmGPD")->Control("txtProjectTitle")->styleSheet(), "");
}

}  // namespace
}  // namespace tendo
