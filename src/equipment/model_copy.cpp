#include "equipment/model_copy.h"

#include <array>
#include <cfloat>
#include <cmath>
#include <span>
#include <string_view>
#include <variant>

#include "equipment/model_database.h"
#include "platform/text/number_text.h"
#include "platform/text/runtime_error.h"
#include "platform/text/text.h"
#include "pricing/model_price_columns.h"

namespace tendo {
namespace {

template <class Record>
using Target = std::variant<FixedText<50> Record::*, FixedText<35> Record::*, float Record::*>;

/// One field of a model and the column it is copied from.
template <class Record>
struct FieldCopy {
    Target<Record> target;
    std::string_view column;
};

using CLG = CLGModelRecord;
using HTG = HTGModelRecord;
using WH = WHModelRecord;

constexpr FieldCopy<CLG> CoolingFields[] = {
    {&CLG::ModelNum, "Model"},
    {&CLG::ModelDesc, "Description"},
    {&CLG::AirHandler, "AirHandler"},
    {&CLG::Soundlevel, "Sound"},
    {&CLG::CompressorStartKit, "CompStartKit|CompressorStartKit"},
    {&CLG::CrankcaseHeater, "CrankcaseHeater"},
    {&CLG::CondensateRemoval, "CondensateRemoval"},
    {&CLG::HILOPressure, "HILOPressure|HILOPressureSwitch"},
    {&CLG::SupportForCondenser, "SupportForCondenser"},
    {&CLG::Electrical, "Electrical"},
    {&CLG::RefrigTubingMaxLen, "RefrigTubingMaxLen"},
    {&CLG::Height, "Height"},
    {&CLG::Length, "Length"},
    {&CLG::Width, "Width"},
    {&CLG::Weight, "Weight"},
    {&CLG::CompressorWarranty, "CompressorWarranty"},
    {&CLG::Parts, "PartsWarranty"},
    {&CLG::Coil, "CoilWarranty"},
    {&CLG::Labor, "LaborWarranty"}};
constexpr FieldCopy<CLG> ACFields[] = {{&CLG::Cap, "Capacity"}, {&CLG::EFF, "Seer"}};
constexpr FieldCopy<CLG> HPCoolingFields[] = {{&CLG::Cap, "CoolCapacity"},
                                              {&CLG::EFF, "Seer"},
                                              {&CLG::WarrantyOnMicropoc, "MicroprocWarranty"}};
constexpr FieldCopy<CLG> GSHPCoolingFields[] = {{&CLG::Cap, "CoolingCapacity"},
                                                {&CLG::EFF, "CoolingEER"},
                                                {&CLG::WarrantyOnMicropoc, "MicroprocWarranty"}};

constexpr FieldCopy<HTG> HeatingFields[] = {{&HTG::ModelNum, "Model"},
                                            {&HTG::ModelDesc, "Description"},
                                            {&HTG::CondensateRemoval, "CondensateRemoval"},
                                            {&HTG::Height, "Height"},
                                            {&HTG::Length, "Length"},
                                            {&HTG::Width, "Width"},
                                            {&HTG::Weight, "Weight"},
                                            {&HTG::Parts, "PartsWarranty"},
                                            {&HTG::Labor, "LaborWarranty"}};
// A ground source heat pump too takes HPCap5; HeatingCapacity serves the grid and the query only.
constexpr FieldCopy<HTG> HeatPumpFields[] = {
    {&HTG::Cap, "HPCap5"}, {&HTG::EFF, "HSPF"}, {&HTG::Soundlevel, "Sound"}};
constexpr FieldCopy<HTG> FurnaceFields[] = {
    {&HTG::Cap, "Capacity"},
    {&HTG::EFF, "AFUE"},
    {&HTG::Configuration, "Config"},
    {&HTG::HeatExchangerType, "HeatExchangerType"},
    {&HTG::IgnitionSystemType, "IgnitionSystemType"},
    {&HTG::ExhaustVentType, "ExhaustVentType"},
    {&HTG::CFMRate, "CFMRate"},
    {&HTG::WarrantyOnHeatExchanger, "HeatExchangeWarranty"}};

constexpr FieldCopy<WH> WaterHeaterFields[] = {{&WH::ModelNum, "Model"},
                                               {&WH::ModelDesc, "Description"},
                                               {&WH::EFF, "EFF"},
                                               {&WH::StorVol, "StorVol"}};

constexpr std::array<const char*, ModelTabCount> ModelTypes = {
    "Air Conditioner", "Heat Pump", "Ground Source Heat Pump", "Furnace", "Boiler", "Water Heater"};

/// A figure of a row; a text that doesn't read as a number counts as 0.
float FigureIn(const Recordset& row, const std::string& column) {
    const jet::Value value = row.Get(column);
    const auto* text = std::get_if<std::string>(&value);
    return text ? ValueOfText(*text) : row.Single(column);
}

/// A price of a row. A price that can't be read is none: RuntimeError 13 for a text that is no
/// number, 3265 without the column.
float PriceIn(const Recordset& row, const std::string& column) {
    const jet::Value value = row.Get(column);
    const auto* text = std::get_if<std::string>(&value);
    if (!text) return row.Single(column);
    double amount = 0;
    if (!Trimmed(*text).empty() && !ReadNumber(*text, amount))
        ThrowError(error_number::TypeMismatch);
    if (std::abs(amount) > static_cast<double>(FLT_MAX)) ThrowError(error_number::Overflow);
    return static_cast<float>(amount);
}

/// 0, which no fuel has, where the row has no code that can be read.
std::int32_t FuelCodeIn(const Recordset& row) {
    const std::string column = ColumnIn(row, "FuelType");
    if (column.empty()) return 0;
    const float code = FigureIn(row, column);
    return code >= 1 && code < 100 ? static_cast<std::int32_t>(std::lround(code)) : 0;
}

template <class Record>
struct Store {
    const Recordset& row;
    const std::string& column;
    Record& record;

