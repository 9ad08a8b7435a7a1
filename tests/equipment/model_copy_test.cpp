#include "equipment/model_copy.h"

#include <gtest/gtest.h>

#include "model_databases.h"

namespace tendo {
namespace {

/// Reads the only row of a table of a database in memory as a mode takes it.
ChosenModel Read(SelectionMode mode, int tab, const NamedRow& row) {
    const CommonFolder folder;
    auto tables = EmptyModelTables();
    const std::string table(ModelTabAt(tab).table);
    TableNamed(tables, table).rows = {row};
    WriteModelDatabase(folder.Path("one.mdb"), tables);
    Database database = Database::OpenDatabase(folder.Path("one.mdb"));
    return ReadChosenModel(mode, tab, database.OpenRecordset(table));
}

std::string Text(const char* text) {
    return text;
}

/// A value in every column that is copied; no two texts and no two numbers are alike.
NamedRow FullRow() {
    return {{"EPA", true},
            {"Model", Text("FX-1")},
            {"Description", Text("A unit")},
            {"DealerCost", Dollars(1234.56)},
            {"ListPrice", Dollars(2345.67)},
            {"AirHandler", Text("handler")},
            {"Sound", 71.0},
            {"CompStartKit", Text("kit")},
            {"CompressorStartKit", Text("kit")},
            {"CrankcaseHeater", Text("crankcase")},
            {"CondensateRemoval", Text("condensate")},
            {"HILOPressure", Text("pressure")},
            {"HILOPressureSwitch", Text("pressure")},
            {"SupportForCondenser", Text("support")},
            {"Electrical", Text("electrical")},
            {"RefrigTubingMaxLen", 80.0},
            {"Height", 31.0},
            {"Length", 32.0},
            {"Width", 33.0},
            {"Weight", 34.0},
            {"CompressorWarranty", Text("compressor")},
            {"PartsWarranty", Text("parts")},
            {"CoilWarranty", Text("coil")},
            {"LaborWarranty", Text("labor")},
            {"MicroprocWarranty", Text("micro")},
            {"Capacity", 36.0},
            {"Seer", 14.5},
            {"CoolCapacity", 30.0},
            {"CoolingCapacity", 29.0},
            {"CoolingEER", 17.0},
            {"HeatingCapacity", 27.0},
            {"HPCap5", 21.0},
            {"HSPF", 8.5},
            {"AFUE", 95.0},
            {"CFMRate", 1200.0},
            {"FuelType", std::int64_t{3}},
            {"Config", Text("Upflow")},
            {"HeatExchangerType", Text("exchanger")},
            {"IgnitionSystemType", Text("ignition")},
            {"ExhaustVentType", Text("vent")},
            {"HeatExchangeWarranty", Text("exchanger warranty")},
            {"StorVol", 50.0},
            {"EFF", 0.62}};
}

void ExpectCompressorFields(const CLGModelRecord& model) {
    EXPECT_EQ(model.ModelNum.Trimmed(), "FX-1");
    EXPECT_EQ(model.ModelDesc.Trimmed(), "A unit");
    EXPECT_EQ(model.ModelQty, 1);
    EXPECT_EQ(model.AirHandler.Trimmed(), "handler");
    EXPECT_EQ(model.Soundlevel, 71.0F);
    EXPECT_EQ(model.CompressorStartKit.Trimmed(), "kit");
    EXPECT_EQ(model.CrankcaseHeater.Trimmed(), "crankcase");
    EXPECT_EQ(model.CondensateRemoval.Trimmed(), "condensate");
    EXPECT_EQ(model.HILOPressure.Trimmed(), "pressure");
    EXPECT_EQ(model.SupportForCondenser.Trimmed(), "support");
    EXPECT_EQ(model.Electrical.Trimmed(), "electrical");
    EXPECT_EQ(model.RefrigTubingMaxLen, 80.0F);
    EXPECT_EQ(model.Height, 31.0F);
    EXPECT_EQ(model.Length, 32.0F);
    EXPECT_EQ(model.Width, 33.0F);
    EXPECT_EQ(model.Weight, 34.0F);
    EXPECT_EQ(model.CompressorWarranty.Trimmed(), "compressor");
    EXPECT_EQ(model.Parts.Trimmed(), "parts");
    EXPECT_EQ(model.Coil.Trimmed(), "coil");
    EXPECT_EQ(model.Labor.Trimmed(), "labor");
    EXPECT_EQ(model.HeatingCapacity, 0.0F);
}

void ExpectHeatingFields(const HTGModelRecord& model) {
    EXPECT_EQ(model.ModelNum.Trimmed(), "FX-1");
    EXPECT_EQ(model.ModelDesc.Trimmed(), "A unit");
    EXPECT_EQ(model.ModelQty, 1);
    EXPECT_EQ(model.CondensateRemoval.Trimmed(), "condensate");
    EXPECT_EQ(model.Height, 31.0F);
    EXPECT_EQ(model.Length, 32.0F);
    EXPECT_EQ(model.Width, 33.0F);
    EXPECT_EQ(model.Weight, 34.0F);
    EXPECT_EQ(model.Parts.Trimmed(), "parts");
    EXPECT_EQ(model.Labor.Trimmed(), "labor");
    EXPECT_EQ(model.ElecBackup, 0.0F);
}

TEST(ModelCopy, AnAirConditionerLeavesTheMicroprocessorsWarrantyBlank) {
    const CLGModelRecord model = Read(SelectionMode::Cooling, TabAC, FullRow()).cooling;
    ExpectCompressorFields(model);
    EXPECT_EQ(model.ModelType.Trimmed(), "Air Conditioner");
    EXPECT_EQ(model.Cap, 36.0F);
    EXPECT_EQ(model.EFF, 14.5F);
    EXPECT_TRUE(model.WarrantyOnMicropoc.IsBlank());
}

TEST(ModelCopy, AHeatPumpForCooling) {
    const CLGModelRecord model = Read(SelectionMode::Cooling, TabHP, FullRow()).cooling;
    ExpectCompressorFields(model);
    EXPECT_EQ(model.ModelType.Trimmed(), "Heat Pump");
    EXPECT_EQ(model.Cap, 30.0F);
    EXPECT_EQ(model.EFF, 14.5F);
    EXPECT_EQ(model.WarrantyOnMicropoc.Trimmed(), "micro");
}

TEST(ModelCopy, AGroundSourceHeatPumpForCooling) {
    const CLGModelRecord model = Read(SelectionMode::Cooling, TabGSHP, FullRow()).cooling;
    ExpectCompressorFields(model);
    EXPECT_EQ(model.ModelType.Trimmed(), "Ground Source Heat Pump");
    EXPECT_EQ(model.Cap, 29.0F);
    EXPECT_EQ(model.EFF, 17.0F);
    EXPECT_EQ(model.WarrantyOnMicropoc.Trimmed(), "micro");
}

TEST(ModelCopy, AHeatPumpForHeating) {
    const HTGModelRecord model = Read(SelectionMode::Heating, TabHP, FullRow()).heating;
    ExpectHeatingFields(model);
    EXPECT_EQ(model.ModelType.Trimmed(), "Heat Pump");
    EXPECT_EQ(model.Cap, 21.0F);
    EXPECT_EQ(model.EFF, 8.5F);
    EXPECT_EQ(model.Soundlevel, 71.0F);
    EXPECT_TRUE(model.FuelType.IsBlank());
    EXPECT_EQ(model.CFMRate, 0.0F);
}

TEST(ModelCopy, AGroundSourceHeatPumpForHeatingTakesTheCapacityAtFiveDegrees) {
    const HTGModelRecord model = Read(SelectionMode::Heating, TabGSHP, FullRow()).heating;
    ExpectHeatingFields(model);
    EXPECT_EQ(model.ModelType.Trimmed(), "Ground Source Heat Pump");
    EXPECT_EQ(model.Cap, 21.0F);
    EXPECT_EQ(model.EFF, 8.5F);
    EXPECT_EQ(model.Soundlevel, 71.0F);
}

TEST(ModelCopy, AFurnaceAndABoilerHaveNoSoundLevel) {
    for (const int tab : {TabFurnace, TabBoiler}) {
        const HTGModelRecord model = Read(SelectionMode::Heating, tab, FullRow()).heating;
        ExpectHeatingFields(model);
        EXPECT_EQ(model.ModelType.Trimmed(), tab == TabFurnace ? "Furnace" : "Boiler");
        EXPECT_EQ(model.Cap, 36.0F);
        EXPECT_EQ(model.EFF, 95.0F);
        EXPECT_EQ(model.Soundlevel, 0.0F);
        EXPECT_EQ(model.Configuration.Trimmed(), "Upflow");
        EXPECT_EQ(model.FuelType.Trimmed(), "Gas/Propane");
        EXPECT_EQ(model.HeatExchangerType.Trimmed(), "exchanger");
        EXPECT_EQ(model.IgnitionSystemType.Trimmed(), "ignition");
        EXPECT_EQ(model.ExhaustVentType.Trimmed(), "vent");
        EXPECT_EQ(model.CFMRate, 1200.0F);
        EXPECT_EQ(model.WarrantyOnHeatExchanger.Trimmed(), "exchanger warranty");
    }
}

TEST(ModelCopy, PricesComeFromTheCurrencyColumns) {
    const ChosenModel model = Read(SelectionMode::WaterHeater, TabWH, FullRow());
    EXPECT_EQ(model.dealerCost, 1234.56F);
    EXPECT_EQ(model.listPrice, 2345.67F);
    EXPECT_EQ(model.waterHeater.FuelType.Trimmed(), "Natural Gas or Propane");
}

TEST(ModelCopy, ATextIsCutAtTheWidthOfItsField) {
    NamedRow row = FullRow();
    row["Description"] = std::string(60, 'd');
    const CLGModelRecord model = Read(SelectionMode::Cooling, TabAC, row).cooling;
    EXPECT_EQ(model.ModelDesc.Trimmed(), std::string(50, 'd'));
}

TEST(ModelCopy, NullsGiveBlanksAndZeros) {
    const ChosenModel furnace = Read(SelectionMode::Heating, TabFurnace, {});
    EXPECT_TRUE(furnace.heating.FuelType.IsBlank());
    EXPECT_TRUE(furnace.heating.ModelNum.IsBlank());
    EXPECT_EQ(furnace.heating.Cap, 0.0F);
    EXPECT_EQ(furnace.dealerCost, 0.0F);
    const ChosenModel heater = Read(SelectionMode::WaterHeater, TabWH, {});
    EXPECT_TRUE(heater.waterHeater.FuelType.IsBlank());
    EXPECT_EQ(heater.waterHeater.StorVol, 0.0F);
}

TEST(ModelCopy, TheNameOfTheDatabaseAndTheMakerAreStored) {
    ChosenModel model;
    model.database = "Frostelm.mdb";
    model.manufacturer = "Frostelm";
    ProjectRecords records;
    ApplyChosenModel(SelectionMode::Heating, model, records, 3);
    EXPECT_EQ(records.HTGModelData[3].DB.Trimmed(), "Frostelm.mdb");
    EXPECT_EQ(records.HTGModelData[3].Manuf.Trimmed(), "Frostelm");
}

}  // namespace
}  // namespace tendo
