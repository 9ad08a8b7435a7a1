#include "platform/office/xlsx_writer.h"

#include <stdlib.h>
#include <unistd.h>
#include <xlsxwriter.h>

#include <filesystem>

#include "platform/files/safe_file.h"
#include "platform/text/runtime_error.h"

namespace tendo {

namespace {

/// A file of its own in the folder for temporary files, gone with this object.
class TemporaryFile {
  public:
    TemporaryFile() {
        std::error_code error;
        const auto folder = std::filesystem::temp_directory_path(error);
        path_ = (error ? std::filesystem::path(".") : folder) / "tendo-XXXXXX";
        const int file = ::mkstemp(path_.data());
        if (file < 0)
            throw RuntimeError(error_number::PermissionDenied,
                               "The folder for temporary files cannot be written to.");
        ::close(file);
    }
    ~TemporaryFile() { ::unlink(path_.c_str()); }
    TemporaryFile(const TemporaryFile&) = delete;
    TemporaryFile& operator=(const TemporaryFile&) = delete;

    const std::string& Path() const { return path_; }

  private:
    std::string path_;
};

void Check(lxw_error error) {
    if (error == LXW_NO_ERROR) return;
    const bool tooLong = error == LXW_ERROR_MAX_STRING_LENGTH_EXCEEDED;
    throw RuntimeError(tooLong ? error_number::OutOfMemory : error_number::PathFileAccess,
                       std::string("The workbook cannot be written: ") + lxw_strerror(error));
}

/// Fills one sheet; cells go row by row, left to right.
class SheetWriter {
  public:
    SheetWriter(lxw_workbook* book, const CellGrid& cells, const std::string& sheetName)
        : cells_(cells),
          sheet_(workbook_add_worksheet(book, sheetName.c_str())),
          heading_(workbook_add_format(book)),
          money_(workbook_add_format(book)),
          date_(workbook_add_format(book)) {
        format_set_bold(heading_);
        format_set_num_format(money_, "$#,##0.00");
        format_set_num_format(date_, "m/d/yyyy");
    }

    void Write(std::span<const SheetColumn> columns) {
        for (std::size_t column = 0; column < columns.size(); ++column) {
            const auto at = static_cast<lxw_col_t>(column);
            Check(worksheet_set_column(sheet_, at, at, columns[column].width,
                                       columns[column].money ? money_ : nullptr));
        }
        worksheet_freeze_panes(sheet_, 1, 0);
        for (const std::size_t row : cells_.UsedRows())
            for (std::size_t column = 0; column < cells_.ColumnCountOf(row); ++column)
                Check(WriteCell(row, column));
    }

  private:
    lxw_error WriteCell(std::size_t row, std::size_t column) {
        const CellValue cell = cells_.Cell(row, column);
        const auto line = static_cast<lxw_row_t>(row);
        const auto at = static_cast<lxw_col_t>(column);
        switch (cell.kind) {
            case CellKind::Empty:
                return LXW_NO_ERROR;
            case CellKind::Number:
                return worksheet_write_number(sheet_, line, at, cell.number, nullptr);
            case CellKind::Date:
                return worksheet_write_number(sheet_, line, at, cell.number, date_);
            case CellKind::Boolean:
                return worksheet_write_boolean(sheet_, line, at, cell.number != 0, nullptr);
            default:
                return worksheet_write_string(sheet_, line, at, std::string(cell.text).c_str(),
                                              row == 0 ? heading_ : nullptr);
        }
    }

    const CellGrid& cells_;
    lxw_worksheet* sheet_;
    lxw_format* heading_;
    lxw_format* money_;
    lxw_format* date_;
};

}  // namespace

std::string WriteXlsx(const CellGrid& cells, const std::string& sheetName,
                      std::span<const SheetColumn> columns) {
    const TemporaryFile file;
    lxw_workbook* book = workbook_new(file.Path().c_str());
    if (book == nullptr) ThrowError(error_number::OutOfMemory);
    try {
        SheetWriter(book, cells, sheetName).Write(columns);
    } catch (...) {
        workbook_close(book);
        throw;
    }
    Check(workbook_close(book));
    return ReadWholeFile(file.Path());
}

}  // namespace tendo
