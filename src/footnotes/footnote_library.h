#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace tendo {

/// The footnote library, table `FootNotes` of tendo.mdb in the program directory. Every call opens
/// the file, does one thing and writes it back; a missing file or table, and a name that breaks a
/// criterion, give the database engine's RuntimeError and change nothing.

/// The names in table order.
std::vector<std::string> LibraryFootnoteNames();

/// The rich text of the first footnote of a name; empty when there is none.
std::string LibraryFootnoteText(std::string_view name);

/// Puts another rich text into the first footnote of a name. False when there is none.
bool StoreLibraryFootnoteText(std::string_view name, std::string_view text);

/// True when a row's trimmed name is exactly this one.
bool LibraryHasFootnote(std::string_view name);

/// Gives the first footnote of a name another name, without any rule.
void RenameLibraryFootnote(std::string_view name, std::string_view newName);

/// Deletes every row whose trimmed name is exactly this one.
void DeleteLibraryFootnote(std::string_view name);

/// What became of the name of a new footnote.
struct StoredFootnoteName {
    std::string name;
    /// What the user is to be told, in order.
    std::vector<std::string> messages;
};

/// A name that may stand in the library or a project, before other names are looked at: trimmed,
/// without an apostrophe, and not blank.
StoredFootnoteName PermittedFootnoteName(std::string_view wanted);

/// Adds a footnote; its name follows the rule for new names: no apostrophe, not blank, and with a
/// number behind it when the library has it already.
StoredFootnoteName AddLibraryFootnote(std::string_view name, std::string_view text);

/// Gives the first footnote of a name its final name and text; the rule for new names applies.
StoredFootnoteName FinishLibraryFootnote(std::string_view name, std::string_view newName,
                                         std::string_view text);

}  // namespace tendo
