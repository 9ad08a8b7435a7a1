#include "footnotes/footnote_library.h"

#include "platform/database/database.h"
#include "platform/text/text.h"
#include "project/program_state.h"

namespace tendo {

namespace {

constexpr std::string_view Table = "FootNotes";
constexpr std::string_view NameField = "FootNoteName";
constexpr std::string_view TextField = "Description";
constexpr std::string_view SpareName = "TENDO FOOTNOTE";

Database OpenLibrary() {
    return Database::OpenDatabase(State().ProgramDirectory + "tendo.mdb");
}

/// Names are joined into criteria as they stand; that is why none may hold an apostrophe.
std::string Criterion(std::string_view name) {
    return std::string(NameField) + " Like '" + std::string(name) + "'";
}

/// The rows of a name. Names that differ in case are one to the criterion: the recordset stands on
/// the row that has the name to the letter, if there is one.
Recordset RowsOf(Database& library, std::string_view name) {
    Recordset rows = library.OpenRecordset("Select * from [FootNotes] where [FootNoteName] = '" +
                                           std::string(name) + "'");
    while (!rows.EOF_() && rows.Text(NameField) != name)
        rows.MoveNext();
    if (rows.EOF_() && !rows.BOF()) rows.MoveFirst();
    return rows;
}

void SetText(Recordset& rows, std::string_view field, std::string_view text) {
    rows.Edit();
    rows.Set(field, std::string(text));
    rows.Update();
}

/// The first number that makes the name another one; 0 when the name stands only once.
int NumberBehind(Recordset& rows, const std::string& name) {
    rows.FindFirst(Criterion(name));
    if (!rows.NoMatch()) rows.FindNext(Criterion(name));
    int count = 0;
    while (!rows.NoMatch()) {
        ++count;
        rows.FindFirst(Criterion(name + std::to_string(count + 1)));
    }
    return count == 0 ? 0 : count + 1;
}

/// The rule for the name of a row that stands in the library already.
StoredFootnoteName RenameOnCollision(Database& library, std::int64_t row, std::string_view wanted) {
    StoredFootnoteName stored = PermittedFootnoteName(wanted);
    Recordset rows = library.OpenRecordset(Table);
    rows.SetBookmark(row);
    SetText(rows, NameField, stored.name);
    const int number = NumberBehind(rows, stored.name);
    if (number == 0) return stored;
    stored.name += std::to_string(number);
    stored.messages.push_back(
        "You already have a footnote with this name.  This footnote will be renamed to " +
        stored.name + ".");
    rows.SetBookmark(row);
    SetText(rows, NameField, stored.name);
    return stored;
}

}  // namespace

std::vector<std::string> LibraryFootnoteNames() {
    Database library = OpenLibrary();
    std::vector<std::string> names;
    for (Recordset rows = library.OpenRecordset(Table); !rows.EOF_(); rows.MoveNext())
        names.push_back(rows.Text(NameField));
    return names;
}

std::string LibraryFootnoteText(std::string_view name) {
    Database library = OpenLibrary();
    const Recordset rows = RowsOf(library, name);
    return rows.EOF_() ? "" : rows.Text(TextField);
}

bool StoreLibraryFootnoteText(std::string_view name, std::string_view text) {
    Database library = OpenLibrary();
    Recordset rows = RowsOf(library, name);
    if (rows.EOF_()) return false;
    SetText(rows, TextField, text);
    library.Close();
    return true;
}

bool LibraryHasFootnote(std::string_view name) {
    for (const std::string& present : LibraryFootnoteNames())
        if (Trimmed(present) == name) return true;
    return false;
}

void RenameLibraryFootnote(std::string_view name, std::string_view newName) {
    Database library = OpenLibrary();
    Recordset rows = RowsOf(library, name);
    if (rows.EOF_()) return;
    SetText(rows, NameField, newName);
    library.Close();
}

void DeleteLibraryFootnote(std::string_view name) {
    Database library = OpenLibrary();
    for (Recordset rows = library.OpenRecordset(Table); !rows.EOF_(); rows.MoveNext())
        if (Trimmed(rows.Text(NameField)) == Trimmed(name)) rows.Delete();
    library.Close();
}

StoredFootnoteName PermittedFootnoteName(std::string_view wanted) {
    const std::string name(Trimmed(wanted));
    if (name.find('\'') != std::string::npos)
        return {std::string(SpareName),
                {"Footnote Names cannot have the character ' in them.  The Foot Note Name has been "
                 "changed to TENDO FOOTNOTE."}};
    if (name.empty())
        return {std::string(SpareName),
                {"You have not entered a Footnote name.  The Footnote Name has been changed to "
                 "TENDO FOOTNOTE."}};
    return {name, {}};
}

StoredFootnoteName AddLibraryFootnote(std::string_view name, std::string_view text) {
    Database library = OpenLibrary();
    Recordset rows = library.OpenRecordset(Table);
    rows.AddNew();
    rows.Set(NameField, std::string(Trimmed(name)));
    rows.Set(TextField, std::string(text));
    rows.Update();
    rows.MoveLast();
    const StoredFootnoteName stored = RenameOnCollision(library, rows.Bookmark(), name);
    library.Close();
    return stored;
}

StoredFootnoteName FinishLibraryFootnote(std::string_view name, std::string_view newName,
                                         std::string_view text) {
    Database library = OpenLibrary();
    Recordset rows = RowsOf(library, name);
    if (rows.EOF_()) return AddLibraryFootnote(newName, text);
    SetText(rows, TextField, text);
    const StoredFootnoteName stored = RenameOnCollision(library, rows.Bookmark(), newName);
    library.Close();
    return stored;
}

}  // namespace tendo
