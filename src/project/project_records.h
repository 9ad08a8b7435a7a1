#pragma once

#include <array>
#include <cstdint>
#include <string>
#include <vector>

#include "platform/text/fixed_text.h"

namespace tendo {

inline constexpr int SystemCount = 5;
inline constexpr int MaterialRowCount = 1001;  // the last one is a spare, never reset or saved
inline constexpr int SavedMaterialRowCount = 1000;
inline constexpr int LaborRowCount = 16;  // the last one is a spare, never reset or saved
inline constexpr int SavedLaborRowCount = 15;

/// The project itself. All money, margins and percentages are floats; a percentage is a whole
/// percent number.
struct GPDProjectRecord {
    FixedText<10> ProgramVersion;
    FixedText<40> Title;
    FixedText<40> DesignedBy;
    FixedText<40> Date;
    FixedText<50> DefaultDB;
    FixedText<200> Comment;
    std::int16_t ProjectPrintComment = 0;
    float LaborRate = 0;
    bool TaxLabor = true;
    bool SingleProposalType = true;
    std::int16_t ImportGPD = 0;
    FixedText<50> ImportGPD_FName;

    template <class Self, class Visit>
    static void ForEachField(Self& self, Visit&& visit) {
        visit("ProgramVersion", self.ProgramVersion);
        visit("Title", self.Title);
        visit("DesignedBy", self.DesignedBy);
        visit("Date", self.Date);
        visit("DefaultDB", self.DefaultDB);
        visit("Comment", self.Comment);
        visit("ProjectPrintComment", self.ProjectPrintComment);
        visit("LaborRate", self.LaborRate);
        visit("TaxLabor", self.TaxLabor);
        visit("SingleProposalType", self.SingleProposalType);
        visit("ImportGPD", self.ImportGPD);
        visit("ImportGPD_FName", self.ImportGPD_FName);
    }
};

struct GPDClientRecord {
    FixedText<40> Name, Address, CityStateZip, Phone, Fax;
    FixedText<200> Comment;
    std::int16_t ClientPrintComment = 0;

    template <class Self, class Visit>
    static void ForEachField(Self& self, Visit&& visit) {
        visit("Name", self.Name);
        visit("Address", self.Address);
        visit("CityStateZip", self.CityStateZip);
        visit("Phone", self.Phone);
        visit("Fax", self.Fax);
        visit("Comment", self.Comment);
        visit("ClientPrintComment", self.ClientPrintComment);
    }
};

struct GPDCompanyRecord {
    FixedText<40> Name, Representative, CompanyIDNumber, Address, CityStateZip, Phone, Fax;
    FixedText<200> Comment;
    std::int16_t CompanyPrintComment = 0;

    template <class Self, class Visit>
    static void ForEachField(Self& self, Visit&& visit) {
        visit("Name", self.Name);
        visit("Representative", self.Representative);
        visit("CompanyIDNumber", self.CompanyIDNumber);
        visit("Address", self.Address);
        visit("CityStateZip", self.CityStateZip);
        visit("Phone", self.Phone);
        visit("Fax", self.Fax);
        visit("Comment", self.Comment);
        visit("CompanyPrintComment", self.CompanyPrintComment);
    }
};

/// The price table of the project, summed over all five systems.
struct SystemTendosRecord {
    float ModelDealerCost = 0, TaxMatDealerCost = 0, NonTaxDealerCost = 0, LaborDealerCost = 0,
          TaxDealerCost = 0, TotalDealerCost = 0;
    float ModelDealerOverride = 0, TaxMatDealerOverride = 0, NonTaxDealerOverride = 0,
          LaborDealerOverride = 0, TaxDealerOverride = 0, TotalDealerOverride = 0;
    float ModelGrossMargin = 0, TaxMatGrossMargin = 0, NonTaxGrossMargin = 0, LaborGrossMargin = 0,
          TotalGrossMargin = 0;
    float ModelPriceMarkup = 0, TaxMatPriceMarkup = 0, NonTaxPriceMarkup = 0, LaborPriceMarkup = 0,
          TotalPriceMarkup = 0;
    float ModelListDiscount = 0, TaxMatListDiscount = 0, NonTaxListDiscount = 0,
          LaborListDiscount = 0, TotalListDiscount = 0;
    float ModelSalePrice = 0, TaxMatSalePrice = 0, NonTaxSalePrice = 0, LaborSalePrice = 0,
          TaxSalePrice = 0, TotalSalePrice = 0;
    float Profit = 0;
    float TaxPercentage = 8.25F;
    float ModelLDPrice = 0, TaxMatLDPrice = 0, NonTaxLDPrice = 0, LaborLDPrice = 0,
          TotalLDPrice = 0;

