#include <algorithm>
#include <limits>

#include "platform/database/database.h"
#include "platform/text/runtime_error.h"
#include "project/program_state.h"
#include "project/project_file.h"
#include "project/project_rows.h"

namespace tendo {

namespace {

/// The size that the engine gives a text column made without one.
constexpr int UnsizedTextColumn = 255;

/// Runs one step of reading the general tables. Files of older layouts lack columns or rows; what
/// can't be read leaves its field as it was.
template <class Step>
void PassOver(Step step) {
    try {
        step();
    } catch (const RuntimeError&) {
        return;
    }
}

template <class Field>
void ReadColumn(const Recordset& rows, const char* name, Field& field) {
    Store(rows.Get(name), field);
}

template <class Field>
void ReadPlace(const Recordset& rows, const char* name, int place, Field& field) {
    if (place < 0) ThrowColumnMissing(name);
    Store(rows.Get(place), field);
}

template <class Record>
void ReadRow(const Recordset& rows, const FieldPlaces<Record>& places, Record& record) {
    places.ForEach(record, [&](const char* name, auto& field, int place) {
        ReadPlace(rows, name, place, field);
    });
}

/// Reads a general table; `without` names the one column that is left out.
template <class Record>
void ReadGeneralTable(Database& database, const char* table, Record& record,
                      std::string_view without) {
    PassOver([&] {
        const Recordset rows = database.OpenRecordset(table);
        const FieldPlaces<Record> places(rows.Fields(), table);
        places.ForEach(record, [&](const char* name, auto& field, int place) {
            if (name != without) PassOver([&] { ReadPlace(rows, name, place, field); });
        });
    });
}

/// The company's id came with a later layout. A file without the column gets it, so that it can be
/// saved.
void ReadCompanyId(Database& database, GPDCompanyRecord& company, bool upgrade) {
    constexpr const char* Column = "CompanyIDNumber";
    PassOver([&] {
        if (Recordset rows = database.OpenRecordset("GPDCompanyFormat"); rows.HasField(Column)) {
            ReadColumn(rows, Column, company.CompanyIDNumber);
            return;
        }
        jet::Column column;
        column.name = Column;
        column.size = UnsizedTextColumn;
        if (upgrade) database.AppendField("GPDCompanyFormat", column);
    });
}

void ReadGeneralTables(Database& database, ProjectRecords& records, bool upgrade) {
    // The version that wrote the file is never read: layouts are told apart by what is missing.
    ReadGeneralTable(database, "GPDProjectFormat", records.GPDProjectFormat, "ProgramVersion");
    PassOver([&] {
        const Recordset rows = database.OpenRecordset("GPDProjectFormat");
        ReadColumn(rows, "gvNumOfFootnotes", records.gvNumOfFootnotes);
    });
    ReadGeneralTable(database, "GPDClientFormat", records.GPDClientFormat, "");
    ReadGeneralTable(database, "GPDCompanyFormat", records.GPDCompanyFormat, "CompanyIDNumber");
    ReadCompanyId(database, records.GPDCompanyFormat, upgrade);
}

/// Calls `read` with the index of the system for each row of one; other rows are passed by. Of
/// several rows with one number the last wins.
template <class Read>
void ForEachSystemRow(Recordset& rows, Read read) {
    for (; !rows.EOF_(); rows.MoveNext()) {
        std::int16_t number = 0;
        ReadColumn(rows, "SystemNumber", number);
        if (number >= 1 && number <= SystemCount) read(static_cast<std::size_t>(number - 1));
    }
}

template <class Record, class Then>
void ReadSystems(Database& database, const char* table, std::array<Record, SystemCount>& records,
                 Then then) {
    Recordset rows = database.OpenRecordset(table);
    const FieldPlaces<Record> places(rows.Fields(), table);
    ForEachSystemRow(rows, [&](std::size_t system) {
        ReadRow(rows, places, records[system]);
        then(records[system]);
    });
}

template <class Record>
void ReadSystems(Database& database, const char* table, std::array<Record, SystemCount>& records) {
    ReadSystems(database, table, records, [](const Record&) {});
}

void SetListPrices(ModelInfoRecord& info) {
    info.CLGListPrice = ListPriceFromSalePrice(info.CLGSalePrice, info.CLGModelListDiscount);
    info.HTGListPrice = ListPriceFromSalePrice(info.HTGSalePrice, info.HTGModelListDiscount);
    info.WHListPrice = ListPriceFromSalePrice(info.WHSalePrice, info.WHModelListDiscount);
}

/// The choice of system and all figures of the water heater are written but, on purpose, not read
/// back.
void ReadSystemInfo(Database& database, std::array<SystemInfoRecord, SystemCount>& records) {
    Recordset rows = database.OpenRecordset("SystemInfo");
    ForEachSystemRow(rows, [&](std::size_t system) {
        SystemInfoRecord& info = records[system];
        ReadColumn(rows, "CLGOpCostforSystem", info.CLGOpCostforSystem);
        ReadColumn(rows, "CLGProposedOpCost", info.CLGProposedOpCost);
        ReadColumn(rows, "CLGOpCostSavings", info.CLGOpCostSavings);
        ReadColumn(rows, "HTGOpCostforSystem", info.HTGOpCostforSystem);
        ReadColumn(rows, "HTGProposedOpCost", info.HTGProposedOpCost);
        ReadColumn(rows, "HTGOpCostSavings", info.HTGOpCostSavings);
    });
}

/// Fills the lines from the first on without gaps; rows beyond the last line are dropped.
template <class Row>
void ReadLines(Database& database, const char* table, std::vector<Row>& lines) {
    Recordset rows = database.OpenRecordset(table);
    const FieldPlaces<Row> places(rows.Fields(), table);
    for (std::size_t i = 0; i < lines.size() && !rows.EOF_(); ++i, rows.MoveNext()) {
        ReadRow(rows, places, lines[i]);
    }
}

/// A count as the records keep it; RuntimeError 6 beyond 16 bits.
std::int16_t Count(int rows) {
    if (rows > std::numeric_limits<std::int16_t>::max()) ThrowError(error_number::Overflow);
    return static_cast<std::int16_t>(rows);
}

void MakeRows(std::vector<FootNoteRow>& footNotes, int count, int rowsInFile) {
    footNotes.clear();
    footNotes.resize(static_cast<std::size_t>(std::max(count + 1, rowsInFile)));
}

void ReadFootNotes(Database& database, ProjectRecords& records) {
    std::int16_t& count = records.gvNumOfFootnotes;
    count = std::max(count, std::int16_t{0});
    const int inFile = database.OpenRecordset("FootNotes").RecordCount();
    MakeRows(records.ProjectFootNotes, count, Count(inFile));
    ReadLines(database, "FootNotes", records.ProjectFootNotes);

    records.NumOfAccRptFootnotes = Count(database.OpenRecordset("AccRptFootNotes").RecordCount());
    MakeRows(records.ProjectAccRptFootNotes, records.NumOfAccRptFootnotes, 0);
    ReadLines(database, "AccRptFootNotes", records.ProjectAccRptFootNotes);
}

void ReadSystemTendos(Database& database, SystemTendosRecord& record) {
    const Recordset rows = database.OpenRecordset("SystemTendos");
    ReadRow(rows, FieldPlaces<SystemTendosRecord>(rows.Fields(), "SystemTendos"), record);
}

void ReadTables(const std::string& fileName, ProjectRecords& records, bool upgrade) {
    Database database = Database::OpenDatabase(fileName);
    ReadGeneralTables(database, records, upgrade);
    ReadSystemTendos(database, records.SystemTendos);
    ReadSystems(database, "ModelInfo", records.ModelInfo, SetListPrices);
    ReadSystemInfo(database, records.SystemInfo);
    ReadSystems(database, "CLGModelData", records.CLGModelData);
    ReadSystems(database, "HTGModelData", records.HTGModelData);
    ReadSystems(database, "WHModelData", records.WHModelData);
    ReadLines(database, "Materials", records.ProjectMaterials);
    ReadLines(database, "Labor", records.ProjectLabor);
    ReadFootNotes(database, records);
    // Only the added column is written here. When that fails the project is read all the same, and
    // the next save tells.
    PassOver([&] { database.Close(); });
}

}  // namespace

void LoadProjectData(const std::string& fileName, ProjectRecords& records) {
    // A file that is only looked into stays as it is; the open project's work file is brought up to
    // date.
    const bool isOpenProject = &records == &Project();
    records.GPDProjectFormat.ProgramVersion = State().ProgramVersionText;
    try {
        ReadTables(fileName, records, isOpenProject);
    } catch (const RuntimeError&) {
        if (!isOpenProject || !Hooks().ConvertOldProject) throw;
        Hooks().ConvertOldProject(fileName);
        return;
    }
    if (isOpenProject && !State().MaterialDatabaseLoaded && Hooks().LoadMaterialCatalogue) {
        Hooks().LoadMaterialCatalogue();
    }
}

void LoadProjectData(const std::string& fileName) {
    LoadProjectData(fileName, Project());
}

}  // namespace tendo
