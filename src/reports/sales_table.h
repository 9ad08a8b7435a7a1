#pragma once

#include <string>
#include <vector>

#include "platform/print/print_surface.h"
#include "project/project_records.h"
#include "reports/sales_rows.h"

namespace tendo {

/// Systems with a sale price of any of their three models.
int CountPricedSystems(const ProjectRecords& project);

/// The comparison table for the count of priced systems, and the notes behind it; nothing for a
/// count of 0. Throws RuntimeError 9 when the systems to be shown can't be found.
void PrintSalesTable(PrintSurface& surface, const ProjectRecords& project);

/// The five forms. One system: its models side by side. More: a column for each system, and a
/// section for cooling, heating and water heaters each.
void PrintSalesTable1(PrintSurface& surface, const ProjectRecords& project);
void PrintSalesTable2(PrintSurface& surface, const ProjectRecords& project);
void PrintSalesTable3(PrintSurface& surface, const ProjectRecords& project);
void PrintSalesTable4(PrintSurface& surface, const ProjectRecords& project);
void PrintSalesTable5(PrintSurface& surface, const ProjectRecords& project);

/// Column widths and headings of a form.
struct SalesTableForm {
    const char* format;
    const char* header;
};
SalesTableForm FormOfSalesTable(int systems, bool withHotWater);

/// The system of the one-system form, from 0: the last with a dealer cost of a cooling or heating
/// model or a price of a water heater. Throws RuntimeError 9 when there is none.
int SystemOfSingleTable(const ProjectRecords& project);

/// The systems of the columns of the other forms, from 0: the first ones with a cooling or heating
/// model, whether priced or not. Throws RuntimeError 9 when they are fewer than `count`.
std::vector<int> SystemsOfColumns(const ProjectRecords& project, int count);

/// A row of empty cells for so many columns.
std::string SpacerRow(int columns);

}  // namespace tendo