    friend bool operator==(const SystemTendosRecord&, const SystemTendosRecord&) = default;

    template <class Self, class Visit>
    static void ForEachField(Self& self, Visit&& visit) {
        visit("ModelDealerCost", self.ModelDealerCost);
        visit("TaxMatDealerCost", self.TaxMatDealerCost);
        visit("NonTaxDealerCost", self.NonTaxDealerCost);
        visit("LaborDealerCost", self.LaborDealerCost);
        visit("TaxDealerCost", self.TaxDealerCost);
        visit("TotalDealerCost", self.TotalDealerCost);
        visit("ModelDealerOverride", self.ModelDealerOverride);
        visit("TaxMatDealerOverride", self.TaxMatDealerOverride);
        visit("NonTaxDealerOverride", self.NonTaxDealerOverride);
        visit("LaborDealerOverride", self.LaborDealerOverride);
        visit("TaxDealerOverride", self.TaxDealerOverride);
        visit("TotalDealerOverride", self.TotalDealerOverride);
        visit("ModelGrossMargin", self.ModelGrossMargin);
        visit("TaxMatGrossMargin", self.TaxMatGrossMargin);
        visit("NonTaxGrossMargin", self.NonTaxGrossMargin);
        visit("LaborGrossMargin", self.LaborGrossMargin);
        visit("TotalGrossMargin", self.TotalGrossMargin);
        visit("ModelPriceMarkup", self.ModelPriceMarkup);
        visit("TaxMatPriceMarkup", self.TaxMatPriceMarkup);
        visit("NonTaxPriceMarkup", self.NonTaxPriceMarkup);
        visit("LaborPriceMarkup", self.LaborPriceMarkup);
        visit("TotalPriceMarkup", self.TotalPriceMarkup);
        visit("ModelListDiscount", self.ModelListDiscount);
        visit("TaxMatListDiscount", self.TaxMatListDiscount);
        visit("NonTaxListDiscount", self.NonTaxListDiscount);
        visit("LaborListDiscount", self.LaborListDiscount);
        visit("TotalListDiscount", self.TotalListDiscount);
        visit("ModelSalePrice", self.ModelSalePrice);
        visit("TaxMatSalePrice", self.TaxMatSalePrice);
        visit("NonTaxSalePrice", self.NonTaxSalePrice);
        visit("LaborSalePrice", self.LaborSalePrice);
        visit("TaxSalePrice", self.TaxSalePrice);
        visit("TotalSalePrice", self.TotalSalePrice);
        visit("Profit", self.Profit);
        visit("TaxPercentage", self.TaxPercentage);
        visit("ModelLDPrice", self.ModelLDPrice);
        visit("TaxMatLDPrice", self.TaxMatLDPrice);
        visit("NonTaxLDPrice", self.NonTaxLDPrice);
        visit("LaborLDPrice", self.LaborLDPrice);
        visit("TotalLDPrice", self.TotalLDPrice);
    }
};

/// The prices of one system's three models. The list prices are derived and never stored in a file.
struct ModelInfoRecord {
    float CLGModelDealerCost = 0, CLGModelDealerOverride = 0, CLGModelGrossMargin = 0,
          CLGModelPriceMarkup = 0, CLGModelListDiscount = 0, CLGSalePrice = 0, CLGListPrice = 0;
    float HTGModelDealerCost = 0, HTGModelDealerOverride = 0, HTGModelGrossMargin = 0,
          HTGModelPriceMarkup = 0, HTGModelListDiscount = 0, HTGSalePrice = 0, HTGListPrice = 0;
    float WHModelDealerCost = 0, WHModelDealerOverride = 0, WHModelGrossMargin = 0,
          WHModelPriceMarkup = 0, WHModelListDiscount = 0, WHSalePrice = 0, WHListPrice = 0;

