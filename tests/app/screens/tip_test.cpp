#include "app/screens/frm_tip.h"

#include <QCheckBox>
#include <QLabel>
#include <QPushButton>
#include <fstream>
#include <set>

#include "platform/files/settings_store.h"
#include "platform/text/date_text.h"
#include "project/program_state.h"
#include "running_program.h"

namespace tendo {
namespace {

class TipOfTheDay : public RunningProgram {
  protected:
    void SetUp() override {
        RunningProgram::SetUp();
        StartProgram();
        if (Form* shown = Form::Find("frmTip")) delete shown;
    }
    void WriteTips(const char* text) { std::ofstream(TipFile()) << text; }
    static std::string TipFile() { return State().ProgramDirectory + "TIPOFDAY.TXT"; }
    static QString Text(const frmTip& form) {
        return form.findChild<QLabel*>("lblTipText")->text();
    }
    static void Next(const frmTip& form) { form.findChild<QPushButton*>("cmdNextTip")->click(); }
};

TEST_F(TipOfTheDay, AMissingFileGivesTheTipOnHowToMakeOne) {
    std::remove(TipFile().c_str());
    const frmTip form;
    EXPECT_EQ(Text(form),
              "That the TIPOFDAY.TXT file was not found? \nCreate a text file named TIPOFDAY.TXT "
              "using NotePad with 1 tip per line. Then place it in the same directory as the "
              "application. ");
    EXPECT_FALSE(form.findChild<QPushButton*>("cmdNextTip")->isEnabled());
}

TEST_F(TipOfTheDay, NextShowsEachTipOnceAndThenTheFirstAgain) {
    WriteTips("one\r\ntwo\n\nthree");
    const frmTip form;
    const QString first = Text(form);
    std::set<QString> seen;
    for (int i = 0; i < 3; ++i) {
        seen.insert(Text(form));
        Next(form);
    }
    EXPECT_EQ(seen, (std::set<QString>{"one", "two", "three"}));
    EXPECT_EQ(Text(form), first);
}

TEST_F(TipOfTheDay, TheClockChoosesTheFirstTip) {
    std::string tips;
    for (int i = 0; i < 100; ++i)
        tips += std::to_string(i) + "\n";
    WriteTips(tips.c_str());
    std::set<QString> seen;
    for (int day = 1; day <= 9; ++day) {
        SetToday(ReadIsoDate("1998-05-0" + std::to_string(day)));
        const QString tip = Text(frmTip());
        EXPECT_EQ(tip, Text(frmTip()));
        seen.insert(tip);
    }
    EXPECT_GT(seen.size(), 4U);
}

TEST_F(TipOfTheDay, AnEmptyFileShowsNothing) {
    WriteTips("");
    EXPECT_EQ(Text(frmTip()), "");
}

TEST_F(TipOfTheDay, TheBoxIsSavedAtOnce) {
    const frmTip form;
    auto* box = form.findChild<QCheckBox*>("chkLoadTipsAtStartup");
    EXPECT_TRUE(box->isChecked());
    box->click();
    EXPECT_EQ(Settings().GetSetting("Options", "Show Tips at Startup", "1"), "0");
    EXPECT_FALSE(frmTip().findChild<QCheckBox*>("chkLoadTipsAtStartup")->isChecked());
    box->click();
    EXPECT_EQ(Settings().GetSetting("Options", "Show Tips at Startup", "0"), "1");
}

TEST_F(TipOfTheDay, IsSeenAtTheStartOnTopOfTheSampleJobThatOpenedThere) {
    QuitTendo();
    StartTendo({.home = directory,
                .winIni = "",
                .today = "1998-05-04",
                .args = {},
                .shortLogo = true,
                .sample = true});
    if (!State().ProjectIsOpen) GTEST_SKIP() << "the sample data is not built";
    EXPECT_NE(Form::Find("frmGPD"), nullptr);
    ASSERT_NE(Form::Find("frmTip"), nullptr);
    EXPECT_TRUE(Form::Find("frmTip")->IsActiveForm());
    // Opening a job by hand closes it with the other screens.
    dialogs->files = {State().ProjectFileName};
    ActiveBarClick("ToolOpen");
    EXPECT_EQ(Form::Find("frmTip"), nullptr);
}

}  // namespace
}  // namespace tendo
