#include "equipment/screens/frm_model_selection.h"

#include <QCheckBox>
#include <QHeaderView>
#include <QKeyEvent>
#include <QLabel>
#include <QPushButton>
#include <QScopedValueRollback>
#include <QScreen>
#include <QTabWidget>
#include <QTableView>

#include "equipment/model_database.h"
#include "equipment/screens/epa_mark.h"
#include "equipment/screens/model_grid.h"
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

void frmModelSelection::OpenDatabase() {
    const Hourglass hourglass;
    selection_.Open();
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
    for (const int tab : selection_.VisibleTabs())
        ShowTab(tab);
    ShowTexts();
}

/// The rows of a tab after its query ran.
void frmModelSelection::ShowTab(int tab) {
    const auto slot = static_cast<std::size_t>(tab);
    QTableView* view = views_[slot];
    ModelGrid* grid = grids_[slot];
    {
        const QScopedValueRollback<bool> showing(showing_, true);
        grid->Reset([] {});
    }
    const std::vector<int> widths =
        grid->FittingWidths(view->font(), view->horizontalHeader()->font());
    for (std::size_t column = 0; column < widths.size(); ++column)
        view->setColumnWidth(static_cast<int>(column),
                             std::max(widths[column], view->horizontalHeader()->sectionSizeHint(
                                                          static_cast<int>(column))));
    ShowCurrentRow(tab);
}

void frmModelSelection::ShowCurrentRow(int tab) {
    const auto slot = static_cast<std::size_t>(tab);
    const QModelIndex index = grids_[slot]->index(selection_.CurrentRow(tab), 0);
    {
        const QScopedValueRollback<bool> showing(showing_, true);
        views_[slot]->setCurrentIndex(index);
    }
    if (index.isValid()) views_[slot]->scrollTo(index);
    ShowEPAMark(tab);
    ShowChoice();
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
    const int all = selection_.TotalRowCount(tab);
    lblCount_->setText(QString("%1 of %2").arg(selection_.RowCount(tab)).arg(all) +
                       Q(ModelTabAt(tab).kindText));
    ShowEPAMark(tab);
    ShowChoice();
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
    const int tab = selection_.CurrentTab();
    selection_.SetLimit(limit, *text);
    ShowTab(tab);
    ShowTexts();
}

void frmModelSelection::ClickRow(int tab, int row) {
    selection_.ClickRow(tab, row);
    ShowEPAMark(tab);
    ShowChoice();
}

void frmModelSelection::tabModels_Click(int tab) {
    const Hourglass hourglass;
    selection_.SetCurrentTab(tab);
    ShowTab(tab);
    ShowTexts();
}

/// The first column becomes the current one, whose text tells EPA compliance.
void frmModelSelection::grid_RowChange(int tab, int row) {
    if (showing_) return;
    selection_.SetCurrentRow(tab, row);
    ShowCurrentRow(tab);
}

void frmModelSelection::btnChangeDB_Click() {
    const auto file = Dialogs().File({.kind = FileDialog::Kind::Open,
                                      .title = "Choose a Model Database",
                                      .filter = "TENDO Database (*.mdb)|*.mdb",
                                      .fileName = "*.mdb",
                                      .folder = State().CommonDirectory,
                                      .defaultExtension = "mdb"});
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

/// Return takes the current row, the space bar marks it.
bool frmModelSelection::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() != QEvent::KeyPress) return Form::eventFilter(watched, event);
    const int key = static_cast<QKeyEvent*>(event)->key();
    const bool select = key == Qt::Key_Return || key == Qt::Key_Enter;
    if (!select && key != Qt::Key_Space) return Form::eventFilter(watched, event);
    const int tab = selection_.CurrentTab();
    const int row = selection_.CurrentRow(tab);
    if (row < 0) return true;
    ClickRow(tab, row);
    if (select) btnSelectModel_Click();
    return true;
}

void frmModelSelection::FormUnload() {
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