    template <class Self, class Visit>
    static void ForEachField(Self& self, Visit&& visit) {
        visit("CLGModelDealerCost", self.CLGModelDealerCost);
        visit("CLGModelDealerOverride", self.CLGModelDealerOverride);
        visit("CLGModelGrossMargin", self.CLGModelGrossMargin);
        visit("CLGModelPriceMarkup", self.CLGModelPriceMarkup);
        visit("CLGModelListDiscount", self.CLGModelListDiscount);
        visit("CLGSalePrice", self.CLGSalePrice);
        visit("CLGListPrice", self.CLGListPrice);
        visit("HTGModelDealerCost", self.HTGModelDealerCost);
        visit("HTGModelDealerOverride", self.HTGModelDealerOverride);
        visit("HTGModelGrossMargin", self.HTGModelGrossMargin);
        visit("HTGModelPriceMarkup", self.HTGModelPriceMarkup);
        visit("HTGModelListDiscount", self.HTGModelListDiscount);
        visit("HTGSalePrice", self.HTGSalePrice);
        visit("HTGListPrice", self.HTGListPrice);
        visit("WHModelDealerCost", self.WHModelDealerCost);
        visit("WHModelDealerOverride", self.WHModelDealerOverride);
        visit("WHModelGrossMargin", self.WHModelGrossMargin);
        visit("WHModelPriceMarkup", self.WHModelPriceMarkup);
        visit("WHModelListDiscount", self.WHModelListDiscount);
        visit("WHSalePrice", self.WHSalePrice);
        visit("WHListPrice", self.WHListPrice);
    }
};

/// Operating costs of one system, as the energy-cost program gives them.
struct SystemInfoRecord {
    float CLGOpCostforSystem = 0;
    std::int16_t CLGSystemSelected = 0;
    float CLGProposedOpCost = 0, CLGOpCostSavings = 0;
    float HTGOpCostforSystem = 0;
    std::int16_t HTGSystemSelected = 0;
    float HTGProposedOpCost = 0, HTGOpCostSavings = 0;
    float WHOpCostforSystem = 0;
    std::int16_t WHSystemSelected = 0;
    float WHProposedOpCost = 0, WHOpCostSavings = 0;

    template <class Self, class Visit>
    static void ForEachField(Self& self, Visit&& visit) {
        visit("CLGOpCostforSystem", self.CLGOpCostforSystem);
        visit("CLGSystemSelected", self.CLGSystemSelected);
        visit("CLGProposedOpCost", self.CLGProposedOpCost);
        visit("CLGOpCostSavings", self.CLGOpCostSavings);
        visit("HTGOpCostforSystem", self.HTGOpCostforSystem);
        visit("HTGSystemSelected", self.HTGSystemSelected);
        visit("HTGProposedOpCost", self.HTGProposedOpCost);
        visit("HTGOpCostSavings", self.HTGOpCostSavings);
        visit("WHOpCostforSystem", self.WHOpCostforSystem);
        visit("WHSystemSelected", self.WHSystemSelected);
        visit("WHProposedOpCost", self.WHProposedOpCost);
        visit("WHOpCostSavings", self.WHOpCostSavings);
    }
};

/// The cooling model of one system. Capacities in MBH, sizes in inches, weight in pounds.
struct CLGModelRecord {
    FixedText<50> DB, Manuf;
    FixedText<35> ModelNum;
    FixedText<50> ModelType;
    std::int16_t ModelQty = 0;
    FixedText<50> ModelDesc;
    float Cap = 0, EFF = 0, HeatingCapacity = 0;
    FixedText<35> AirHandler;
    float Soundlevel = 0;
    FixedText<35> CompressorStartKit, CrankcaseHeater, CondensateRemoval, HILOPressure,
        SupportForCondenser, Electrical;
    float RefrigTubingMaxLen = 0, Height = 0, Length = 0, Width = 0, Weight = 0;
    FixedText<35> WarrantyOnMicropoc, CompressorWarranty, Parts, Coil, Labor;
    FixedText<250> Notes;

