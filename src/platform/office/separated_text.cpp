#include "platform/office/separated_text.h"

#include <algorithm>
#include <cmath>
#include <vector>

#include "platform/text/code_page.h"
#include "platform/text/date_text.h"
#include "platform/text/number_text.h"
#include "platform/text/text.h"

namespace tendo {

namespace {

constexpr std::size_t LinesLookedAt = 20;

/// A walk over the values of a text.
class ValueScanner {
  public:
    ValueScanner(std::string_view text, char separator) : text_(text), separator_(separator) {}

    bool AtEnd() const { return at_ >= text_.size(); }

    /// The next value; afterwards `EndsLine` tells whether it was the last of its line.
    std::string Next() {
        std::string value;
        if (!AtEnd() && text_[at_] == '"') TakeQuoted(value);
        const std::size_t end = std::min(text_.find_first_of(Stops(), at_), text_.size());
        value += text_.substr(at_, end - at_);
        at_ = end;
        endsLine_ = AtEnd() || text_[at_] != separator_;
        if (!AtEnd()) at_ += text_.substr(at_, 2) == "\r\n" ? 2 : 1;
        // A separator at the very end leaves one more, empty value: nothing to keep.
        if (AtEnd()) endsLine_ = true;
        return value;
    }

    bool EndsLine() const { return endsLine_; }

  private:
    std::string_view Stops() {
        stops_[0] = separator_;
        return {stops_, 3};
    }

    /// A quote that is never closed takes the rest of the text.
    void TakeQuoted(std::string& value) {
        ++at_;
        while (!AtEnd()) {
            const std::size_t quote = std::min(text_.find('"', at_), text_.size());
            value += text_.substr(at_, quote - at_);
            at_ = std::min(quote + 1, text_.size());
            if (AtEnd() || text_[at_] != '"') return;
            value += '"';
            ++at_;
        }
    }

    std::string_view text_;
    char separator_;
    char stops_[3] = {'\t', '\r', '\n'};
    std::size_t at_ = 0;
    bool endsLine_ = false;
};

/// How many of the first lines have as many values as the first one has; 0 when it has one only.
std::size_t EvenLines(std::string_view text, char separator) {
    ValueScanner scanner(text, separator);
    std::size_t first = 0;
    std::size_t even = 0;
    for (std::size_t line = 0; line < LinesLookedAt && !scanner.AtEnd(); ++line) {
        std::size_t values = 0;
        do {
            scanner.Next();
            ++values;
        } while (!scanner.EndsLine());
        if (line == 0) first = values;
        even += values == first ? 1 : 0;
    }
    return first > 1 ? even : 0;
}

/// "sep=;" as the first line.
bool NamesSeparator(std::string_view text) {
    return text.starts_with("sep=") && text.size() > 5 && (text[5] == '\r' || text[5] == '\n');
}

std::string Quoted(std::string_view text) {
    if (text.find_first_of("\",\r\n") == text.npos) return std::string(text);
    std::string result = "\"";
    for (char c : text)
        result += c == '"' ? std::string("\"\"") : std::string(1, c);
    return result + '"';
}

std::string DateCellText(double serial) {
    const std::string text = IsoText(DateOfSerial(serial));
    return serial == std::floor(serial) ? text.substr(0, text.find('T')) : text;
}

}  // namespace

char SeparatorOf(std::string_view text) {
    if (NamesSeparator(text)) return text[4];
    char best = ',';
    std::size_t most = 0;
    for (char separator : {'\t', ';', ','}) {
        const std::size_t lines = EvenLines(text, separator);
        if (lines <= most) continue;
        most = lines;
        best = separator;
    }
    return best;
}

bool ReadSeparatedText(std::string_view text, CellGrid& cells) {
    const char separator = SeparatorOf(text);
    if (NamesSeparator(text)) text.remove_prefix(text.substr(5, 2) == "\r\n" ? 7 : 6);
    ValueScanner scanner(text, separator);
    std::size_t row = 0;
    std::size_t column = 0;
    while (!scanner.AtEnd()) {
        if (row >= MaximumRows) return false;
        const std::string value = scanner.Next();
        if (!value.empty()) cells.PutReadText(row, column, value);
        ++column;
        if (!scanner.EndsLine()) continue;
        ++row;
        column = 0;
    }
    cells.Sort();
    return true;
}

std::string WriteCsv(const CellGrid& cells) {
    std::string result;
    for (std::size_t row = 0; row < cells.RowCount(); ++row) {
        const std::size_t columns = cells.ColumnCountOf(row);
        for (std::size_t column = 0; column < columns; ++column) {
            const CellValue cell = cells.Cell(row, column);
            if (column > 0) result += ',';
            switch (cell.kind) {
                case CellKind::Number:
                    result += PlainNumberText(cell.number);
                    break;
                case CellKind::Date:
                    result += DateCellText(cell.number);
                    break;
                case CellKind::Boolean:
                    result += cell.number != 0 ? "TRUE" : "FALSE";
                    break;
                default:
                    result += Quoted(cell.text);
                    break;
            }
        }
        result += "\r\n";
    }
    // Spreadsheets take a text without the mark for one of their own code page.
    return IsAscii(result) ? result : std::string(Utf8Mark) + result;
}

}  // namespace tendo
