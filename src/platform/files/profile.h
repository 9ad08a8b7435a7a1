#pragma once

#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace tendo {

/// A private profile file: `[Section]` lines and `key=value` lines. Names of sections and keys do
/// not depend on case. Comments, blank lines and lines that are neither are kept on a write. A
/// missing file reads as empty; broken and overlong lines are passed over. UTF-8, older files in
/// Windows-1252. The file is read again whenever it was changed since.

/// The value of a key, with blanks at both ends and one pair of enclosing quotes taken off; the
/// default when there is none. The first of several equal keys counts.
std::string ReadProfileString(std::string_view file, std::string_view section, std::string_view key,
                              std::string_view defaultValue);
/// Sets a key, adding file and section when missing. Through the safe replace.
void WriteProfileString(std::string_view file, std::string_view section, std::string_view key,
                        std::string_view value);
/// Sets several keys of one section in one write of the file.
void WriteProfileSection(std::string_view file, std::string_view section,
                         const std::vector<std::pair<std::string, std::string>>& values);
/// Removes a key; nothing when it isn't there.
void DeleteProfileKey(std::string_view file, std::string_view section, std::string_view key);
/// Keys of a section in file order.
std::vector<std::string> ProfileKeys(std::string_view file, std::string_view section);

/// One parsed profile, for readers of bytes (tests, fuzzing).
std::vector<std::pair<std::string, std::string>> ParseProfileSection(std::string_view bytes,
                                                                     std::string_view section);

}  // namespace tendo
