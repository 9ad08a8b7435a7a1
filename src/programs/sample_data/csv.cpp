#include "programs/sample_data/csv.h"

#include <algorithm>
#include <cstdint>
#include <utility>

#include "platform/files/safe_file.h"
#include "platform/text/runtime_error.h"

namespace tendo {
namespace {

constexpr std::size_t MostCells = 200;
constexpr std::uint64_t LongestFile = 16U << 20;

class CsvParser {
  public:
    explicit CsvParser(std::string_view text) : text_(text) {}

    std::vector<CsvRow> Rows() {
        std::vector<CsvRow> rows;
        while (at_ < text_.size()) {
            CsvRow row = ReadRow();
            if (row.size() > 1 || !row.front().empty()) rows.push_back(std::move(row));
        }
        return rows;
    }

  private:
    CsvRow ReadRow() {
        CsvRow row;
        do {
            row.push_back(ReadCell());
            if (row.size() > MostCells) Fail("too many cells");
        } while (Take(','));
        Take('\r');
        if (at_ < text_.size() && !Take('\n')) Fail("text behind a closing quote");
        ++line_;
        return row;
    }

    std::string ReadCell() {
        if (Take('"')) return ReadQuoted();
        const std::size_t end = std::min(text_.find_first_of(",\r\n", at_), text_.size());
        std::string cell(text_.substr(at_, end - at_));
        at_ = end;
        return cell;
    }

    std::string ReadQuoted() {
        std::string cell;
        while (at_ < text_.size()) {
            const char c = text_[at_++];
            if (c == '"' && !Take('"')) return cell;
            cell += c;
        }
        Fail("a quote that is never closed");
    }

    bool Take(char c) {
        if (at_ >= text_.size() || text_[at_] != c) return false;
        ++at_;
        return true;
    }

    [[noreturn]] void Fail(const std::string& what) const {
        throw RuntimeError(5, "line " + std::to_string(line_) + ": " + what);
    }

    std::string_view text_;
    std::size_t at_ = 0;
    int line_ = 1;
};

}  // namespace

std::vector<CsvRow> ParseCsv(std::string_view text) {
    return CsvParser(text).Rows();
}

std::vector<CsvRow> ReadCsv(const std::string& path) {
    try {
        return ParseCsv(ReadWholeFile(path, LongestFile));
    } catch (const RuntimeError& error) {
        throw RuntimeError(error.Number(), path + ": " + error.Description());
    }
}

}  // namespace tendo