    template <class Self, class Visit>
    static void ForEachField(Self& self, Visit&& visit) {
        visit("DB", self.DB);
        visit("Manuf", self.Manuf);
        visit("ModelNum", self.ModelNum);
        visit("ModelType", self.ModelType);
        visit("ModelQty", self.ModelQty);
        visit("ModelDesc", self.ModelDesc);
        visit("Cap", self.Cap);
        visit("EFF", self.EFF);
        visit("HeatingCapacity", self.HeatingCapacity);
        visit("AirHandler", self.AirHandler);
        visit("Soundlevel", self.Soundlevel);
        visit("CompressorStartKit", self.CompressorStartKit);
        visit("CrankcaseHeater", self.CrankcaseHeater);
        visit("CondensateRemoval", self.CondensateRemoval);
        visit("HILOPressure", self.HILOPressure);
        visit("SupportForCondenser", self.SupportForCondenser);
        visit("Electrical", self.Electrical);
        visit("RefrigTubingMaxLen", self.RefrigTubingMaxLen);
        visit("Height", self.Height);
        visit("Length", self.Length);
        visit("Width", self.Width);
        visit("Weight", self.Weight);
        visit("WarrantyOnMicropoc", self.WarrantyOnMicropoc);
        visit("CompressorWarranty", self.CompressorWarranty);
        visit("Parts", self.Parts);
        visit("Coil", self.Coil);
        visit("Labor", self.Labor);
        visit("Notes", self.Notes);
    }
};

/// The heating model of one system.
struct HTGModelRecord {
    FixedText<50> DB, Manuf, ModelType;
    FixedText<35> ModelNum;
    std::int16_t ModelQty = 0;
    FixedText<50> ModelDesc;
    float Soundlevel = 0, Cap = 0, EFF = 0, ElecBackup = 0;
    FixedText<35> Configuration, FuelType, HeatExchangerType, CondensateRemoval, IgnitionSystemType,
        ExhaustVentType;
    float CFMRate = 0, Height = 0, Length = 0, Width = 0, Weight = 0;
    FixedText<35> WarrantyOnHeatExchanger, Parts, Labor;
    FixedText<250> Notes;

    template <class Self, class Visit>
    static void ForEachField(Self& self, Visit&& visit) {
        visit("DB", self.DB);
        visit("Manuf", self.Manuf);
        visit("ModelType", self.ModelType);
        visit("ModelNum", self.ModelNum);
        visit("ModelQty", self.ModelQty);
        visit("ModelDesc", self.ModelDesc);
        visit("Soundlevel", self.Soundlevel);
        visit("Cap", self.Cap);
        visit("EFF", self.EFF);
        visit("ElecBackup", self.ElecBackup);
        visit("Configuration", self.Configuration);
        visit("FuelType", self.FuelType);
        visit("HeatExchangerType", self.HeatExchangerType);
        visit("CondensateRemoval", self.CondensateRemoval);
        visit("IgnitionSystemType", self.IgnitionSystemType);
        visit("ExhaustVentType", self.ExhaustVentType);
        visit("CFMRate", self.CFMRate);
        visit("Height", self.Height);
        visit("Length", self.Length);
        visit("Width", self.Width);
        visit("Weight", self.Weight);
        visit("WarrantyOnHeatExchanger", self.WarrantyOnHeatExchanger);
        visit("Parts", self.Parts);
        visit("Labor", self.Labor);
        visit("Notes", self.Notes);
    }
};

/// The water heater of one system. `StorVol` in gallons.
struct WHModelRecord {
    FixedText<50> DB, Manuf, ModelType;
    FixedText<35> ModelNum;
    std::int16_t ModelQty = 0;
    FixedText<50> ModelDesc;
    float StorVol = 0, EFF = 0;
    FixedText<35> FuelType;
    float Height = 0, Length = 0, Width = 0, Weight = 0;
    FixedText<35> Parts, Labor;
    FixedText<250> Notes;
    std::int16_t WHIsHydroAirComponent = 0;

    template <class Self, class Visit>
    static void ForEachField(Self& self, Visit&& visit) {
        visit("DB", self.DB);
        visit("Manuf", self.Manuf);
        visit("ModelType", self.ModelType);
        visit("ModelNum", self.ModelNum);
        visit("ModelQty", self.ModelQty);
        visit("ModelDesc", self.ModelDesc);
        visit("StorVol", self.StorVol);
        visit("EFF", self.EFF);
        visit("FuelType", self.FuelType);
        visit("Height", self.Height);
        visit("Length", self.Length);
        visit("Width", self.Width);
        visit("Weight", self.Weight);
        visit("Parts", self.Parts);
        visit("Labor", self.Labor);
        visit("Notes", self.Notes);
        visit("WHIsHydroAirComponent", self.WHIsHydroAirComponent);
    }
};

/// One material line, of a project or of the catalogue. A line with `ItemQty` of 0 or less is
/// empty.
struct MaterialRow {
    FixedText<255> Category;  // a project row doesn't keep it
    std::int16_t Accessory = 0;
    std::int16_t ItemQty = 0;
    FixedText<22> Description;
    FixedText<35> PartNumber;
    std::int16_t Tax = 0;
    float UnitCst = 0, ListCst = 0, GrossMargin = 0, PriceMarkup = 0, ListDiscount = 0,
          SalePrice = 0;

