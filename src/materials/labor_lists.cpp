#include "materials/labor_lists.h"

#include <span>

#include "materials/list_table.h"
#include "platform/text/runtime_error.h"
#include "platform/text/text.h"
#include "project/program_state.h"

namespace tendo {
namespace {

constexpr const char* tableName = "Labor Lists";

struct ListColumn {
    const char* name;
    float LaborRow::*value;
};
constexpr ListColumn listColumns[] = {{"Qtyhrs", &LaborRow::QtyHrs},
                                      {"LaborPerHour", &LaborRow::LaborPerHour},
                                      {"GrossMargin", &LaborRow::GrossMargin},
                                      {"PriceMarkup", &LaborRow::PriceMarkup},
                                      {"LaborPrice", &LaborRow::LaborPrice}};

ListTable LaborLists() {
    return {State().ProgramDirectory + "tendo.mdb", tableName};
}

/// `count` follows the lines read.
bool ReadList(std::string_view name, std::vector<LaborRow>& rows, std::size_t& count) {
    return WithListTable(LaborLists(), [&](Database& database) {
        ForEachListRow(database, tableName, name, [&](const Recordset& line) {
            if (count == rows.size()) ThrowError(error_number::SubscriptOutOfRange);
            LaborRow& row = rows[count++];
            row.LaborDescription = line.Text("Description");
            for (const ListColumn& column : listColumns)
                row.*column.value = line.Single(column.name);
        });
    });
}

void AddLine(Recordset& lines, std::string_view name, const LaborRow& row) {
    lines.AddNew();
    lines.Set("List Name", std::string(Trimmed(name)));
    lines.Set("Description", row.LaborDescription.Trimmed());
    for (const ListColumn& column : listColumns)
        lines.Set(column.name, double{row.*column.value});
    lines.Update();
}

std::span<LaborRow> EditedLines() {
    return std::span(LaborListEdit()).first<SavedLaborRowCount>();
}

}  // namespace

std::vector<std::string> LaborListNames() {
    return ListNames(LaborLists());
}

std::vector<LaborRow>& LaborListEdit() {
    static std::vector<LaborRow> rows(LaborRowCount);
    return rows;
}

bool ApplyLaborList(std::string_view name) {
    std::vector<LaborRow>& rows = Project().ProjectLabor;
    std::size_t count = 0;
    if (!ReadList(name, rows, count)) return false;
    for (std::size_t i = count; i < SavedLaborRowCount; ++i)
        rows[i] = LaborRow();
    return true;
}

bool LoadLaborListForEdit(std::string_view name) {
    ClearLaborListEdit();
    std::size_t count = 0;
    return ReadList(name, LaborListEdit(), count);
}

void ClearLaborListEdit() {
    for (LaborRow& row : EditedLines()) {
        const float cost = row.LaborCost;
        row = LaborRow();
        row.LaborPerHour = Project().GPDProjectFormat.LaborRate;
        row.LaborCost = cost;
    }
}

void TransferLaborRecords() {
    LaborListEdit() = Project().ProjectLabor;
}

bool SaveLaborList(std::string_view name) {
    return WithListTable(LaborLists(), [&](Database& database) {
        DeleteListRows(database, tableName, name);
        Recordset lines = database.OpenRecordset(tableName);
        for (const LaborRow& row : EditedLines())
            if (row.QtyHrs != 0) AddLine(lines, name, row);
    });
}

bool DeleteLaborList(std::string_view name) {
    return DeleteList(LaborLists(), name);
}

}  // namespace tendo
