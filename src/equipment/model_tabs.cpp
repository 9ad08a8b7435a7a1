#include "equipment/model_tabs.h"

#include <vector>

#include "platform/text/number_text.h"

namespace tendo {
namespace {

using Columns = std::vector<ModelGridColumn>;

Columns Joined(std::initializer_list<Columns> parts) {
    Columns all;
    for (const Columns& part : parts)
        all.insert(all.end(), part.begin(), part.end());
    return all;
}

const Columns Costs = {{"DealerCost", "Cost", CellFormat::Money},
                       {"ListPrice", "Price", CellFormat::Money},
                       {"Tradename", ""},
                       {"Description", ""}};

// Everything from the crankcase heater to the weight, alike on the three tabs with a compressor.
const Columns CompressorParts = {{"CrankcaseHeater", ""},
                                 {"CondensateRemoval", ""},
                                 {"HILOPressureSwitch|HILOPressure", ""},
                                 {"SupportForCondenser", ""},
                                 {"Electrical", ""},
                                 {"AirHandler", ""},
                                 {"RefrigTubingMaxLen", "", CellFormat::Number},
                                 {"Height", "", CellFormat::Number},
                                 {"Length", "", CellFormat::Number},
                                 {"Width", "", CellFormat::Number},
                                 {"Weight", "", CellFormat::Number}};

const Columns CompressorWarranties = {
    {"CompressorWarranty", ""}, {"CoilWarranty", ""}, {"PartsWarranty", ""}, {"LaborWarranty", ""}};

const Columns Dates = {{"Added", "", CellFormat::Date}, {"Updated", "", CellFormat::Date}};

const Columns& ACColumns() {
    static const Columns columns = Joined({{{"EPA", "", CellFormat::YesNo},
                                            {"Model", ""},
                                            {"Capacity", "", CellFormat::Capacity},
                                            {"Seer", "", CellFormat::Efficiency}},
                                           Costs,
                                           {{"Eer", "", CellFormat::Efficiency},
                                            {"Sound", "", CellFormat::Number},
                                            {"COP", "", CellFormat::Efficiency},
                                            {"CompStartKit|CompressorStartKit", ""}},
                                           CompressorParts,
                                           CompressorWarranties,
                                           Dates});
    return columns;
}

const Columns& HPColumns() {
    static const Columns columns = Joined({{{"EPA", "", CellFormat::YesNo},
                                            {"Model", ""},
                                            {"CoolCapacity", "CLG Cap", CellFormat::Capacity},
                                            {"Seer", "CLG EFF", CellFormat::Efficiency},
                                            {"HPCap5", "HTG Cap", CellFormat::Capacity},
                                            {"HSPF", "HTG EFF", CellFormat::Efficiency}},
                                           Costs,
                                           {{"Eer", "", CellFormat::Efficiency},
                                            {"Sound", "", CellFormat::Number},
                                            {"CoolCOP", "", CellFormat::Efficiency},
                                            {"CompressorStartKit|CompStartKit", ""}},
                                           CompressorParts,
                                           CompressorWarranties,
                                           Dates});
    return columns;
}

const Columns& GSHPColumns() {
    static const Columns columns = Joined({{{"EPA", "", CellFormat::YesNo},
                                            {"Model", ""},
                                            {"CoolingCapacity", "CLG Cap", CellFormat::Capacity},
                                            {"CoolingEER", "CLG EFF", CellFormat::Efficiency},
                                            {"HeatingCapacity", "HTG Cap", CellFormat::Capacity},
                                            {"HSPF", "HTG EFF", CellFormat::Efficiency}},
                                           Costs,
                                           {{"Sound", "", CellFormat::Number},
                                            {"HeatingCOP", "", CellFormat::Efficiency},
                                            {"COP", "", CellFormat::Efficiency},
                                            {"ARICFM", "", CellFormat::Number},
                                            {"CompressorStartKit|CompStartKit", ""}},
                                           CompressorParts,
                                           {{"MicroprocWarranty", ""}},
                                           CompressorWarranties,
                                           Dates});
    return columns;
}

const Columns& FurnaceColumns() {
    static const Columns columns = Joined({{{"EPA", "", CellFormat::YesNo},
                                            {"Model", ""},
                                            {"Capacity", "Cap (MBH)", CellFormat::Capacity},
                                            {"AFUE", "EFF (AFUE)", CellFormat::Efficiency},
                                            {"CFMRate", "CFM", CellFormat::Number}},
                                           Costs,
                                           {{"FuelType", "", CellFormat::Number},
                                            {"FurnElec", "", CellFormat::Number},
                                            {"Config", ""},
                                            {"AvailableCooling", ""},
                                            {"HeatExchangerType", ""},
                                            {"IgnitionSystemType", ""},
                                            {"ExhaustVentType", ""},
                                            {"CondensateRemoval", ""},
                                            {"Height", "", CellFormat::Number},
                                            {"Width", "", CellFormat::Number},
                                            {"Length", "", CellFormat::Number},
                                            {"Weight", "", CellFormat::Number},
                                            {"HeatExchangeWarranty", ""},
                                            {"PartsWarranty", ""},
                                            {"LaborWarranty", ""}},
                                           Dates});
    return columns;
}

const Columns& WHColumns() {
    static const Columns columns = Joined({{{"EPA", "", CellFormat::YesNo},
                                            {"Model", ""},
                                            {"StorVol", "Stor Vol", CellFormat::Capacity},
                                            {"EFF", "EFF (AFUE)", CellFormat::Efficiency}},
                                           Costs,
                                           {{"FuelType", "", CellFormat::Number}},
                                           Dates});
    return columns;
}

// In heating mode a heat pump is still filtered by its cooling efficiency; that is meant.
std::array<ModelTab, ModelTabCount> MakeTabs() {
    return {
        {{"AC",
          "AC File",
          "grdAC",
          " AC Models",
          "air conditioners",
          "AC File",
          {{{"Select * from [AC File] where [Capacity] >= ", " And [Capacity] <= ",
             " And [Seer] >= "},
            {},
            {}}},
          ACColumns()},
         {"HP",
          "HP File",
          "grdHP",
          " HP Models",
          "air source heat pumps",
          "HP File",
          {{{"Select * from [HP File] where [CoolCapacity] >= ", " And [CoolCapacity] <= ",
             " And [Seer] >= "},
            {"Select * from [HP File] where [HPCap5] >= ", " And [HPCap5] <= ", " And [Seer] >= "},
            {}}},
          HPColumns()},
         {"GSHP",
          "GS HP File",
          "grdGSHP",
          " GSHP Models",
          "ground source heat pumps",
          "GS HP File",
          {{{"Select * from [GS HP File] where [CoolingCapacity] >= ", " And [CoolingCapacity] <= ",
             " And [CoolingEER] >= "},
            {"Select * from [GS HP File] where [HeatingCapacity] >= ", " And [HeatingCapacity] <= ",
             " And [CoolingEER] >= "},
            {}}},
          GSHPColumns()},
         {"Furnace",
          "GAMA File",
          "grdFurnace",
          " Furnace Models",
          "furnaces and boilers",
          "Select * from [GAMA File] where [FuelType] <= 4",
          {{{},
            {"Select * from [GAMA File] where FuelType <= 4 And [Capacity] >= ",
             " And [Capacity] <= ", " And [AFUE] >= "},
            {}}},
          FurnaceColumns()},
         {"Boiler",
          "GAMA File",
          "grdBoiler",
          " Boiler Models",
          "furnaces and boilers",
          "Select * from [GAMA File] where [FuelType] > 4",
          {{{},
            {"Select * from [GAMA File] where FuelType > 4 And [Capacity] >= ",
             " And [Capacity] <= ", " And [AFUE] >= "},
            {}}},
          FurnaceColumns()},
         {"WH",
          "WH File",
          "grdWH",
          " WH Models",
          "water heaters",
          "WH File",
          {{{},
            {},
            {"Select * from [WH File] where [StorVol] >= ", " And [StorVol] <= ",
             " And [EFF] >= "}}},
          WHColumns()}}};
}

}  // namespace

std::string_view ModelGridColumn::Heading() const {
    return heading.empty() ? field.substr(0, field.find('|')) : heading;
}

bool ModelTab::VisibleIn(SelectionMode mode) const {
    return !queries[static_cast<std::size_t>(mode)].first.empty();
}

const ModelTab& ModelTabAt(int tab) {
    static const std::array<ModelTab, ModelTabCount> tabs = MakeTabs();
    return tabs.at(static_cast<std::size_t>(tab));
}

std::string ModelQueryText(SelectionMode mode, int tab, const ModelLimits& limits) {
    const ModelQuery& query = ModelTabAt(tab).queries[static_cast<std::size_t>(mode)];
    return std::string(query.first) + PlainNumberText(limits.minimumCapacity) +
           std::string(query.second) + PlainNumberText(limits.maximumCapacity) +
           std::string(query.third) + PlainNumberText(limits.minimumEfficiency);
}

std::string_view SelectionModeText(SelectionMode mode, bool afterTabClick) {
    switch (mode) {
        case SelectionMode::Cooling:
            return "Selecting Cooling Models";
        case SelectionMode::Heating:
            return "Selecting Heating Models";
        case SelectionMode::WaterHeater:
            break;
    }
    return afterTabClick ? "Selecting Water Heaters" : "Selecting Water Heater Models";
}

}  // namespace tendo
