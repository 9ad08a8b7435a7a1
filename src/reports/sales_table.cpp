#include "reports/sales_table.h"

#include <algorithm>
#include <array>
#include <initializer_list>

#include "reports/report_settings.h"
#include "reports/sales_columns.h"
#include "reports/sales_rows.h"

namespace tendo {

namespace {

constexpr const char* HydroNote = "  Water Heater is used for both Hot Water and Space Heat";

/// The rows' order in each section. Of a water heater the warranties stand behind the dimensions.
constexpr std::initializer_list<RowGroup> CoolingGroups = {
    RowGroup::Model, RowGroup::Warranty,    RowGroup::OperatingCost,
    RowGroup::Size,  RowGroup::CoolingUnit, RowGroup::Price};
constexpr std::initializer_list<RowGroup> AllGroups = {
    RowGroup::Model,       RowGroup::Warranty, RowGroup::OperatingCost, RowGroup::Size,
    RowGroup::CoolingUnit, RowGroup::Furnace,  RowGroup::Price};
constexpr std::initializer_list<RowGroup> WaterGroups = {
    RowGroup::Model, RowGroup::OperatingCost, RowGroup::Size, RowGroup::Warranty, RowGroup::Price};

/// The row as each form writes it; its separators don't match the columns of every form, on
/// purpose.
constexpr std::array<const char*, 5> AvailableCoolingRows = {
    "Available Cooling:|||;", "Available Cooling:|||;", "Available Cooling:|||;",
    "Available Cooling:|||;", "Available Cooling:|||||;"};

using Systems = std::vector<int>;

bool AnyIs(const ProjectRecords& project, const Systems& systems, Side side,
           std::initializer_list<const char*> types) {
    return std::any_of(systems.begin(), systems.end(), [&](int system) {
        const std::string type = ModelType(project, side, system);
        return std::find(types.begin(), types.end(), type) != types.end();
    });
}

bool AnyCoolingUnit(const ProjectRecords& project, const Systems& systems) {
    return AnyIs(project, systems, Side::Cooling, {"Air Conditioner", "Heat Pump"}) ||
           AnyIs(project, systems, Side::Heating, {"Heat Pump"});
}

bool AnyFurnace(const ProjectRecords& project, const Systems& systems) {
    return AnyIs(project, systems, Side::Heating, {"Furnace", "Boiler"});
}

bool IsPrinted(const SalesRow& row) {
    return row.option == nullptr || ReportOptionIsOn(row.option);
}

bool IsSelectedCost(const SalesRow& row) {
    return row.group == RowGroup::OperatingCost && row.label.back() == '#';
}

/// The label of a row, with the number of the system whose operating cost it shows.
std::string LabelOf(const ProjectRecords& project, const SalesRow& row, Side side, int system) {
    std::string label(row.label);
    if (IsSelectedCost(row))
        label += std::to_string(SelectedSystem(project, side, system) + 1) + ":";
    return label;
}

std::string SingleRow(const ProjectRecords& project, const SalesRow& row, int system, bool water) {
    if (row.format == RowFormat::Nothing) return AvailableCoolingRows[0];
    // The cooling cell alone follows the selected system.
    const int cost = IsSelectedCost(row) ? SelectedSystem(project, Side::Cooling, system) : system;
    return LabelOf(project, row, Side::Cooling, system) + "|" +
           CellText(project, row, Side::Cooling, system, cost) + "|" +
           CellText(project, row, Side::Heating, system, system) + "|" +
           (water ? CellText(project, row, Side::Water, system, system) : std::string()) + ";";
}

std::string SectionRow(const ProjectRecords& project, const SalesRow& row, Side side,
                       const Systems& systems) {
    if (row.format == RowFormat::Nothing) return AvailableCoolingRows[systems.size() - 1];
    std::string text = LabelOf(project, row, side, systems.front());
    for (const int system : systems) {
        const int cost = IsSelectedCost(row) ? SelectedSystem(project, side, system) : system;
        text += "|" + CellText(project, row, side, system, cost);
    }
    return text + ";";
}

/// Walks the printed rows of the groups in their order.
template <class WriteRow>
void ForEachRow(std::initializer_list<RowGroup> groups, WriteRow&& write) {
    for (const RowGroup group : groups)
        for (const SalesRow& row : SalesRows())
            if (row.group == group && IsPrinted(row)) write(row);
}

bool SectionHolds(const ProjectRecords& project, const Systems& systems, Side side,
                  RowGroup group) {
    if (group == RowGroup::Furnace) return AnyFurnace(project, systems);
    if (group != RowGroup::CoolingUnit) return true;
    return side == Side::Heating ? AnyIs(project, systems, Side::Heating, {"Heat Pump"})
                                 : AnyCoolingUnit(project, systems);
}

std::string Section(const ProjectRecords& project, const Systems& systems, Side side,
                    std::initializer_list<RowGroup> groups) {
    std::string body;
    ForEachRow(groups, [&](const SalesRow& row) {
        if (!row.source[static_cast<std::size_t>(side)]) return;
        if (SectionHolds(project, systems, side, row.group))
            body += SectionRow(project, row, side, systems);
    });
    return body;
}

void WriteSalesTable(PrintSurface& surface, const SalesTableForm& form, const std::string& body) {
    surface.TableBorder(3);
    surface.AddTable(form.format, form.header, body, CurrentReportSettings().MainHeader.barColor);
}

bool IsHydroAir(const ProjectRecords& project, int system) {
    return project.WHModelData[static_cast<std::size_t>(system)].WHIsHydroAirComponent == 1;
}

void PrintColumns(PrintSurface& surface, const ProjectRecords& project, int count) {
    const Systems systems = SystemsOfColumns(project, count);
    const bool water = std::any_of(systems.begin(), systems.end(), [&](int system) {
        return !ModelNumber(project, Side::Water, system).empty();
    });
    const std::string spacer = SpacerRow(count + 1);
    std::string body = spacer + Section(project, systems, Side::Cooling, CoolingGroups) + spacer +
                       Section(project, systems, Side::Heating, AllGroups);
    if (water) body += spacer + Section(project, systems, Side::Water, WaterGroups);
    WriteSalesTable(surface, FormOfSalesTable(count, water), body);

    surface.Paragraph("");
    if (!water) return;
    for (int column = 0; column < count; ++column)
        if (IsHydroAir(project, systems[static_cast<std::size_t>(column)]))
            surface.Paragraph(HydroNote + std::string(" in System #") + std::to_string(column + 1));
}

}  // namespace

SalesTableForm FormOfSalesTable(int systems, bool withHotWater) {
    static constexpr std::array<SalesTableForm, 5> Forms = {{
        {"<~3600|<~2400|<~2400|<~2350", "|COOLING|HEATING|HOT WATER"},
        {"<~3600|<~3600|<~3550", "|SYSTEM #1|SYSTEM #2"},
        {"<~3600|<~2400|<~2400|<~2350", "|SYSTEM #1|SYSTEM #2|SYSTEM #3"},
        {"<~2800|<~2000|<~2000|<~2000|<~1950", "|SYSTEM #1|SYSTEM #2|SYSTEM #3|SYSTEM #4"},
        {"<~2300|<~1700|<~1700|<~1700|<~1700|<~1650",
         "|SYSTEM #1|SYSTEM #2|SYSTEM #3|SYSTEM #4|SYSTEM #5"},
    }};
    // Without hot water the table keeps its fourth column, and so its width.
    if (systems == 1 && !withHotWater) return {Forms[0].format, "|COOLING|HEATING|"};
    return Forms.at(static_cast<std::size_t>(systems - 1));
}

std::string SpacerRow(int columns) {
    return std::string(static_cast<std::size_t>(columns - 1), '|') + ";";
}

void PrintSalesTable1(PrintSurface& surface, const ProjectRecords& project) {
    const int system = SystemOfSingleTable(project);
    const bool water = project.ModelInfo[static_cast<std::size_t>(system)].WHSalePrice != 0;
    const Systems shown = {system};
    std::string body = SpacerRow(4);
    ForEachRow(AllGroups, [&](const SalesRow& row) {
        if (row.group == RowGroup::CoolingUnit && !AnyCoolingUnit(project, shown)) return;
        if (row.group == RowGroup::Furnace && !AnyFurnace(project, shown)) return;
        body += SingleRow(project, row, system, water);
    });
    WriteSalesTable(surface, FormOfSalesTable(1, water), body);
    if (!water || !IsHydroAir(project, system)) return;
    surface.Paragraph("");
    surface.Paragraph(HydroNote);
}

void PrintSalesTable2(PrintSurface& surface, const ProjectRecords& project) {
    PrintColumns(surface, project, 2);
}
void PrintSalesTable3(PrintSurface& surface, const ProjectRecords& project) {
    PrintColumns(surface, project, 3);
}
void PrintSalesTable4(PrintSurface& surface, const ProjectRecords& project) {
    PrintColumns(surface, project, 4);
}
void PrintSalesTable5(PrintSurface& surface, const ProjectRecords& project) {
    PrintColumns(surface, project, 5);
}

void PrintSalesTable(PrintSurface& surface, const ProjectRecords& project) {
    using Form = void (*)(PrintSurface&, const ProjectRecords&);
    static constexpr std::array<Form, 5> Forms = {
        PrintSalesTable1, PrintSalesTable2, PrintSalesTable3, PrintSalesTable4, PrintSalesTable5};
    const int count = CountPricedSystems(project);
    if (count > 0) Forms[static_cast<std::size_t>(count - 1)](surface, project);
}

}  // namespace tendo
