#include "platform/office/xlsx_reader.h"

#include <charconv>
#include <cmath>
#include <vector>

#include "platform/office/cell_format.h"
#include "platform/office/office_error.h"
#include "platform/office/xlsx_parts.h"
#include "platform/text/date_text.h"

namespace tendo {

namespace {

/// The texts of a shared or inline text: its own or those of its runs, without the phonetic ones.
std::string TextOf(const pugi::xml_node& node) {
    std::string text;
    for (const pugi::xml_node child : node.children()) {
        if (LocalName(child) == "t") text += child.text().get();
        if (LocalName(child) == "r") text += ChildOf(child, "t").text().get();
    }
    return text;
}

template <typename Number>
bool ReadAll(std::string_view text, Number& value) {
    const auto read = std::from_chars(text.data(), text.data() + text.size(), value);
    return read.ec == std::errc{} && read.ptr == text.data() + text.size();
}

/// "AB12" to row 11, column 27; false when it is no such place.
bool ReadPlace(std::string_view text, std::size_t& row, std::size_t& column) {
    std::size_t letters = 0;
    std::size_t number = 0;
    while (letters < text.size() && letters < 4 && text[letters] >= 'A' && text[letters] <= 'Z')
        number = number * 26 + static_cast<std::size_t>(text[letters++] - 'A' + 1);
    std::size_t line = 0;
    if (letters == 0 || !ReadAll(text.substr(letters), line) || line == 0) return false;
    row = line - 1;
    column = number - 1;
    return true;
}

/// Reads the parts of one workbook.
class XlsxReader {
  public:
    XlsxReader(std::string_view bytes, std::string_view name)
        : archive_(bytes, name), name_(name) {}

    Workbook Read() {
        const std::string book = BookPart();
        relations_ = RelationsOf(archive_, name_, book);
        const std::string sheet = FindSheet(book);
        ReadStyles();
        ReadSharedTexts();
        const XmlPart xml(Required(sheet), name_, sheet);
        ReadRows(ChildOf(xml.Root(), "sheetData"), sheet);
        workbook_.kind = WorkbookKind::Xlsx;
        workbook_.cells.Sort();
        return std::move(workbook_);
    }

  private:
    std::string Required(const std::string& part) {
        auto bytes = archive_.Entry(part);
        if (!bytes) ThrowDamage(name_, "part " + part, "it is missing");
        return std::move(*bytes);
    }

    std::string BookPart() {
        const PartRelations root = RelationsOf(archive_, name_, "");
        const auto book = root.byType.find("officeDocument");
        if (book == root.byType.end()) ThrowNotReadable(name_, "it is no workbook");
        if (book->second.ends_with(".bin"))
            ThrowNotReadable(name_, "it is a binary workbook; save it as .xlsx and try again");
        return book->second;
    }

    /// The part of the first sheet that isn't hidden, else of the first.
    std::string FindSheet(const std::string& book) {
        const XmlPart xml(Required(book), name_, book);
        if (LocalName(xml.Root()) != "workbook") ThrowNotReadable(name_, "it is no workbook");
        const std::string_view mode = AttributeOf(ChildOf(xml.Root(), "workbookPr"), "date1904");
        from1904_ = mode == "1" || mode == "true";
        pugi::xml_node chosen;
        for (const pugi::xml_node sheet : ChildOf(xml.Root(), "sheets").children()) {
            const std::string_view state = AttributeOf(sheet, "state");
            if (!chosen) chosen = sheet;
            if (!state.empty() && state != "visible") continue;
            chosen = sheet;
            break;
        }
        if (!chosen) ThrowNotReadable(name_, "it has no sheet with cells");
        workbook_.sheetName = AttributeOf(chosen, "name");
        // The plain "id" is not "sheetId": the names are compared whole.
        const auto part = relations_.byId.find(std::string(AttributeOf(chosen, "id")));
        if (part == relations_.byId.end())
            ThrowDamage(name_, "part " + book, "its first sheet leads nowhere");
        return part->second;
    }

    void ReadStyles() {
        const auto part = relations_.byType.find("styles");
        if (part == relations_.byType.end()) return;
        const auto bytes = archive_.Entry(part->second);
        if (!bytes) return;
        const XmlPart xml(*bytes, name_, part->second);
        std::unordered_map<unsigned, bool> own;
        for (const pugi::xml_node format : ChildOf(xml.Root(), "numFmts").children()) {
            unsigned id = 0;
            if (ReadAll(AttributeOf(format, "numFmtId"), id))
                own[id] = IsDateFormat(AttributeOf(format, "formatCode"));
        }
        for (const pugi::xml_node style : ChildOf(xml.Root(), "cellXfs").children()) {
            unsigned id = 0;
            ReadAll(AttributeOf(style, "numFmtId"), id);
            const auto found = own.find(id);
            dateStyles_.push_back(found == own.end() ? IsBuiltInDateFormat(id) : found->second);
        }
    }

