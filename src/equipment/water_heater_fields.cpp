#include "equipment/model_field_binding.h"
#include "equipment/model_fields.h"

namespace tendo {
namespace {

using namespace model_field_binding;  // NOLINT: the table below reads as sentences with it

using WH = WHModelRecord;
constexpr auto wh = &ProjectRecords::WHModelData;

constexpr const char* Fuels[] = {"Natural Gas", "Propane", "Natural Gas or Propane", "Fuel Oil",
                                 "Electric"};
constexpr const char* Years[] = {"1 Year", "5 Years"};
constexpr const char* LaborTimes[] = {"1 Year", "90 Days"};

}  // namespace

std::span<const ModelField> WaterHeaterFields() {
    static const ModelField fields[] = {
        Number<wh, ModelSide::WaterHeater>("txtWHModelNum", "WH Model Num:"),
        Quantity<SelectionMode::WaterHeater>("txtWHModelQty", "WH Model Qty:"),
        Bind<wh, &WH::ModelDesc>("txtWHModelDesc", "Model Description:"),
        Bind<wh, &WH::ModelType>("txtWHModelType", "Model Type:"),
        Figure<wh, &WH::StorVol>("txtWHStorVol", "Storage Volume:", "gallons"),
        Figure<wh, &WH::EFF>("txtWHEFF", "Efficiency:", "energy factor"),
        Bind<wh, &WH::FuelType>("txtWHFuelType", "Fuel Type:", Fuels),
        Database<wh>("txtWHDatabase", "WH Database:"),
        Price<&ModelInfoRecord::WHModelDealerCost>(
            "txtCost", "Cost:", "What one water heater costs you, in dollars."),
        Price<&ModelInfoRecord::WHSalePrice>(
            "txtPrice", "Price:", "What one water heater is sold for, in dollars."),
        Figure<wh, &WH::Height>("txtWHHT", "Height:", "inches"),
        Figure<wh, &WH::Length>("txtWHLen", "Len:", "inches"),
        Figure<wh, &WH::Width>("txtWHWID", "Width:", "inches"),
        Figure<wh, &WH::Weight>("txtWHWT", "Weight:", "pounds"),
        Bind<wh, &WH::Parts>("txtWHParts", "Parts:", Years),
        Bind<wh, &WH::Labor>("txtWHLabor", "Labor:", LaborTimes),
        Memo<wh, &WH::Notes>("txtWHNotes", "Notes:"),
    };
    return fields;
}

}  // namespace tendo
