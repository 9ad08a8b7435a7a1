#include "package/package_text.h"

#include <array>
#include <cstdio>

namespace tendo::bench {
namespace {

constexpr int Parts = 25, LinesOfPart = 40, NotesOfPart = 3;  // 1,000 lines

constexpr const char* goods[] = {
    "Flexible duct, insulated",          "Copper tubing, soft, cleaned",
    "Register, white, two-way",          "Vent pipe, double wall, type B",
    "Thermostat wire, eight conductors", "Condensate pump with tubing",
    "Galvanized elbow, adjustable"};
constexpr const char* makes[] = {
    "for runs through the attic, with vapor barrier and metal collar",
    "in coils of fifty feet, with caps at both ends, per foot",
    "with opposed blades and a gasket of closed foam, screws included"};
constexpr const char* wordsOfNotes[] = {
    "All equipment, materials and labor named above are included in the price of this proposal.",
    "Removal of the old equipment is included; repair of plaster, drywall and paint is not.",
    "Line voltage is brought to the new equipment by others, at the places shown on the plan.",
    "The work is inspected by the city; its fee and the permit are part of the price.",
    "Half of the price is due on signing, the other half when the work has passed inspection."};

std::string Money(int cents) {
    std::array<char, 32> text{};
    std::snprintf(text.data(), text.size(), "$%d.%02d", cents / 100, cents % 100);
    return text.data();
}

MaterialLine LineOf(int number) {
    const auto index = static_cast<std::size_t>(number);
    const int quantity = number % 12 + 1, unit = 125 + number * 37 % 9000;
    return {"DX-" + std::to_string(1000 + number),
            std::string(goods[index % std::size(goods)]) + ", " + std::to_string(number % 9 + 4) +
                " inch, " + makes[index % std::size(makes)],
            std::to_string(quantity) + ".00", Money(unit), Money(unit * quantity)};
}

Note NoteOf(int number) {
    Note note{{"Note " + std::to_string(number + 1) + ".", true}};
    for (std::size_t i = 0; i < std::size(wordsOfNotes); ++i)
        note.push_back({std::string(" ") + wordsOfNotes[i], i == 3});
    return note;
}

}  // namespace

std::vector<PackagePart> PackageText() {
    std::vector<PackagePart> parts;
    for (int part = 0; part < Parts; ++part) {
        PackagePart made;
        made.heading = "Materials of System " + std::to_string(part + 1);
        for (int line = 0; line < LinesOfPart; ++line)
            made.lines.push_back(LineOf(part * LinesOfPart + line));
        for (int note = 0; note < NotesOfPart; ++note)
            made.notes.push_back(NoteOf(note));
        parts.push_back(made);
    }
    return parts;
}

}  // namespace tendo::bench
