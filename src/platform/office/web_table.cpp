#include "platform/office/web_table.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <string>
#include <utility>
#include <vector>

#include "platform/text/text.h"
#include "platform/text/utf8.h"

namespace tendo {

namespace {

constexpr std::size_t LookedAt = 8192;
constexpr std::size_t MostColumns = 1024;  // of a page's table; bounds the search for a free one
constexpr std::size_t LongestEntity = 10;

/// A mark of the page: "<td colspan=2>" or "</td>".
struct Tag {
    std::string name;  // lower case
    bool closing = false;
    std::string_view attributes;
};

bool IsSpace(char c) {
    return c == ' ' || c == '\t' || c == '\r' || c == '\n' || c == '\f';
}

bool IsNameCharacter(char c) {
    return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') || (c >= '0' && c <= '9') || c == ':' ||
           c == '!' || c == '-';
}

/// The position of `what`, in lower case, in a text of any case.
std::size_t FindNoCase(std::string_view text, std::string_view what, std::size_t from) {
    auto equal = [](char a, char b) {
        return (a >= 'A' && a <= 'Z' ? static_cast<char>(a + 32) : a) == b;
    };
    if (from > text.size()) return text.npos;
    const auto found = std::search(text.begin() + static_cast<std::ptrdiff_t>(from), text.end(),
                                   what.begin(), what.end(), equal);
    return found == text.end() ? text.npos : static_cast<std::size_t>(found - text.begin());
}

/// A whole number of an attribute, held within 1 and `most`; 1 when it isn't there.
std::size_t NumberOf(std::string_view attributes, std::string_view name, std::size_t most) {
    std::size_t at = FindNoCase(attributes, name, 0);
    if (at == attributes.npos) return 1;
    at += name.size();
    while (at < attributes.size() && (IsSpace(attributes[at]) || attributes[at] == '=' ||
                                      attributes[at] == '"' || attributes[at] == '\''))
        ++at;
    std::size_t value = 1;
    std::from_chars(attributes.data() + at, attributes.data() + attributes.size(), value);
    return std::clamp<std::size_t>(value, 1, most);
}

/// The character of "&amp;" or "&#38;"; 0 for an unknown one.
char32_t EntityCharacter(std::string_view name) {
    static constexpr std::array<std::pair<std::string_view, char32_t>, 14> Names{
        {{"amp", '&'},
         {"lt", '<'},
         {"gt", '>'},
         {"quot", '"'},
         {"apos", '\''},
         {"nbsp", ' '},
         {"euro", 0x20AC},
         {"pound", 0xA3},
         {"deg", 0xB0},
         {"frac12", 0xBD},
         {"frac14", 0xBC},
         {"reg", 0xAE},
         {"copy", 0xA9},
         {"trade", 0x2122}}};
    for (const auto& [known, character] : Names)
        if (name == known) return character;
    if (name.size() < 2 || name.front() != '#') return 0;
    const bool hexadecimal = name[1] == 'x' || name[1] == 'X';
    name.remove_prefix(hexadecimal ? 2 : 1);
    std::uint32_t value = 0;
    const auto read =
        std::from_chars(name.data(), name.data() + name.size(), value, hexadecimal ? 16 : 10);
    return read.ptr == name.data() + name.size() ? value : 0;
}

/// Text of a page: entities resolved, runs of blanks made one.
void AppendPageText(std::string& result, std::string_view text) {
    for (std::size_t at = 0; at < text.size(); ++at) {
        if (IsSpace(text[at])) {
            if (!result.empty() && !IsSpace(result.back())) result += ' ';
            continue;
        }
        const std::size_t end =
            text[at] == '&' ? text.substr(at, LongestEntity).find(';') : text.npos;
        const char32_t character =
            end == text.npos ? 0 : EntityCharacter(text.substr(at + 1, end - 1));
        if (character == 0) {
            result += text[at];
            continue;
        }
        AppendUtf8(result, character);
        at += end;
    }
}

/// Walks a page and puts the cells of its tables into a grid.
class TableReader {
  public:
    TableReader(std::string_view page, CellGrid& cells) : page_(page), cells_(cells) {}

