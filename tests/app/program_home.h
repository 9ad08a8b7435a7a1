#pragma once

#include <filesystem>
#include <fstream>
#include <string>

#include <gtest/gtest.h>
#include <unistd.h>

#include "app/startup.h"
#include "platform/files/paths.h"
#include "platform/files/profile.h"
#include "project/program_state.h"

namespace tendo {

/// A program directory of its own for each test, with a common directory in it.
class ProgramHome : public testing::Test {
  protected:
    void SetUp() override {
        const auto* test = testing::UnitTest::GetInstance()->current_test_info();
        home = std::filesystem::temp_directory_path() /
               ("tendo-app-" + std::to_string(getpid()) + "-" + test->name());
        std::filesystem::remove_all(home);
        std::filesystem::create_directories(home);
        directory = WithSeparator(home.string());
    }
    void TearDown() override { std::filesystem::remove_all(home); }

    void Write(const std::string& name, const std::string& text) const {
        std::filesystem::create_directories((home / name).parent_path());
        std::ofstream(home / name, std::ios::binary) << text;
    }
    std::string Read(const std::string& name) const {
        std::ifstream file(home / name, std::ios::binary);
        return {std::istreambuf_iterator<char>(file), {}};
    }
    bool Exists(const std::string& name) const { return std::filesystem::exists(home / name); }
    void WriteWinIni(const std::string& key, const std::string& value) const {
        WriteProfileString(directory + "WIN.INI", "Velmo Software", key, value);
    }
    /// All steps from the first up to the logo, with the common directory as it was found.
    void Start() const {
        BeginStartup(
            {.executable = directory + "bin/tendo", .programDirectory = directory, .winIni = ""});
        State().CommonDirectory = WithSeparator(directory + "Common");
        ReadConfiguration();
    }

    std::filesystem::path home;
    std::string directory;
};

}  // namespace tendo
