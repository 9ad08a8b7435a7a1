#include "materials/price_book.h"

#include <algorithm>
#include <array>
#include <utility>

#include "platform/files/safe_file.h"
#include "platform/files/settings_store.h"
#include "platform/text/number_text.h"
#include "platform/text/runtime_error.h"
#include "platform/text/text.h"

namespace tendo {
namespace {

/// The order that a click on a column head asks for. The first two are paired on purpose: the head
/// of the categories sorts by description alone.
constexpr std::array<const char*, BookColumns.size()> sortSources = {
    "Select * from Materials order by Description",
    "Select * from Materials order by Category, Description",
    "Select * from Materials order by [Part Number], Description",
    "Select * from Materials order by UnitCst, Description",
    "Select * from Materials order by ListCst, Description"};

std::string NotValidText(int location) {
    return "This database does not contain valid Material records.  Please select another "
           "database.\nLocation =" +
           std::to_string(location);
}

std::string CountText(int count) {
    return FormatNumber(double{count + 0.0}, "###,##0");
}

}  // namespace

/// Everything that hangs on one database.
struct PriceBook::Binding {
    std::unique_ptr<BookFile> file;
    BookRows rows;
    std::vector<std::string> categories;

    /// `location` follows the steps, for the report of a failure.
    Binding(const std::string& path, const std::string& source, int& location) {
        location = 1;
        file = std::make_unique<BookFile>(path);
        location = 2;
        rows = BookRows(file->Tables().OpenRecordset(source));
        location = 3;
        categories = CategoriesOf(file->Tables());
    }
};

PriceBook::PriceBook(PriceBookDialogs dialogs)
    : dialogs_(std::move(dialogs)), source_(sortSources[0]) {}

bool PriceBook::Open() {
    return Bind(State().MaterialDatabaseName);
}

bool PriceBook::Bind(const std::string& path) {
    int location = 0;
    try {
        Binding binding(path, source_, location);
        location = 4;
        Settings().SaveSetting("Settings", "MaterialDatabase", path);
        State().MaterialDatabaseName = path;
        rows_ = std::move(binding.rows);
        categories_ = std::move(binding.categories);
        file_ = std::move(binding.file);
    } catch (const RuntimeError&) {
        dialogs_.tell(NotValidText(location));
        return false;
    }
    marks_.Leave();
    undo_.Forget();
    writeFailure_.clear();
    selectedCategory_ = -1;
    RowChanged();
    return true;
}

/// What was typed or changed belongs to the database that is left.
bool PriceBook::WriteBeforeChange() {
    return LeaveRow() && Write();
}

bool PriceBook::ChangeDatabase(std::string_view path) {
    return WriteBeforeChange() && Bind(std::string(Trimmed(path)));
}

bool PriceBook::CreateNewDatabase(std::string_view path) {
    if (Trimmed(path).empty() || !WriteBeforeChange()) return false;
    const std::string name(Trimmed(path));
    return Guarded("btnCreateNewDatabase_Click",
                   [&name] { CopyFileOver(State().ProgramDirectory + "blank.mdb", name); }) &&
           Bind(name);
}

bool PriceBook::HasUnwrittenChanges() const {
    return file_ && (file_->Changed() || rows_.IsEdited());
}

bool PriceBook::Write() {
    if (!file_ || !file_->Changed() || writing_) return true;
    writing_ = true;
    std::string failure;
    try {
        if (file_->ChangedElsewhere() &&
            !dialogs_.ask("The price book " + DatabaseName() +
                          " was changed by another program while it was open here.  Write the "
                          "materials of this window over that program's changes?  If you select "
                          "no, the price book is read again and the last changes made here are "
                          "given up."))
            BindAgain(DatabaseName());
        else
            file_->Write();
    } catch (const RuntimeError& error) {
        failure = error.Description();
    }
    writing_ = false;
    std::swap(failure, writeFailure_);
    if (!writeFailure_.empty() && writeFailure_ != failure)
        dialogs_.tell("The price book is not on disk.  " + writeFailure_ +
                      "\nThe changes are kept here and will be written as soon as it can be done.");
    return writeFailure_.empty();
}

bool PriceBook::BindAgain(const std::string& path) {
    const int row = rows_.CurrentRow();
    rows_.CancelEdits();
    if (!Bind(path)) return false;
    rows_.MoveTo(std::min(row, rows_.Count() - 1));
    RowChanged();
    return true;
}

bool PriceBook::ReadAgainIfChanged() {
    if (!file_ || writing_ || HasUnwrittenChanges() || !file_->ChangedElsewhere()) return false;
    if (!BindAgain(DatabaseName())) return false;
    Note("The price book was changed elsewhere and has been read again.");
    return true;
}

/// Shows errors of one command the way all procedures do.
bool PriceBook::Guarded(const char* sub, const std::function<void()>& run) {
    try {
        run();
        return true;
    } catch (const RuntimeError& error) {
        dialogs_.tell(std::string("TENDO encountered an error while in Sub ") + sub + "\n" +
                      error.Description());
        return false;
    }
}

void PriceBook::Note(const std::string& text) const {
    if (dialogs_.note) dialogs_.note(text);
}

bool PriceBook::MoveTo(int row) {
    if (row != rows_.CurrentRow() && !LeaveRow()) return false;
    rows_.MoveTo(row);
    RowChanged();
    return true;
}

void PriceBook::RowChanged() {
    titleTellsTotal_ = false;
    if (rows_.CurrentRow() < 0 || rows_.Rows().IsNull("Category")) return;
    const std::string category = rows_.Rows().Text("Category");
    if (category != SelectedName()) SelectName(category);
}

bool PriceBook::SetCell(int column, const std::string& text) {
    try {
        rows_.SetCell(column, text);
        return true;
    } catch (const RuntimeError& error) {
        dialogs_.tell(error.Description());
        return false;
    }
}

bool PriceBook::LeaveRow() {
    try {
        rows_.WriteEdits();
        return true;
    } catch (const RuntimeError& error) {
        dialogs_.tell("The material can't be written.  " + error.Description());
        return false;
    }
}

void PriceBook::SortBy(int column) {
    if (!file_ || !LeaveRow()) return;
    Guarded("DBGridMaterials_HeadClick", [&] {
        const std::string source = sortSources.at(static_cast<std::size_t>(column));
        rows_ = BookRows(file_->Tables().OpenRecordset(source));
        source_ = source;
    });
    marks_.Leave();
    RowChanged();
}

/// The same rows in the same order, read anew.
void PriceBook::Requery() {
    rows_ = BookRows(file_->Tables().OpenRecordset(source_));
}

std::string PriceBook::Title() const {
    const std::string start = "Edit/Add Materials - ";
    if (titleTellsTotal_) return start + CountText(rows_.Count()) + " Total Materials";
    return start + CountText(rows_.CurrentRow() + 1) + " of " + CountText(rows_.Count()) +
           " Materials";
}

}  // namespace tendo
