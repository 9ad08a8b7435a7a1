#include "platform/files/profile_text.h"

#include <algorithm>

#include "platform/text/code_page.h"
#include "platform/text/text.h"

namespace tendo {

namespace {

/// Longer lines are no settings; they are passed over.
constexpr std::size_t LongestLine = 65536;
constexpr std::string_view Blanks = " \t";

std::string_view WithoutBlanks(std::string_view text) {
    const std::size_t first = text.find_first_not_of(Blanks);
    if (first == std::string_view::npos) return {};
    return text.substr(first, text.find_last_not_of(Blanks) + 1 - first);
}

std::string_view WithoutQuotes(std::string_view value) {
    const bool quoted = value.size() >= 2 && value.front() == value.back() &&
                        (value.front() == '"' || value.front() == '\'');
    return quoted ? value.substr(1, value.size() - 2) : value;
}

std::string OnOneLine(std::string_view text) {
    std::string line(text);
    std::replace_if(
        line.begin(), line.end(), [](char c) { return c == '\r' || c == '\n'; }, ' ');
    return line;
}

}  // namespace

ProfileText::ProfileText(std::string_view bytes) {
    const std::string text = FromTextFileBytes(bytes);
    for (std::size_t from = 0; from < text.size();) {
        const std::size_t feed = std::min(text.find('\n', from), text.size());
        std::size_t end = feed;
        if (end > from && end < text.size() && text[end - 1] == '\r') --end;
        const std::size_t next = std::min(feed + 1, text.size());
        const std::string_view view(text);
        lines_.push_back(Understood(view.substr(from, end - from), view.substr(end, next - end)));
        from = next;
    }
    if (!lines_.empty() && !lines_.front().end.empty()) lineEnd_ = lines_.front().end;
}

ProfileText::Line ProfileText::Understood(std::string_view text, std::string_view end) {
    Line line{std::string(text), std::string(end), Kind::Other, {}, {}};
    if (text.size() > LongestLine) return line;
    if (text.ends_with('\r')) text.remove_suffix(1);  // the last line, without its line feed
    const std::string_view content = WithoutBlanks(text);
    if (content.empty() || content.front() == ';') return line;
    if (content.front() == '[') {
        const std::size_t bracket = content.find(']');
        if (bracket == std::string_view::npos) return line;
        line.kind = Kind::Section;
        line.name = WithoutBlanks(content.substr(1, bracket - 1));
        return line;
    }
    const std::size_t equals = content.find('=');
    if (equals == std::string_view::npos || equals == 0) return line;
    line.kind = Kind::Key;
    line.name = WithoutBlanks(content.substr(0, equals));
    line.value = WithoutQuotes(WithoutBlanks(content.substr(equals + 1)));
    return line;
}

ProfileText::Range ProfileText::RangeOf(std::string_view section) const {
    Range range;
    for (std::size_t i = 0; i < lines_.size(); ++i) {
        if (lines_[i].kind != Kind::Section) continue;
        if (range.found) {
            range.last = i;
            return range;
        }
        range.found = EqualsNoCase(lines_[i].name, section);
        range.first = i + 1;
    }
    range.last = lines_.size();
    if (!range.found) range.first = range.last;
    return range;
}

std::size_t ProfileText::KeyIn(const Range& range, std::string_view key) const {
    std::size_t at = range.first;
    while (at < range.last &&
           (lines_[at].kind != Kind::Key || !EqualsNoCase(lines_[at].name, key))) {
        ++at;
    }
    return at;
}

const std::string* ProfileText::Find(std::string_view section, std::string_view key) const {
    const Range range = RangeOf(WithoutBlanks(section));
    const std::size_t at = KeyIn(range, WithoutBlanks(key));
    return at < range.last ? &lines_[at].value : nullptr;
}

std::vector<std::pair<std::string, std::string>> ProfileText::Section(
    std::string_view section) const {
    std::vector<std::pair<std::string, std::string>> values;
    const Range range = RangeOf(WithoutBlanks(section));
    for (std::size_t at = range.first; at < range.last; ++at) {
        if (lines_[at].kind == Kind::Key) values.emplace_back(lines_[at].name, lines_[at].value);
    }
    return values;
}

void ProfileText::Insert(std::size_t at, const std::string& text) {
    if (at > 0 && lines_[at - 1].end.empty()) lines_[at - 1].end = lineEnd_;
    lines_.insert(lines_.begin() + static_cast<std::ptrdiff_t>(at), Understood(text, lineEnd_));
}

void ProfileText::Set(std::string_view section, std::string_view key, std::string_view value) {
    const std::string sectionName = OnOneLine(WithoutBlanks(section));
    const std::string keyName = OnOneLine(WithoutBlanks(key));
    Range range = RangeOf(sectionName);
    if (!range.found) {
        Insert(lines_.size(), "[" + sectionName + "]");
        range = {lines_.size(), lines_.size(), true};
    }
    const std::size_t at = KeyIn(range, keyName);
    if (at < range.last) {
        Line& line = lines_[at];
        const std::size_t equals = line.text.find('=');
        line = Understood(line.text.substr(0, equals + 1) + OnOneLine(value), line.end);
        return;
    }
    std::size_t end = range.last;
    while (end > range.first && WithoutBlanks(lines_[end - 1].text).empty())
        --end;
    Insert(end, keyName + "=" + OnOneLine(value));
}

void ProfileText::Remove(std::string_view section, std::string_view key) {
    Range range = RangeOf(WithoutBlanks(section));
    for (std::size_t at = range.last; at-- > range.first;) {
        if (lines_[at].kind == Kind::Key && EqualsNoCase(lines_[at].name, WithoutBlanks(key))) {
            lines_.erase(lines_.begin() + static_cast<std::ptrdiff_t>(at));
        }
    }
}

std::string ProfileText::Bytes() const {
    std::string bytes;
    for (const Line& line : lines_)
        bytes.append(line.text).append(line.end);
    return bytes;
}

}  // namespace tendo
