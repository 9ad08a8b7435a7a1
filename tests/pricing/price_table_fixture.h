#pragma once

#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <limits>
#include <string>
#include <vector>

#include "platform/files/ini_file_handler.h"
#include "pricing/price_table.h"
#include "pricing/system_models.h"
#include "project/program_state.h"

namespace tendo {

/// A price table over its own records, in a program directory of its own.
class PriceTableTest : public testing::Test {
  protected:
    using Field = TableField;

    void SetUp() override {
        const testing::TestInfo& test = *testing::UnitTest::GetInstance()->current_test_info();
        directory = std::filesystem::path(testing::TempDir()) /
                    ("tendo_" + std::string(test.test_suite_name()) + "_" + test.name());
        std::filesystem::remove_all(directory);
        std::filesystem::create_directories(directory / "Common");
        State() = ProgramState{};
        State().CommonDirectory = (directory / "Common").string() + "/";
        Ini().AppProfileFileName = (directory / "Tendo.ini").string();
        table.ShowMessage = [this](const std::string& title, const std::string& text) {
            titles.push_back(title);
            messages.push_back(text);
        };
    }

    void TearDown() override {
        std::filesystem::remove_all(directory);
        State() = ProgramState{};
        Ini().AppProfileFileName.clear();
    }

    /// What the estimator does: types and leaves the field.
    void Enter(Field field, const std::string& text) {
        table.SetText(field, text);
        table.Commit(field);
    }

    /// One cooling model in the first system.
    void GiveModel(float dealerCost) {
        records.ModelInfo[0].CLGModelDealerCost = dealerCost;
        records.CLGModelData[0].ModelQty = 1;
        records.CLGModelData[0].ModelNum = "BC12-036";
        records.SystemTendos.ModelDealerCost = dealerCost;
        records.SystemTendos.ModelDealerOverride = dealerCost;
    }

    std::string MakeFile(const std::string& name) const {
        const std::string path = (directory / name).string();
        std::ofstream(path) << "x";
        return path;
    }

    const std::string& Text(Field field) const { return table.Text(field); }
    SystemTendosRecord& tendos() { return records.SystemTendos; }

    std::filesystem::path directory;
    ProjectRecords records;
    PriceTable table{records};
    std::vector<std::string> titles, messages;
};

}  // namespace tendo
