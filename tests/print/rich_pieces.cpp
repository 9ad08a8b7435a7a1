#include "rich_pieces.h"

#include <algorithm>

#include "platform/text/text.h"

namespace tendo {

namespace {

std::string Simplified(std::string_view text) {
    std::string simple(text);
    for (const auto* blank : {"\u2002", "\u2003", "\u2005", "\u2006", "\u2009"})
        simple = Replaced(simple, blank, " ");
    for (const auto* nothing : {"\uFEFF", "\u00AD", "\u200B", "\r"})
        simple = Replaced(simple, nothing, "");
    simple = Replaced(simple, "\t", "\n");
    simple = Replaced(simple, "  ", "\n");
    return Replaced(simple, "\u2011", "-");
}

/// Matches the longest common beginnings, looking a few pieces ahead after a difference.
bool Resume(const std::vector<std::string>& a, const std::vector<std::string>& b, std::size_t& i,
            std::size_t& j) {
    for (std::size_t step = 1; step < 40; ++step)
        for (std::size_t k = 0; k <= step; ++k)
            if (i + k < a.size() && j + step - k < b.size() && a[i + k] == b[j + step - k]) {
                i += k;
                j += step - k;
                return true;
            }
    return false;
}

/// "1.", "b)", "iv.", "2.1" or a sign that is no letter.
bool IsListMark(std::string_view word) {
    const auto is = [](std::string_view signs) {
        return [=](char c) { return signs.find(c) != std::string_view::npos; };
    };
    const bool number = std::all_of(word.begin(), word.end(), is("0123456789."));
    const bool ends = EndsWith(word, ".") || EndsWith(word, ")");
    const bool sign = CharacterCount(word) == 1 && static_cast<unsigned char>(word[0]) >= 0x80;
    return number || sign || (ends && word.size() < 9);
}

/// The marks of unnumbered lists count as one: LibreOffice shows its own for the deeper levels.
std::string WithOneBullet(std::string_view piece) {
    for (const auto* mark : {"\u25E6", "\u25AA", "\u2013"})
        if (piece == mark) return "\u2022";
    return std::string(piece);
}

}  // namespace

std::string PlainTextOf(const RichText& text) {
    std::string plain;
    for (const RichParagraph& paragraph : text.paragraphs) {
        if (&paragraph != &text.paragraphs.front()) plain += '\n';
        for (const RichRun& run : paragraph.runs)
            plain += run.text;
    }
    return plain;
}

std::vector<std::string> PiecesOf(std::string_view text) {
    std::vector<std::string> pieces;
    for (const std::string& part : Split(Simplified(text), '\n'))
        if (!Trimmed(part).empty()) pieces.push_back(WithOneBullet(Trimmed(part)));
    return pieces;
}

std::vector<std::string> OfficePiecesOf(std::string_view text) {
    std::string marked;
    for (std::string line : Split(Replaced(text, "\uFEFF", ""), '\n')) {
        const std::size_t mark = line.find_first_not_of(' ');
        const std::size_t blank = mark == std::string::npos ? mark : line.find(' ', mark);
        if (mark != std::string::npos && mark >= 4 && blank != std::string::npos &&
            IsListMark(std::string_view(line).substr(mark, blank - mark)))
            line[blank] = '\t';
        marked += line + "\n";
    }
    return PiecesOf(marked);
}

std::string Difference(const std::vector<std::string>& expected,
                       const std::vector<std::string>& read) {
    std::string difference;
    std::size_t i = 0, j = 0;
    while (i < expected.size() || j < read.size()) {
        if (i < expected.size() && j < read.size() && expected[i] == read[j]) {
            ++i;
            ++j;
            continue;
        }
        std::size_t nextI = i, nextJ = j;
        if (!Resume(expected, read, nextI, nextJ)) {
            nextI = expected.size();
            nextJ = read.size();
        }
        for (; i < nextI; ++i)
            difference += "- " + expected[i] + "\n";
        for (; j < nextJ; ++j)
            difference += "+ " + read[j] + "\n";
    }
    return difference;
}

}  // namespace tendo
