#pragma once

#include <optional>
#include <string>
#include <vector>

#include "platform/jet/jet_types.h"

namespace tendo {

/// One material as its table holds it; what is missing is null.
struct BookRow {
    std::optional<std::string> description, partNumber, category;
    std::optional<double> unitCst, listCst;
};

/// Writes a material database with the tables Materials and Categories.
void WriteMaterialDatabase(const std::string& path, const std::vector<BookRow>& rows);

/// Writes a database whose only table, Materials, has these columns of texts.
void WriteTextMaterials(const std::string& path, const std::vector<std::string>& columns,
                        const std::vector<jet::Row>& rows = {});

/// A folder of its own for one test, with a settings store; it serves as the program directory.
/// State, hooks and catalogue are put back afterwards.
class BookFolder {
  public:
    BookFolder();
    ~BookFolder();
    BookFolder(const BookFolder&) = delete;
    BookFolder& operator=(const BookFolder&) = delete;

    std::string Path(const std::string& name) const { return folder_ + name; }

    std::vector<std::string> messages;  // what the load told
    std::vector<std::string> tools;     // what the load enabled

  private:
    std::string folder_;
};

}  // namespace tendo
