#pragma once

#include <cstdint>
#include <filesystem>
#include <map>
#include <string>
#include <vector>

#include "platform/database/database.h"
#include "project/program_state.h"

namespace tendo {

/// A folder of its own for one test, removed with it; it serves as the common directory.
class CommonFolder {
  public:
    CommonFolder();
    ~CommonFolder();
    CommonFolder(const CommonFolder&) = delete;
    CommonFolder& operator=(const CommonFolder&) = delete;

    /// The full name of a file in the folder.
    std::string Path(const std::string& name) const { return folder_ + name; }

  private:
    std::string folder_;
    std::string formerCommon_;
};

/// Column values of a row by name; a column that isn't named stays null.
using NamedRow = std::map<std::string, jet::Value>;

/// What a small model database is made of. Columns are "Name:type" with the types b (Boolean), t
/// (text of 35), w (text of 255), c (currency), s (Single), f (Double), i (Integer) and d (date).
struct SmallTable {
    std::string name;
    std::vector<std::string> columns;
    std::vector<NamedRow> rows;
};

/// The five model tables and the header, without rows, with the columns that are read and shown.
std::vector<SmallTable> EmptyModelTables();
SmallTable& TableNamed(std::vector<SmallTable>& tables, const std::string& name);

/// Writes the tables into a new file.
void WriteModelDatabase(const std::string& path, const std::vector<SmallTable>& tables);

/// An amount of dollars as a currency column holds it.
std::int64_t Dollars(double amount);

/// One air conditioner, "MODEL" with its capacity, SEER, cost and list price.
NamedRow AirConditioner(const std::string& model, double capacity, double seer, double cost,
                        double list);

}  // namespace tendo
