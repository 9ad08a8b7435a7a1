#pragma once

#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "materials/book_file.h"
#include "materials/book_marks.h"
#include "materials/book_rows.h"
#include "materials/book_undo.h"

namespace tendo {

/// How the price book talks with its user.
struct PriceBookDialogs {
    std::function<void(const std::string& text)> tell;
    std::function<bool(const std::string& text)> ask;  // Yes and No
    /// Nothing on cancel.
    std::function<std::optional<std::string>(const std::string& prompt, const std::string& title)>
        input;
    /// A short remark that needs no answer; may be empty.
    std::function<void(const std::string& text)> note = {};
};

/// The categories of a price book in their order; a null one is empty.
std::vector<std::string> CategoriesOf(Database& tables);

/// The price book under maintenance: its materials in a grid, its categories in a list, and every
/// command on them. An edit is taken into the table when its row is left; `Write` brings the tables
/// to the disk.
class PriceBook {
  public:
    explicit PriceBook(PriceBookDialogs dialogs);

    /// Opens `MaterialDatabaseName`. False when that is no price book (message); the book is empty
    /// then.
    bool Open();
    /// The database field changed: the trimmed path becomes the current database. On a failure the
    /// message is given and everything stays on the former database.
    bool ChangeDatabase(std::string_view path);
    /// Copies the empty database of the program directory to a name and changes to it.
    bool CreateNewDatabase(std::string_view path);
    /// The file in use; another one after the book was read anew. nullptr without a database.
    const BookFile* File() const { return file_.get(); }
    /// Empty without a database.
    std::string DatabaseName() const { return file_ ? file_->Name() : ""; }

    /// There is something that is not on disk.
    bool HasUnwrittenChanges() const;
    /// Brings the tables to the disk. Where someone else changed the same price book meanwhile the
    /// user is asked whose rows are to stand. False when it fails; each cause is told once.
    bool Write();
    /// Why the last write failed; empty when it didn't.
    const std::string& WriteFailure() const { return writeFailure_; }
    /// Reads the book again when someone else changed it and nothing of it waits to be written.
    bool ReadAgainIfChanged();

    const BookRows& Rows() const { return rows_; }
    /// Goes to a row; the row left is written. False when that fails (message): the current row
    /// stays. A move within the row counts as a change of column.
    bool MoveTo(int row);
    /// Takes a text typed into a cell of the current row; false when it can't stand there
    /// (message).
    bool SetCell(int column, const std::string& text);
    /// Writes what was typed into the current row; false when that fails (message).
    bool LeaveRow();
    void CancelEdits() { rows_.CancelEdits(); }
    /// A click on a column head reloads the grid in another order.
    void SortBy(int column);
    /// "Edit/Add Materials - 3 of 348 Materials", or the total after an add or a delete.
    std::string Title() const;

    const std::vector<std::string>& Categories() const { return categories_; }
    /// -1 when none is selected.
    int SelectedCategory() const { return selectedCategory_; }
    /// Selects a category and goes to its first material.
    void SelectCategory(int index);
    void NewCategory();
    void RenameCategory();
    void DeleteCategory();

    void AddMaterial();
    /// The current row, or in row mode all that are marked.
    void DeleteMaterial();
    void Search(std::string_view text);
    void SearchAgain(std::string_view text);

    /// A key in the grid by its code: F12 marks rows, any other key ends the marking, and Delete
    /// and Backspace clear a category. True when the grid has nothing more to do with it.
    bool GridKey(int keyCode, int column);
    /// A plain click in a cell ends the marking.
    void ClickCell() { marks_.Leave(); }
    bool InRowMode() const { return marks_.InRowMode(); }
    bool IsMarked(int row) const;
    const char* DeleteCaption() const;

    bool CanUndo() const { return !undo_.IsEmpty(); }
    /// Brings back what the last delete took, a category too.
    void UndoDelete();

  private:
    struct Binding;
    bool Bind(const std::string& path);
    bool BindAgain(const std::string& path);
    bool WriteBeforeChange();
    void RowChanged();
    void Requery();
    void ReadCategories();
    std::string SelectedName() const;
    void SelectName(const std::string& name);
    std::optional<std::string> AskCategoryName(const std::string& prompt, const std::string& title);
    std::vector<std::pair<std::int64_t, std::string>> ReplaceCategory(const std::string& criteria,
                                                                      const std::string& name);
    void DeleteCurrent(DeletedThings& deleted);
    void DeleteMarked(DeletedThings& deleted);
    void MarkRow();
    bool FindNext(const std::string& criteria);
    void OfferRestart(const std::string& text);
    bool Guarded(const char* sub, const std::function<void()>& run);
    void Note(const std::string& text) const;

    PriceBookDialogs dialogs_;
    std::unique_ptr<BookFile> file_;
    std::string source_;  // the grid's query
    BookRows rows_;
    std::vector<std::string> categories_;
    int selectedCategory_ = -1;
    bool titleTellsTotal_ = false;
    BookMarks marks_;
    BookUndo undo_;
    std::string writeFailure_;
    bool writing_ = false;
};

}  // namespace tendo
