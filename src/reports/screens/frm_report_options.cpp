#include "reports/screens/frm_report_options.h"

#include <QCheckBox>
#include <QComboBox>
#include <QKeyEvent>
#include <algorithm>

#include "footnotes/project_footnotes.h"
#include "footnotes/screens/footnote_page.h"
#include "platform/files/paths.h"
#include "platform/qt/dialogs.h"
#include "platform/qt/fields.h"
#include "platform/qt/shown_errors.h"
#include "platform/text/number_text.h"
#include "platform/text/text.h"
#include "project/program_state.h"
#include "reports/proposal_formats.h"
#include "reports/screens/preview_pane.h"
#include "reports/screens/style_page.h"

namespace tendo {
namespace {

constexpr const char* Title = "TENDO";

std::int16_t NumberIn(const TextField* field, std::int16_t smallest, std::int16_t largest,
                      std::int16_t before) {
    bool number = false;
    const int value = field->text().toInt(&number);
    if (!number) return before;
    return static_cast<std::int16_t>(std::clamp<int>(value, smallest, largest));
}

}  // namespace

void frmReportOptions::ShowOptions() {
    showing_ = true;
    for (std::size_t i = 0; i < boxes_.size(); ++i)
        boxes_[i]->setChecked(values_.marks[i] == 1);
    txtStartingPageNo_->ShowText(QString::number(values_.startingPage));
    txtLineSpacing_->ShowText(QString::number(values_.lineSpacing));
    ShowPictures();
    styles_->ShowStyles();
    showing_ = false;
}

void frmReportOptions::MarkFrame(OptionFrame frame, bool marked) {
    const auto table = ReportOptionTable();
    showing_ = true;
    for (std::size_t i = 0; i < table.size(); ++i) {
        if (table[i].frame != frame) continue;
        boxes_[i]->setChecked(marked);
        values_.marks[i] = marked ? 1 : 0;
    }
    showing_ = false;
    OptionChanged();
}

void frmReportOptions::OptionChanged() {
    if (showing_) return;
    if (values_.Mark("chkAutoRefresh") == 1) refresh_.start();
}

void frmReportOptions::StoreNumbers() {
    values_.startingPage = NumberIn(txtStartingPageNo_, 1, 9999, values_.startingPage);
    values_.lineSpacing = NumberIn(txtLineSpacing_, 50, 500, values_.lineSpacing);
}

void frmReportOptions::CommitEdits() {
    footnotes_->StoreText();
    accessoryFootnotes_->StoreText();
}

bool frmReportOptions::Save() {
    StoreNumbers();
    CommitEdits();
    // All options but these two belong to the program, not to the project.
    if (values_.Mark("chkClientComment") != Project().GPDClientFormat.ClientPrintComment ||
        values_.Mark("chkCompComment") != Project().GPDCompanyFormat.CompanyPrintComment)
        State().ProjectChanged = true;
    return RunShowingErrors([this] { SaveReportOptions(values_, Project()); });
}

std::string frmReportOptions::ChosenFormat() const {
    return cmbProposalFormats_->currentText().toStdString();
}

void frmReportOptions::FillProposalFormats(const std::string& chosen) {
    const QSignalBlocker quiet(cmbProposalFormats_);
    cmbProposalFormats_->clear();
    cmbProposalFormats_->addItem(
        QString::fromUtf8(CustomFormat.data(), static_cast<qsizetype>(CustomFormat.size())));
    RunShowingErrors([this] {
        for (const std::string& name : ProposalFormatNames())
            cmbProposalFormats_->addItem(QString::fromStdString(name));
    });
    cmbProposalFormats_->setCurrentIndex(
        std::max(0, cmbProposalFormats_->findText(QString::fromStdString(chosen))));
}

void frmReportOptions::cmbProposalFormats_Change() {
    const std::string name = ChosenFormat();
    if (name == CustomFormat || !FileExists(ProposalFormatFile())) return;
    bool found = false;
    FootnotesWillChange(FootnoteMode::Selected);
    if (!RunShowingErrors(
            [&] { found = LoadProposalFormat(name, values_, ProposalFootnotes(Project())); }))
        return;
    if (!found) {
        ShowMessage(Title,
                    "This Proposal Format is corrupted.  You need to delete it and recreate it.");
        return;
    }
    FootnotesHaveChanged(FootnoteMode::Selected);
    ShowOptions();
    OptionChanged();
}

void frmReportOptions::SaveFormat(const std::string& name) {
    StoreNumbers();
    CommitEdits();
    bool saved = false;
    if (RunShowingErrors(
            [&] { saved = SaveProposalFormat(name, values_, ProposalFootnotes(Project())); }) &&
        saved)
        ShowMessage(Title, name + " successfully saved.");
}

/// The name stands for what is set now, so no format can have it.
bool frmReportOptions::IsCustomFormat(const std::string& name) {
    if (name != CustomFormat) return false;
    ShowMessage(Title,
                "You can not save a proposal format with the name Custom Format.  Please save this "
                "proposal format with another name.");
    return true;
}

void frmReportOptions::btnSaveFormat_Click() {
    const std::string name = ChosenFormat();
    if (IsCustomFormat(name)) return;
    if (Ask(Title, "Do you wish to save all Selected Report Items as proposal format:  " + name,
            Buttons::YesNo) == Answer::Yes)
        SaveFormat(name);
}

void frmReportOptions::btnSaveNewFormat_Click() {
    const std::string name(Trimmed(
        Dialogs()
            .Input({"New Proposal Format", "What do you want to name this Proposal Format?", ""})
            .value_or("")));
    if (name.empty() || IsCustomFormat(name)) return;
    SaveFormat(name);
    FillProposalFormats(name);
}

void frmReportOptions::btnDeleteFormat_Click() {
    const std::string name = ChosenFormat();
    if (name == CustomFormat ||
        Ask(Title, "Are you sure you want to delete proposal format:  " + name, Buttons::YesNo) !=
            Answer::Yes)
        return;
    bool deleted = false;
    if (!RunShowingErrors([&] { deleted = DeleteProposalFormat(name); })) return;
    if (deleted)
        ShowMessage(Title, name + " successfully deleted.  New proposal format is Custom Format.");
    FillProposalFormats(std::string(CustomFormat));
}

void frmReportOptions::keyPressEvent(QKeyEvent* event) {
    if (!preview_->HandleKey(*event)) Form::keyPressEvent(event);
}

}  // namespace tendo
