#include <gtest/gtest.h>

#include <cmath>
#include <map>
#include <set>

#include "materials/material_catalogue.h"
#include "platform/database/database.h"
#include "platform/files/paths.h"
#include "platform/files/safe_file.h"
#include "platform/text/code_page.h"
#include "platform/text/text.h"
#include "pricing/price_table.h"
#include "pricing/relations.h"
#include "project/program_state.h"
#include "project/project_file.h"
#include "project/record_access.h"

namespace tendo {
namespace {

std::string Share(const std::string& name) {
    return std::string(TENDO_BINARY_DIR) + "/share/tendo/" + name;
}

Database Open(const std::string& name) {
    return Database::OpenDatabase(Share(name));
}

/// What every row of a table holds in one column.
std::vector<std::string> Column(Database& database, const std::string& table,
                                const std::string& column) {
    std::vector<std::string> texts;
    for (Recordset rows = database.OpenRecordset(table); !rows.EOF_(); rows.MoveNext())
        texts.push_back(rows.Text(column));
    return texts;
}

std::set<std::string> Distinct(const std::vector<std::string>& texts) {
    return {texts.begin(), texts.end()};
}

TEST(SampleBook, HoldsAContractorsMaterialsInTheirCategories) {
    Database book = Open("tendo.mdb");
    const auto descriptions = Column(book, "Materials", "Description");
    EXPECT_GE(descriptions.size(), 300U);
    EXPECT_EQ(Distinct(descriptions).size(), descriptions.size());
    for (const std::string& description : descriptions)
        EXPECT_LE(CharacterCount(description), 22U) << description;
    const auto categories = Distinct(Column(book, "Categories", "Category"));
    EXPECT_GE(categories.size(), 12U);
    EXPECT_EQ(Distinct(Column(book, "Materials", "Category")), categories);
}

TEST(SampleBook, HasTheIndexOnDescriptionsAndAnEmptyTwin) {
    for (const char* file : {"tendo.mdb", "blank.mdb"}) {
        Database book = Open(file);
        const jet::TableDefinition& materials = book.Table("Materials");
        ASSERT_EQ(materials.indexes.size(), 1U) << file;
        EXPECT_EQ(materials.indexes[0].name, "Key");
        EXPECT_EQ(materials.indexes[0].columns, std::vector<std::string>{"Description"});
        EXPECT_FALSE(materials.indexes[0].primary);
    }
    Database blank = Open("blank.mdb");
    EXPECT_EQ(blank.OpenRecordset("Materials").RecordCount(), 0);
    EXPECT_EQ(blank.OpenRecordset("Categories").RecordCount(), 0);
}

TEST(SampleBook, EveryPriceIsAboveItsCost) {
    Database book = Open("tendo.mdb");
    for (Recordset rows = book.OpenRecordset("Materials"); !rows.EOF_(); rows.MoveNext()) {
        EXPECT_GT(rows.Single("UnitCst"), 0.0F) << rows.Text("Description");
        EXPECT_GT(rows.Single("ListCst"), rows.Single("UnitCst")) << rows.Text("Description");
        EXPECT_FALSE(rows.Text("Part Number").empty()) << rows.Text("Description");
    }
}

TEST(SampleBook, EveryLineOfAListStandsInTheBookAtItsCost) {
    Database book = Open("tendo.mdb");
    std::map<std::string, float> costs;
    for (Recordset rows = book.OpenRecordset("Materials"); !rows.EOF_(); rows.MoveNext())
        costs[rows.Text("Description")] = rows.Single("UnitCst");
    Recordset lines = book.OpenRecordset("Material Lists");
    for (; !lines.EOF_(); lines.MoveNext()) {
        const auto material = costs.find(lines.Text("Description"));
        ASSERT_NE(material, costs.end()) << lines.Text("Description");
        EXPECT_EQ(lines.Single("UnitCst"), material->second);
        EXPECT_GT(lines.Integer("ItemQty"), 0);
    }
    EXPECT_GE(Distinct(Column(book, "Material Lists", "List Name")).size(), 5U);
}

TEST(SampleBook, LaborListsFitOnTheLaborScreen) {
    Database book = Open("tendo.mdb");
    std::map<std::string, int> lines;
    Recordset rows = book.OpenRecordset("Labor Lists");
    for (; !rows.EOF_(); rows.MoveNext()) {
        ++lines[rows.Text("List Name")];
        EXPECT_LE(CharacterCount(rows.Text("Description")), 50U);
        const float cost = rows.Single("Qtyhrs") * rows.Single("LaborPerHour");
        EXPECT_NEAR(rows.Single("LaborPrice"),
                    SaleFromGrossMargin(cost, rows.Single("GrossMargin")), 0.005);
    }
    EXPECT_GE(lines.size(), 5U);
    for (const auto& [name, count] : lines)
        EXPECT_LE(count, SavedLaborRowCount) << name;
}

TEST(SampleBook, TheFootnoteLibraryUsesAllTokensAndHasLegalNames) {
    Database book = Open("tendo.mdb");
    const auto names = Column(book, "FootNotes", "FootNoteName");
    EXPECT_GE(names.size(), 12U);
    EXPECT_EQ(Distinct(names).size(), names.size());
    for (const std::string& name : names)
        EXPECT_FALSE(name.empty() || Contains(name, "'")) << name;
    std::string all;
    for (const std::string& text : Column(book, "FootNotes", "Description")) {
        EXPECT_TRUE(StartsWith(text, "{\\rtf1")) << text;
        all += text;
    }
    for (const char* token : {"<$$$$>", "<PAGE>", "<STOP>"})
        EXPECT_TRUE(Contains(all, token)) << token;
}

TEST(SampleFormats, HaveEveryColumnThatIsSavedAndLoaded) {
    Database formats = Open("Proposals.mdb");
    EXPECT_EQ(formats.Table("ProposalFormats").columns.size(), 62U);
    Recordset rows = formats.OpenRecordset("ProposalFormats");
    EXPECT_TRUE(rows.HasField("SelectedOpCost"));
    EXPECT_TRUE(rows.HasField("PrintGraphs"));
    EXPECT_GE(rows.RecordCount(), 2);
    const auto names = Distinct(Column(formats, "ProposalFormats", "FormatName"));
    for (const std::string& name : Column(formats, "Formats-FootNotes", "FormatName"))
        EXPECT_TRUE(names.count(name)) << name;
}

TEST(SampleTexts, AreThere) {
    for (const char* name : {"README.DOC", "tenlogo.svg", "Common/VELMO.HLP"})
        EXPECT_GT(FileLength(Share(name)), 100U) << name;
}

TEST(SampleTexts, EveryTipFinishesTheSentenceItBegins) {
    int tips = 0;
    for (const std::string& tip : Split(ReadWholeFile(Share("TIPOFDAY.TXT")), '\n')) {
        if (tip.empty()) continue;
        ++tips;
        EXPECT_TRUE(StartsWith(tip, "That ")) << tip;
        EXPECT_TRUE(EndsWith(tip, "?")) << tip;
    }
    EXPECT_GE(tips, 25);
}

class SampleJob : public ::testing::Test {
  protected:
    SampleJob() {
        ResetProjectData(job);
        LoadProjectData(Share("Projects/Maple Street 12.tdw"), job);
    }
    ProjectRecords job;
};

TEST_F(SampleJob, HasThreeSystemsClientAndCompany) {
    EXPECT_EQ(job.GPDProjectFormat.Title.Trimmed(), "Maple Street 12");
    EXPECT_FALSE(job.GPDClientFormat.Name.IsBlank());
    EXPECT_FALSE(job.GPDCompanyFormat.Name.IsBlank());
    EXPECT_EQ(job.CLGModelData[0].ModelNum.Trimmed(), "FA-3614");
    EXPECT_EQ(job.HTGModelData[0].ModelNum.Trimmed(), "FG-80-095");
    EXPECT_EQ(job.WHModelData[0].ModelNum.Trimmed(), "FW-50G");
    EXPECT_EQ(job.CLGModelData[1].ModelType.Trimmed(), "Heat Pump");
    EXPECT_EQ(job.HTGModelData[1].ModelType.Trimmed(), "Heat Pump");
    EXPECT_EQ(job.CLGModelData[2].ModelType.Trimmed(), "Air Conditioner");
    EXPECT_EQ(job.HTGModelData[2].ModelType.Trimmed(), "Boiler");
    EXPECT_TRUE(job.CLGModelData[3].ModelNum.IsBlank());
    for (const CLGModelRecord& model : job.CLGModelData)
        EXPECT_EQ(model.DB.Trimmed(), "Frostelm.mdb");
}

TEST_F(SampleJob, ItsMaterialRowsAreTheSumsOfItsMaterials) {
    double taxable = 0, taxableCost = 0, exempt = 0, accessories = 0;
    for (const MaterialRow& row : job.ProjectMaterials) {
        if (row.ItemQty <= 0) continue;
        if (row.Accessory != 0)
            accessories += row.SalePrice;
        else
            (row.Tax == 1 ? taxable : exempt) += row.SalePrice;
        if (row.Accessory == 0 && row.Tax == 1) taxableCost += double{row.UnitCst} * row.ItemQty;
    }
    EXPECT_NEAR(job.SystemTendos.TaxMatSalePrice, taxable, 0.005);
    EXPECT_NEAR(job.SystemTendos.TaxMatDealerCost, taxableCost, 0.005);
    EXPECT_NEAR(job.SystemTendos.NonTaxSalePrice, exempt, 0.005);
    EXPECT_GT(exempt, 0);
    EXPECT_GT(accessories, 0);
}

TEST_F(SampleJob, ItsLaborRowIsTheSumOfItsLines) {
    double cost = 0, price = 0;
    for (const LaborRow& row : job.ProjectLabor) {
        cost += row.LaborCost;
        price += row.LaborPrice;
    }
    EXPECT_NEAR(job.SystemTendos.LaborDealerCost, cost, 0.005);
    EXPECT_NEAR(job.SystemTendos.LaborSalePrice, price, 0.005);
}

TEST_F(SampleJob, ItsTotalIsSubTotalAndTax) {
    const SystemTendosRecord& table = job.SystemTendos;
    const double taxable =
        double{table.ModelSalePrice} + table.TaxMatSalePrice + table.LaborSalePrice;
    EXPECT_NEAR(table.TaxSalePrice, std::round(taxable * 8.25) / 100, 0.011);
    EXPECT_NEAR(table.TotalSalePrice, taxable + table.NonTaxSalePrice + table.TaxSalePrice, 0.011);
    const double subTotal = taxable + table.NonTaxSalePrice;
    EXPECT_NEAR(table.Profit, subTotal - table.TotalDealerCost, 0.011);
    EXPECT_GT(table.TotalSalePrice, 10000.0F);
    EXPECT_LT(table.TotalSalePrice, 20000.0F);
    EXPECT_GT(table.Profit, 0.0F);
}

TEST_F(SampleJob, LookingAtItsPriceTableChangesNothing) {
    const nlohmann::json before = RecordsAsJson(job);
    PriceTable table(job);
    table.Open();
    table.Close();
    const nlohmann::json after = RecordsAsJson(job);
    EXPECT_EQ(after.at("SystemTendos"), before.at("SystemTendos"));
    EXPECT_EQ(after, before);
}

TEST_F(SampleJob, ItsModelRowWeighsEveryModel) {
    double cost = 0;
    for (const ModelInfoRecord& info : job.ModelInfo)
        cost += info.CLGModelDealerCost + info.HTGModelDealerCost + info.WHModelDealerCost;
    EXPECT_NEAR(job.SystemTendos.ModelDealerCost, cost, 0.005);
    // A margin of 25 percent: cost / 0.75.
    EXPECT_NEAR(job.SystemTendos.ModelSalePrice, cost / 0.75, 0.005);
    EXPECT_EQ(job.SystemTendos.ModelGrossMargin, 25.0F);
}

TEST_F(SampleJob, CarriesFootnotesForBothReports) {
    EXPECT_EQ(job.gvNumOfFootnotes, 3);
    EXPECT_EQ(job.NumOfAccRptFootnotes, 2);
    EXPECT_TRUE(Contains(job.ProjectFootNotes[1].Description, "<$$$$>"));
}

TEST_F(SampleJob, EveryMaterialMatchesTheBook) {
    Database book = Open("tendo.mdb");
    std::map<std::string, float> costs;
    for (Recordset rows = book.OpenRecordset("Materials"); !rows.EOF_(); rows.MoveNext())
        costs[rows.Text("Description")] = rows.Single("UnitCst");
    int used = 0;
    for (const MaterialRow& row : job.ProjectMaterials) {
        if (row.ItemQty <= 0) continue;
        ++used;
        EXPECT_EQ(costs[row.Description.Trimmed()], row.UnitCst) << row.Description.Trimmed();
    }
    EXPECT_GE(used, 20);
}

}  // namespace
}  // namespace tendo
