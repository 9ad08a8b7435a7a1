#include <QCheckBox>
#include <QPlainTextEdit>
#include <QRadioButton>

#include "platform/qt/fields.h"
#include "project/project_records.h"
#include "project/screens/frm_gpd.h"
#include "running_program.h"

namespace tendo {
namespace {

class GeneralProjectData : public RunningProgram {
  protected:
    void SetUp() override {
        RunningProgram::SetUp();
        StartProgram();
        ActiveBarClick("ToolNew");
        dialogs->messages.clear();
    }

    template <class Widget>
    Widget* Find(const char* name) {
        return Form::Find("frmGPD")->findChild<Widget*>(name);
    }
    std::string Text(const char* name) { return Find<QLineEdit>(name)->text().toStdString(); }
    /// Shows the records anew.
    void Reopen() {
        Form::Find("frmGPD")->Unload();
        QApplication::processEvents();
        ActiveBarClick("ToolGPD");
    }
};

TEST_F(GeneralProjectData, ASystemWithABlankDatabaseTakesTheProjectsAndAnotherKeepsItsOwn) {
    Project().CLGModelData[1].DB = "Own.mdb";
    Find<QLineEdit>("txtDefDB")->setText("Other.mdb");
    TickTimer("tmrGPD");
    EXPECT_EQ(Project().GPDProjectFormat.DefaultDB.Trimmed(), "Other.mdb");
    EXPECT_EQ(Project().CLGModelData[0].DB.Trimmed(), "Other.mdb");
    EXPECT_EQ(Project().CLGModelData[1].DB.Trimmed(), "Own.mdb");
    EXPECT_EQ(Project().WHModelData[4].DB.Trimmed(), "Other.mdb");
}

TEST_F(GeneralProjectData, ClearingTheDatabaseFillsInTheManufacturersDefault) {
    WriteWinIni("DefaultManufacturer", "Maker.mdb");
    Find<QLineEdit>("txtDefDB")->clear();
    EXPECT_EQ(Text("txtDefDB"), "Maker.mdb");
    WriteWinIni("DefaultManufacturer", "");
    Find<QLineEdit>("txtDefDB")->clear();
    EXPECT_EQ(Text("txtDefDB"), "Frostelm.mdb");
}

TEST_F(GeneralProjectData, ADateIsShownInItsLongForm) {
    EXPECT_EQ(Text("txtProjectDate"), "May 04, 1998");
}

TEST_F(GeneralProjectData, ADateTextThatIsNoDateStaysAsItWasTyped) {
    Find<QLineEdit>("txtProjectDate")->setText("next spring");
    Reopen();
    EXPECT_EQ(Text("txtProjectDate"), "next spring");
    EXPECT_EQ(Project().GPDProjectFormat.Date.Trimmed(), "next spring");
}

TEST_F(GeneralProjectData, WithoutTheTickTheImportFileIsBlankInItsRecord) {
    EXPECT_EQ(Text("txtImportFile"), "C:\\Velmo\\Tendow\\");
    Find<QLineEdit>("txtImportFile")->setText("job.pyr");
    TickTimer("tmrGPD");
    EXPECT_EQ(Project().GPDProjectFormat.ImportGPD_FName.Trimmed(), "");
    Find<QCheckBox>("chkImportData")->setChecked(true);
    EXPECT_EQ(Project().GPDProjectFormat.ImportGPD, 1);
    EXPECT_EQ(Project().GPDProjectFormat.ImportGPD_FName.Trimmed(), "job.pyr");
}

TEST_F(GeneralProjectData, TheLaborRateIsShownAndStoredByItsNumber) {
    Project().ProjectLabor[0].QtyHrs = 2;
    auto* rate = Find<TextField>("txtLaborRate");
    EXPECT_EQ(Text("txtLaborRate"), "$0.00");  // a reset leaves the project's rate at 0
    rate->setText("1234.5");
    rate->Commit();
    EXPECT_EQ(Text("txtLaborRate"), "$1,234.50");
    EXPECT_EQ(Project().GPDProjectFormat.LaborRate, 1234.5F);
    // A line with hours keeps its rate, which is 40 from the reset; a blank one takes the new one.
    EXPECT_EQ(Project().ProjectLabor[0].LaborPerHour, 40.0F);
    EXPECT_EQ(Project().ProjectLabor[1].LaborPerHour, 1234.5F);
    rate->setText("much");
    rate->Commit();
    EXPECT_EQ(Project().GPDProjectFormat.LaborRate, 0.0F);
}

TEST_F(GeneralProjectData, TextsAreStoredWhenTheFormCloses) {
    Find<QLineEdit>("txtClientName")->setText("Ada Vale");
    Find<QPlainTextEdit>("txtCompanyComment")->setPlainText(QString(210, 'c'));
    Find<QCheckBox>("chkClientPrintComment")->setChecked(true);
    Find<QRadioButton>("OptMultipleProp")->setChecked(true);
    Find<QRadioButton>("OptTaxNo")->setChecked(true);
    Form::Find("frmGPD")->Unload();
    EXPECT_EQ(Project().GPDClientFormat.Name.Trimmed(), "Ada Vale");
    EXPECT_EQ(Project().GPDCompanyFormat.Comment.Trimmed(), std::string(200, 'c'));
    EXPECT_EQ(Project().GPDClientFormat.ClientPrintComment, 1);
    EXPECT_FALSE(Project().GPDProjectFormat.SingleProposalType);
    EXPECT_FALSE(Project().GPDProjectFormat.TaxLabor);
    EXPECT_TRUE(State().ProjectChanged);
}

TEST_F(GeneralProjectData, OpeningAndClosingTheFormAloneIsNoChange) {
    Reopen();
    TickTimer("tmrGPD");
    EXPECT_FALSE(State().ProjectChanged);
}

TEST_F(GeneralProjectData, AHelpScreenHandsItsChoiceBack) {
    Form::SetModalObserver([](Form& form) {
        EXPECT_EQ(form.windowTitle(), "Tax Labor Help");
        form.findChild<QRadioButton*>("optOption2")->setChecked(true);
        form.findChild<QAbstractButton*>("btnOk")->click();
    });
    Find<QAbstractButton>("btnTaxLabor")->click();
    EXPECT_TRUE(Find<QRadioButton>("OptTaxNo")->isChecked());
    Form::SetModalObserver([](Form& form) {
        form.findChild<QRadioButton*>("optOption1")->setChecked(true);
        form.findChild<QAbstractButton*>("btnCancel")->click();
    });
    Find<QAbstractButton>("btnTaxLabor")->click();
    EXPECT_TRUE(Find<QRadioButton>("OptTaxNo")->isChecked());
}

TEST_F(GeneralProjectData, TheLaborRatesHelpTakesAnAmount) {
    Form::SetModalObserver([](Form& form) {
        form.findChild<QLineEdit*>("txtAmountCaption")->setText("45");
        form.findChild<QAbstractButton*>("btnOk")->click();
    });
    Find<QAbstractButton>("btnLaborRate")->click();
    EXPECT_EQ(Text("txtLaborRate"), "$45.00");
    EXPECT_EQ(Project().GPDProjectFormat.LaborRate, 45.0F);
}

TEST_F(GeneralProjectData, BrowsingTakesTheChosenDatabase) {
    dialogs->files = {directory + "Common/Maker.mdb"};
    Find<QAbstractButton>("btnBrowse")->click();
    EXPECT_EQ(dialogs->fileDialogs[0].filter, "TENDO Database (*.mdb)|*.mdb|");
    EXPECT_EQ(dialogs->fileDialogs[0].folder, State().CommonDirectory);
    EXPECT_TRUE(Text("txtDefDB").starts_with(directory.substr(0, 20)));
    const std::string shown = Text("txtDefDB");
    Find<QAbstractButton>("btnBrowse")->click();  // a cancel changes nothing
    EXPECT_EQ(Text("txtDefDB"), shown);
}

TEST_F(GeneralProjectData, TheImportFileIsKeptUntilACancelOrTheNextNewProject) {
    dialogs->fileDialogs.clear();
    dialogs->files = {Place("Other.tdw")};
    Find<QAbstractButton>("btnImportFile")->click();
    ASSERT_EQ(dialogs->fileDialogs.size(), 1U);
    EXPECT_EQ(dialogs->fileDialogs[0].filter, "TENDO Project File (*.TDW*)|*.TDW|");
    EXPECT_EQ(dialogs->fileDialogs[0].fileName, "*.TDW");
    EXPECT_EQ(dialogs->fileDialogs[0].folder, State().ProjectsDirectory);
    EXPECT_EQ(ImportFileName(), Place("Other.tdw"));
    ActiveBarClick("ToolNew");
    EXPECT_EQ(ImportFileName(), "");
    dialogs->files = {Place("Other.tdw"), "*.TDW"};
    Find<QAbstractButton>("btnImportFile")->click();
    Find<QAbstractButton>("btnImportFile")->click();  // the pattern is no choice
    EXPECT_EQ(ImportFileName(), "");
    dialogs->files = {Place("Other.tdw")};
    Find<QAbstractButton>("btnImportFile")->click();
    Find<QAbstractButton>("btnImportFile")->click();  // cancelled
    EXPECT_EQ(ImportFileName(), "");
}

}  // namespace
}  // namespace tendo
