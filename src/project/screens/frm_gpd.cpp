#include "project/screens/frm_gpd.h"

#include <QCheckBox>
#include <QPlainTextEdit>
#include <QRadioButton>
#include <QScopedValueRollback>
#include <QTabWidget>

#include "platform/qt/dialogs.h"
#include "platform/text/date_text.h"
#include "platform/text/input_rules.h"
#include "platform/text/number_text.h"
#include "platform/text/runtime_error.h"
#include "platform/text/text.h"
#include "project/program_state.h"
#include "project/project_lifecycle.h"
#include "project/project_records.h"
#include "project/screens/frm_help_info.h"

namespace tendo {
namespace {

constexpr const char* importFolder = "C:\\Velmo\\Tendow\\";

/// A date in its long form; a text that isn't one stays as it was typed.
std::string DateShown(const std::string& text) {
    const auto date = ReadDate(text);
    return date ? MonthDayYearText(*date) : text;
}

}  // namespace

std::string& ImportFileName() {
    static std::string name;
    return name;
}

std::function<void()>& ModelDatabasesChanged() {
    static std::function<void()> hook;
    return hook;
}

QString frmGPD::Shown::Value() const {
    return field ? field->text() : memo->toPlainText();
}

void frmGPD::Shown::SetValue(const QString& value) const {
    if (field)
        field->setText(value);
    else
        memo->setPlainText(value);
}

void frmGPD::ShowRecords() {
    loading_ = true;
    GPDProjectRecord& project = Project().GPDProjectFormat;
    for (const Shown& item : shown_) {
        const std::string value = item.text->read();
        item.text->write(value);
        const bool isDate = QLatin1String(item.text->spec.name) == QLatin1String("txtProjectDate");
        item.SetValue(QString::fromStdString(isDate ? DateShown(value) : value));
    }
    for (std::size_t i = 0; i < checks_.size(); ++i)
        checks_[i]->setChecked(GPDChecks()[i].record() == 1);
    txtLaborRate_->setText(QString::fromStdString(FormatNumber(project.LaborRate, "$##0.00")));
    if (project.DefaultDB.Trimmed().empty()) project.DefaultDB = StandardDefaultDB();
    txtDefDB_->setText(QString::fromStdString(project.DefaultDB.Trimmed()));
    ShowLaborTax();
    (project.SingleProposalType ? OptSingleProp_ : OptMultipleProp_)->setChecked(true);
    const bool import = project.ImportGPD == 1;
    chkImportData_->setChecked(import);
    txtImportFile_->setText(import ? QString::fromStdString(project.ImportGPD_FName.Trimmed())
                                   : QString(importFolder));
    loading_ = false;
}

void frmGPD::Store() {
    if (loading_) return;
    GPDProjectRecord& project = Project().GPDProjectFormat;
    for (const Shown& item : shown_)
        item.text->write(item.Value().toStdString());
    for (std::size_t i = 0; i < checks_.size(); ++i)
        GPDChecks()[i].record() = checks_[i]->isChecked() ? 1 : 0;
    SetLaborRate(ValueOfText(txtLaborRate_->text().toStdString()));
    project.TaxLabor = OptTaxYes_->isChecked();
    project.DefaultDB = Trimmed(txtDefDB_->text().toStdString());
    if (FillBlankModelDatabases() && ModelDatabasesChanged()) ModelDatabasesChanged()();
    project.SingleProposalType = OptSingleProp_->isChecked();
    project.ImportGPD = chkImportData_->isChecked() ? 1 : 0;
    project.ImportGPD_FName =
        project.ImportGPD == 1 ? txtImportFile_->text().toStdString() : std::string();
}

bool frmGPD::QueryUnload() {
    Store();
    try {
        SaveWorkFile();
    } catch (const RuntimeError& error) {
        ShowMessage(
            "TENDO",
            "TENDO encountered an error while in Sub Form_QueryUnload\n" + error.Description(),
            MessageIcon::Critical);
    }
    return true;
}

void frmGPD::tmrGPD_Timer() {
    if (IsActiveForm()) Store();
}

void frmGPD::txtDefDB_Change() {
    if (Trimmed(txtDefDB_->text().toStdString()).empty())
        txtDefDB_->setText(QString::fromStdString(StandardDefaultDB()));
}

void frmGPD::txtLaborRate_LostFocus() {
    const std::string typed = txtLaborRate_->text().toStdString();
    txtLaborRate_->ShowText(QString::fromStdString(PlainNumberOnLeave(typed, MoneyPicture)));
    Store();
}

void frmGPD::btnBrowse_Click() {
    const auto chosen = Dialogs().File({.kind = FileDialog::Kind::Open,
                                        .title = "Open",
                                        .filter = "TENDO Database (*.mdb)|*.mdb|",
                                        .fileName = "*.mdb",
                                        .folder = State().CommonDirectory,
                                        .defaultExtension = ""});
    if (!chosen || *chosen == "*.mdb") return;
    txtDefDB_->setText(QString::fromStdString(*chosen));
    State().ProjectChanged = true;
    Store();
}

void frmGPD::btnImportFile_Click() {
    const auto chosen = Dialogs().File({.kind = FileDialog::Kind::Open,
                                        .title = "Open",
                                        .filter = "TENDO Project File (*.TDW*)|*.TDW|",
                                        .fileName = "*.TDW",
                                        .folder = State().ProjectsDirectory,
                                        .defaultExtension = ""});
    ImportFileName() = chosen && *chosen != "*.TDW" ? *chosen : std::string();
}

void frmGPD::btnImportData_Click() {
    HelpInfo info{
        .title = "Import GPD Help",
        .text =
            "In order to simplify the process of transferring project information from Velmo "
            "Software's PYROS program, TENDO allows the user to transfer general project data "
            "and individual system data.  Check the checkbox below if you wish to import the "
            "general project data from an PYROS project, or do not check it if you wish to not "
            "import the general project data from an PYROS project.  If you checked the "
            "checkbox, you will need to specify the location of the PYROS project file in the "
            "text box below the checkbox on the General Project Data form."};
    info.checkCaption = " Import General Project Data";
    info.checked = chkImportData_->isChecked();
    if (ShowHelpInfo(info)) chkImportData_->setChecked(info.checked);
}

void frmGPD::btnLaborRate_Click() {
    HelpInfo info{
        .title = "Labor Rate Help",
        .text =
            "Enter the default cost of labor per hour. This rate is used as a default rate for "
            "calculating labor rates in the labor takeoff screen. The units are dollars per "
            "hour. When you modify this number, TENDO automatically sets the labor rates for "
            "all blank labor entries to this number. Labor items for which a quantity has "
            "already been entered are left unchanged."};
    info.amountCaption = "Please Enter your Labor Rate:";
    info.amount = txtLaborRate_->text().toStdString();
    if (!ShowHelpInfo(info)) return;
    txtLaborRate_->setText(QString::fromStdString(info.amount));
    txtLaborRate_LostFocus();
}

void frmGPD::btnProposalType_Click() {
    HelpInfo info{
        .title = "Proposal Type Help",
        .text =
            "A Single Price Proposal produces a proposal that lists all items of the proposal "
            "as one price.  This proposal allows up to three heating and three cooling units, "
            "all the materials, labor, and accessories for one single price.  This proposal is "
            "the most common type, as most contractors will want to present to their customers "
            "as a final proposal.  A Multiple  Alternative Proposal  produces a proposal that "
            "lists up  to three individual,  alternative systems (heating/cooling pairs).  This "
            "proposal is usually presented to the customer to compare between low, medium, and "
            "high efficiency alternatives, or to compare to your competitor's other, lower "
            "quality brands.",
        .options = {"Single Price Proposal", "Multiple Price Proposal"},
        .option = OptSingleProp_->isChecked() ? 1 : 2};
    if (ShowHelpInfo(info))
        (info.option == 1 ? OptSingleProp_ : OptMultipleProp_)->setChecked(true);
}

void frmGPD::ShowLaborTax() {
    const QScopedValueRollback<bool> loading(loading_, true);
    (Project().GPDProjectFormat.TaxLabor ? OptTaxYes_ : OptTaxNo_)->setChecked(true);
}

void frmGPD::btnTaxLabor_Click() {
    bool tax = OptTaxYes_->isChecked();
    if (AskAboutLaborTax(tax)) (tax ? OptTaxYes_ : OptTaxNo_)->setChecked(true);
}

bool AskAboutLaborTax(bool& tax) {
    HelpInfo info{
        .title = "Tax Labor Help",
        .text =
            "This field is used to specify if the labor cost is taxable or non-taxable.  Select "
            "Yes for a taxable labor cost and No for a tax exempt labor cost.  TENDO does not "
            "permit proposals to have a mix of taxable and tax exempt labor items.  This means "
            "that all labor items are either taxable or tax exempt.",
        .options = {"Yes, tax labor.", "No, do not tax labor."},
        .option = tax ? 1 : 2};
    if (!ShowHelpInfo(info)) return false;
    tax = info.option == 1;
    return true;
}

}  // namespace tendo
