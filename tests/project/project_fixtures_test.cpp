#include "project/record_access.h"
#include "project_file_fixture.h"

namespace tendo {
namespace {

/// Files of another writer, which stand beside the sources.
class SharedProjectFiles : public ProjectFileTest {
  protected:
    void SetUp() override {
        ProjectFileTest::SetUp();
        fixtures = std::filesystem::path(TENDO_SOURCE_DIR) / ".." / "shared" / "jet" / "fixtures";
        if (!std::filesystem::exists(fixtures))
            GTEST_SKIP() << "no shared files beside the sources";
    }

    /// A copy of its own of a shared file.
    void Copy(const std::string& name) { WriteFile(file, Bytes((fixtures / name).string())); }

    std::vector<nlohmann::json> Expected(const std::string& table) const {
        std::ifstream lines(fixtures / "expected" / ("project.tdw." + table + ".jsonl"));
        std::vector<nlohmann::json> rows;
        for (std::string line; std::getline(lines, line);)
            rows.push_back(nlohmann::json::parse(line));
        return rows;
    }

    /// Every field that the file holds, compared with the record at a path.
    void Compare(const ProjectRecords& records, const std::string& path,
                 const nlohmann::json& row) const {
        const nlohmann::json record = RecordAt(records, path);
        for (const auto& [name, value] : row.items()) {
            if (!record.contains(name) || name == "ProgramVersion") continue;
            if (value.is_string()) {
                EXPECT_EQ(record[name], TrimmedRight(value.get<std::string>()))
                    << path << "." << name;
            } else {
                EXPECT_EQ(record[name], value) << path << "." << name;
            }
        }
    }

    std::filesystem::path fixtures;
};

TEST_F(SharedProjectFiles, TheProjectLoadsFieldByField) {
    Copy("project.tdw");
    const ProjectRecords records = Loaded(file);
    for (const char* table :
         {"GPDProjectFormat", "GPDClientFormat", "GPDCompanyFormat", "SystemTendos"}) {
        Compare(records, table, Expected(table).at(0));
    }
    const std::pair<const char*, const char*> lists[] = {
        {"ModelInfo", "ModelInfo"},        {"CLGModelData", "CLGModelData"},
        {"HTGModelData", "HTGModelData"},  {"WHModelData", "WHModelData"},
        {"Materials", "ProjectMaterials"}, {"Labor", "ProjectLabor"}};
    for (const auto& [table, list] : lists) {
        const std::vector<nlohmann::json> rows = Expected(table);
        ASSERT_FALSE(rows.empty()) << table;
        for (std::size_t i = 0; i < rows.size(); ++i) {
            Compare(records, std::string(list) + "[" + std::to_string(i) + "]", rows[i]);
        }
    }
    EXPECT_EQ(records.gvNumOfFootnotes, 3);
    EXPECT_EQ(records.ProjectFootNotes[0].Description, Expected("FootNotes")[0]["Description"]);
    EXPECT_EQ(records.ProjectFootNotes[2].Description, "");
    EXPECT_EQ(records.NumOfAccRptFootnotes, 1);
}

TEST_F(SharedProjectFiles, TheProjectSurvivesASave) {
    Copy("project.tdw");
    ProjectRecords records = Loaded(file);
    const nlohmann::json before = RecordsAsJson(records);
    SaveProjectData(file, records);
    EXPECT_EQ(RecordsAsJson(Loaded(file)).flatten(), before.flatten());
}

TEST_F(SharedProjectFiles, OlderAndStrangerLayoutsLoad) {
    Copy("project_nocompanyid.tdw");
    EXPECT_TRUE(Loaded(file).GPDCompanyFormat.CompanyIDNumber.IsBlank());
    Copy("project_noclientfax.tdw");
    EXPECT_TRUE(Loaded(file).GPDClientFormat.Fax.IsBlank());
    EXPECT_FALSE(Loaded(file).GPDClientFormat.Name.IsBlank());
    Copy("project_labor17.tdw");
    EXPECT_GT(Loaded(file).ProjectLabor[15].QtyHrs, 0);
    Copy("project_system6.tdw");
    EXPECT_FALSE(Loaded(file).CLGModelData[0].ModelNum.IsBlank());
}

TEST_F(SharedProjectFiles, AWorkFileWithoutTheCompanyIdCanBeSavedAfterItsLoad) {
    Copy("project_nocompanyid.tdw");
    LoadProjectData(file);
    Project().GPDCompanyFormat.CompanyIDNumber = "CID 7";
    SaveProjectData(file);
    EXPECT_EQ(Loaded(file).GPDCompanyFormat.CompanyIDNumber.Trimmed(), "CID 7");
}

TEST_F(SharedProjectFiles, AMissingModelColumnGoesToTheConversion) {
    Copy("project_nocoil.tdw");
    int conversions = 0;
    Hooks().ConvertOldProject = [&](const std::string&) { ++conversions; };
    LoadProjectData(file);
    EXPECT_EQ(conversions, 1);
}

}  // namespace
}  // namespace tendo
