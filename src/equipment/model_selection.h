#pragma once

#include <array>
#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "equipment/model_database.h"
#include "equipment/model_rows.h"
#include "equipment/model_tabs.h"
#include "platform/database/database.h"
#include "project/project_records.h"

namespace tendo {

/// What the selection asks of its screen.
struct ModelSelectionDialogs {
    std::function<void(const std::string& text)> message;
    std::function<bool(const std::string& text)> yesNo;  // true for Yes
};

/// A database just read, with the rows of the visible tabs; or why it can't be.
struct OpenedModels {
    std::string name;
    std::optional<Database> database;
    std::array<ModelRows, ModelTabCount> rows;
    std::optional<ModelDatabaseFailure> failure;
};

enum class ModelLimit { MinimumCapacity, MaximumCapacity, MinimumEfficiency };

/// The selection of a model for one system from a manufacturer's database. It holds the database
/// open as long as it lives, limits and current row of each tab, and copies the chosen row into the
/// project. Rows and columns count from 0.
class ModelSelection {
  public:
    /// `system` is 0 to 4. The records must outlive the selection.
    ModelSelection(SelectionMode mode, ProjectRecords& records, int system,
                   ModelSelectionDialogs dialogs);

    static constexpr std::string_view SearchPrompt = "Search for:";
    static constexpr std::string_view SearchTitle = "Search for a Specific Model";
    static constexpr std::string_view SelectCommandText = "&Select Model";

    /// Reads the database that the model's `DB` of the mode leads to, and the rows of the visible
    /// tabs. Changes nothing, so it may run beside the building of a screen.
    OpenedModels ReadStoredDatabase() const;
    /// Opens what was read. A database that can't be read gives the message and leaves every tab
    /// empty. True when it is open.
    bool Open(OpenedModels models);
    bool Open() { return Open(ReadStoredDatabase()); }
    /// Changes to another database, checked first; its tabs then show all their rows. On a failure
    /// the message is given, the former database stays, and the result is false.
    bool ChangeDatabase(std::string_view fileName);
    /// The database field's text: the full name of the database, opened or not.
    const std::string& DatabaseName() const { return databaseName_; }

    SelectionMode Mode() const { return mode_; }
    bool IsVisible(int tab) const;
    /// The visible tabs in order; the first is current on opening.
    std::vector<int> VisibleTabs() const;
    int CurrentTab() const { return currentTab_; }
    /// A click on a tab: its query runs anew. A tab that isn't visible is passed over.
    void SetCurrentTab(int tab);

    /// "Selecting Cooling Models - 13 HP Models".
    std::string Title() const;

    const ModelLimits& Limits(int tab) const { return StateOf(tab).limits; }
    /// Sets a limit of the current tab from what was typed and runs its query; text that is no
    /// number changes nothing and gives false.
    bool SetLimit(ModelLimit limit, std::string_view text);
    /// "Set Mi&nimum Capacity = 18".
    std::string LimitLabel(ModelLimit limit) const;
    /// "Please Enter the Minimum Capacity:".
    static std::string_view LimitPrompt(ModelLimit limit);
    /// The current tab's value of a limit in plain text, for the prompt's field.
    std::string LimitText(ModelLimit limit) const;

    int RowCount(int tab) const;
    /// Rows of the tab's table within no limits, for "13 of 64".
    int TotalRowCount(int tab);
    int ColumnCount(int tab) const;
    std::string_view ColumnHeading(int tab, int column) const;
    CellFormat ColumnFormat(int tab, int column) const;
    /// Empty for null and outside of the grid.
    std::string CellText(int tab, int row, int column) const;

    /// -1 for an empty tab.
    int CurrentRow(int tab) const;
    /// Moves the current row without marking it (keys, a search). Outside of the grid: nothing.
    void SetCurrentRow(int tab, int row);
    /// A click on a row: makes it current and marks it as the choice.
    void ClickRow(int tab, int row);
    /// The marked tab; nothing without a mark.
    std::optional<int> MarkedTab() const { return markedTab_; }

    /// A click on a column head: the grid shows its rows by that column, at a second click the
    /// other way round, at a third as the query gives them. The first shown row becomes the current
    /// one, unless one is marked. Queries and searches go on in the query's order.
    void SortByColumn(int tab, int column);
    const std::optional<ModelSort>& Sorting(int tab) const { return StateOf(tab).sort; }
    /// The row that the grid shows at a place, and the place of a row; -1 outside of the grid.
    int RowAt(int tab, int place) const { return StateOf(tab).rows.RowAt(place); }
    int PlaceOf(int tab, int row) const { return StateOf(tab).rows.PlaceOf(row); }
    /// Moves the current row to the next shown one, itself included, whose model number begins with
    /// a typed text, else holds it. False when there is none.
    bool FindTyped(int tab, std::string_view text);

    /// The first cell of the tab's current row reads "Yes".
    bool EPACompliant(int tab) const;

    /// "&Search for " and the current tab's search text.
    std::string SearchLabel() const;
    const std::string& SearchText(int tab) const { return StateOf(tab).searchText; }
    /// Stores the text for the current tab and finds the next model number that holds it; asks
    /// before it begins again from the first row. Empty text does nothing. True when the current
    /// row moved to a find.
    bool Search(std::string_view text);
    bool RepeatSearch();

    /// The system's water heater is marked as heating the house too: how the check box stands at
    /// first.
    bool WHProvidesHeat() const;
    /// Copies the marked row into the system and its prices into the project's table, then clears
    /// the mark. Without a mark, or when the row can't be read (message), nothing is copied and the
    /// result is false. `whProvidesHeat` is the state of the water heater's check box.
    bool SelectModel(bool whProvidesHeat = false);

  private:
    struct TabState {
        ModelLimits limits;
        std::string searchText;
        ModelRows rows;
        std::optional<ModelSort> sort;
        int total = -1;  // rows of the table within no limits; -1 until someone asks
    };

    static std::size_t Index(int tab) { return static_cast<std::size_t>(tab); }
    TabState& StateOf(int tab) { return tabs_.at(Index(tab)); }
    const TabState& StateOf(int tab) const { return tabs_.at(Index(tab)); }
    std::string StoredDatabase() const;
    void CloseDatabase();
    void UseDatabase(OpenedModels models);
    void Requery(int tab);
    void ApplySort(int tab);
    bool Find(const std::string& text);
    void Tell(const std::string& text) const;
    void ReportFailure(int tab, int errorNumber) const;

    SelectionMode mode_;
    ProjectRecords& records_;
    int system_;
    ModelSelectionDialogs dialogs_;
    std::string databaseName_;
    std::optional<Database> database_;
    std::array<TabState, ModelTabCount> tabs_;
    int currentTab_ = 0;
    bool afterTabClick_ = false;
    std::optional<int> markedTab_;
};

}  // namespace tendo
