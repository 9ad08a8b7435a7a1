#include "materials/takeoff_export.h"

#include "platform/files/safe_file.h"
#include "platform/office/separated_text.h"
#include "platform/office/xlsx_writer.h"
#include "platform/text/number_text.h"
#include "platform/text/text.h"

namespace tendo {
namespace {

struct ExportColumn {
    const char* head;
    std::string (*text)(const MaterialRow& line);  // null for a number
    double (*number)(const MaterialRow& line);
    SheetColumn look;
};

/// The decimal that a price stands for: 9.85 and not 9.850000381.
double Decimal(float value) {
    double decimal = 0;
    ReadNumber(PlainNumberText(value), decimal);
    return decimal;
}

std::string YesNo(std::int16_t mark) {
    return mark != 0 ? "Yes" : "No";
}

constexpr SheetColumn money{.width = 14, .money = true};
const ExportColumn columns[] = {
    {"Category", [](const MaterialRow& l) { return l.Category.Trimmed(); }, nullptr, {20}},
    {"Description", [](const MaterialRow& l) { return l.Description.Trimmed(); }, nullptr, {26}},
    {"Part Number", [](const MaterialRow& l) { return l.PartNumber.Trimmed(); }, nullptr, {20}},
    {"Quantity", nullptr, [](const MaterialRow& l) { return double{1} * l.ItemQty; }, {10}},
    {"Accessory", [](const MaterialRow& l) { return YesNo(l.Accessory); }, nullptr, {10}},
    {"Taxable", [](const MaterialRow& l) { return YesNo(l.Tax); }, nullptr, {10}},
    {"Unit Cost", nullptr, [](const MaterialRow& l) { return Decimal(l.UnitCst); }, money},
    {"Cost", nullptr, [](const MaterialRow& l) { return Decimal(l.UnitCst) * l.ItemQty; }, money},
    {"Gross Margin", nullptr, [](const MaterialRow& l) { return Decimal(l.GrossMargin); }, {14}},
    {"Price Markup", nullptr, [](const MaterialRow& l) { return Decimal(l.PriceMarkup); }, {14}},
    {"List Discount", nullptr, [](const MaterialRow& l) { return Decimal(l.ListDiscount); }, {14}},
    {"Sale Price", nullptr, [](const MaterialRow& l) { return Decimal(l.SalePrice); }, money},
};

}  // namespace

CellGrid TakeoffSheet(std::span<const MaterialRow> lines) {
    CellGrid sheet;
    for (std::size_t c = 0; c < std::size(columns); ++c) {
        sheet.PutText(0, c, columns[c].head);
        for (std::size_t i = 0; i < lines.size(); ++i) {
            if (columns[c].text)
                sheet.PutText(i + 1, c, columns[c].text(lines[i]));
            else
                sheet.Put(i + 1, c, CellKind::Number, columns[c].number(lines[i]));
        }
    }
    sheet.Sort();
    return sheet;
}

void ExportTakeoff(std::span<const MaterialRow> lines, const std::string& fileName) {
    const CellGrid sheet = TakeoffSheet(lines);
    if (!EndsWith(LowerCase(fileName), ".xlsx")) return ReplaceFile(fileName, WriteCsv(sheet));
    std::vector<SheetColumn> looks;
    for (const ExportColumn& column : columns)
        looks.push_back(column.look);
    ReplaceFile(fileName, WriteXlsx(sheet, "Takeoff", looks));
}

}  // namespace tendo
