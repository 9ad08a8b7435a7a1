#pragma once

#include <string>
#include <vector>

namespace tendo {

/// One key of the program's profile with its default in the form that the file holds.
struct ProfileDefault {
    const char* section;
    const char* key;
    const char* value;
};

/// Every key of the program's profile that has a fixed default, section by section. A key whose
/// default depends on the place of the program ("txtTitlePageLogo") isn't among them: its readers
/// give it.
const std::vector<ProfileDefault>& ProfileDefaults();

/// Writes all of them to a profile file, one write a section. The options screen's sections come
/// first.
void WriteProfileDefaults(const std::string& file);

}  // namespace tendo