    friend bool operator==(const MaterialRow&, const MaterialRow&) = default;

    template <class Self, class Visit>
    static void ForEachField(Self& self, Visit&& visit) {
        visit("Category", self.Category);
        visit("Accessory", self.Accessory);
        visit("ItemQty", self.ItemQty);
        visit("Description", self.Description);
        visit("PartNumber", self.PartNumber);
        visit("Tax", self.Tax);
        visit("UnitCst", self.UnitCst);
        visit("ListCst", self.ListCst);
        visit("GrossMargin", self.GrossMargin);
        visit("PriceMarkup", self.PriceMarkup);
        visit("ListDiscount", self.ListDiscount);
        visit("SalePrice", self.SalePrice);
    }
};

/// One labor line. A line with `QtyHrs` of 0 or less is empty.
struct LaborRow {
    float QtyHrs = 0;
    FixedText<50> LaborDescription;
    float LaborPerHour = 0, LaborCost = 0, GrossMargin = 0, PriceMarkup = 0, LaborPrice = 0;

    template <class Self, class Visit>
    static void ForEachField(Self& self, Visit&& visit) {
        visit("QtyHrs", self.QtyHrs);
        visit("LaborDescription", self.LaborDescription);
        visit("LaborPerHour", self.LaborPerHour);
        visit("LaborCost", self.LaborCost);
        visit("GrossMargin", self.GrossMargin);
        visit("PriceMarkup", self.PriceMarkup);
        visit("LaborPrice", self.LaborPrice);
    }
};

struct FootNoteRow {
    FixedText<255> Name;
    std::string Description;  // rich text

    template <class Self, class Visit>
    static void ForEachField(Self& self, Visit&& visit) {
        visit("Name", self.Name);
        visit("Description", self.Description);
    }
};

/// All data of one project. System numbers are 0 to 4 in memory and 1 to 5 in the file.
struct ProjectRecords {
    GPDProjectRecord GPDProjectFormat;
    GPDClientRecord GPDClientFormat;
    GPDCompanyRecord GPDCompanyFormat;
    SystemTendosRecord SystemTendos;
    std::array<ModelInfoRecord, SystemCount> ModelInfo;
    std::array<SystemInfoRecord, SystemCount> SystemInfo;
    std::array<CLGModelRecord, SystemCount> CLGModelData;
    std::array<HTGModelRecord, SystemCount> HTGModelData;
    std::array<WHModelRecord, SystemCount> WHModelData;
    std::vector<MaterialRow> ProjectMaterials = std::vector<MaterialRow>(MaterialRowCount);
    std::vector<LaborRow> ProjectLabor = std::vector<LaborRow>(LaborRowCount);
    std::vector<FootNoteRow> ProjectFootNotes;  // valid: 0 to count - 1
    std::int16_t gvNumOfFootnotes = 0;
    std::vector<FootNoteRow> ProjectAccRptFootNotes;
    std::int16_t NumOfAccRptFootnotes = 0;
};

/// The records of the one open project.
ProjectRecords& Project();

/// Puts all records to their first values. `TaxDealerOverride`, each `LaborDescription`, the spare
/// rows and the two footnote counts stay as they were; each used footnote becomes a blank one. For
/// the open project the catalogue rows are cleared too (`ProjectHooks::ResetCatalogue`).
void ResetProjectData();
void ResetProjectData(ProjectRecords& records);

/// What start-up gives the records: the reset values with a labor rate of 40 on the project and on
/// every labor line, the default import folder, and the common directory as default model database.
void SetStartValues(ProjectRecords& records, const std::string& commonDirectory);

/// 100 * salePrice / (100 - discount); 0 when `discount` is exactly 100. A discount above 100 gives
/// a negative price; RuntimeError 6 for a price beyond the range of a float.
float ListPriceFromSalePrice(float salePrice, float discount);

}  // namespace tendo
