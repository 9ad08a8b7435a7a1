#pragma once

#include <string>
#include <vector>

namespace tendo {

/// Where a price figure comes from, told to the user who asks.
struct PriceReason {
    /// One of the figures that it hangs together with.
    struct Part {
        std::string name;    // "Gross margin"
        std::string value;   // as its field shows it
        std::string source;  // "entered", "follows from the sale price"
        friend bool operator==(const Part&, const Part&) = default;
    };
    std::string title = {};   // "Gross margin of models"
    std::string figure = {};  // as its field shows it
    std::string rule = {};    // in plain words
    std::string worked = {};  // the rule with its figures; empty when nothing is calculated
    std::string note = {};    // what is particular just now; empty without anything
    std::vector<Part> parts = {};
};

/// The same in lines of text.
std::string PlainText(const PriceReason& reason);

}  // namespace tendo
