#pragma once

#include <cstdint>
#include <optional>
#include <string>

#include "platform/database/database.h"
#include "project/program_state.h"

namespace tendo {

/// The file of a price book that is being edited. Rows are worked on in memory; `Write` brings them
/// to the disk and leaves alone what other screens and programs have put into the file's other
/// tables meanwhile.
class BookFile {
  public:
    /// RuntimeError as of Database::OpenDatabase.
    explicit BookFile(const std::string& path);

    Database& Tables() { return database_; }
    const std::string& Name() const { return database_.Name(); }
    /// There are changes that are not on disk.
    bool Changed() const { return database_.Changed(); }
    /// Someone else has put other materials or categories into the file since it was read or
    /// written here.
    bool ChangedElsewhere() const;
    /// Writes the changes, if any. A failure leaves the file on disk whole, keeps the changes and
    /// throws.
    void Write();

  private:
    void Remember();
    void TakeOtherTables();

    Database database_;
    std::optional<FileStamp> stamp_;
    std::optional<std::uint64_t> digest_;        // of the price book's own tables on disk
    mutable std::optional<FileStamp> harmless_;  // changed elsewhere, but not the price book
};

}  // namespace tendo
