#pragma once

#include <string>
#include <vector>

namespace tendo::bench {

/// The text of a report package of about 50 pages with 1,000 materials, the same for every program
/// that sets it: parts with a heading, a table whose header row is repeated on each page, and notes
/// in which some words are bold.
struct MaterialLine {
    std::string number, description, quantity, unitCost, cost;
};
struct NoteRun {
    std::string text;
    bool bold = false;
};
using Note = std::vector<NoteRun>;
struct PackagePart {
    std::string heading;
    std::vector<MaterialLine> lines;
    std::vector<Note> notes;
};

inline constexpr const char* TableHeads[] = {"Part Number", "Description", "Quantity", "Unit Cost",
                                             "Cost"};

std::vector<PackagePart> PackageText();

}  // namespace tendo::bench