    bool Read() {
        while (at_ < page_.size()) {
            const std::size_t open = std::min(page_.find('<', at_), page_.size());
            if (inCell_) AppendPageText(value_, page_.substr(at_, open - at_));
            at_ = open;
            if (at_ < page_.size()) TakeMark();
        }
        EndCell();
        cells_.Sort();
        return found_;
    }

  private:
    void TakeMark() {
        if (page_.substr(at_, 4) == "<!--") return PassBehind("-->");
        const Tag tag = TakeTag();
        if (!tag.closing && (tag.name == "script" || tag.name == "style"))
            return PassBehind("</" + tag.name);
        if (tag.name == "table") return TakeTable(tag.closing);
        if (inCell_ && !tag.closing && tag.name == "br") value_ += '\n';
        if (depth_ != 1) return;
        if (tag.name == "tr") EndRow();
        if (tag.name != "td" && tag.name != "th") return;
        EndCell();
        if (!tag.closing) BeginCell(tag);
    }

    void PassBehind(std::string_view end) {
        const std::size_t found = FindNoCase(page_, end, at_);
        at_ = found == page_.npos ? page_.size() : found + end.size();
    }

    Tag TakeTag() {
        Tag tag;
        std::size_t at = at_ + 1;
        if (at < page_.size() && page_[at] == '/') {
            tag.closing = true;
            ++at;
        }
        std::size_t end = at;
        while (end < page_.size() && IsNameCharacter(page_[end]))
            ++end;
        if (end == at) {  // a "<" that opens nothing
            if (inCell_) value_ += '<';
            ++at_;
            return tag;
        }
        tag.name = LowerCase(page_.substr(at, std::min<std::size_t>(end - at, 16)));
        const std::size_t close = std::min(page_.find('>', end), page_.size());
        tag.attributes = page_.substr(end, close - end);
        at_ = std::min(close + 1, page_.size());
        return tag;
    }

    void TakeTable(bool closing) {
        if (!closing) {
            found_ = true;
            ++depth_;
            if (inCell_ && !value_.empty()) value_ += ' ';
            return;
        }
        if (depth_ == 1) EndRow();
        if (depth_ > 0) --depth_;
    }

    void BeginCell(const Tag& tag) {
        while (column_ < MostColumns && column_ < busyUntil_.size() && busyUntil_[column_] > row_)
            ++column_;
        inCell_ = true;
        rowBegun_ = true;
        columnSpan_ = NumberOf(tag.attributes, "colspan", MostColumns);
        rowSpan_ = NumberOf(tag.attributes, "rowspan", MaximumRows);
    }

    void EndCell() {
        if (!inCell_) return;
        inCell_ = false;
        const std::string_view text = Trimmed(value_);
        if (!text.empty() && column_ < MostColumns) cells_.PutReadText(row_, column_, text);
        value_.clear();
        const std::size_t behind = std::min(column_ + columnSpan_, MostColumns);
        if (rowSpan_ > 1) {
            if (busyUntil_.size() < behind) busyUntil_.resize(behind);
            for (std::size_t i = column_; i < behind; ++i)
                busyUntil_[i] = row_ + rowSpan_;
        }
        column_ = behind;
    }

    void EndRow() {
        EndCell();
        if (rowBegun_) ++row_;
        rowBegun_ = false;
        column_ = 0;
    }

    std::string_view page_;
    CellGrid& cells_;
    std::size_t at_ = 0;
    int depth_ = 0;
    bool found_ = false;
    bool inCell_ = false;
    bool rowBegun_ = false;
    std::string value_;
    std::size_t row_ = 0;
    std::size_t column_ = 0;
    std::size_t columnSpan_ = 1;
    std::size_t rowSpan_ = 1;
    std::vector<std::size_t> busyUntil_;  // of a column the first row that is free again
};

}  // namespace

bool IsWebPage(std::string_view text) {
    const std::size_t first = text.find_first_not_of(" \t\r\n");
    if (first == text.npos || text[first] != '<') return false;
    const std::string_view start = text.substr(first, LookedAt);
    return FindNoCase(start, "<html", 0) != start.npos ||
           FindNoCase(start, "<table", 0) != start.npos;
}

bool ReadWebTables(std::string_view text, CellGrid& cells) {
    return TableReader(text, cells).Read();
}

}  // namespace tendo
