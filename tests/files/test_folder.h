#pragma once

#include <gtest/gtest.h>

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>

namespace tendo {

/// A folder of its own for one test, removed afterwards.
class TestFolder : public testing::Test {
  protected:
    TestFolder() {
        std::string name = (std::filesystem::temp_directory_path() / "tendo-test-XXXXXX").string();
        folder_ = ::mkdtemp(name.data());
    }
    ~TestFolder() override {
        std::error_code error;
        std::filesystem::remove_all(folder_, error);
    }

    std::string Path(const std::string& name) const { return folder_ + "/" + name; }

    /// Writes as another program would: in place, without any care.
    std::string Put(const std::string& name, const std::string& bytes) const {
        std::ofstream(Path(name), std::ios::binary) << bytes;
        return Path(name);
    }

    std::string Get(const std::string& name) const {
        std::ifstream file(Path(name), std::ios::binary);
        return {std::istreambuf_iterator<char>(file), {}};
    }

    /// How many entries the folder holds, hidden ones too.
    std::ptrdiff_t EntryCount() const {
        return std::distance(std::filesystem::directory_iterator(folder_), {});
    }

    std::string folder_;
};

}  // namespace tendo
