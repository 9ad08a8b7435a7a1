#include "report_fixture.h"

#include <unistd.h>

#include <fstream>
#include <sstream>

#include "platform/files/ini_file_handler.h"
#include "platform/files/profile.h"
#include "platform/text/date_text.h"
#include "platform/text/text.h"
#include "project/program_state.h"
#include "reports/sales_rows.h"

namespace tendo {

namespace {

std::string ValueText(const CallValue& value) {
    if (const auto* flag = std::get_if<bool>(&value)) return *flag ? "true" : "false";
    if (const auto* number = std::get_if<std::int32_t>(&value)) return std::to_string(*number);
    return "\"" + std::get<std::string>(value) + "\"";
}

std::string Numbered(const char* name, int number) {
    return std::string(name) + " " + std::to_string(number);
}

void FillCooling(CLGModelRecord& model, int n) {
    const auto number = static_cast<float>(n);
    model.Manuf = Numbered("Clgman", n);
    model.ModelNum = "CN-" + std::to_string(n);
    model.ModelType = "Air Conditioner";
    model.ModelDesc = Numbered("Clg unit", n);
    model.Cap = 30 + number;
    model.EFF = 10 + number;
    model.CompressorWarranty = Numbered("Compw", n);
    model.Coil = Numbered("Coilw", n);
    model.WarrantyOnMicropoc = Numbered("Micro", n);
    model.Parts = Numbered("Clgparts", n);
    model.Labor = Numbered("Clglabor", n);
    model.CondensateRemoval = Numbered("Clgcond", n);
    model.Height = 40 + number;
    model.Length = 50 + number;
    model.Width = 60 + number;
    model.Weight = 1200 + number;
    model.Soundlevel = 70 + number;
    model.CompressorStartKit = Numbered("Start", n);
    model.CrankcaseHeater = Numbered("Crank", n);
    model.HILOPressure = Numbered("Press", n);
    model.SupportForCondenser = Numbered("Support", n);
    model.Electrical = Numbered("Elec", n);
    model.RefrigTubingMaxLen = 80 + number;
    model.AirHandler = Numbered("Handler", n);
}

void FillHeating(HTGModelRecord& model, int n) {
    const auto number = static_cast<float>(n);
    model.Manuf = Numbered("Htgman", n);
    model.ModelNum = "HN-" + std::to_string(n);
    model.ModelType = "Furnace";
    model.ModelDesc = Numbered("Htg unit", n);
    model.Cap = 100 + number;
    model.EFF = 90 + number;
    model.WarrantyOnHeatExchanger = Numbered("Exch", n);
    model.Parts = Numbered("Htgparts", n);
    model.Labor = Numbered("Htglabor", n);
    model.CondensateRemoval = Numbered("Htgcond", n);
    model.Height = 140 + number;
    model.Length = 150 + number;
    model.Width = 160 + number;
    model.Weight = 170 + number;
    model.Soundlevel = 180 + number;
    model.Configuration = Numbered("Config", n);
    model.HeatExchangerType = Numbered("Exchtype", n);
    model.IgnitionSystemType = Numbered("Ignite", n);
    model.ExhaustVentType = Numbered("Vent", n);
    model.CFMRate = 1200.5F + number;
}

void FillWater(WHModelRecord& model, int n) {
    const auto number = static_cast<float>(n);
    model.Manuf = Numbered("Whman", n);
    model.ModelNum = "WN-" + std::to_string(n);
    model.ModelDesc = Numbered("Wh unit", n);
    model.StorVol = 200 + number;
    model.EFF = 0.5F + number;
    model.Parts = Numbered("Whparts", n);
    model.Labor = Numbered("Whlabor", n);
    model.Height = 240 + number;
    model.Length = 250 + number;
    model.Width = 260 + number;
    model.Weight = 270 + number;
}

void FillPrices(ModelInfoRecord& info, int n) {
    const auto number = static_cast<float>(n);
    info.CLGModelDealerCost = 1000 + number;
    info.CLGListPrice = 3000 + number;
    info.CLGSalePrice = 2000 + number;
    info.HTGModelDealerCost = 4000 + number;
    info.HTGListPrice = 6000 + number;
    info.HTGSalePrice = 5000 + number;
    info.WHModelDealerCost = 700 + number;
    info.WHListPrice = 900 + number;
    info.WHSalePrice = 800 + number;
}

void FillCosts(SystemInfoRecord& info, int n) {
    const auto number = static_cast<float>(n);
    info.CLGSystemSelected = info.HTGSystemSelected = info.WHSystemSelected =
        static_cast<std::int16_t>(n - 1);
    info.CLGOpCostforSystem = 310 + number;
    info.CLGProposedOpCost = 320 + number;
    info.CLGOpCostSavings = 330 + number;
    info.HTGOpCostforSystem = 410 + number;
    info.HTGProposedOpCost = 420 + number;
    info.HTGOpCostSavings = 430 + number;
    info.WHOpCostforSystem = 510 + number;
    info.WHProposedOpCost = 520 + number;
    info.WHOpCostSavings = 530 + number;
}

std::filesystem::path NewFolder() {
    static int number = 0;
    const auto folder =
        std::filesystem::temp_directory_path() /
        ("tendo_reports_" + std::to_string(getpid()) + "_" + std::to_string(++number));
    std::filesystem::create_directories(folder);
    return folder;
}

std::string ReadGolden(const std::string& name) {
    std::ifstream file(std::string(TENDO_SOURCE_DIR) + "/tests/reports/goldens/" + name);
    EXPECT_TRUE(file.good()) << name;
    std::string text, line;
    while (std::getline(file, line))
        if (!StartsWith(line, "#")) text += line + "\n";
    return text;
}

void ExpectSameLines(const std::string& name, const std::string& expectedText,
                     const std::string& gotText) {
    std::istringstream expected(expectedText), got(gotText);
    std::string expectedLine, gotLine;
    for (int line = 1; std::getline(expected, expectedLine); ++line) {
        ASSERT_TRUE(std::getline(got, gotLine)) << name << " ends early at call line " << line;
        ASSERT_EQ(gotLine, expectedLine) << name << ", call line " << line;
    }
    EXPECT_FALSE(std::getline(got, gotLine)) << name << " has more: " << gotLine;
}

}  // namespace

std::string CallText(const SurfaceCall& call) {
    if (call.op != "AddTable") {
        std::string text = call.op;
        for (const auto& [name, value] : call.fields)
            text += " " + ValueText(value);
        return text + "\n";
    }
    std::string text = "AddTable\n";
    for (const auto& [name, value] : call.fields) {
        if (name != "body") {
            text += "  " + name + " " + ValueText(value) + "\n";
            continue;
        }
        std::string rows = std::get<std::string>(value);
        text += "  " + Replaced(rows, ";", ";\n  ");
        text.resize(text.size() - 2);
    }
    return text;
}

void FillSystem(ProjectRecords& project, int system) {
    const auto index = static_cast<std::size_t>(system);
    FillCooling(project.CLGModelData[index], system + 1);
    FillHeating(project.HTGModelData[index], system + 1);
    FillWater(project.WHModelData[index], system + 1);
    FillPrices(project.ModelInfo[index], system + 1);
    FillCosts(project.SystemInfo[index], system + 1);
}

ProjectRecords SampleProject() {
    ProjectRecords project;
    project.GPDProjectFormat.Title = "Marlow Residence";
    project.GPDProjectFormat.DesignedBy = "Robin Vance";
    project.GPDProjectFormat.Date = "May 09, 1998";
    project.GPDClientFormat = {"Dana Marlow",
                               "12 Maple Street",
                               "Alden, MN 56009",
                               "(507) 555-0142",
                               "(507) 555-0143",
                               "",
                               1};
    project.GPDCompanyFormat = {"Northfield Air",
                                "Robin Vance",
                                "MN-4471",
                                "480 Foundry Rd",
                                "Alden, MN 56007",
                                "(507) 555-0100",
                                "(507) 555-0101",
                                "",
                                1};
    project.SystemTendos.TotalSalePrice = 17265.8F;
    return project;
}

ReportTest::ReportTest() : folder(NewFolder()), project(SampleProject()) {
    Ini().AppProfileFileName = (folder / "Tendo.ini").string();
    State().ProgramDirectory = folder.string() + "/";
    SetToday(ReadIsoDate("1998-05-09"));
    Owner() = {"Northfield Heating", "480 Foundry Road", "Alden", "MN 56009", "(507) 555-0199"};
    ReadReportSettings();
}

ReportTest::~ReportTest() {
    SetToday(std::nullopt);
    std::filesystem::remove_all(folder);
}

void ReportTest::Option(const std::string& key, const std::string& value) {
    WriteProfileString(Ini().AppProfileFileName, "ReportOptions", key, value);
    ReadReportSettings();
}

void ReportTest::BannerOption(const std::string& key, const std::string& value) {
    WriteProfileString(Ini().AppProfileFileName, "BannerOptions", key, value);
}

void ReportTest::SwitchOffAllRows() {
    std::vector<std::pair<std::string, std::string>> values;
    for (const SalesRow& row : SalesRows())
        if (row.option) values.emplace_back(row.option, "0");
    WriteProfileSection(Ini().AppProfileFileName, "ReportOptions", values);
}

std::string ReportTest::MakePicture(const std::string& name, int width, int height) {
    std::string bytes("GIF89a");
    for (const int side : {width, height}) {
        bytes += static_cast<char>(side & 0xFF);
        bytes += static_cast<char>(side >> 8);
    }
    const std::string path = (folder / name).string();
    std::ofstream(path, std::ios::binary) << bytes;
    return path;
}

std::string ReportTest::CallsText(const RecordingSurface& log) const {
    std::string text;
    for (const SurfaceCall& call : log.Calls())
        text += CallText(call);
    return Replaced(text, folder.string(), "FOLDER");
}

void ReportTest::ExpectGolden(const std::string& name, const RecordingSurface& log) const {
    ExpectSameLines(name, ReadGolden(name), CallsText(log));
}

void ReportTest::ExpectGoldenWithout(const std::string& name,
                                     const std::set<std::string>& off) const {
    std::istringstream lines(ReadGolden(name));
    std::string kept, option, call;
    while (lines >> option && std::getline(lines >> std::ws, call))
        if (off.count(option) == 0) kept += call + "\n";
    ExpectSameLines(name, kept, CallsText());
}

std::vector<std::string> ReportTest::ValuesOf(const std::string& op) const {
    std::vector<std::string> values;
    for (const SurfaceCall& call : surface.Calls()) {
        if (call.op != op) continue;
        const std::string text = ValueText(call.fields.at(0).second);
        values.push_back(StartsWith(text, "\"") ? text.substr(1, text.size() - 2) : text);
    }
    return values;
}

const SurfaceCall& ReportTest::LastTable() const {
    for (auto call = surface.Calls().rbegin(); call != surface.Calls().rend(); ++call)
        if (call->op == "AddTable") return *call;
    ADD_FAILURE() << "no table was written";
    static const SurfaceCall none{"", {{"", ""}, {"", ""}, {"", ""}}};
    return none;
}

std::vector<std::string> ReportTest::LastTableRows() const {
    std::vector<std::string> rows =
        Split(std::get<std::string>(LastTable().fields.at(2).second), ';');
    EXPECT_TRUE(rows.back().empty()) << "the last row isn't closed";
    rows.pop_back();
    return rows;
}

int ReportTest::CountOf(const std::string& op) const {
    int count = 0;
    for (const SurfaceCall& call : surface.Calls())
        count += call.op == op ? 1 : 0;
    return count;
}

}  // namespace tendo
