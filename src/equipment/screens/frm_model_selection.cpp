#include "equipment/screens/frm_model_selection.h"

#include <QCheckBox>
#include <QKeyEvent>
#include <QLabel>
#include <QPushButton>
#include <QScreen>
#include <QTabWidget>

#include "equipment/model_database.h"
#include "equipment/screens/epa_mark.h"
#include "equipment/screens/model_view.h"
#include "platform/qt/dialogs.h"
#include "platform/qt/fields.h"
#include "project/program_state.h"

namespace tendo {
namespace {

constexpr const char* messageTitle = "TENDO";

QString Q(std::string_view text) {
    return QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
}

}  // namespace

QSize frmModelSelection::sizeHint() const {
    const int letter = fontMetrics().averageCharWidth();
    const QSize room = screen()->availableSize() * 0.94;
    return QSize(letter * 165, fontMetrics().height() * 42)
        .expandedTo(minimumSizeHint())
        .boundedTo(room);
}

void frmModelSelection::OpenDatabase(OpenedModels models) {
    selection_.Open(std::move(models));
    ShowDatabase();
}

/// A database that fails was told by its message; the former one stays.
void frmModelSelection::ChangeDatabase(const std::string& fileName) {
    {
        const Hourglass hourglass;
        selection_.ChangeDatabase(fileName);
    }
    ShowDatabase();
}

void frmModelSelection::ShowDatabase() {
    const QString name = Q(selection_.DatabaseName());
    txtDatabase_->ShowText(name);
    txtDatabase_->setModified(false);
    txtDatabase_->setToolTip(name);
    for (const int tab : selection_.VisibleTabs()) {
        views_[static_cast<std::size_t>(tab)]->Refill(true);
        if (tab != selection_.CurrentTab()) ShowEPAMark(tab);
    }
    ShowTexts();
}

void frmModelSelection::ShowCurrentRow(int tab) {
    views_[static_cast<std::size_t>(tab)]->ShowCurrentRow();
    ShowEPAMark(tab);
    ShowChoice();
}

ModelView& frmModelSelection::CurrentView() const {
    return *views_[static_cast<std::size_t>(selection_.CurrentTab())];
}

void frmModelSelection::ShowEPAMark(int tab) {
    const bool any = selection_.CurrentRow(tab) >= 0;
    const bool compliant = any && selection_.EPACompliant(tab);
    const QString told = compliant ? "EPA compliant" : "Not EPA compliant";
    tabModels_->setTabIcon(tab, any ? EPAMark(compliant) : QIcon());
    tabModels_->setTabToolTip(tab, any ? told : QString());
    if (tab == selection_.CurrentTab()) tabModels_->setAccessibleDescription(any ? told : "");
}

/// Everything that depends on the current tab: title, limits, search text, count.
void frmModelSelection::ShowTexts() {
    const int tab = selection_.CurrentTab();
    setWindowTitle(Q(selection_.Title()));
    for (std::size_t i = 0; i < limitButtons_.size(); ++i)
        limitButtons_[i]->setText(Q(selection_.LimitLabel(static_cast<ModelLimit>(i))));
    btnSearch_->setText(Q(selection_.SearchLabel()));
    ShowCount();
    ShowEPAMark(tab);
    ShowChoice();
}

/// "16 of 64 AC Models, by Price".
void frmModelSelection::ShowCount() {
    const int tab = selection_.CurrentTab();
    const QString sorting = CurrentView().Sorting();
    lblCount_->setText(
        QString("%1 of %2").arg(selection_.RowCount(tab)).arg(selection_.TotalRowCount(tab)) +
        Q(ModelTabAt(tab).kindText) + (sorting.isEmpty() ? "" : ", " + sorting));
}

/// Which model the select command would take: the current row of the tab last clicked into.
void frmModelSelection::ShowChoice() {
    const auto tab = selection_.MarkedTab();
    lblChoice_->setText(tab ? "Chosen: " +
                                  Q(selection_.CellText(*tab, selection_.CurrentRow(*tab), 1))
                            : QString("Click a row to choose a model"));
}

void frmModelSelection::SetLimit(ModelLimit limit) {
    const auto text =
        Dialogs().Input({messageTitle, std::string(ModelSelection::LimitPrompt(limit)),
                         selection_.LimitText(limit)});
    if (!text) return;
    const Hourglass hourglass;
    const bool taken = selection_.SetLimit(limit, *text);
    if (taken) CurrentView().Refill(false);
    ShowTexts();
    if (!taken && !text->empty())
        lblCount_->setText(Q(*text) + " is no number, so the limit stays as it was");
}

void frmModelSelection::ClickRow(int tab, int row) {
    selection_.ClickRow(tab, row);
    ShowEPAMark(tab);
    ShowChoice();
}

void frmModelSelection::ChooseRow(int tab, int row) {
    ClickRow(tab, row);
    btnSelectModel_Click();
}

/// A click on the tab in front counts too.
void frmModelSelection::tabModels_Click(int tab) {
    const Hourglass hourglass;
    selection_.SetCurrentTab(tab);
    CurrentView().Refill(false);
    ShowTexts();
}

/// The first column becomes the current one, whose text tells EPA compliance.
void frmModelSelection::grid_RowChange(int tab, int row) {
    selection_.SetCurrentRow(tab, row);
    ShowCurrentRow(tab);
}

void frmModelSelection::btnChangeDB_Click() {
    const auto file = AskForDatabase("Choose a Model Database", State().CommonDirectory);
    if (file) ChangeDatabase(*file);
}

void frmModelSelection::btnSearch_Click() {
    const auto text = Dialogs().Input({std::string(ModelSelection::SearchTitle),
                                       std::string(ModelSelection::SearchPrompt),
                                       selection_.SearchText(selection_.CurrentTab())});
    if (!text) return;
    selection_.Search(*text);
    AfterSearch();
}

void frmModelSelection::btnRepeatSearch_Click() {
    selection_.RepeatSearch();
    AfterSearch();
}

void frmModelSelection::AfterSearch() {
    ShowCurrentRow(selection_.CurrentTab());
    ShowTexts();
}

/// Without a mark the screen closes and nothing is copied. A marked row that can't be read was told
/// by a message; the screen stays.
void frmModelSelection::btnSelectModel_Click() {
    const bool marked = selection_.MarkedTab().has_value();
    const bool providesHeat = chkWHProvidesHeat_ && chkWHProvidesHeat_->isChecked();
    if (selection_.SelectModel(providesHeat) || !marked) Unload();
}

/// Escape closes, F3 searches on. Keys that the field in focus knows never come here.
void frmModelSelection::keyPressEvent(QKeyEvent* event) {
    if (event->matches(QKeySequence::Cancel)) {
        Unload();
    } else if (event->matches(QKeySequence::Find)) {
        btnSearch_Click();
    } else if (event->matches(QKeySequence::FindNext)) {
        btnRepeatSearch_Click();
    } else {
        Form::keyPressEvent(event);
    }
}

void frmModelSelection::FormUnload() {
    for (const int tab : selection_.VisibleTabs())
        views_[static_cast<std::size_t>(tab)]->KeepWidths();
    for (const auto& refill : AfterModelSelection())
        refill();
}

void ShowModelSelection(SelectionMode mode) {
    auto* screen = new frmModelSelection(mode);
    screen->ShowModal();
}

std::vector<std::function<void()>>& AfterModelSelection() {
    static std::vector<std::function<void()>> refills;
    return refills;
}

}  // namespace tendo
