#include "reports/title_report.h"

#include "report_fixture.h"
#include "reports/generate_reports.h"

namespace tendo {
namespace {

class TitleReport : public ReportTest {
  protected:
    /// The box given to the logo, in twips.
    std::vector<std::string> LogoBox(int width, int height, const char* name = "logo.gif") {
        Option("txtTitlePageLogo", MakePicture(name, width, height));
        PreviewTitleOnly(context);
        const auto last = [&](const char* op) { return ValuesOf(op).back(); };
        return {last("X1"), last("Y1"), last("X2"), last("Y2")};
    }
};

using Box = std::vector<std::string>;

TEST_F(TitleReport, IsWrittenAsTold) {
    Option("txtTitlePageLogo", MakePicture("logo.gif", 300, 200));
    EXPECT_TRUE(PreviewTitleOnly(context));
    ExpectGolden("title.txt");
    EXPECT_EQ(layout.Result().pages.size(), 1U);
}

TEST_F(TitleReport, WithoutALogoHasNoPicture) {
    PreviewTitleOnly(context);
    EXPECT_EQ(CountOf("Picture"), 0);
    Option("txtTitlePageLogo", (folder / "gone.gif").string());
    PreviewTitleOnly(context);
    EXPECT_EQ(CountOf("Picture"), 0);
}

TEST_F(TitleReport, ALogoThatIsSwitchedOffIsNotPrinted) {
    Option("txtTitlePageLogo", MakePicture("logo.gif", 300, 200));
    Option("chkPrintLogo", "0");
    PreviewTitleOnly(context);
    EXPECT_EQ(CountOf("Picture"), 0);
}

TEST_F(TitleReport, TheProgramsOwnLogoIsTheDefault) {
    const std::string logo = MakePicture("tenlogo.wmf", 300, 200);
    PreviewTitleOnly(context);
    EXPECT_EQ(ValuesOf("Picture"), std::vector<std::string>{logo});
}

// 300 by 200: w = 300, from 400 - 150 to 400 + 150 hundredths, 500 to 700 high.
TEST_F(TitleReport, ALogoKeepsItsProportions) {
    EXPECT_EQ(LogoBox(300, 200), (Box{"3600", "7200", "7920", "10080"}));
}

// 1600 by 200: w = 1600 is above 600, so h = 200 / 1600 * 600 = 75: from 562.5 to 637.5 hundredths,
// 1080 twips or 75 hundredths high.
TEST_F(TitleReport, AWideLogoIsSixInchesWideAndSeventyFiveHundredthsHigh) {
    EXPECT_EQ(LogoBox(1600, 200), (Box{"1440", "8100", "10080", "9180"}));
}

TEST_F(TitleReport, ALogoOfExactlySixHundredKeepsItsHeight) {
    EXPECT_EQ(LogoBox(600, 200), (Box{"1440", "7200", "10080", "10080"}));
}

TEST_F(TitleReport, ALogoWithoutHeightHasNoWidth) {
    EXPECT_EQ(LogoBox(300, 0), (Box{"5760", "7200", "5760", "10080"}));
}

// 267 to 533 hundredths: 3844.8 and 7675.2 twips.
TEST_F(TitleReport, AJpegGetsAFixedBox) {
    EXPECT_EQ(LogoBox(1600, 200, "logo.jpg"), (Box{"3845", "7200", "7675", "10080"}));
}

TEST_F(TitleReport, LineSpacingIsThatOfTheSettings) {
    Option("txtLineSpacing", "120");
    PreviewTitleOnly(context);
    EXPECT_EQ(ValuesOf("LineSpacing"), std::vector<std::string>{"120"});
}

}  // namespace
}  // namespace tendo
