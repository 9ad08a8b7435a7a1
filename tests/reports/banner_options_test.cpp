#include "reports/banner_options.h"

#include "platform/files/ini_file_handler.h"
#include "platform/text/runtime_error.h"
#include "report_fixture.h"

namespace tendo {
namespace {

using BannerOptionsOfTheProfile = ReportTest;

TEST_F(BannerOptionsOfTheProfile, AreAllOnAndEmptyAtFirst) {
    const BannerOptions options = LoadBannerOptions();
    for (const BannerMark& mark : BannerMarks)
        EXPECT_EQ(options.*mark.value, 1) << mark.key;
    for (const BannerText& text : BannerTexts)
        EXPECT_EQ(options.*text.value, "") << text.key;
}

TEST_F(BannerOptionsOfTheProfile, ComeBackAsTheyWereWrittenUnderTheirTwelveKeys) {
    BannerOptions options;
    std::int16_t value = 0;
    for (const BannerMark& mark : BannerMarks)
        options.*mark.value = value = static_cast<std::int16_t>(1 - value);
    for (const BannerText& text : BannerTexts)
        options.*text.value = std::string("the ") + text.key;
    SaveBannerOptions(options);
    EXPECT_EQ(LoadBannerOptions(), options);
    const auto kept = [](const char* key) {
        return Ini().MyGetAppProfileString("BannerOptions", key, "missing");
    };
    EXPECT_EQ(kept("PrintCompanyName"), "1");
    EXPECT_EQ(kept("PrintDescription"), "0");
    EXPECT_EQ(kept("Description"), "the Description");
    EXPECT_EQ(kept("PrintCompanyAddress"), "1");
    EXPECT_EQ(kept("PrintCityStateZip"), "0");
    EXPECT_EQ(kept("PrintCompanyPhone"), "1");
    EXPECT_EQ(kept("PrintCompanyFax"), "0");
    EXPECT_EQ(kept("CompanyFax"), "the CompanyFax");
    EXPECT_EQ(kept("PrintLeftPicture"), "1");
    EXPECT_EQ(kept("LeftPicture"), "the LeftPicture");
    EXPECT_EQ(kept("PrintRightPicture"), "0");
    EXPECT_EQ(kept("RightPicture"), "the RightPicture");
}

TEST_F(BannerOptionsOfTheProfile, OfAProfileThatCannotBeWrittenAreAnError) {
    Ini().AppProfileFileName = (folder / "no such folder" / "Tendo.ini").string();
    EXPECT_THROW(SaveBannerOptions({}), RuntimeError);
}

}  // namespace
}  // namespace tendo
