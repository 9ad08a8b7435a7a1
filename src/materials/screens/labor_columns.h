#pragma once

#include <memory>
#include <span>

#include "materials/labor_page.h"
#include "platform/qt/fields.h"
#include "platform/text/input_rules.h"

namespace tendo {

/// A column of the labor screens: how its fields look, what may be typed there, and their help.
struct LaborColumn {
    LaborField field;
    const char* heading;
    const char* spoken;      // "Hours", of "Hours of line 3"
    const char* helpButton;  // control name
    EntryKind kind;
    const char* widest;  // a text that must have room
    const char* range;
    const char* unit;
    const char* helpTitle;
    const char* helpText;
    const char* prompt;  // nullptr where the help takes no entry
};

/// In the order of the eye.
std::span<const LaborColumn> LaborColumns();

/// What may be typed into the fields of a column; nullptr for computed figures.
std::shared_ptr<InputValidator> ValidatorOf(const LaborColumn& column);

}  // namespace tendo
