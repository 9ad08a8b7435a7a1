#include "reports/report_settings.h"

#include <array>
#include <utility>
#include <vector>

#include "platform/files/ini_file_handler.h"
#include "platform/files/paths.h"
#include "platform/files/profile.h"
#include "platform/text/text.h"
#include "project/program_state.h"

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

/// A name or size that a profile was left without is the standard one.
ReportTextStyle ReadStyle(const std::string& name, const ReportTextStyle& standard) {
    const INIFileHandler& ini = Ini();
    ReportTextStyle style;
    style.barColor = ini.MyGetAppProfileLong(Options, "lbl" + name, standard.barColor);
    style.textColor = ini.MyGetAppProfileLong(Options, "lbl" + name + "Text", standard.textColor);
    style.fontName = ini.MyGetAppProfileString(Options, name + "Font", standard.fontName);
    style.fontSize = ini.MyGetAppProfileInteger(Options, name + "FontSize", standard.fontSize);
    style.fontBold = ini.MyGetAppProfileBoolean(Options, name + "FontBold", standard.fontBold);
    style.fontItalic =
        ini.MyGetAppProfileBoolean(Options, name + "FontItalic", standard.fontItalic);
    if (Trimmed(style.fontName).empty()) style.fontName = standard.fontName;
    if (style.fontSize <= 0) style.fontSize = standard.fontSize;
    return style;
}

}  // namespace

ReportSettings DefaultReportSettings() {
    ReportSettings settings;
    settings.MainHeader = {0xC0E0FF, 0, "Arial", 16, true, false};
    settings.SecondaryHeader = {0xC0FFFF, 0, "Arial", 14, true, false};
    settings.Body = {WindowColor, 0, "Arial", 10, false, false};
    return settings;
}

ReportSettings& CurrentReportSettings() {
    static ReportSettings settings = DefaultReportSettings();
    return settings;
}

ReportSettings StoredReportSettings() {
    const auto number = [](const char* key, std::int16_t standard) {
        return Ini().MyGetAppProfileInteger(Options, key, standard);
    };
    const ReportSettings standard = DefaultReportSettings();
    ReportSettings settings;
    settings.MainHeader = ReadStyle("MainHeader", standard.MainHeader);
    settings.SecondaryHeader = ReadStyle("SecondaryHeader", standard.SecondaryHeader);
    settings.Body = ReadStyle("Body", standard.Body);
    settings.chkPageNumbers = number("chkPageNumbers", 1);
    settings.chkPageCount = number("chkPageCount", 0);
    settings.chkDate = number("chkDate", 1);
    settings.chkGraphs = number("chkGraphs", 1);
    settings.chkColorGraphs = number("chkColorGraphs", 1);
    settings.txtStartingPageNo = number("txtStartingPageNo", 1);
    settings.txtLineSpacing = number("txtLineSpacing", 100);
    return settings;
}

void ReadReportSettings() {
    CurrentReportSettings() = StoredReportSettings();
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

std::string StandardLogo() {
    const std::string stem = State().ProgramDirectory + "tenlogo";
    for (const char* extension : {".wmf", ".svg", ".png"})
        if (FileExists(stem + extension)) return stem + extension;
    return {};
}

bool ReportOptionIsOn(const char* key) {
    return Ini().MyGetAppProfileInteger(Options, key, 1) == 1;
}

}  // namespace tendo
