#include "materials/price_book.h"
#include "platform/text/runtime_error.h"
#include "platform/text/text.h"

namespace tendo {
namespace {

/// Joined as it stands: this is why a new name must not hold an apostrophe.
std::string IsCategory(const std::string& name) {
    return "Category Like '" + name + "'";
}

}  // namespace

std::vector<std::string> CategoriesOf(Database& tables) {
    std::vector<std::string> names;
    Recordset rows = tables.OpenRecordset("Select * from Categories order by Category");
    for (; !rows.EOF_(); rows.MoveNext())
        names.push_back(rows.Text("Category"));
    return names;
}

void PriceBook::ReadCategories() {
    const std::string selected = SelectedName();
    categories_ = CategoriesOf(file_->Tables());
    SelectName(selected);
}

std::string PriceBook::SelectedName() const {
    return selectedCategory_ < 0 ? "" : categories_.at(static_cast<std::size_t>(selectedCategory_));
}

/// A name that isn't in the list leaves nothing selected.
void PriceBook::SelectName(const std::string& name) {
    selectedCategory_ = -1;
    for (std::size_t i = 0; i < categories_.size() && selectedCategory_ < 0; ++i)
        if (!name.empty() && EqualsNoCase(categories_[i], name))
            selectedCategory_ = static_cast<int>(i);
}

void PriceBook::SelectCategory(int index) {
    if (index < 0 || index >= static_cast<int>(categories_.size()) || !LeaveRow()) return;
    selectedCategory_ = index;
    const std::string name = SelectedName();
    if (Trimmed(name).empty()) return;
    Guarded("DBLCategory_Click", [&] {
        rows_.Rows().FindFirst(IsCategory(name));
        if (rows_.Rows().NoMatch()) return Note("No material has the category " + name + ".");
        RowChanged();
    });
}

std::optional<std::string> PriceBook::AskCategoryName(const std::string& prompt,
                                                      const std::string& title) {
    while (true) {
        const auto name = dialogs_.input(prompt, title);
        if (!name || Trimmed(*name).empty()) return std::nullopt;
        if (!Contains(*name, "'")) return std::string(Trimmed(*name));
        dialogs_.tell("You can't have a Category name with a '.  Please try again.");
    }
}

void PriceBook::NewCategory() {
    if (!file_ || !LeaveRow()) return;
    const auto name = AskCategoryName("Please enter the name of the new category.", "New Category");
    if (!name) return;
    Guarded("btnNewCategory_Click", [&] {
        Recordset rows = file_->Tables().OpenRecordset("Categories");
        rows.AddNew();
        rows.Set("Category", *name);
        rows.Update();
        ReadCategories();
    });
}

/// Gives every material that meets the criterion another category and tells which they were, by
/// bookmark, with their former one. The search goes forward only, so that it ends where the new
/// name meets the criterion too.
std::vector<std::pair<std::int64_t, std::string>> PriceBook::ReplaceCategory(
    const std::string& criteria, const std::string& name) {
    std::vector<std::pair<std::int64_t, std::string>> changed;
    Recordset materials = file_->Tables().OpenRecordset("Materials");
    for (materials.FindFirst(criteria); !materials.NoMatch(); materials.FindNext(criteria)) {
        changed.emplace_back(materials.Bookmark(), materials.Text("Category"));
        materials.Edit();
        materials.Set("Category", name);
        materials.Update();
    }
    rows_.Rows();  // its texts are read anew
    return changed;
}

void PriceBook::RenameCategory() {
    const std::string old = SelectedName();
    if (!file_ || old.empty() || !LeaveRow()) return;
    const auto name = AskCategoryName("Please enter the new name for the category " + old + ".",
                                      "Rename Category");
    if (!name) return;
    Guarded("btnRenameCategory_Click", [&] {
        Recordset rows = file_->Tables().OpenRecordset("Categories");
        rows.FindFirst(IsCategory(old));
        if (!rows.NoMatch()) {
            rows.Edit();
            rows.Set("Category", *name);
            rows.Update();
        }
        ReplaceCategory(IsCategory(old), *name);
        ReadCategories();
        SelectName(*name);
    });
}

void PriceBook::DeleteCategory() {
    const std::string name = SelectedName();
    if (!file_ || name.empty() || !LeaveRow()) return;
    if (!dialogs_.ask("Are you sure you want to delete the category " + name + "?")) return;
    Guarded("btnDeleteCategory_Click", [&] {
        DeletedThings deleted;
        Recordset rows = file_->Tables().OpenRecordset("Categories");
        rows.FindFirst(IsCategory(name));
        if (!rows.NoMatch()) {
            deleted.categories.push_back(WholeRow(rows));
            rows.Delete();
        }
        deleted.cleared = ReplaceCategory(IsCategory(name), "");
        undo_.Remember(std::move(deleted));
        selectedCategory_ = -1;
        ReadCategories();
    });
}

}  // namespace tendo
