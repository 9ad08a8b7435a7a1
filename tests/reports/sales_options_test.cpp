#include <fstream>
#include <set>
#include <sstream>

#include "plain_page.h"
#include "platform/files/ini_file_handler.h"
#include "platform/files/profile.h"
#include "platform/text/text.h"
#include "report_fixture.h"
#include "reports/report_options.h"
#include "reports/sales_table.h"

namespace tendo {
namespace {

/// A row of a table, the option that shows it and the equipment it needs; "-" for none.
struct KeptRow {
    std::string option, equipment, text;
};

/// What tests/reports/goldens/rows_*.txt tells of the table for a number of systems.
struct KeptTable {
    std::string format, header;
    std::vector<KeptRow> rows;
};

KeptTable ReadTable(int systems) {
    const char* names[] = {"one_system", "two_systems", "three_systems", "four_systems",
                           "five_systems"};
    std::ifstream file(std::string(TENDO_SOURCE_DIR) + "/tests/reports/goldens/rows_" +
                       names[systems - 1] + ".txt");
    EXPECT_TRUE(file.good());
    KeptTable table;
    std::string line;
    while (std::getline(file, line)) {
        std::istringstream words(line);
        KeptRow row;
        words >> row.option;
        if (row.option != "format" && row.option != "header" && row.option != "#")
            words >> row.equipment;
        std::getline(words >> std::ws, row.text);
        if (row.option == "format")
            table.format = row.text;
        else if (row.option == "header")
            table.header = row.text;
        else if (row.option != "#")
            table.rows.push_back(row);
    }
    EXPECT_GE(table.rows.size(), 36U);
    return table;
}

using Names = std::set<std::string>;

Names OptionsOf(const KeptTable& table) {
    Names options;
    for (const KeptRow& row : table.rows)
        if (row.option != "-") options.insert(row.option);
    return options;
}

/// The types of the models, and the groups of rows that such equipment needs.
struct Equipment {
    const char *cooling, *heating;
    Names severalSystems, oneSystem;
};
const Equipment Kinds[] = {
    {"Air Conditioner", "Furnace", {"unit", "furnace"}, {"unit", "furnace"}},
    {"Heat Pump", "Boiler", {"unit", "furnace"}, {"unit", "furnace"}},
    {"Heat Pump", "Heat Pump", {"unit", "heatpump"}, {"unit"}},
    {" Air Conditioner", "", {"unit"}, {"unit"}},
    {"", "Heat Pump", {"unit", "heatpump"}, {"unit"}},
    {"", "Furnace", {"furnace"}, {"furnace"}},
    {"", "Boiler ", {"furnace"}, {"furnace"}},
    {"Furnace", "Air Conditioner", {}, {}},
    {"", "", {}, {}},
};

class SalesOptions : public ReportTest, public testing::WithParamInterface<int> {
  protected:
    SalesOptions() : table(ReadTable(GetParam())) {
        for (int system = 0; system < GetParam(); ++system)
            FillSystem(project, system);
    }

    /// Only one of the systems has the types: any of those shown is enough.
    void Equip(const Equipment& kind, int system) {
        for (auto& model : project.CLGModelData)
            model.ModelType = "";
        for (auto& model : project.HTGModelData)
            model.ModelType = "";
        project.CLGModelData[static_cast<std::size_t>(system)].ModelType = kind.cooling;
        project.HTGModelData[static_cast<std::size_t>(system)].ModelType = kind.heating;
    }

    /// Marks these options of the whole section and no other.
    void MarkOnly(const Names& options) {
        std::vector<std::pair<std::string, std::string>> values;
        for (const ReportOption& option : ReportOptionTable())
            if (option.key)
                values.emplace_back(option.key, options.count(option.key) > 0 ? "1" : "0");
        WriteProfileSection(Ini().AppProfileFileName, "ReportOptions", values);
    }

    std::string Written() {
        PlainPage paper;
        RecordingSurface log(paper);
        PrintSalesTable(log, project);
        std::string text;
        for (const SurfaceCall& call : log.Calls())
            text += CallText(call);
        return text;
    }

    /// The whole log when these options are on and such equipment is shown.
    std::string Expected(const Names& options, const Names& equipment) const {
        std::string text = "TableBorder 3\nAddTable\n  format \"" + table.format +
                           "\"\n  header \"" + table.header + "\"\n";
        for (const KeptRow& row : table.rows)
            if ((row.option == "-" || options.count(row.option) > 0) &&
                (row.equipment == "-" || equipment.count(row.equipment) > 0))
                text += "  " + row.text + "\n";
        text += "  shade 12640511\n";  // 0xC0E0FF, the main bar's colour
        return GetParam() == 1 ? text : text + "Paragraph \"\"\n";
    }

    static const Names& Groups(const Equipment& kind) {
        return GetParam() == 1 ? kind.oneSystem : kind.severalSystems;
    }

    const KeptTable table;
};

TEST_P(SalesOptions, AllOnShowEveryRowThatTheEquipmentHas) {
    for (const Equipment& kind : Kinds) {
        for (int system = 0; system < GetParam(); ++system) {
            Equip(kind, system);
            EXPECT_EQ(Written(), Expected(OptionsOf(table), Groups(kind)))
                << kind.cooling << ", " << kind.heating << " in system " << system + 1;
        }
    }
}

TEST_P(SalesOptions, AllOffLeaveTheFixedRowsOfEachSection) {
    MarkOnly({});
    for (const Equipment& kind : Kinds) {
        Equip(kind, 0);
        EXPECT_EQ(Written(), Expected({}, Groups(kind))) << kind.cooling << ", " << kind.heating;
    }
}

TEST_P(SalesOptions, EachSinglyAddsItsOwnRows) {
    EXPECT_EQ(OptionsOf(table).size(), 32U);
    for (const std::string& option : OptionsOf(table)) {
        MarkOnly({option});
        for (const Equipment& kind : {Kinds[0], Kinds[2]}) {
            Equip(kind, GetParam() - 1);
            EXPECT_EQ(Written(), Expected({option}, Groups(kind))) << option;
        }
    }
}

TEST_P(SalesOptions, EachSinglyOffTakesItsOwnRowsAway) {
    Equip(Kinds[0], 0);
    for (const std::string& option : OptionsOf(table)) {
        Names others = OptionsOf(table);
        others.erase(option);
        MarkOnly(others);
        EXPECT_EQ(Written(), Expected(others, Groups(Kinds[0]))) << option;
    }
}

TEST_P(SalesOptions, ThatAreNoneOfTheTablesChangeNothingInIt) {
    const Names own = OptionsOf(table);
    Equip(Kinds[0], 0);
    for (const ReportOption& option : ReportOptionTable()) {
        if (!option.key || own.count(option.key) > 0) continue;
        MarkOnly({option.key});
        EXPECT_EQ(Written(), Expected({}, {})) << option.key;
    }
}

INSTANTIATE_TEST_SUITE_P(OneToFiveSystems, SalesOptions, testing::Range(1, 6));

}  // namespace
}  // namespace tendo
