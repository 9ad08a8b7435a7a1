#pragma once

#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace tendo {

/// The text of a profile, line by line: reads and changes keys and leaves every other line, its
/// order and its line ends as they are.
class ProfileText {
  public:
    /// From the bytes of a file: UTF-8, UTF-16 with a mark or Windows-1252.
    explicit ProfileText(std::string_view bytes);

    /// Null when the key isn't there. Only the first section of a name is looked at.
    const std::string* Find(std::string_view section, std::string_view key) const;
    std::vector<std::pair<std::string, std::string>> Section(std::string_view section) const;

    /// Line breaks within the names or the value become blanks: they would begin lines of their
    /// own.
    void Set(std::string_view section, std::string_view key, std::string_view value);
    void Remove(std::string_view section, std::string_view key);

    /// The whole text, UTF-8.
    std::string Bytes() const;

  private:
    enum class Kind { Other, Section, Key };

    struct Line {
        std::string text;  // without its line end
        std::string end;   // "\r\n", "\n" or nothing at the end of the file
        Kind kind = Kind::Other;
        std::string name;   // of the section or the key
        std::string value;  // of the key
    };

    /// The lines of a section, without its heading.
    struct Range {
        std::size_t first = 0;
        std::size_t last = 0;  // one behind
        bool found = false;
    };

    static Line Understood(std::string_view text, std::string_view end);
    Range RangeOf(std::string_view section) const;
    std::size_t KeyIn(const Range& range, std::string_view key) const;
    void Insert(std::size_t at, const std::string& text);

    std::vector<Line> lines_;
    std::string lineEnd_ = "\n";  // for new lines
};

}  // namespace tendo
