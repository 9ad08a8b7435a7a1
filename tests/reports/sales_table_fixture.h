#pragma once

#include <string>
#include <vector>

#include "report_fixture.h"
#include "reports/sales_table.h"

namespace tendo {

/// Comparison tables of projects whose systems are filled as the fixture fills them.
class SalesTable : public ReportTest {
  protected:
    void Fill(int systems) {
        for (int system = 0; system < systems; ++system)
            FillSystem(project, system);
    }
    void Print() {
        surface.Action(3);
        PrintSalesTable(surface, project);
    }
    std::string TableField(std::size_t field) const {
        return std::get<std::string>(LastTable().fields.at(field).second);
    }
    ModelInfoRecord& Info(std::size_t system) { return project.ModelInfo[system]; }
    /// The row that begins with a label.
    std::string Row(const std::string& label) const {
        for (const std::string& row : LastTableRows())
            if (row.rfind(label, 0) == 0) return row;
        return "none";
    }
};

}  // namespace tendo