    void ReadSharedTexts() {
        const auto part = relations_.byType.find("sharedStrings");
        if (part == relations_.byType.end()) return;
        const XmlPart xml(Required(part->second), name_, part->second);
        for (const pugi::xml_node text : xml.Root().children())
            if (LocalName(text) == "si")
                sharedTexts_.push_back(workbook_.cells.AddText(TextOf(text)));
    }

    void ReadRows(const pugi::xml_node& rows, const std::string& part) {
        std::size_t row = 0;
        for (const pugi::xml_node node : rows.children()) {
            if (LocalName(node) != "row") continue;
            std::size_t stated = 0;
            if (ReadAll(AttributeOf(node, "r"), stated) && stated > 0) row = stated - 1;
            ReadCells(node, row, part);
            ++row;
        }
    }

    void ReadCells(const pugi::xml_node& node, std::size_t row, const std::string& part) {
        std::size_t column = 0;
        for (const pugi::xml_node cell : node.children()) {
            if (LocalName(cell) != "c") continue;
            const std::string_view place = AttributeOf(cell, "r");
            if (!place.empty() && !ReadPlace(place, row, column))
                ThrowDamage(name_, "part " + part, "a cell has no place");
            PutCell(cell, row, column, part);
            ++column;
        }
    }

    void PutCell(const pugi::xml_node& cell, std::size_t row, std::size_t column,
                 const std::string& part) {
        CellGrid& cells = workbook_.cells;
        const std::string_view type = AttributeOf(cell, "t");
        const std::string_view value = ChildOf(cell, "v").text().get();
        if (type == "inlineStr") {
            cells.PutText(row, column, TextOf(ChildOf(cell, "is")));
        } else if (value.empty()) {
            return;
        } else if (type == "s") {
            PutShared(value, row, column, part);
        } else if (type == "str") {
            cells.PutText(row, column, value);
        } else if (type == "b") {
            cells.Put(row, column, CellKind::Boolean, value == "1" || value == "true" ? 1 : 0);
        } else if (type == "e") {
            cells.Put(row, column, CellKind::Error, 0, cells.AddText(value));
        } else if (type == "d") {
            PutIsoDate(value, row, column);
        } else {
            PutNumber(cell, value, row, column, part);
        }
    }

    void PutShared(std::string_view value, std::size_t row, std::size_t column,
                   const std::string& part) {
        std::size_t index = 0;
        if (!ReadAll(value, index) || index >= sharedTexts_.size())
            ThrowDamage(name_, "part " + part, "the text of a cell is missing");
        const TextPlace text = sharedTexts_[index];
        workbook_.cells.Put(row, column, text.length == 0 ? CellKind::Empty : CellKind::Text, 0,
                            text);
    }

    void PutIsoDate(std::string_view value, std::size_t row, std::size_t column) {
        const auto date = ReadIsoDate(value);
        if (date)
            workbook_.cells.Put(row, column, CellKind::Date, SerialOfDate(*date));
        else
            workbook_.cells.PutText(row, column, value);
    }

    void PutNumber(const pugi::xml_node& cell, std::string_view value, std::size_t row,
                   std::size_t column, const std::string& part) {
        double number = 0;
        if (!ReadAll(value, number) || !std::isfinite(number))
            ThrowDamage(name_, "part " + part, "the number of a cell is none");
        std::size_t style = 0;
        ReadAll(AttributeOf(cell, "s"), style);
        const bool date = style < dateStyles_.size() && dateStyles_[style];
        workbook_.cells.Put(row, column, date ? CellKind::Date : CellKind::Number,
                            date ? DateSerial(number, from1904_) : number);
    }

    ZipArchive archive_;
    std::string_view name_;
    Workbook workbook_;
    PartRelations relations_;
    bool from1904_ = false;
    std::vector<bool> dateStyles_;
    std::vector<TextPlace> sharedTexts_;
};

}  // namespace

Workbook ReadXlsx(std::string_view bytes, std::string_view name) {
    return XlsxReader(bytes, name).Read();
}

}  // namespace tendo
