#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "platform/jet/file_builder.h"

namespace tendo::jet {

struct TablePlan;

/// Figures that are known once the rows are written.
struct DefinitionFigures {
    std::uint32_t rows = 0;
    std::uint32_t lastAutoNumber = 0;
    std::vector<std::uint32_t> differentKeys;  // per real index
};

/// Writes the definition block on its page and on as many more as it needs.
void WriteDefinition(FileBuilder& file, const TablePlan& plan, const DefinitionFigures& figures);

/// The properties of a table's columns as the catalogue keeps them.
std::string PropertyBlock(const TablePlan& plan);

}  // namespace tendo::jet
