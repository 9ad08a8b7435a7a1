#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "platform/qt/fields.h"

namespace tendo {

/// The tabs of the general project data.
enum class GPDTab { Project, Client, Company };

/// One text of the general records and the field it stands in. Reading gives it trimmed, writing
/// cuts it at its width.
struct GPDText {
    GPDTab tab;
    FieldSpec spec;
    std::string (*read)();
    void (*write)(std::string_view text);
    bool memo = false;  // several lines
};

/// One tick box, 0 or 1 in its record.
struct GPDCheck {
    GPDTab tab;
    const char* name;
    const char* caption;
    std::int16_t& (*record)();
};

/// In the order of the tabs and of the eye.
const std::vector<GPDText>& GPDTexts();
const std::vector<GPDCheck>& GPDChecks();

/// The default database of a project that names none: "DefaultManufacturer" of WIN.INI, or
/// "Frostelm.mdb".
std::string StandardDefaultDB();
/// Gives each model record without a database the project's default one. True when there was such a
/// record.
bool FillBlankModelDatabases();
/// The project's rate of labor, and of each labor line that has no hours yet.
void SetLaborRate(float rate);

}  // namespace tendo
