#include "equipment/model_selection.h"

#include <cfloat>
#include <cmath>
#include <utility>

#include "equipment/model_copy.h"
#include "equipment/model_database.h"
#include "platform/text/number_text.h"
#include "platform/text/runtime_error.h"
#include "platform/text/text.h"
#include "pricing/system_models.h"
#include "project/program_state.h"

namespace tendo {
namespace {

struct LimitTexts {
    float ModelLimits::*value;
    std::string_view label;
    std::string_view prompt;
};
constexpr std::array<LimitTexts, 3> LimitTable = {
    {{&ModelLimits::minimumCapacity,
      "Set Mi&nimum Capacity = ", "Please Enter the Minimum Capacity:"},
     {&ModelLimits::maximumCapacity,
      "Set Ma&ximum Capacity = ", "Please Enter the Maximum Capacity:"},
     {&ModelLimits::minimumEfficiency,
      "Set Minimum &Efficiency = ", "Please Enter the Minimum Efficiency:"}}};

const LimitTexts& TextsOf(ModelLimit limit) {
    return LimitTable[static_cast<std::size_t>(limit)];
}

ModelDatabaseFailure FailureOf(int tab, int errorNumber) {
    return {std::string(ModelTabAt(tab).kind), errorNumber};
}

}  // namespace

ModelSelection::ModelSelection(SelectionMode mode, ProjectRecords& records, int system,
                               ModelSelectionDialogs dialogs)
    : mode_(mode), records_(records), system_(system), dialogs_(std::move(dialogs)) {
    currentTab_ = VisibleTabs().front();
}

std::string ModelSelection::StoredDatabase() const {
    const std::size_t slot = Index(system_);
    switch (mode_) {
        case SelectionMode::Cooling:
            return records_.CLGModelData.at(slot).DB.Trimmed();
        case SelectionMode::Heating:
            return records_.HTGModelData.at(slot).DB.Trimmed();
        case SelectionMode::WaterHeater:
            break;
    }
    return records_.WHModelData.at(slot).DB.Trimmed();
}

void ModelSelection::Tell(const std::string& text) const {
    if (dialogs_.message) dialogs_.message(text);
}

void ModelSelection::ReportFailure(int tab, int errorNumber) const {
    Tell(ModelDatabaseMessage(databaseName_, FailureOf(tab, errorNumber)));
}

void ModelSelection::CloseDatabase() {
    for (TabState& state : tabs_) {
        state.rows = ModelRows();
        state.total = -1;
    }
    database_.reset();
    markedTab_.reset();  // the marked row belonged to that database
}

OpenedModels ModelSelection::ReadStoredDatabase() const {
    OpenedModels models;
    models.name =
        CheckToSeeIfDbaseExists(StoredDatabase(), records_.GPDProjectFormat.DefaultDB.Trimmed());
    int tab = currentTab_;
    try {
        models.database = Database::OpenDatabase(models.name);
        for (const int visible : VisibleTabs()) {
            tab = visible;
            const std::string query = ModelQueryText(mode_, tab, Limits(tab));
            models.rows[Index(tab)] = ModelRows(*models.database, query, tab);
        }
    } catch (const RuntimeError& error) {
        models.failure = FailureOf(tab, error.Number());
    }
    return models;
}

bool ModelSelection::Open(OpenedModels models) {
    if (!models.failure) {
        UseDatabase(std::move(models));
        return true;
    }
    CloseDatabase();
    databaseName_ = models.name;
    Tell(ModelDatabaseMessage(models.name, *models.failure));
    return false;
}

bool ModelSelection::ChangeDatabase(std::string_view fileName) {
    OpenedModels models;
    models.name = Trimmed(fileName);
    int tab = currentTab_;
    try {
        models.database = Database::OpenDatabase(models.name);
        models.failure = CheckModelDatabase(*models.database);
        for (const int visible : VisibleTabs()) {
            if (models.failure) break;
            tab = visible;
            const std::string source(ModelTabAt(tab).allRows);
            models.rows[Index(tab)] = ModelRows(*models.database, source, tab);
        }
    } catch (const RuntimeError& error) {
        models.failure = FailureOf(tab, error.Number());
    }
    if (models.failure) {
        Tell(ModelDatabaseMessage(models.name, *models.failure));
        return false;
    }
    UseDatabase(std::move(models));
    return true;
}

void ModelSelection::UseDatabase(OpenedModels models) {
    CloseDatabase();
    for (int tab = 0; tab < ModelTabCount; ++tab)
        StateOf(tab).rows = std::move(models.rows[Index(tab)]);
    database_ = std::move(models.database);
    databaseName_ = models.name;
    for (const int tab : VisibleTabs())
        ApplySort(tab);
}

bool ModelSelection::IsVisible(int tab) const {
    return tab >= 0 && tab < ModelTabCount && ModelTabAt(tab).VisibleIn(mode_);
}

std::vector<int> ModelSelection::VisibleTabs() const {
    std::vector<int> visible;
    for (int tab = 0; tab < ModelTabCount; ++tab)
        if (IsVisible(tab)) visible.push_back(tab);
    return visible;
}

void ModelSelection::SetCurrentTab(int tab) {
    if (!IsVisible(tab)) return;
    currentTab_ = tab;
    afterTabClick_ = true;
    Requery(tab);
}

void ModelSelection::Requery(int tab) {
    if (!database_) return;
    TabState& state = StateOf(tab);
    std::optional<std::int64_t> marked;
    if (markedTab_ == tab) marked = state.rows.Bookmark();
    try {
        const std::string query = ModelQueryText(mode_, tab, state.limits);
        state.rows = ModelRows(*database_, query, tab);
        // A marked row that the new limits hide is no choice any longer.
        const bool kept = marked && state.rows.MoveToBookmark(*marked);
        if (marked && !kept) markedTab_.reset();
        ApplySort(tab);
        if (!kept) state.rows.MoveTo(state.rows.RowAt(0));
    } catch (const RuntimeError& error) {
        if (marked) markedTab_.reset();
        state.rows = ModelRows();
        ReportFailure(tab, error.Number());
    }
}

std::string ModelSelection::Title() const {
    return std::string(SelectionModeText(mode_, afterTabClick_)) + " - " +
           std::to_string(RowCount(currentTab_)) + std::string(ModelTabAt(currentTab_).kindText);
}

bool ModelSelection::SetLimit(ModelLimit limit, std::string_view text) {
    double value = 0;
    if (!ReadNumber(text, value) || std::abs(value) > static_cast<double>(FLT_MAX)) return false;
    StateOf(currentTab_).limits.*TextsOf(limit).value = static_cast<float>(value);
    Requery(currentTab_);
    return true;
}

std::string ModelSelection::LimitLabel(ModelLimit limit) const {
    return std::string(TextsOf(limit).label) + LimitText(limit);
}

std::string_view ModelSelection::LimitPrompt(ModelLimit limit) {
    return TextsOf(limit).prompt;
}

std::string ModelSelection::LimitText(ModelLimit limit) const {
    return PlainNumberText(Limits(currentTab_).*TextsOf(limit).value);
}

int ModelSelection::RowCount(int tab) const {
    return StateOf(tab).rows.Count();
}

int ModelSelection::TotalRowCount(int tab) {
    TabState& state = StateOf(tab);
    if (!database_ || !IsVisible(tab)) return 0;
    const ModelTab& described = ModelTabAt(tab);
    if (state.total < 0)
        state.total = described.allRows == described.table
                          ? database_->RecordCount(described.table)
                          : database_->OpenRecordset(described.allRows).RecordCount();
    return state.total;
}

int ModelSelection::ColumnCount(int tab) const {
    return static_cast<int>(ModelTabAt(tab).columns.size());
}

std::string_view ModelSelection::ColumnHeading(int tab, int column) const {
    return ModelTabAt(tab).columns[Index(column)].Heading();
}

CellFormat ModelSelection::ColumnFormat(int tab, int column) const {
    return ModelTabAt(tab).columns[Index(column)].format;
}

std::string ModelSelection::CellText(int tab, int row, int column) const {
    return StateOf(tab).rows.CellText(row, column);
}

int ModelSelection::CurrentRow(int tab) const {
    return StateOf(tab).rows.CurrentRow();
}

void ModelSelection::SetCurrentRow(int tab, int row) {
    StateOf(tab).rows.MoveTo(row);
}

void ModelSelection::ClickRow(int tab, int row) {
    if (!IsVisible(tab) || !StateOf(tab).rows.HasRow(row)) return;
    StateOf(tab).rows.MoveTo(row);
    markedTab_ = tab;
}

/// Shows the tab's rows by its sort; one that can't be had is told and given up.
void ModelSelection::ApplySort(int tab) {
    TabState& state = StateOf(tab);
    if (!database_) return;
    try {
        state.rows.SortBy(*database_, state.sort);
    } catch (const RuntimeError& error) {
        state.sort.reset();
        Tell(error.Description());
    }
}

void ModelSelection::SortByColumn(int tab, int column) {
    std::optional<ModelSort>& sort = StateOf(tab).sort;
    if (!sort || sort->column != column) {
        sort = ModelSort{column, false};
    } else if (!sort->descending) {
        sort->descending = true;
    } else {
        sort.reset();
    }
    ApplySort(tab);
    ModelRows& rows = StateOf(tab).rows;
    if (markedTab_ != tab) rows.MoveTo(rows.RowAt(0));
}

bool ModelSelection::FindTyped(int tab, std::string_view text) {
    if (!database_) return false;
    ModelRows& rows = StateOf(tab).rows;
    const int row = rows.FindTyped(*database_, text, rows.PlaceOf(rows.CurrentRow()));
    if (row < 0) return false;
    rows.MoveTo(row);
    return true;
}

bool ModelSelection::EPACompliant(int tab) const {
    return CellText(tab, CurrentRow(tab), 0) == "Yes";
}

std::string ModelSelection::SearchLabel() const {
    return "&Search for " + SearchText(currentTab_);
}

bool ModelSelection::Search(std::string_view text) {
    StateOf(currentTab_).searchText = text;
    return RepeatSearch();
}

bool ModelSelection::RepeatSearch() {
    const std::string text = SearchText(currentTab_);
    if (text.empty()) return false;
    try {
        return Find(text);
    } catch (const RuntimeError& error) {
        Tell(error.Description());  // an apostrophe breaks the criterion
        return false;
    }
}

bool ModelSelection::Find(const std::string& text) {
    const std::string criteria = "Model Like '*" + text + "*'";
    if (StateOf(currentTab_).rows.FindNext(criteria)) return true;
    const std::string question =
        "No more records found with " + text + ".  Do you wish to search again from the beginning?";
    if (!dialogs_.yesNo || !dialogs_.yesNo(question)) return false;
    if (StateOf(currentTab_).rows.FindFirst(criteria)) return true;
    Tell("No more records found with " + text + ".");
    return false;
}

bool ModelSelection::WHProvidesHeat() const {
    return records_.WHModelData.at(Index(system_)).WHIsHydroAirComponent == 1;
}

bool ModelSelection::SelectModel(bool whProvidesHeat) {
    if (!markedTab_ || !database_) return false;
    const int tab = *markedTab_;
    try {
        ChosenModel model = ReadChosenModel(mode_, tab, StateOf(tab).rows.Current());
        model.waterHeater.WHIsHydroAirComponent = whProvidesHeat ? 1 : 0;
        model.manufacturer = ManufacturerName(*database_);
        model.database = ModelDatabaseName(databaseName_);
        ApplyChosenModel(mode_, model, records_, system_);
    } catch (const RuntimeError& error) {
        ReportFailure(tab, error.Number());
        return false;
    }
    markedTab_.reset();
    State().ProjectChanged = true;
    return true;
}

}  // namespace tendo
