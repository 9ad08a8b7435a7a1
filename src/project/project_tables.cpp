#include <span>

#include "project/project_file.h"

namespace tendo {

namespace {

/// One column of the project file: name, type, and the width of a text.
struct ColumnSpec {
    const char* name;
    jet::ColumnType type;
    int size = 0;
};

constexpr jet::ColumnType Integer = jet::ColumnType::Integer;
constexpr jet::ColumnType Single = jet::ColumnType::Single;
constexpr jet::ColumnType Boolean = jet::ColumnType::Boolean;
constexpr jet::ColumnType Text = jet::ColumnType::Text;
constexpr jet::ColumnType Memo = jet::ColumnType::Memo;

constexpr ColumnSpec GPDProjectFormatColumns[] = {{"ProgramVersion", Text, 10},
                                                  {"Title", Text, 40},
                                                  {"DesignedBy", Text, 40},
                                                  {"Date", Text, 40},
                                                  {"DefaultDB", Text, 50},
                                                  {"Comment", Text, 255},
                                                  {"ProjectPrintComment", Integer},
                                                  {"LaborRate", Single},
                                                  {"TaxLabor", Boolean},
                                                  {"SingleProposalType", Boolean},
                                                  {"ImportGPD", Integer},
                                                  {"ImportGPD_FName", Text, 40},
                                                  {"gvNumOfFootnotes", Integer}};

constexpr ColumnSpec GPDClientFormatColumns[] = {{"Name", Text, 40},
                                                 {"Address", Text, 40},
                                                 {"CityStateZip", Text, 40},
                                                 {"Phone", Text, 40},
                                                 {"Fax", Text, 40},
                                                 {"Comment", Text, 255},
                                                 {"ClientPrintComment", Integer},
                                                 {"ClientEmailAddress", Text, 60},
                                                 {"ClientWebPage", Text, 60}};

constexpr ColumnSpec GPDCompanyFormatColumns[] = {{"Name", Text, 40},
                                                  {"Representative", Text, 40},
                                                  {"CompanyIDNumber", Text, 40},
                                                  {"Address", Text, 40},
                                                  {"CityStateZip", Text, 40},
                                                  {"Phone", Text, 40},
                                                  {"Fax", Text, 40},
                                                  {"Comment", Text, 255},
                                                  {"CompanyPrintComment", Integer},
                                                  {"CompanyEmailAddress", Text, 60},
                                                  {"CompanyWebPage", Text, 60}};

constexpr ColumnSpec SystemTendosColumns[] = {
    {"ModelDealerCost", Single},      {"TaxMatDealerCost", Single},
    {"NonTaxDealerCost", Single},     {"LaborDealerCost", Single},
    {"TaxDealerCost", Single},        {"TotalDealerCost", Single},
    {"ModelDealerOverride", Single},  {"TaxMatDealerOverride", Single},
    {"NonTaxDealerOverride", Single}, {"LaborDealerOverride", Single},
    {"TaxDealerOverride", Single},    {"TotalDealerOverride", Single},
    {"ModelGrossMargin", Single},     {"TaxMatGrossMargin", Single},
    {"NonTaxGrossMargin", Single},    {"LaborGrossMargin", Single},
    {"TotalGrossMargin", Single},     {"ModelPriceMarkup", Single},
    {"TaxMatPriceMarkup", Single},    {"NonTaxPriceMarkup", Single},
    {"LaborPriceMarkup", Single},     {"TotalPriceMarkup", Single},
    {"ModelListDiscount", Single},    {"TaxMatListDiscount", Single},
    {"NonTaxListDiscount", Single},   {"LaborListDiscount", Single},
    {"TotalListDiscount", Single},    {"ModelSalePrice", Single},
    {"TaxMatSalePrice", Single},      {"NonTaxSalePrice", Single},
    {"LaborSalePrice", Single},       {"TaxSalePrice", Single},
    {"TotalSalePrice", Single},       {"Profit", Single},
    {"TaxPercentage", Single},        {"ModelLDPrice", Single},
    {"TaxMatLDPrice", Single},        {"NonTaxLDPrice", Single},
    {"LaborLDPrice", Single},         {"TotalLDPrice", Single}};

constexpr ColumnSpec ModelInfoColumns[] = {{"SystemNumber", Integer},
                                           {"CLGModelDealerCost", Single},
                                           {"CLGModelDealerOverride", Single},
                                           {"CLGModelGrossMargin", Single},
                                           {"CLGModelPriceMarkup", Single},
                                           {"CLGModelListDiscount", Single},
                                           {"CLGSalePrice", Single},
                                           {"HTGModelDealerCost", Single},
                                           {"HTGModelDealerOverride", Single},
                                           {"HTGModelGrossMargin", Single},
                                           {"HTGModelPriceMarkup", Single},
                                           {"HTGModelListDiscount", Single},
                                           {"HTGSalePrice", Single},
                                           {"WHModelDealerCost", Single},
                                           {"WHModelDealerOverride", Single},
                                           {"WHModelGrossMargin", Single},
                                           {"WHModelPriceMarkup", Single},
                                           {"WHModelListDiscount", Single},
                                           {"WHSalePrice", Single}};

constexpr ColumnSpec SystemInfoColumns[] = {
    {"SystemNumber", Integer},      {"CLGOpCostforSystem", Single}, {"CLGSystemSelected", Integer},
    {"CLGProposedOpCost", Single},  {"CLGOpCostSavings", Single},   {"HTGOpCostforSystem", Single},
    {"HTGSystemSelected", Integer}, {"HTGProposedOpCost", Single},  {"HTGOpCostSavings", Single},
    {"WHOpCostforSystem", Single},  {"WHSystemSelected", Integer},  {"WHProposedOpCost", Single},
    {"WHOpCostSavings", Single}};

constexpr ColumnSpec CLGModelDataColumns[] = {{"SystemNumber", Integer},
                                              {"DB", Text, 50},
                                              {"ModelNum", Text, 35},
                                              {"ModelType", Text, 50},
                                              {"ModelQty", Integer},
                                              {"ModelDesc", Text, 50},
                                              {"Cap", Single},
                                              {"EFF", Single},
                                              {"HeatingCapacity", Single},
                                              {"AirHandler", Text, 35},
                                              {"Soundlevel", Single},
                                              {"CompressorStartKit", Text, 35},
                                              {"CrankcaseHeater", Text, 35},
                                              {"CondensateRemoval", Text, 35},
                                              {"HILOPressure", Text, 35},
                                              {"SupportForCondenser", Text, 35},
                                              {"Electrical", Text, 35},
                                              {"RefrigTubingMaxLen", Single},
                                              {"Height", Single},
                                              {"Length", Single},
                                              {"Width", Single},
                                              {"Weight", Single},
                                              {"WarrantyOnMicropoc", Text, 35},
                                              {"CompressorWarranty", Text, 35},
                                              {"Parts", Text, 35},
                                              {"Coil", Text, 35},
                                              {"Labor", Text, 35},
                                              {"Notes", Text, 255},
                                              {"Manuf", Text, 255}};

constexpr ColumnSpec HTGModelDataColumns[] = {{"SystemNumber", Integer},
                                              {"DB", Text, 50},
                                              {"ModelNum", Text, 35},
                                              {"ModelType", Text, 50},
                                              {"ModelQty", Integer},
                                              {"ModelDesc", Text, 50},
                                              {"Cap", Single},
                                              {"EFF", Single},
                                              {"ElecBackup", Single},
                                              {"Configuration", Text, 35},
                                              {"Soundlevel", Single},
                                              {"FuelType", Text, 35},
                                              {"HeatExchangerType", Text, 35},
                                              {"CondensateRemoval", Text, 35},
                                              {"IgnitionSystemType", Text, 35},
                                              {"ExhaustVentType", Text, 35},
                                              {"CFMRate", Single},
                                              {"WarrantyOnHeatExchanger", Text, 35},
                                              {"Height", Single},
                                              {"Length", Single},
                                              {"Width", Single},
                                              {"Weight", Single},
                                              {"Parts", Text, 35},
                                              {"Labor", Text, 35},
                                              {"Notes", Text, 255},
                                              {"Manuf", Text, 255}};

constexpr ColumnSpec WHModelDataColumns[] = {{"SystemNumber", Integer},
                                             {"DB", Text, 50},
                                             {"ModelNum", Text, 35},
                                             {"ModelType", Text, 50},
                                             {"ModelQty", Integer},
                                             {"ModelDesc", Text, 50},
                                             {"StorVol", Single},
                                             {"EFF", Single},
                                             {"FuelType", Text, 35},
                                             {"Height", Single},
                                             {"Length", Single},
                                             {"Width", Single},
                                             {"Weight", Single},
                                             {"Parts", Text, 35},
                                             {"Labor", Text, 35},
                                             {"Notes", Text, 255},
                                             {"WHIsHydroAirComponent", Integer},
                                             {"Manuf", Text, 255}};

constexpr ColumnSpec MaterialsColumns[] = {
    {"Accessory", Integer},   {"ItemQty", Integer},    {"Description", Text, 22},
    {"PartNumber", Text, 35}, {"Tax", Integer},        {"UnitCst", Single},
    {"ListCst", Single},      {"GrossMargin", Single}, {"PriceMarkup", Single},
    {"ListDiscount", Single}, {"SalePrice", Single}};

constexpr ColumnSpec LaborColumns[] = {{"QtyHrs", Single},       {"LaborDescription", Text, 50},
                                       {"LaborPerHour", Single}, {"LaborCost", Single},
                                       {"GrossMargin", Single},  {"PriceMarkup", Single},
                                       {"LaborPrice", Single}};

constexpr ColumnSpec FootNotesColumns[] = {{"Name", Text, 255}, {"Description", Memo}};

struct TableSpec {
    const char* name;
    std::span<const ColumnSpec> columns;
};

constexpr TableSpec Tables[] = {
    {"GPDProjectFormat", GPDProjectFormatColumns},
    {"GPDClientFormat", GPDClientFormatColumns},
    {"GPDCompanyFormat", GPDCompanyFormatColumns},
    {"SystemTendos", SystemTendosColumns},
    {"ModelInfo", ModelInfoColumns},
    {"SystemInfo", SystemInfoColumns},
    {"CLGModelData", CLGModelDataColumns},
    {"HTGModelData", HTGModelDataColumns},
    {"WHModelData", WHModelDataColumns},
    {"Materials", MaterialsColumns},
    {"Labor", LaborColumns},
    {"FootNotes", FootNotesColumns},
    {"AccRptFootNotes", FootNotesColumns},
};

jet::TableDefinition DefinitionOf(const TableSpec& spec) {
    jet::TableDefinition definition;
    definition.name = spec.name;
    for (const ColumnSpec& column : spec.columns) {
        jet::Column& added = definition.columns.emplace_back();
        added.name = column.name;
        added.type = column.type;
        added.size = column.size;
    }
    return definition;
}

std::vector<jet::TableDefinition> AllDefinitions() {
    std::vector<jet::TableDefinition> definitions;
    for (const TableSpec& spec : Tables)
        definitions.push_back(DefinitionOf(spec));
    return definitions;
}

}  // namespace

const std::vector<jet::TableDefinition>& ProjectTables() {
    static const std::vector<jet::TableDefinition> tables = AllDefinitions();
    return tables;
}

}  // namespace tendo
