#include <algorithm>
#include <utility>

#include "materials/price_book.h"
#include "platform/text/runtime_error.h"
#include "platform/text/text.h"

namespace tendo {
namespace {

constexpr int F12Key = 123;
constexpr int DeleteKey = 46;
constexpr int BackspaceKeyCode = 8;

/// An apostrophe in the text reaches the criterion as it stands.
std::string Holds(const char* field, const std::string& text) {
    return std::string(field) + " Like '*" + text + "*'";
}

}  // namespace

void PriceBook::AddMaterial() {
    if (!file_ || !LeaveRow()) return;
    Guarded("btnAddMaterial_Click", [&] {
        Recordset& rows = rows_.Rows();
        rows.AddNew();
        for (const BookColumn& column : BookColumns)
            rows.Set(column.field, column.money ? jet::Value(0.0) : jet::Value(std::string()));
        rows.Update();
        rows.MoveLast();
        RowChanged();
        titleTellsTotal_ = true;
    });
}

void PriceBook::DeleteCurrent(DeletedThings& deleted) {
    Recordset& rows = rows_.Rows();
    deleted.materials.push_back(WholeRow(rows));
    rows.Delete();
}

void PriceBook::DeleteMarked(DeletedThings& deleted) {
    int first = rows_.CurrentRow();
    for (const std::int64_t bookmark : marks_.InOrder()) {
        rows_.Rows().SetBookmark(bookmark);
        first = std::min(first, rows_.CurrentRow());
        DeleteCurrent(deleted);
    }
    rows_.MoveTo(std::min(first, rows_.Count() - 1));
}

void PriceBook::DeleteMaterial() {
    const int row = rows_.CurrentRow();
    if (row < 0) return;
    rows_.CancelEdits();
    DeletedThings deleted;
    Guarded("btnDeleteMaterial_Click", [&] {
        if (InRowMode())
            DeleteMarked(deleted);
        else
            DeleteCurrent(deleted);
    });
    if (!InRowMode()) rows_.MoveTo(std::min(row, rows_.Count() - 1));
    marks_.Clear();
    undo_.Remember(std::move(deleted));
    RowChanged();
    titleTellsTotal_ = true;
}

void PriceBook::UndoDelete() {
    if (!file_ || !CanUndo() || !LeaveRow()) return;
    Guarded("btnUndoDelete_Click", [&] {
        const std::int64_t bookmark = undo_.PutBack(file_->Tables());
        Requery();
        if (bookmark != 0) rows_.Rows().SetBookmark(bookmark);
        ReadCategories();
        RowChanged();
        titleTellsTotal_ = true;
    });
    marks_.Leave();
}

bool PriceBook::FindNext(const std::string& criteria) {
    rows_.Rows().FindNext(criteria);
    if (rows_.Rows().NoMatch()) return false;
    RowChanged();
    return true;
}

/// The search goes on behind the first row, which therefore is not tested.
void PriceBook::OfferRestart(const std::string& text) {
    if (!dialogs_.ask("No more records found with " + text +
                      ".  Restart search from the beginning?"))
        return;
    rows_.MoveTo(0);
    RowChanged();
    if (!FindNext(Holds("Description", text))) dialogs_.tell("No records found with " + text + ".");
}

void PriceBook::Search(std::string_view searchText) {
    if (!file_ || !LeaveRow()) return;
    const std::string text(Trimmed(searchText));
    Guarded("btnSearch_Click", [&] {
        if (!FindNext(Holds("Description", text)) && !FindNext(Holds("[Part Number]", text)))
            OfferRestart(text);
    });
}

void PriceBook::SearchAgain(std::string_view searchText) {
    if (!file_ || !LeaveRow()) return;
    const std::string text(Trimmed(searchText));
    Guarded("btnSearchAgain_Click", [&] {
        if (!FindNext(Holds("Description", text))) OfferRestart(text);
    });
}

void PriceBook::MarkRow() {
    const int row = rows_.CurrentRow();
    if (row < 0 || !LeaveRow()) return;
    try {
        marks_.Add(rows_.BookmarkOf(row));
    } catch (const RuntimeError& error) {
        if (error.Number() != error_number::OutOfStackSpace) throw;
        return dialogs_.tell(
            "You are trying to select too many materials at once.  Try selecting a smaller amount "
            "of materials next time.");
    }
    rows_.MoveTo(std::min(row + 1, rows_.Count() - 1));
    RowChanged();
}

bool PriceBook::GridKey(int keyCode, int column) {
    if (keyCode == F12Key) {
        Guarded("DBGridMaterials_KeyDown", [this] { MarkRow(); });
        return true;
    }
    marks_.Leave();
    const bool clears =
        column == CategoryColumn && (keyCode == DeleteKey || keyCode == BackspaceKeyCode);
    if (clears) SetCell(column, "");
    return clears;
}

bool PriceBook::IsMarked(int row) const {
    return InRowMode() && rows_.HasRow(row) && marks_.Has(rows_.BookmarkOf(row));
}

const char* PriceBook::DeleteCaption() const {
    return InRowMode() ? "Delete Materials" : "Delete Material";
}

}  // namespace tendo
