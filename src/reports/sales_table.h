#pragma once

#include <string>

#include "platform/print/print_surface.h"
#include "project/project_records.h"

namespace tendo {

/// The comparison table for the count of priced systems, and the notes behind it; nothing for a
/// count of 0. Throws RuntimeError 9, which tells the user why, when the systems
/// to be shown can't be found.
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

/// A row of empty cells for so many columns.
std::string SpacerRow(int columns);

}  // namespace tendo
