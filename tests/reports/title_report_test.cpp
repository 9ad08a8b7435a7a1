#include "reports/title_report.h"

#include <fstream>

#include "report_fixture.h"
#include "reports/generate_reports.h"
#include "reports/report_options.h"

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
    ExpectGoldenWithout("title.txt", {});
    EXPECT_EQ(layout.Result().pages.size(), 1U);
}

TEST_F(TitleReport, WithoutALogoHasNoPicture) {
    const std::set<std::string> logo = {"chkPrintLogo"};
    PreviewTitleOnly(context);
    ExpectGoldenWithout("title.txt", logo);
    MakePicture("tenlogo.wmf", 300, 200);
    for (const std::string& file :
         {(folder / "gone.gif").string(), std::string(), folder.string()}) {
        Option("txtTitlePageLogo", file);
        PreviewTitleOnly(context);
        ExpectGoldenWithout("title.txt", logo);
    }
}

TEST_F(TitleReport, ALogoThatIsSwitchedOffIsNotPrinted) {
    Option("txtTitlePageLogo", MakePicture("logo.gif", 300, 200));
    Option("chkPrintLogo", "0");
    PreviewTitleOnly(context);
    ExpectGoldenWithout("title.txt", {"chkPrintLogo"});
}

TEST_F(TitleReport, TheTitleIsTrimmedAndInCapitalsAndEmptyFieldsLeaveEmptyLines) {
    project.GPDProjectFormat = {};
    project.GPDProjectFormat.Title = "  Café Müller, phase 2 ";
    project.GPDClientFormat = {};
    project.GPDClientFormat.Name = "  Dana ";
    project.GPDCompanyFormat = {};
    PreviewTitleOnly(context);
    EXPECT_EQ(ValuesOf("Paragraph").at(2), "CAFÉ MÜLLER, PHASE 2");
    EXPECT_EQ(ValuesOf("Text"),
              (std::vector<std::string>{"Dana", "", "", "Prepared By:", "", "", "", "", "", ""}));
    EXPECT_EQ(ValuesOf("CurrentY").size(), 10U);
}

TEST_F(TitleReport, TextsWithBarsAndBracesAreWrittenAsTheyStand) {
    project.GPDProjectFormat.Title = "{a}|b;\\c";
    project.GPDClientFormat.Name = "Marlow | Sons; {Ltd}";
    PreviewTitleOnly(context);
    const std::string text = PageText(layout.Result().pages.at(0));
    EXPECT_NE(text.find("{A}|B;\\C"), std::string::npos) << text;
    EXPECT_NE(text.find("Marlow | Sons; {Ltd}"), std::string::npos) << text;
}

TEST_F(TitleReport, TheProgramsOwnLogoIsTheDefault) {
    const std::string logo = MakePicture("tenlogo.wmf", 300, 200);
    PreviewTitleOnly(context);
    EXPECT_EQ(ValuesOf("Picture"), std::vector<std::string>{logo});
    EXPECT_EQ(LoadReportOptions(project).logoFile, logo);
}

TEST_F(TitleReport, SavingTheOptionsAsTheyAreKeepsTheProgramsOwnLogo) {
    const std::string logo = MakePicture("tenlogo.svg", 300, 200);
    ReportOptionValues values = LoadReportOptions(project);
    SaveReportOptions(values, project);
    PreviewTitleOnly(context);
    EXPECT_EQ(ValuesOf("Picture"), std::vector<std::string>{logo});
}

// 300 by 200: w = 300, from 400 - 150 to 400 + 150 hundredths, 500 to 700 high.
TEST_F(TitleReport, ALogoKeepsItsProportions) {
    EXPECT_EQ(LogoBox(300, 200), (Box{"3600", "7200", "7920", "10080"}));
}

// 200 by 400: w = 100, from 350 to 450 hundredths.
TEST_F(TitleReport, ANarrowLogoIsTwoInchesHigh) {
    EXPECT_EQ(LogoBox(200, 400), (Box{"5040", "7200", "6480", "10080"}));
}

// 301 by 200: w = 301, from 249.5 to 550.5 hundredths: 3592.8 and 7927.2 twips.
TEST_F(TitleReport, AnOddWidthIsHalvedExactly) {
    EXPECT_EQ(LogoBox(301, 200), (Box{"3593", "7200", "7927", "10080"}));
}

// 601 by 200: w = 601 is above 600, so h = 200 / 601 * 600 = 199.67, 200 as an integer.
TEST_F(TitleReport, ALogoOfSixHundredAndOneIsHeldToSixInches) {
    EXPECT_EQ(LogoBox(601, 200), (Box{"1440", "7200", "10080", "10080"}));
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

TEST_F(TitleReport, OnlyTheLetterCaseOfJpgInItsNameMakesAJpeg) {
    EXPECT_EQ(LogoBox(600, 200, "logo.JPG"), (Box{"1440", "7200", "10080", "10080"}));
    EXPECT_EQ(LogoBox(600, 200, "my.jpg.gif"), (Box{"3845", "7200", "7675", "10080"}));
}

TEST_F(TitleReport, AFileThatIsNoPictureHasNoWidth) {
    std::ofstream(folder / "logo.gif") << "no picture";
    Option("txtTitlePageLogo", (folder / "logo.gif").string());
    PreviewTitleOnly(context);
    EXPECT_EQ(ValuesOf("X1").back(), ValuesOf("X2").back());
}

TEST_F(TitleReport, LineSpacingIsThatOfTheSettings) {
    Option("txtLineSpacing", "120");
    PreviewTitleOnly(context);
    EXPECT_EQ(ValuesOf("LineSpacing"), std::vector<std::string>{"120"});
}

}  // namespace
}  // namespace tendo
