#include "jet_files.h"

#include <filesystem>

namespace tendo::jet {

namespace {

struct Own {
    Value operator()(std::string_view text) const { return std::string(text); }
    template <class Other>
    Value operator()(Other value) const {
        return value;
    }
};

}  // namespace

std::string SharedJetFile(const std::string& name) {
    const std::string path = std::string(TENDO_SOURCE_DIR) + "/../shared/jet/" + name;
    return std::filesystem::exists(path) ? path : std::string();
}

Row Owned(std::span<const ValueView> row) {
    Row owned;
    for (const ValueView& value : row)
        owned.push_back(std::visit(Own{}, value));
    return owned;
}

Rows AllRows(const Reader& reader, const std::string& table) {
    Rows rows;
    reader.ReadRows(table, [&](std::span<const ValueView> row) {
        rows.push_back(Owned(row));
        return true;
    });
    return rows;
}

}  // namespace tendo::jet
