#include "paper_jobs.h"

#include <cstdint>

namespace tendo {

namespace {

constexpr const char* RtfHead = "{\\rtf1\\ansi{\\fonttbl{\\f0 Arial;}}\\f0\\fs20 ";

std::size_t Index(int system) {
    return static_cast<std::size_t>(system - 1);
}

struct UnitTexts {
    const char *manufacturer, *model, *type, *description;
    float capacity, efficiency, price;
};

/// What cooling and heating records share.
void SetUnit(auto& model, const UnitTexts& texts) {
    model.Manuf = texts.manufacturer;
    model.ModelNum = texts.model;
    model.ModelType = texts.type;
    model.ModelDesc = texts.description;
    model.Cap = texts.capacity;
    model.EFF = texts.efficiency;
    model.Labor = "1 Year";
}

void AddCooling(PaperJob& job, int system, const UnitTexts& texts) {
    CLGModelRecord& model = job.project.CLGModelData[Index(system)];
    SetUnit(model, texts);
    model.CompressorWarranty = "10 Years";
    model.Parts = "5 Years";
    job.project.ModelInfo[Index(system)].CLGModelDealerCost = texts.price / 2;
    job.project.ModelInfo[Index(system)].CLGSalePrice = texts.price;
}

void AddHeating(PaperJob& job, int system, const UnitTexts& texts) {
    HTGModelRecord& model = job.project.HTGModelData[Index(system)];
    SetUnit(model, texts);
    model.WarrantyOnHeatExchanger = "Lifetime";
    model.Parts = "10 Years";
    job.project.ModelInfo[Index(system)].HTGModelDealerCost = texts.price / 2;
    job.project.ModelInfo[Index(system)].HTGSalePrice = texts.price;
}

void AddWater(PaperJob& job, int system, const char* model, const char* description, float gallons,
              float price) {
    WHModelRecord& water = job.project.WHModelData[Index(system)];
    water.Manuf = "Frostelm";
    water.ModelNum = model;
    water.ModelDesc = description;
    water.StorVol = gallons;
    water.EFF = 0.62F;
    water.Parts = "6 Years";
    water.Labor = "1 Year";
    job.project.ModelInfo[Index(system)].WHModelDealerCost = price / 2;
    job.project.ModelInfo[Index(system)].WHSalePrice = price;
}

void AddFootnote(PaperJob& job, const char* name, const std::string& text) {
    job.project.ProjectFootNotes.push_back({name, text});
    job.project.gvNumOfFootnotes = static_cast<std::int16_t>(job.project.ProjectFootNotes.size());
}

void TurnOn(PaperJob& job, const std::vector<std::string>& keys) {
    for (const std::string& key : keys)
        job.options.emplace_back(key, "1");
}

PaperJob NewJob(const char* name, const char* title) {
    PaperJob job;
    job.name = name;
    job.project.GPDProjectFormat.Title = title;
    job.project.GPDProjectFormat.DesignedBy = "Robin Vance";
    job.project.GPDProjectFormat.Date = "May 09, 1998";
    job.project.GPDClientFormat = {"Dana and Lee Marlow",
                                   "12 Maple Street",
                                   "Alden, MN 56009",
                                   "(507) 555-0142",
                                   "(507) 555-0143",
                                   "",
                                   1};
    job.project.GPDCompanyFormat = {"Northfield Heating & Air",
                                    "Robin Vance",
                                    "MN-4471",
                                    "480 Foundry Road",
                                    "Alden, MN 56009",
                                    "(507) 555-0100",
                                    "(507) 555-0101",
                                    "",
                                    1};
    return job;
}

void FillUnitRows(CLGModelRecord& model) {
    model.Coil = "10 Years";
    model.WarrantyOnMicropoc = "2 Years";
    model.CondensateRemoval = "PVC Pipe";
    model.Height = 30.9F;
    model.Length = 27;
    model.Width = 27;
    model.Weight = 197;
    model.Soundlevel = 76;
    model.CompressorStartKit = "Available";
    model.CrankcaseHeater = "Included";
    model.HILOPressure = "Hi Included";
    model.SupportForCondenser = "Concrete Pad";
    model.Electrical = "208/230V, 1PH, 30A";
    model.RefrigTubingMaxLen = 100;
    model.AirHandler = "FAH-36S";
}

void FillFurnaceRows(HTGModelRecord& model) {
    model.CondensateRemoval = "PVC Pipe";
    model.Height = 35;
    model.Length = 28.5F;
    model.Width = 17.5F;
    model.Weight = 1160;
    model.Configuration = "Upflow";
    model.HeatExchangerType = "Stainless steel";
    model.IgnitionSystemType = "Electronic Ignition";
    model.ExhaustVentType = "PVC Pipe";
    model.CFMRate = 1010;
}

/// One system with all three models and every row of the proposal.
PaperJob OneSystem() {
    PaperJob job = NewJob("one_system", "Marlow Residence");
    AddCooling(job, 1,
               {"Frostelm", "FA-3614", "Air Conditioner", "Air conditioner, matched coil", 36,
                14.5F, 3310});
    AddHeating(job, 1,
               {"Frostelm", "FG-80-095", "Furnace", "Gas furnace, two stage, variable speed blower",
                80, 95, 2240});
    AddWater(job, 1, "FW-50G", "Gas water heater, 50 gallons", 50, 690);
    FillUnitRows(job.project.CLGModelData[0]);
    FillFurnaceRows(job.project.HTGModelData[0]);
    job.project.WHModelData[0].WHIsHydroAirComponent = 1;
    ModelInfoRecord& info = job.project.ModelInfo[0];
    info.CLGListPrice = 3975;
    info.HTGListPrice = 2690.5F;
    SystemInfoRecord& cost = job.project.SystemInfo[0];
    cost.CLGOpCostforSystem = 412;
    cost.CLGProposedOpCost = 298;
    cost.CLGOpCostSavings = 114;
    cost.HTGOpCostforSystem = 688;
    cost.HTGProposedOpCost = 541;
    cost.HTGOpCostSavings = 147;
    cost.WHOpCostforSystem = 246;
    job.project.SystemTendos.TotalSalePrice = 17265.8F;
    AddFootnote(job, "Terms",
                std::string(RtfHead) +
                    "{\\b Terms.} This proposal is good for thirty days. Half of the price of {\\b "
                    "<$$$$>} is due on signing, the rest when the work passes inspection.\\par}");
    TurnOn(job, ProposalRowKeys());
    job.options.emplace_back("ClientFax", "1");
    job.banner = {{"Description", "Comfort, carefully measured"}, {"CompanyFax", "(507) 555-0101"}};
    return job;
}

/// Two systems, texts as long as their fields take them, comments of several lines, wide spacing.
PaperJob TwoSystems() {
    PaperJob job = NewJob("two_systems", "Great Northern Community Center, Annex B");
    job.project.GPDClientFormat = {"Great Northern Community Center Assn.",
                                   "20017 North County Road Forty Seven East",
                                   "Saint Bartholomew Township, MN 56009",
                                   "(507) 555-0142 extension 4417",
                                   "",
                                   "Attic access from the hall only.\r\nKeep the east gate shut; a "
                                   "dog is in the yard.\r\nCall before ten.",
                                   1};
    job.project.GPDCompanyFormat = {"Vanderhoeven-Castellanos Mechanical Inc.",
                                    "Bartholomew Vanderhoeven-Castellanos",
                                    "MN-4471-REV-2",
                                    "480 Foundry Road",
                                    "Alden, MN 56009",
                                    "(507) 555-0100",
                                    "",
                                    "Crew of two for three days. Power is off for one hour on the "
                                    "first morning.",
                                    1};
    AddCooling(job, 1,
               {"Frostelm Heating and Cooling Products Company", "FH-3015-208-230-1PH-WITH-COIL",
                "Heat Pump", "Heat pump, two stage, matched coil, low noise fan", 30, 15, 5344.1F});
    AddHeating(
        job, 1,
        {"Frostelm Heating and Cooling Products Company", "FH-3015-208-230-1PH-WITH-COIL",
         "Heat Pump", "Heat pump, two stage, matched coil, low noise fan", 28.4F, 8.5F, 1200});
    AddCooling(job, 2,
               {"Frostelm", "FA-3614", "Air Conditioner", "Air conditioner", 36, 14.5F, 3310});
    AddHeating(job, 2, {"Frostelm", "FG-80-095", "Furnace", "Gas furnace", 80, 95, 2240});
    job.project.SystemTendos.TotalSalePrice = 12094.1F;
    TurnOn(job, {"chkCapacity", "chkEfficiency", "chkCompressWarranty", "chkHeatExchWarr",
                 "chkTotalPrice", "CompanyRep", "CompanyID"});
    job.options.emplace_back("txtLineSpacing", "150");
    job.banner = {{"Description",
                   "Heating, cooling, ventilation and controls since nineteen hundred"
                   " and forty-six, in five counties"}};
    return job;
}

/// Three systems in fonts, sizes and colours of the user's own, a dark bar among them.
PaperJob ThreeSystems() {
    PaperJob job = NewJob("three_systems", "Hollis Point Apartments");
    AddCooling(job, 1, {"Frostelm", "FA-2413", "Air Conditioner", "Single stage", 24, 13, 2410});
    AddHeating(job, 1, {"Frostelm", "FG-60-080", "Furnace", "Single stage", 60, 80, 1515});
    AddCooling(job, 2, {"Frostelm", "FA-3614", "Air Conditioner", "Matched coil", 36, 14.5F, 3310});
    AddHeating(job, 2, {"Frostelm", "FG-80-092", "Furnace", "Two stage", 80, 92, 2030});
    AddCooling(job, 3, {"Frostelm", "FH-3615", "Heat Pump", "Two stage", 36, 15, 4120});
    AddHeating(job, 3, {"Frostelm", "FH-3615", "Heat Pump", "Two stage", 34, 8.5F, 950});
    AddWater(job, 3, "FW-40E", "Electric, 40 gallons", 40, 515);
    job.project.WHModelData[2].WHIsHydroAirComponent = 1;
    job.project.SystemTendos.TotalSalePrice = 14850;
    TurnOn(job, {"chkCapacity", "chkEfficiency", "chkTotalPrice"});
    // Colours are blue-green-red: a dark blue bar, a pale green one, dark grey text.
    job.options.insert(job.options.end(), {{"lblMainHeader", "7352862"},
                                           {"lblSecondaryHeader", "14547166"},
                                           {"lblSecondaryHeaderText", "5911600"},
                                           {"lblBodyText", "3355443"},
                                           {"SecondaryHeaderFont", "Times New Roman"},
                                           {"SecondaryHeaderFontSize", "18"},
                                           {"SecondaryHeaderFontItalic", "1"},
                                           {"BodyFont", "Times New Roman"},
                                           {"BodyFontSize", "14"}});
    AddFootnote(job, "Note", "Prices include the removal of the old equipment.");
    return job;
}

/// Four systems in small print, names beyond the Latin letters of the west, prices of a million.
PaperJob FourSystems() {
    PaperJob job = NewJob("four_systems", "Łódź Street “Garden” Houses");
    job.project.GPDClientFormat.Name = "Zażółć Gęślą-Jaźń";
    job.project.GPDClientFormat.Address = "Проспект Мира 7, кв. ½";
    job.project.GPDClientFormat.Comment = "Keep every room at 72 °F; budget about 3 000 € a month.";
    job.project.GPDCompanyFormat.Name = "Šimůnek & Fils — Génie climatique";
    const char* types[] = {"Air Conditioner", "Heat Pump", "Air Conditioner", "Heat Pump"};
    for (int system = 1; system <= 4; ++system) {
        const auto number = static_cast<float>(system);
        AddCooling(
            job, system,
            {"Frostelm", "FA-3614-208-230V-1PH-60HZ", types[system - 1],
             "Rooftop unit with economizer and smoke detectors", 36 * number, 14.5F, 1234567.875F});
        AddHeating(job, system,
                   {"Frostelm", "FG-80-095", "Furnace", "2½-stage furnace, Düsenbrenner", 80, 95,
                    -120.5F});
    }
    job.project.SystemTendos.TotalSalePrice = 4937789.5F;
    AddFootnote(job, "Price",
                std::string(RtfHead) +
                    "\\uc0 The price of <$$$$> is about 5 million \\u8364  or 20 mln "
                    "z\\u322 ; \\ldblquote firm\\rdblquote  until fall.\\par}");
    TurnOn(job, {"chkCapacity", "chkEfficiency", "chkTotalPrice", "chkCompressWarranty"});
    job.options.emplace_back("BodyFontSize", "8");
    return job;
}

/// Five systems with every row: the table goes over three pages.
PaperJob FiveSystems() {
    PaperJob job = NewJob("five_systems", "Quarry Road School");
    for (int system = 1; system <= 5; ++system) {
        const auto number = static_cast<float>(system);
        AddCooling(job, system,
                   {"Frostelm", "FA-3614", "Air Conditioner", "Air conditioner, matched coil",
                    24 + 6 * number, 14.5F, 3000 + 10 * number});
        AddHeating(job, system,
                   {"Frostelm", "FG-80-095", "Furnace", "Gas furnace, two stage", 80, 95,
                    2000 + 10 * number});
        AddWater(job, system, "FW-50G", "Gas water heater", 50, 600 + 10 * number);
        FillUnitRows(job.project.CLGModelData[Index(system)]);
        FillFurnaceRows(job.project.HTGModelData[Index(system)]);
        job.project.SystemInfo[Index(system)].CLGSystemSelected =
            static_cast<std::int16_t>(system - 1);
    }
    TurnOn(job, ProposalRowKeys());
    return job;
}

std::string LongParagraph(const char* head, int sentences) {
    std::string text = std::string("{\\b ") + head + ".} ";
    for (int i = 1; i <= sentences; ++i)
        text += "Clause " + std::to_string(i) +
                " holds for all equipment that the contractor delivers and sets in place. ";
    return text + "\\par ";
}

/// A proposal whose terms run over several pages, with every token.
PaperJob Terms() {
    PaperJob job = NewJob("terms", "Birchwood Clinic");
    AddCooling(job, 1, {"Frostelm", "FA-3614", "Air Conditioner", "Matched coil", 36, 14.5F, 3310});
    job.project.SystemTendos.TotalSalePrice = 8319.01F;
    TurnOn(job, {"chkTotalPrice"});
    AddFootnote(job, "Scope", std::string(RtfHead) + LongParagraph("Scope of work", 30) + "}");
    AddFootnote(job, "Payment",
                std::string(RtfHead) +
                    "{\\b Payment.} The price is <$$$$>.\\par\\pard\\li720\\fi-360 "
                    "\\bullet\\tab One half of <$$$$> on signing of this proposal, by check or by "
                    "bank transfer to the account that stands on the first invoice\\par "
                    "\\bullet\\tab The rest on the day of inspection\\par}");
    AddFootnote(job, "Warranty",
                std::string(RtfHead) + LongParagraph("Warranty", 60) +
                    "<PAGE>Acceptance: ____________________\\par<STOP>Office copy only\\par}");
    AddFootnote(job, "Plain", "A plain note: filters are the owner's to change.");
    job.options.emplace_back("txtStartingPageNo", "5");
    return job;
}

/// Hardly anything filled in: a water heater with a price, no names, no company.
PaperJob MissingData() {
    PaperJob job;
    job.name = "missing_data";
    job.project.ModelInfo[0].WHSalePrice = 690;
    TurnOn(job, {"chkCapacity", "chkTotalPrice", "ClientFax", "CompanyFax"});
    job.options.emplace_back("chkDate", "0");
    job.options.emplace_back("chkPageNumbers", "0");
    return job;
}

/// Large print in double spacing.
PaperJob DoubleSpacing() {
    PaperJob job = NewJob("double_spacing", "Fernhill Cottage");
    AddCooling(job, 1,
               {"Frostelm", "FA-3614", "Air Conditioner", "Air conditioner with matched coil", 36,
                14.5F, 3310});
    AddHeating(job, 1, {"Frostelm", "FG-80-095", "Furnace", "Gas furnace", 80, 95, 2240});
    AddFootnote(job, "Terms",
                "Large print for a client who asked for it. This proposal is good for thirty days "
                "from the day on its title page.");
    TurnOn(job, {"chkCapacity", "chkEfficiency", "chkTotalPrice"});
    job.options.emplace_back("BodyFontSize", "14");
    job.options.emplace_back("txtLineSpacing", "200");
    return job;
}

}  // namespace

const std::vector<std::string>& ProposalRowKeys() {
    static const std::vector<std::string> keys = {
        "chkCapacity",       "chkEfficiency",     "chkCompressWarranty",
        "chkCoilWarranty",   "chkHeatExchWarr",   "chkMicroprocWarr",
        "chkPartsWarranty",  "chkLaborWarranty",  "chkCondRemoval",
        "chkSelectedOpCost", "chkProposedOpCost", "chkOpCostSavings",
        "chkHeight",         "chkLength",         "chkWidth",
        "chkWeight",         "chkSoundLevel",     "chkCompStartKit",
        "chkCrankcaseHeat",  "chkPressureSwitch", "chkCondSupport",
        "chkElectrical",     "chkRefrigTubing",   "chkAirHandler",
        "chkAvailCooling",   "chkConfiguration",  "chkHeatExchType",
        "chkIgnitionType",   "chkExhaustVent",    "chkCFMRate",
        "chkListPrice",      "chkTotalPrice"};
    return keys;
}

const std::vector<PaperJob>& PaperJobs() {
    static const std::vector<PaperJob> jobs = {OneSystem(),   TwoSystems(),   ThreeSystems(),
                                               FourSystems(), FiveSystems(),  Terms(),
                                               MissingData(), DoubleSpacing()};
    return jobs;
}

}  // namespace tendo
