#include <algorithm>

#include "platform/database/database.h"
#include "platform/files/paths.h"
#include "platform/files/safe_file.h"
#include "platform/jet/jet_writer.h"
#include "platform/text/date_text.h"
#include "platform/text/text.h"
#include "project/project_file.h"
#include "project/project_rows.h"

namespace tendo {

namespace {

/// Collects the rows of one table in the order of the file's own columns.
template <class Record>
class TableRows {
  public:
    TableRows(Database& database, const char* table)
        : database_(database),
          table_(table),
          columns_(database.Table(table).columns),
          places_(columns_, table) {}

    void Add(const Record& record) {
        jet::Row& row = AddBlank();
        places_.ForEach(record, [&](const char* name, const auto& field, int place) {
            if (place < 0) ThrowColumnMissing(name);
            row[static_cast<std::size_t>(place)] = ValueOf(field);
        });
    }

    /// Sets a column of the row added last that is no field of the record.
    void SetLast(const char* name, const jet::Value& value) {
        const int place = PlaceOf(columns_, name);
        if (place < 0) ThrowColumnMissing(name);
        rows_.back()[static_cast<std::size_t>(place)] = value;
    }

    void Write() const { database_.AppendRows(table_, rows_); }

  private:
    jet::Row& AddBlank() {
        jet::Row& row = rows_.emplace_back(columns_.size());
        for (std::size_t i = 0; i < columns_.size(); ++i) {
            if (columns_[i].type == jet::ColumnType::Boolean) row[i] = false;
        }
        return row;
    }

    Database& database_;
    const char* table_;
    const std::vector<jet::Column>& columns_;
    FieldPlaces<Record> places_;
    std::vector<jet::Row> rows_;
};

void ClearProjectTables(Database& database) {
    for (const jet::TableDefinition& table : ProjectTables())
        database.DeleteAllRows(table.name);
}

void SaveProjectTable(Database& database, const ProjectRecords& records) {
    const GPDProjectRecord& project = records.GPDProjectFormat;
    TableRows<GPDProjectRecord> rows(database, "GPDProjectFormat");
    rows.Add(project);
    rows.SetLast("ImportGPD_FName", project.ImportGPD_FName.WithoutPadding());
    rows.SetLast("gvNumOfFootnotes", ValueOf(records.gvNumOfFootnotes));
    rows.Write();
}

template <class Record>
void SaveOne(Database& database, const char* table, const Record& record) {
    TableRows<Record> rows(database, table);
    rows.Add(record);
    rows.Write();
}

template <class Record>
void SaveSystems(Database& database, const char* table,
                 const std::array<Record, SystemCount>& records) {
    TableRows<Record> rows(database, table);
    for (std::size_t system = 0; system < records.size(); ++system) {
        rows.Add(records[system]);
        rows.SetLast("SystemNumber", static_cast<std::int64_t>(system + 1));
    }
    rows.Write();
}

/// Saves the first `count` rows for which `isFilled` holds; those behind them are spares.
template <class Row, class Filled>
void SaveLines(Database& database, const char* table, const std::vector<Row>& lines, int count,
               Filled isFilled) {
    TableRows<Row> rows(database, table);
    const auto end = std::min(lines.size(), static_cast<std::size_t>(std::max(count, 0)));
    for (std::size_t i = 0; i < end; ++i) {
        if (isFilled(lines[i])) rows.Add(lines[i]);
    }
    rows.Write();
}

void SaveFootNoteTables(Database& database, const ProjectRecords& records) {
    const auto all = [](const FootNoteRow&) { return true; };
    SaveLines(database, "FootNotes", records.ProjectFootNotes, records.gvNumOfFootnotes, all);
    SaveLines(database, "AccRptFootNotes", records.ProjectAccRptFootNotes,
              records.NumOfAccRptFootnotes, all);
}

void SaveTables(Database& database, const ProjectRecords& records) {
    SaveProjectTable(database, records);
    SaveOne(database, "GPDClientFormat", records.GPDClientFormat);
    SaveOne(database, "GPDCompanyFormat", records.GPDCompanyFormat);
    SaveOne(database, "SystemTendos", records.SystemTendos);
    SaveSystems(database, "ModelInfo", records.ModelInfo);
    SaveSystems(database, "SystemInfo", records.SystemInfo);
    SaveSystems(database, "CLGModelData", records.CLGModelData);
    SaveSystems(database, "HTGModelData", records.HTGModelData);
    SaveSystems(database, "WHModelData", records.WHModelData);
    SaveLines(database, "Materials", records.ProjectMaterials, SavedMaterialRowCount,
              [](const MaterialRow& row) { return row.ItemQty > 0; });
    SaveLines(database, "Labor", records.ProjectLabor, SavedLaborRowCount,
              [](const LaborRow& row) { return row.QtyHrs > 0; });
    SaveFootNoteTables(database, records);
}

}  // namespace

void CreateProjectDatabase(std::string& fileName) {
    if (!Contains(fileName, ".tdw") && !EndsWith(fileName, ".tmp")) fileName += ".tdw";
    if (FileExists(fileName)) return;
    std::vector<jet::TableToWrite> tables;
    for (const jet::TableDefinition& table : ProjectTables())
        tables.push_back({table, {}});
    // Written in one step: a file with some of its tables only must never be found by the next
    // start.
    ReplaceFile(fileName, jet::WriteFile(tables, SerialOfDate(Now())));
}

void SaveProjectData(const std::string& fileName, ProjectRecords& records) {
    if (!FileExists(fileName)) return;
    Database database = Database::OpenDatabase(fileName);
    ClearProjectTables(database);
    FixedText<50>& importFile = records.GPDProjectFormat.ImportGPD_FName;
    importFile = importFile.Trimmed();
    SaveTables(database, records);
    database.Close();
}

void SaveProjectData(const std::string& fileName) {
    SaveProjectData(fileName, Project());
}

}  // namespace tendo
