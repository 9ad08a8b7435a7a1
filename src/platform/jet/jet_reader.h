#pragma once

#include <functional>
#include <memory>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "platform/jet/jet_types.h"
#include "platform/jet/not_kept.h"

namespace tendo::jet {

/// A reader of one Jet 3 or Jet 4 file held in memory. Every length and page number is checked,
/// every walk has a bound; damage throws RuntimeError 3343 (not a database, or the file as a whole)
/// or 3078/3343 (one table), whose description names the place. Values are the file's; nothing is
/// guessed.
class Reader {
  public:
    /// Reads the file. RuntimeError: 3024 not found, 70 not readable, 3343 not a Jet 3 or 4 file,
    /// 3031 encrypted. A file with a password alone can be read (see NotKeptOnWrite).
    static Reader OpenFile(std::string_view path);
    /// The same for bytes in memory; `name` stands in messages.
    static Reader OpenBytes(std::string bytes, std::string_view name);

    Reader(Reader&&) noexcept;
    Reader& operator=(Reader&&) noexcept;
    ~Reader();

    int Generation() const;  // 3 or 4
    /// User tables in the order of the catalogue (order of making).
    const std::vector<std::string>& TableNames() const;
    bool HasTable(std::string_view name) const;  // without regard to case
    const TableDefinition& Table(std::string_view name) const;
    NotKept NotKeptOnWrite() const;

    /// Calls `row` for each row in table order with one value per column (order of
    /// Table().columns). `row` returns false to stop. Returns the number of rows given.
    std::size_t ReadRows(std::string_view table,
                         const std::function<bool(std::span<const ValueView>)>& row) const;

    /// All faults found by reading everything, as one line each; empty when the file is whole.
    std::vector<std::string> Check() const;

  private:
    struct File;
    explicit Reader(std::unique_ptr<File> file);
    std::unique_ptr<File> file_;
};

}  // namespace tendo::jet
