#include "app/profile_defaults.h"

#include <map>
#include <set>

#include "platform/files/ini_file_handler.h"
#include "program_home.h"
#include "reports/report_settings.h"

namespace tendo {
namespace {

class ProfileDefaultsTest : public ProgramHome {
  protected:
    void SetUp() override {
        ProgramHome::SetUp();
        Ini().AppProfileFileName = directory + "Tendo.ini";
    }
};

TEST_F(ProfileDefaultsTest, EachKeyReadsBackAsItsDefault) {
    WriteProfileDefaults(directory + "Tendo.ini");
    for (const ProfileDefault& item : ProfileDefaults())
        EXPECT_EQ(Ini().MyGetAppProfileString(item.section, item.key, "missing"), item.value)
            << item.section << " " << item.key;
}

TEST_F(ProfileDefaultsTest, NoKeyStandsTwice) {
    std::set<std::pair<std::string, std::string>> seen;
    for (const ProfileDefault& item : ProfileDefaults())
        EXPECT_TRUE(seen.insert({item.section, item.key}).second) << item.key;
}

TEST_F(ProfileDefaultsTest, EachSectionHasAllItsKeys) {
    std::map<std::string, int> counts;
    for (const ProfileDefault& item : ProfileDefaults())
        ++counts[item.section];
    // Report options: 18 of the three styles, 3 texts, 2 report marks under two names and one under
    // one, 3 more reports and the dealer's cost, 4 of the summary, 18 of both kinds of models, 8 of
    // air conditioners, 6 of furnaces, 5 general ones, logo and banner.
    EXPECT_EQ(counts["Options"], 11);
    EXPECT_EQ(counts["Miscellaneous"], 5);
    EXPECT_EQ(counts["Colors"], 10);
    EXPECT_EQ(counts["ReportOptions"], 18 + 3 + 3 + 4 + 4 + 18 + 8 + 6 + 5 + 2);
    EXPECT_EQ(counts["BannerOptions"], 12);
    EXPECT_EQ(counts["Owner"], 5);
}

/// The defaults that the report settings' readers pass, and what the file must not change.
TEST_F(ProfileDefaultsTest, ReportSettingsAreTheSameWithAndWithoutTheFile) {
    const auto check = [] {
        ReadReportSettings();
        const ReportSettings& settings = CurrentReportSettings();
        EXPECT_EQ(settings.MainHeader.barColor, 0xC0E0FF);
        EXPECT_EQ(settings.MainHeader.textColor, 0);
        EXPECT_EQ(settings.MainHeader.fontName, "Arial");
        EXPECT_EQ(settings.MainHeader.fontSize, 16);
        EXPECT_TRUE(settings.MainHeader.fontBold);
        EXPECT_FALSE(settings.MainHeader.fontItalic);
        EXPECT_EQ(settings.SecondaryHeader.barColor, 0xC0FFFF);
        EXPECT_EQ(settings.SecondaryHeader.fontSize, 14);
        EXPECT_TRUE(settings.SecondaryHeader.fontBold);
        EXPECT_EQ(settings.Body.barColor, static_cast<std::int32_t>(0x80000005U));
        EXPECT_EQ(settings.Body.fontSize, 10);
        EXPECT_FALSE(settings.Body.fontBold);
        EXPECT_EQ(settings.chkPageNumbers, 1);
        EXPECT_EQ(settings.chkDate, 1);
        EXPECT_EQ(settings.chkGraphs, 1);
        EXPECT_EQ(settings.chkColorGraphs, 1);
        EXPECT_EQ(settings.txtStartingPageNo, 1);
        EXPECT_EQ(settings.txtLineSpacing, 100);
    };
    check();
    WriteProfileDefaults(directory + "Tendo.ini");
    check();
}

TEST_F(ProfileDefaultsTest, TheWallpaperHasItsDefaultColour) {
    WriteProfileDefaults(directory + "Tendo.ini");
    EXPECT_EQ(Ini().MyGetAppProfileLong("Miscellaneous", "WallpaperLastCustomColorSelected", 1),
              static_cast<std::int32_t>(0x8000000CU));
}

}  // namespace
}  // namespace tendo
