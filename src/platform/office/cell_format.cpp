#include "platform/office/cell_format.h"

#include <array>
#include <utility>

namespace tendo {

namespace {

constexpr std::array<std::pair<unsigned, unsigned>, 4> DateFormats{
    {{14, 22}, {27, 36}, {45, 47}, {50, 58}}};
constexpr double DaysTo1904 = 1462;
constexpr double FebruaryThe29th = 60;  // of 1900, as stored

/// The position behind what a quote, a bracket or a backslash opens; `at` itself for anything
/// else.
std::size_t PassOver(std::string_view code, std::size_t at) {
    switch (code[at]) {
        case '\\':
        case '_':
        case '*':
            return at + 2;
        case '"': {
            const std::size_t close = code.find('"', at + 1);
            return close == code.npos ? close : close + 1;
        }
        case '[': {
            // "[h]", "[mm]" count hours that pass a day; "[Red]", "[$-409]" are colours and places.
            const std::size_t close = code.find(']', at);
            if (close == code.npos) return close;
            const std::string_view inside = code.substr(at + 1, close - at - 1);
            const bool time = inside.find_first_not_of("hHmMsS") == inside.npos && !inside.empty();
            return time ? at : close + 1;
        }
        default:
            return at;
    }
}

}  // namespace

bool IsBuiltInDateFormat(unsigned format) {
    for (const auto& [first, last] : DateFormats)
        if (format >= first && format <= last) return true;
    return false;
}

bool IsDateFormat(std::string_view code) {
    for (std::size_t at = 0; at < code.size();) {
        const std::size_t behind = PassOver(code, at);
        if (behind > code.size()) return false;  // never closed
        if (behind > at) {
            at = behind;
            continue;
        }
        if (code[at] == ';') return false;  // what follows is for negative numbers
        if (std::string_view("dDmMyYhHsS").find(code[at]) != std::string_view::npos) return true;
        ++at;
    }
    return false;
}

double DateSerial(double stored, bool from1904) {
    if (from1904) return stored + DaysTo1904;
    return stored >= 1 && stored < FebruaryThe29th ? stored + 1 : stored;
}

std::string_view ErrorName(unsigned code) {
    static constexpr std::array<std::pair<unsigned, std::string_view>, 7> Names{{{0x00, "#NULL!"},
                                                                                 {0x07, "#DIV/0!"},
                                                                                 {0x0F, "#VALUE!"},
                                                                                 {0x17, "#REF!"},
                                                                                 {0x1D, "#NAME?"},
                                                                                 {0x24, "#NUM!"},
                                                                                 {0x2A, "#N/A"}}};
    for (const auto& [number, name] : Names)
        if (number == code) return name;
    return "#ERROR!";
}

}  // namespace tendo
