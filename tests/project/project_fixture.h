#pragma once

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>

#include "platform/files/ini_file_handler.h"
#include "platform/text/runtime_error.h"
#include "project/program_state.h"
#include "project/project_records.h"

namespace tendo {

/// A fresh program: first records, no hooks, directories of its own.
class ProjectTest : public testing::Test {
  protected:
    void SetUp() override {
        const testing::TestInfo& test = *testing::UnitTest::GetInstance()->current_test_info();
        directory = std::filesystem::path(testing::TempDir()) /
                    ("tendo_" + std::string(test.test_suite_name()) + "_" + test.name());
        std::filesystem::remove_all(directory);
        std::filesystem::create_directories(directory / "Projects");
        Restart();
        State().ProgramVersionText = "5.0.0";
        State().ProjectsDirectory = (directory / "Projects").string() + "/";
        State().WinIniFile = PathOf("WIN.INI");
        Ini().AppProfileFileName = PathOf("Tendo.ini");
    }

    void TearDown() override {
        Restart();
        Ini().AppProfileFileName.clear();
        std::filesystem::remove_all(directory);
    }

    static void Restart() {
        State() = ProgramState{};
        Hooks() = ProjectHooks{};
        Project() = ProjectRecords{};
    }

    std::string PathOf(const std::string& name) const { return (directory / name).string(); }

    static void WriteFile(const std::string& path, const std::string& bytes) {
        std::ofstream(path, std::ios::binary) << bytes;
    }

    static std::string Bytes(const std::string& path) {
        std::ifstream file(path, std::ios::binary);
        return {std::istreambuf_iterator<char>(file), {}};
    }

    /// The number of the RuntimeError that a step throws; 0 when it throws none.
    template <class Step>
    static int ErrorOf(Step step) {
        try {
            step();
        } catch (const RuntimeError& error) {
            return error.Number();
        }
        return 0;
    }

    std::filesystem::path directory;
};

}  // namespace tendo
