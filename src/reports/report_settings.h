#pragma once

#include <cstdint>
#include <string>

namespace tendo {

/// The system colour of windows, as profile and print surface hold it.
inline constexpr auto WindowColor = static_cast<std::int32_t>(0x80000005U);

/// Font and colours of one kind of text in reports. Colours in blue-green-red order.
struct ReportTextStyle {
    std::int32_t barColor = 0, textColor = 0;
    std::string fontName;
    std::int16_t fontSize = 0;
    bool fontBold = false, fontItalic = false;
};

/// The report settings that are read once at start-up from section "ReportOptions". All other
/// report options are read when their row is printed.
struct ReportSettings {
    ReportTextStyle MainHeader, SecondaryHeader, Body;
    std::int16_t chkPageNumbers = 1, chkDate = 1, chkGraphs = 1, chkColorGraphs = 1;
    std::int16_t chkPageCount = 0;  // the number of pages behind the page number
    std::int16_t txtStartingPageNo = 1;
    std::int16_t txtLineSpacing = 100;
};

/// The settings in force.
ReportSettings& CurrentReportSettings();
/// Those of the profile.
ReportSettings StoredReportSettings();
/// Puts those of the profile in force.
void ReadReportSettings();
/// The system's own styles and page options.
ReportSettings DefaultReportSettings();

/// The installation's own company, section "Owner" of the profile.
struct OwnerRecord {
    std::string OwnerName, OwnerAddress, OwnerCity, OwnerState, OwnerPhone;
    bool IsEmpty() const;
};
OwnerRecord& Owner();
/// Reads the five texts; done at start-up.
void ReadOwner();
/// Stores the five texts and puts them in force.
void WriteOwner(const OwnerRecord& owner);

/// The program's own logo, in the form that lies in the program directory; empty without one.
std::string StandardLogo();

/// True when the option of section "ReportOptions" is 1, which is also its default.
bool ReportOptionIsOn(const char* key);

}  // namespace tendo
