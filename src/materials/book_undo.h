#pragma once

#include <cstdint>
#include <string>
#include <utility>
#include <vector>

#include "platform/database/database.h"

namespace tendo {

/// What one delete took out of a price book.
struct DeletedThings {
    std::vector<jet::Row> materials;   // whole rows
    std::vector<jet::Row> categories;  // whole rows
    /// Materials that lost their category, by bookmark, with its name.
    std::vector<std::pair<std::int64_t, std::string>> cleared;
};

/// All columns of the current row.
jet::Row WholeRow(const Recordset& rows);

/// The deletes of a price book, the last one first to come back.
class BookUndo {
  public:
    bool IsEmpty() const { return steps_.empty(); }
    void Remember(DeletedThings deleted);
    void Forget() { steps_.clear(); }
    /// Puts the last delete's rows back into the tables. The bookmark of the first material that
    /// came back or got its category again; 0 without any. RuntimeError when it fails; what was
    /// deleted is still remembered then.
    std::int64_t PutBack(Database& tables);

  private:
    std::vector<DeletedThings> steps_;
};

}  // namespace tendo
