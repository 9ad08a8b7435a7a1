#pragma once

#include <string>
#include <vector>

#include "project/project_records.h"

namespace tendo {

/// One of the five systems at a glance.
struct SystemCard {
    enum class Side { Cooling, Heating, Water };
    struct Line {
        Side side;
        std::string text;  // "FA-3614 · 36.0 MBH", "2 × " before it for more than one
    };
    std::vector<Line> models;
    std::string price;  // the models' sale prices added up, as money; "empty" without a model
};

/// `system` is 0 to 4.
SystemCard SystemCardOf(const ProjectRecords& records, int system);

}  // namespace tendo
