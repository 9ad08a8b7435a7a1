#include <sqlite3.h>

#include <cstdio>
#include <stdexcept>

#include "benchmarks.h"
#include "bind_value.h"
#include "measure.h"
#include "platform/database/database.h"
#include "platform/files/paths.h"
#include "platform/files/safe_file.h"
#include "project/project_file.h"

namespace tendo::bench {
namespace {

/// A full project: 1000 materials, 15 labor lines, 20 footnotes, five systems.
ProjectRecords FullProject() {
    ProjectRecords records;
    ResetProjectData(records);
    for (int i = 0; i < SavedMaterialRowCount; ++i) {
        MaterialRow& row = records.ProjectMaterials[static_cast<std::size_t>(i)];
        row.ItemQty = static_cast<std::int16_t>(1 + i % 12);
        row.Description = "Material " + std::to_string(i);
        row.PartNumber = "PN-" + std::to_string(i * 37);
        row.UnitCst = 1.25F * static_cast<float>(i % 90);
        row.SalePrice = row.UnitCst * 1.4F;
    }
    for (int i = 0; i < SavedLaborRowCount; ++i) {
        LaborRow& row = records.ProjectLabor[static_cast<std::size_t>(i)];
        row.QtyHrs = static_cast<float>(i + 1);
        row.LaborDescription = "Labor line " + std::to_string(i);
    }
    for (int i = 0; i < 20; ++i)
        records.ProjectFootNotes.push_back(
            {"Footnote " + std::to_string(i), std::string(2000, 'x')});
    records.gvNumOfFootnotes = 20;
    for (auto& model : records.CLGModelData)
        model.ModelNum = "FA-3614";
    return records;
}

void Must(int result, int wanted = SQLITE_OK) {
    if (result != wanted) throw std::runtime_error("sqlite failed in a measurement");
}

/// The rows of one table as the project file holds them.
struct PlainTable {
    std::string name;
    std::size_t width = 0;
    std::vector<jet::Row> rows;
};

std::vector<PlainTable> RowsOf(const std::string& file) {
    std::vector<PlainTable> tables;
    Database database = Database::OpenDatabase(file);
    for (const std::string& name : database.TableNames()) {
        PlainTable table{name, database.Table(name).columns.size(), {}};
        Recordset rows = database.OpenRecordset(name);
        for (; !rows.EOF_(); rows.MoveNext()) {
            jet::Row row;
            for (std::size_t i = 0; i < table.width; ++i)
                row.push_back(rows.Get(static_cast<int>(i)));
            table.rows.push_back(std::move(row));
        }
        tables.push_back(std::move(table));
    }
    return tables;
}

void WriteTable(sqlite3* database, const PlainTable& table) {
    std::string columns, marks;
    for (std::size_t i = 0; i < table.width; ++i) {
        columns += (i ? ",c" : "c") + std::to_string(i);
        marks += i ? ",?" : "?";
    }
    Must(sqlite3_exec(database, ("CREATE TABLE \"" + table.name + "\" (" + columns + ")").c_str(),
                      nullptr, nullptr, nullptr));
    sqlite3_stmt* insert = nullptr;
    Must(sqlite3_prepare_v2(database,
                            ("INSERT INTO \"" + table.name + "\" VALUES (" + marks + ")").c_str(),
                            -1, &insert, nullptr));
    for (const jet::Row& row : table.rows) {
        for (std::size_t i = 0; i < row.size(); ++i)
            Bind(insert, static_cast<int>(i) + 1, row[i], SQLITE_STATIC);
        Must(sqlite3_step(insert), SQLITE_DONE);
        Must(sqlite3_reset(insert));
    }
    sqlite3_finalize(insert);
}

/// The peer: the same rows into a fresh SQLite file, in one transaction, synced as SQLite does by
/// default.
void SaveBySqlite(const std::string& file, const std::vector<PlainTable>& tables) {
    std::remove(file.c_str());
    sqlite3* database = nullptr;
    Must(sqlite3_open(file.c_str(), &database));
    Must(sqlite3_exec(database, "BEGIN", nullptr, nullptr, nullptr));
    for (const PlainTable& table : tables)
        WriteTable(database, table);
    Must(sqlite3_exec(database, "COMMIT", nullptr, nullptr, nullptr));
    sqlite3_close(database);
}

}  // namespace

bool ProjectSave(const std::string& folder) {
    std::string file = WithSeparator(folder) + "full.tdw";
    DeleteFileIfThere(file);
    CreateProjectDatabase(file);
    ProjectRecords records = FullProject();
    SaveProjectData(file, records);
    const auto tables = RowsOf(file);
    const std::string peer = WithSeparator(folder) + "full.sqlite";
    const auto medians =
        Medians({[&] { SaveProjectData(file, records); }, [&] { SaveBySqlite(peer, tables); }}, 25);
    return Report("saving a full project (SQLite, written and synced)", medians[0] * 1000,
                  medians[1] * 1000, "ms", 3.0, true);
}

}  // namespace tendo::bench
