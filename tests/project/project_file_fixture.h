#pragma once

#include <functional>
#include <string>
#include <vector>

#include "platform/database/database.h"
#include "platform/jet/jet_writer.h"
#include "platform/text/text.h"
#include "project/project_file.h"
#include "project_fixture.h"

namespace tendo {

/// Project files made for one test each, besides those that the program makes.
class ProjectFileTest : public ProjectTest {
  protected:
    using Tables = std::vector<jet::TableDefinition>;

    void SetUp() override {
        ProjectTest::SetUp();
        file = PathOf("job.tdw");
    }

    /// Leaves `file` with the records of `records` in it.
    void SaveAs(ProjectRecords& records) {
        CreateProjectDatabase(file);
        SaveProjectData(file, records);
    }

    static ProjectRecords Loaded(const std::string& path) {
        ProjectRecords records;
        LoadProjectData(path, records);
        return records;
    }

    /// Changes rows of `file` behind the program's back.
    void Alter(const std::function<void(Database&)>& alter) {
        Database database = Database::OpenDatabase(file);
        alter(database);
        database.Close();
    }

    /// Rewrites `file` with the same rows but without one column.
    void DropColumn(const std::string& table, const std::string& column) {
        Database database = Database::OpenDatabase(file);
        std::vector<jet::Row> rows = RowsOf(database, table);
        jet::TableDefinition definition = database.Table(table);
        for (std::size_t i = 0; i < definition.columns.size(); ++i) {
            if (definition.columns[i].name != column) continue;
            definition.columns.erase(definition.columns.begin() + static_cast<std::ptrdiff_t>(i));
            for (jet::Row& row : rows)
                row.erase(row.begin() + static_cast<std::ptrdiff_t>(i));
            break;
        }
        database.DeleteTable(table);
        database.AppendTable(definition);
        database.AppendRows(table, rows);
        database.Close();
    }

    static std::vector<jet::Row> RowsOf(Database& database, const std::string& table) {
        std::vector<jet::Row> rows;
        Recordset set = database.OpenRecordset(table);
        for (; !set.EOF_(); set.MoveNext()) {
            jet::Row& row = rows.emplace_back();
            for (std::size_t i = 0; i < set.Fields().size(); ++i)
                row.push_back(set.Get(static_cast<int>(i)));
        }
        return rows;
    }

    std::vector<jet::Row> RowsIn(const std::string& table) const {
        Database database = Database::OpenDatabase(file);
        return RowsOf(database, table);
    }

    std::string file;
};

}  // namespace tendo
