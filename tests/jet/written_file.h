#pragma once

#include <string>
#include <vector>

#include "jet_files.h"
#include "platform/jet/jet_writer.h"

namespace tendo::jet {

/// A table with rows of its own, for the writer.
TableToWrite TableOf(TableDefinition definition, Rows rows);

/// A column; `size` counts for Text and Binary.
Column ColumnOf(const std::string& name, ColumnType type, int size = 0);

/// The written file read back. Fails the test when our own check finds a fault, or (where it is
/// there) the independent checker.
Reader WrittenAndChecked(const std::vector<TableToWrite>& tables);

/// Runs a command of the system; gives its output, and its exit status in `status`.
std::string OutputOf(const std::string& command, int* status = nullptr);

/// A file below the folder of temporary files, removed at the end.
class TemporaryFile {
  public:
    TemporaryFile(const std::string& name, const std::string& bytes);
    ~TemporaryFile();
    TemporaryFile(const TemporaryFile&) = delete;
    TemporaryFile& operator=(const TemporaryFile&) = delete;
    const std::string& Path() const { return path_; }

  private:
    std::string path_;
};

}  // namespace tendo::jet
