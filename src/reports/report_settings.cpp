#include "reports/report_settings.h"

#include <array>
#include <utility>
#include <vector>

#include "platform/files/ini_file_handler.h"
#include "platform/files/profile.h"

namespace tendo {

namespace {

constexpr const char* Options = "ReportOptions";
constexpr const char* OwnerSection = "Owner";

struct OwnerKey {
    const char* key;
    std::string OwnerRecord::*text;
};
constexpr std::array OwnerKeys = {OwnerKey{"OwnerName", &OwnerRecord::OwnerName},
                                  OwnerKey{"OwnerAddress", &OwnerRecord::OwnerAddress},
                                  OwnerKey{"OwnerCity", &OwnerRecord::OwnerCity},
                                  OwnerKey{"OwnerState", &OwnerRecord::OwnerState},
                                  OwnerKey{"OwnerPhone", &OwnerRecord::OwnerPhone}};

ReportTextStyle ReadStyle(const std::string& name, std::int32_t barColor, std::int16_t size,
                          bool bold) {
    const INIFileHandler& ini = Ini();
    ReportTextStyle style;
    style.barColor = ini.MyGetAppProfileLong(Options, "lbl" + name, barColor);
    style.textColor = ini.MyGetAppProfileLong(Options, "lbl" + name + "Text", 0);
    style.fontName = ini.MyGetAppProfileString(Options, name + "Font", "Arial");
    style.fontSize = ini.MyGetAppProfileInteger(Options, name + "FontSize", size);
    style.fontBold = ini.MyGetAppProfileBoolean(Options, name + "FontBold", bold);
    style.fontItalic = ini.MyGetAppProfileBoolean(Options, name + "FontItalic", false);
    return style;
}

ReportSettings DefaultSettings() {
    ReportSettings settings;
    settings.MainHeader = {0xC0E0FF, 0, "Arial", 16, true, false};
    settings.SecondaryHeader = {0xC0FFFF, 0, "Arial", 14, true, false};
    settings.Body = {WindowColor, 0, "Arial", 10, false, false};
    return settings;
}

}  // namespace

ReportSettings& CurrentReportSettings() {
    static ReportSettings settings = DefaultSettings();
    return settings;
}

void ReadReportSettings() {
    const auto number = [](const char* key, std::int16_t standard) {
        return Ini().MyGetAppProfileInteger(Options, key, standard);
    };
    ReportSettings& settings = CurrentReportSettings();
    settings.MainHeader = ReadStyle("MainHeader", 0xC0E0FF, 16, true);
    settings.SecondaryHeader = ReadStyle("SecondaryHeader", 0xC0FFFF, 14, true);
    settings.Body = ReadStyle("Body", WindowColor, 10, false);
    settings.chkPageNumbers = number("chkPageNumbers", 1);
    settings.chkDate = number("chkDate", 1);
    settings.chkGraphs = number("chkGraphs", 1);
    settings.chkColorGraphs = number("chkColorGraphs", 1);
    settings.txtStartingPageNo = number("txtStartingPageNo", 1);
    settings.txtLineSpacing = number("txtLineSpacing", 100);
}

bool OwnerRecord::IsEmpty() const {
    for (const OwnerKey& entry : OwnerKeys)
        if (!(this->*entry.text).empty()) return false;
    return true;
}

OwnerRecord& Owner() {
    static OwnerRecord owner;
    return owner;
}

void ReadOwner() {
    for (const OwnerKey& entry : OwnerKeys)
        Owner().*entry.text = Ini().MyGetAppProfileString(OwnerSection, entry.key, "");
}

void WriteOwner(const OwnerRecord& owner) {
    std::vector<std::pair<std::string, std::string>> values;
    values.reserve(OwnerKeys.size());
    for (const OwnerKey& entry : OwnerKeys)
        values.emplace_back(entry.key, owner.*entry.text);
    WriteProfileSection(Ini().AppProfileFileName, OwnerSection, values);
    Owner() = owner;
}

bool ReportOptionIsOn(const char* key) {
    return Ini().MyGetAppProfileInteger(Options, key, 1) == 1;
}

}  // namespace tendo
