#include "reports/sales_rows.h"

#include <cmath>
#include <type_traits>

#include "platform/text/number_text.h"
#include "platform/text/runtime_error.h"
#include "reports/preview_code.h"

namespace tendo {

namespace {

template <class Record, class Field>
constexpr Record RecordOf(Field Record::*);

/// The record of a system that a field belongs to.
template <class Record>
const Record& SystemRecord(const ProjectRecords& project, int system) {
    const auto index = static_cast<std::size_t>(system);
    if constexpr (std::is_same_v<Record, CLGModelRecord>)
        return project.CLGModelData[index];
    else if constexpr (std::is_same_v<Record, HTGModelRecord>)
        return project.HTGModelData[index];
    else if constexpr (std::is_same_v<Record, WHModelRecord>)
        return project.WHModelData[index];
    else if constexpr (std::is_same_v<Record, ModelInfoRecord>)
        return project.ModelInfo[index];
    else
        return project.SystemInfo[index];
}

template <auto Field>
RawCell Of(const ProjectRecords& project, int system) {
    const auto& value = SystemRecord<decltype(RecordOf(Field))>(project, system).*Field;
    if constexpr (std::is_same_v<std::remove_cvref_t<decltype(value)>, float>)
        return {{}, value};
    else
        return {value.Trimmed(), 0};
}

using CLG = CLGModelRecord;
using HTG = HTGModelRecord;
using WH = WHModelRecord;
using Info = ModelInfoRecord;
using Cost = SystemInfoRecord;
constexpr CellSource None = nullptr;

constexpr RowGroup Model = RowGroup::Model, Warranty = RowGroup::Warranty,
                   Operating = RowGroup::OperatingCost, Size = RowGroup::Size,
                   Unit = RowGroup::CoolingUnit, Furnace = RowGroup::Furnace,
                   Price = RowGroup::Price;
constexpr RowFormat T = RowFormat::Text, Q = RowFormat::Quantity, M = RowFormat::Money;

// clang-format off
constexpr SalesRow Rows[] = {
    {"Equipment Manufacturer:", nullptr, Model, T, {Of<&CLG::Manuf>, Of<&HTG::Manuf>, Of<&WH::Manuf>}},
    {"Unit Model Number:", nullptr, Model, T, {Of<&CLG::ModelNum>, Of<&HTG::ModelNum>, Of<&WH::ModelNum>}},
    {"Unit Description:", nullptr, Model, T, {Of<&CLG::ModelDesc>, Of<&HTG::ModelDesc>, Of<&WH::ModelDesc>}},
    {"Capacity:", "chkCapacity", Model, Q, {Of<&CLG::Cap>, Of<&HTG::Cap>, Of<&WH::StorVol>}},
    {"Unit Efficiency:", "chkEfficiency", Model, Q, {Of<&CLG::EFF>, Of<&HTG::EFF>, Of<&WH::EFF>}},

    {"Compress Warranty:", "chkCompressWarranty", Warranty, T, {Of<&CLG::CompressorWarranty>, None, None}},
    {"Coil Warranty:", "chkCoilWarranty", Warranty, T, {Of<&CLG::Coil>, None, None}},
    {"Heat Exch Warranty:", "chkHeatExchWarr", Warranty, T, {None, Of<&HTG::WarrantyOnHeatExchanger>, None}},
    {"MicroProc Warranty:", "chkMicroprocWarr", Warranty, T, {Of<&CLG::WarrantyOnMicropoc>, None, None}},
    {"Warranty on Parts:", "chkPartsWarranty", Warranty, T, {Of<&CLG::Parts>, Of<&HTG::Parts>, Of<&WH::Parts>}},
    {"Warranty on Labor:", "chkLaborWarranty", Warranty, T, {Of<&CLG::Labor>, Of<&HTG::Labor>, Of<&WH::Labor>}},
    {"Condensate Removal:", "chkCondRemoval", Warranty, T, {Of<&CLG::CondensateRemoval>, Of<&HTG::CondensateRemoval>, None}},

    {"Operating Cost for System #", "chkSelectedOpCost", Operating, M,
     {Of<&Cost::CLGOpCostforSystem>, Of<&Cost::HTGOpCostforSystem>, Of<&Cost::WHOpCostforSystem>}},
    {"Proposed Operating Cost:", "chkProposedOpCost", Operating, M,
     {Of<&Cost::CLGProposedOpCost>, Of<&Cost::HTGProposedOpCost>, Of<&Cost::WHProposedOpCost>}},
    {"Operating Cost Savings:", "chkOpCostSavings", Operating, M,
     {Of<&Cost::CLGOpCostSavings>, Of<&Cost::HTGOpCostSavings>, Of<&Cost::WHOpCostSavings>}},

    {"Height:", "chkHeight", Size, Q, {Of<&CLG::Height>, Of<&HTG::Height>, Of<&WH::Height>}},
    {"Length:", "chkLength", Size, Q, {Of<&CLG::Length>, Of<&HTG::Length>, Of<&WH::Length>}},
    {"Width:", "chkWidth", Size, Q, {Of<&CLG::Width>, Of<&HTG::Width>, Of<&WH::Width>}},
    {"Weight:", "chkWeight", Size, Q, {Of<&CLG::Weight>, Of<&HTG::Weight>, Of<&WH::Weight>}},

    {"Sound Level:", "chkSoundLevel", Unit, Q, {Of<&CLG::Soundlevel>, Of<&HTG::Soundlevel>, None}},
    {"Comp Start Kit:", "chkCompStartKit", Unit, T, {Of<&CLG::CompressorStartKit>, None, None}},
    {"Crankcase Heat:", "chkCrankcaseHeat", Unit, T, {Of<&CLG::CrankcaseHeater>, None, None}},
    {"Pressure Switch:", "chkPressureSwitch", Unit, T, {Of<&CLG::HILOPressure>, None, None}},
    {"Cond Support:", "chkCondSupport", Unit, T, {Of<&CLG::SupportForCondenser>, None, None}},
    {"Electrical:", "chkElectrical", Unit, T, {Of<&CLG::Electrical>, None, None}},
    {"Refrig Tubing:", "chkRefrigTubing", Unit, Q, {Of<&CLG::RefrigTubingMaxLen>, None, None}},
    {"Air Handler:", "chkAirHandler", Unit, T, {Of<&CLG::AirHandler>, None, None}},

    // The row always stands with an empty value.
    {"Available Cooling:", "chkAvailCooling", Furnace, RowFormat::Nothing, {None, Of<&HTG::Configuration>, None}},
    {"Configuration:", "chkConfiguration", Furnace, T, {None, Of<&HTG::Configuration>, None}},
    {"Heat Exchanger Type:", "chkHeatExchType", Furnace, T, {None, Of<&HTG::HeatExchangerType>, None}},
    {"Ignition Type:", "chkIgnitionType", Furnace, T, {None, Of<&HTG::IgnitionSystemType>, None}},
    {"Exhaust Type:", "chkExhaustVent", Furnace, T, {None, Of<&HTG::ExhaustVentType>, None}},
    {"CFM Rate:", "chkCFMRate", Furnace, RowFormat::Plain, {None, Of<&HTG::CFMRate>, None}},

    // A water heater's list price is its dealer cost, on purpose.
    {"List Price:", "chkListPrice", Price, M, {Of<&Info::CLGListPrice>, Of<&Info::HTGListPrice>, Of<&Info::WHModelDealerCost>}},
    {"Total Price:", "chkTotalPrice", Price, M, {Of<&Info::CLGSalePrice>, Of<&Info::HTGSalePrice>, Of<&Info::WHSalePrice>}},
};
// clang-format on

CellSource ModelNumberSource(Side side) {
    return Rows[1].source[static_cast<std::size_t>(side)];
}

constexpr std::array<CellSource, SideCount> ModelTypes = {Of<&CLG::ModelType>, Of<&HTG::ModelType>,
                                                          Of<&WH::ModelType>};

struct SelectedField {
    const char* name;
    std::int16_t SystemInfoRecord::*selected;
};
constexpr std::array<SelectedField, SideCount> SelectedFields = {{
    {"cooling", &SystemInfoRecord::CLGSystemSelected},
    {"heating", &SystemInfoRecord::HTGSystemSelected},
    {"water heating", &SystemInfoRecord::WHSystemSelected},
}};

constexpr const char* LeftOut =
    ", so the comparison table and the footnotes behind it are left out. ";

/// A damaged file can hold what is no number.
[[noreturn]] void StopAtFigure(const SalesRow& row, int system) {
    std::string label(row.label);
    while (label.back() == ':' || label.back() == '#')
        label.pop_back();
    throw RuntimeError(error_number::Overflow, "\"" + label + "\" of system " +
                                                   std::to_string(system + 1) + " is no number" +
                                                   LeftOut +
                                                   "Enter it again, then write the report again.");
}

}  // namespace

std::span<const SalesRow> SalesRows() {
    return Rows;
}

std::string ModelNumber(const ProjectRecords& project, Side side, int system) {
    return ModelNumberSource(side)(project, system).text;
}

std::string ModelType(const ProjectRecords& project, Side side, int system) {
    return ModelTypes[static_cast<std::size_t>(side)](project, system).text;
}

int SelectedSystem(const ProjectRecords& project, Side side, int system) {
    const SelectedField& field = SelectedFields[static_cast<std::size_t>(side)];
    const int selected = project.SystemInfo[static_cast<std::size_t>(system)].*field.selected;
    if (selected >= 0 && selected < SystemCount) return selected;
    throw RuntimeError(
        error_number::SubscriptOutOfRange,
        "The " + std::string(field.name) + " operating cost of system " +
            std::to_string(system + 1) + " is to come from system " + std::to_string(selected + 1) +
            ", which does not exist" + LeftOut +
            "Switch off the operating cost of the selected system in the report options, then "
            "write the report again.");
}

std::string CellText(const ProjectRecords& project, const SalesRow& row, Side side, int system,
                     int valueSystem) {
    const CellSource source = row.source[static_cast<std::size_t>(side)];
    if (!source) return {};
    const RawCell cell = source(project, valueSystem);
    if (!std::isfinite(cell.number)) StopAtFigure(row, valueSystem);
    switch (row.format) {
        case RowFormat::Text:
            return cell.text;
        case RowFormat::Quantity:
            return FormatQuantityIfModel(cell.number, ModelNumber(project, side, system));
        case RowFormat::Money:
            return FormatMoneyIfModel(cell.number, ModelNumber(project, side, system));
        case RowFormat::Plain:
            return PlainNumberText(cell.number);
        case RowFormat::Nothing:
            break;
    }
    return {};
}

}  // namespace tendo
