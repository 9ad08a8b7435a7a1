#include "platform/office/read_workbook.h"

#include <algorithm>
#include <array>

#include "platform/files/paths.h"
#include "platform/office/compound_file.h"
#include "platform/office/office_error.h"
#include "platform/office/separated_text.h"
#include "platform/office/web_table.h"
#include "platform/office/xls_reader.h"
#include "platform/office/xlsx_reader.h"
#include "platform/office/zip_archive.h"
#include "platform/text/code_page.h"
#include "platform/text/text.h"

namespace tendo {

namespace {

/// What stands in the remark, and the endings that promise the content.
struct KindNames {
    WorkbookKind kind;
    std::string_view remark;
    std::array<std::string_view, 4> endings;
};

constexpr std::array<KindNames, 4> Kinds{{
    {WorkbookKind::Xls,
     "an Excel 97-2003 workbook; its first sheet was read.",
     {".xls", ".xlt", "", ""}},
    {WorkbookKind::Xlsx,
     "an Excel workbook (.xlsx); its first sheet was read.",
     {".xlsx", ".xlsm", ".xltx", ".xltm"}},
    {WorkbookKind::WebPage, "a web page; its table was read.", {".htm", ".html", "", ""}},
    {WorkbookKind::SeparatedText,
     "a text with separators; its lines were read.",
     {".csv", ".txt", ".tab", ".tsv"}},
}};

std::string RemarkOf(WorkbookKind kind, std::string_view name) {
    const std::string ending = LowerCase(ExtensionOf(name));
    for (const KindNames& names : Kinds) {
        if (names.kind != kind || ending.empty()) continue;
        if (std::find(names.endings.begin(), names.endings.end(), ending) != names.endings.end())
            return "";
        return "This " + ending + " file is really " + std::string(names.remark);
    }
    return "";
}

/// The workbooks of 1995 and before came without streams around their records.
bool IsOldStream(std::string_view bytes) {
    return bytes.size() > 4 && bytes[0] == 9 && (bytes[1] == 0 || bytes[1] == 2 || bytes[1] == 4) &&
           bytes[3] == 0 && static_cast<unsigned char>(bytes[2]) <= 16;
}

Workbook ReadTextBook(std::string_view bytes, std::string_view name) {
    const std::string text = FromTextFileBytes(bytes);
    const std::size_t zero = text.find('\0');
    if (zero != text.npos) ThrowNotReadable(name, "it is neither a workbook nor a text");
    Workbook book;
    if (IsWebPage(text)) {
        book.kind = WorkbookKind::WebPage;
        if (!ReadWebTables(text, book.cells))
            ThrowNotReadable(name, "it is a web page without a table");
    } else if (StartsWith(text, "<?xml")) {
        ThrowNotReadable(name, "it is an XML text; save it as .xlsx and try again");
    } else if (!ReadSeparatedText(text, book.cells)) {
        ThrowNotReadable(name, "it has more lines than a sheet can hold");
    }
    return book;
}

Workbook ReadByContent(std::string_view bytes, std::string_view name) {
    if (CompoundFile::IsOne(bytes)) return ReadXls(bytes, name);
    if (ZipArchive::IsOne(bytes)) return ReadXlsx(bytes, name);
    if (IsOldStream(bytes))
        ThrowNotReadable(name,
                         "it was saved by a program of 1995 or before; save it as an Excel "
                         "97-2003 workbook and try again");
    return ReadTextBook(bytes, name);
}

}  // namespace

Workbook ReadWorkbook(std::string_view bytes, std::string_view name) {
    Workbook book = ReadByContent(bytes, name);
    book.remark = RemarkOf(book.kind, name);
    return book;
}

}  // namespace tendo