    template <std::size_t Width>
    void operator()(FixedText<Width> Record::*field) const {
        record.*field = row.Text(column);
    }
    void operator()(float Record::*field) const { record.*field = FigureIn(row, column); }
};

template <class Record>
void CopyFields(std::span<const FieldCopy<Record>> fields, const Recordset& row, Record& record) {
    for (const FieldCopy<Record>& field : fields) {
        const std::string column = ColumnIn(row, field.column);
        if (!column.empty()) std::visit(Store<Record>{row, column, record}, field.target);
    }
}

template <class Record>
void NameModel(int tab, Record& record) {
    record.ModelType = ModelTypes.at(static_cast<std::size_t>(tab));
    record.ModelQty = 1;
}

std::span<const FieldCopy<CLG>> CoolingFieldsOf(int tab) {
    if (tab == TabHP) return HPCoolingFields;
    if (tab == TabGSHP) return GSHPCoolingFields;
    return ACFields;
}

CLG ReadCooling(int tab, const Recordset& row) {
    CLG model;
    NameModel(tab, model);
    CopyFields<CLG>(CoolingFields, row, model);
    CopyFields(CoolingFieldsOf(tab), row, model);
    return model;
}

HTG ReadHeating(int tab, const Recordset& row) {
    HTG model;
    NameModel(tab, model);
    CopyFields<HTG>(HeatingFields, row, model);
    if (tab == TabFurnace || tab == TabBoiler) {
        CopyFields<HTG>(FurnaceFields, row, model);
        model.FuelType = FurnaceFuelText(FuelCodeIn(row));
    } else {
        CopyFields<HTG>(HeatPumpFields, row, model);
    }
    return model;
}

WH ReadWaterHeater(int tab, const Recordset& row) {
    WH model;
    NameModel(tab, model);
    CopyFields<WH>(WaterHeaterFields, row, model);
    model.FuelType = WaterHeaterFuelText(FuelCodeIn(row));
    return model;
}

void TakeOutOldPrices(SelectionMode mode, SystemTendosRecord& table, ModelInfoRecord& info) {
    const ModelPriceColumns& prices = PricesOf(mode);
    table.ModelDealerCost -= info.*prices.dealerCost;
    table.ModelDealerOverride -= info.*prices.dealerOverride;
    table.ModelSalePrice -= info.*prices.salePrice;
    // The sale price comes off twice on purpose, and for cooling models only.
    if (mode == SelectionMode::Cooling)
        table.ModelLDPrice = table.ModelSalePrice - info.*prices.salePrice;
    ClearModelPrices(info, mode);
}

void PutInNewPrices(SelectionMode mode, const ChosenModel& model, SystemTendosRecord& table,
                    ModelInfoRecord& info) {
    const ModelPriceColumns& prices = PricesOf(mode);
    info.*prices.dealerCost = model.dealerCost;
    info.*prices.dealerOverride = model.dealerCost;
    info.*prices.salePrice = model.listPrice;
    info.*prices.listPrice = model.listPrice;
    table.ModelSalePrice += info.*prices.salePrice;
    table.ModelDealerCost += info.*prices.dealerCost;
    table.ModelDealerOverride += info.*prices.dealerOverride;
    table.ModelLDPrice += info.*prices.salePrice;
}

template <class Record>
void StoreModel(const Record& fields, const ChosenModel& model, Record& slot) {
    slot = fields;
    slot.DB = model.database;
    slot.Manuf = model.manufacturer;
}

}  // namespace

ChosenModel ReadChosenModel(SelectionMode mode, int tab, const Recordset& row) {
    ChosenModel model;
    if (mode == SelectionMode::Cooling) model.cooling = ReadCooling(tab, row);
    if (mode == SelectionMode::Heating) model.heating = ReadHeating(tab, row);
    if (mode == SelectionMode::WaterHeater) model.waterHeater = ReadWaterHeater(tab, row);
    model.dealerCost = PriceIn(row, "DealerCost");
    model.listPrice = PriceIn(row, "ListPrice");
    return model;
}

void ApplyChosenModel(SelectionMode mode, const ChosenModel& model, ProjectRecords& records,
                      int system) {
    const auto slot = static_cast<std::size_t>(system);
    TakeOutOldPrices(mode, records.SystemTendos, records.ModelInfo.at(slot));
    PutInNewPrices(mode, model, records.SystemTendos, records.ModelInfo.at(slot));
    if (mode == SelectionMode::Cooling)
        StoreModel(model.cooling, model, records.CLGModelData.at(slot));
    if (mode == SelectionMode::Heating)
        StoreModel(model.heating, model, records.HTGModelData.at(slot));
    if (mode == SelectionMode::WaterHeater)
        StoreModel(model.waterHeater, model, records.WHModelData.at(slot));
}

}  // namespace tendo
