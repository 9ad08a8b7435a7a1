#include "reports/generate_reports.h"

#include <gmock/gmock.h>

#include "platform/files/ini_file_handler.h"
#include "platform/files/profile.h"
#include "report_fixture.h"
#include "reports/package.h"

namespace tendo {
namespace {

using Values = std::vector<std::string>;

class GeneratedReports : public ReportTest {
  protected:
    void MarkOnly(const std::vector<const char*>& keys) {
        for (const char* key :
             {"chkPrintTitleReport", "chkPrintSalesReport", "chkPrintDetailedCostReport",
              "chkPrintOptionalAccessoriesRpt", "chkPrintInstallersReport"})
            Option(key, "0");
        for (const char* key : keys)
            Option(key, "1");
    }
    /// Many rows, so that the Sales Report runs onto a second page.
    void AddLongFootnote() {
        project.ProjectFootNotes.push_back({"Terms", "first<PAGE>second"});
        project.gvNumOfFootnotes = 1;
    }
};

TEST_F(GeneratedReports, WithNoReportMarkedADocumentOfNoPagesIsStartedAndEnded) {
    MarkOnly({});
    GenerateReports(context);
    EXPECT_EQ(CallsText(), "Action 3\nAction 6\n");
    EXPECT_TRUE(layout.Result().pages.empty());
}

TEST_F(GeneratedReports, TheSalesReportFollowsTheTitleOnANewPageWithoutARunningHeader) {
    MarkOnly({"chkPrintTitleReport", "chkPrintSalesReport"});
    GenerateReports(context);
    EXPECT_EQ(CountOf("NewPage"), 1);
    EXPECT_EQ(ValuesOf("Header"), Values{""});  // the title's own
    EXPECT_FALSE(context.SuppressNextPageHeader);
    ASSERT_EQ(layout.Result().pages.size(), 2U);
    EXPECT_THAT(PageText(layout.Result().pages[1]), testing::StartsWith("Northfield Heating\n"));
}

TEST_F(GeneratedReports, TheSalesReportAloneBreaksNoPage) {
    MarkOnly({"chkPrintSalesReport"});
    GenerateReports(context);
    EXPECT_EQ(CountOf("NewPage"), 0);
    EXPECT_EQ(CountOf("Header"), 0);
}

TEST_F(GeneratedReports, LaterPagesOfTheSalesReportCarryTheRunningHeader) {
    MarkOnly({"chkPrintSalesReport"});
    AddLongFootnote();
    GenerateReports(context);
    ASSERT_EQ(layout.Result().pages.size(), 2U);
    ASSERT_EQ(CountOf("Header"), 1);
    EXPECT_THAT(PageText(layout.Result().pages[0]), testing::Not(testing::HasSubstr("Page")));
    EXPECT_THAT(PageText(layout.Result().pages[1]), testing::HasSubstr("Page 2"));
}

TEST_F(GeneratedReports, TheRunningHeaderIsWrittenAsTold) {
    surface.Action(3);
    SetPageHeader(context);
    ExpectGolden("page_header.txt");
}

TEST_F(GeneratedReports, WithoutPageNumbersTheRightFieldEndsAfterTheTitleLine) {
    Option("chkPageNumbers", "0");
    surface.Action(3);
    SetPageHeader(context);
    EXPECT_THAT(
        ValuesOf("Header").at(0),
        testing::EndsWith("||{Velmo Software Development, Inc.\\line Marlow Residence\\line}"));
}

TEST_F(GeneratedReports, AStartingPageNumberOfFiveCountsOnFromFive) {
    Option("txtStartingPageNo", "5");
    surface.Action(3);
    SetPageHeader(context);
    surface.NewPage();
    const Values headers = ValuesOf("Header");
    ASSERT_EQ(headers.size(), 2U);
    EXPECT_THAT(headers[0], testing::EndsWith("\\line Page 5}"));
    EXPECT_THAT(headers[1], testing::EndsWith("\\line Page 6}"));
}

TEST_F(GeneratedReports, AnEmptyTitleLeavesItsLineEmpty) {
    project.GPDProjectFormat.Title = "";
    surface.Action(3);
    SetPageHeader(context);
    EXPECT_THAT(ValuesOf("Header").at(0), testing::HasSubstr("Inc.\\line \\line Page 1}"));
}

TEST_F(GeneratedReports, WithoutNumbersAndDateTheRestOfTheHeaderStays) {
    Option("chkPageNumbers", "0");
    Option("chkDate", "0");
    project.GPDProjectFormat.Title = "";
    surface.Action(3);
    SetPageHeader(context);
    EXPECT_EQ(ValuesOf("Header"),
              Values{"{TENDO - HVAC Estimating and Sales Proposal Program\\line Northfield "
                     "Heating\\line (507) 555-0199}||{Velmo Software Development, Inc.\\line "
                     "\\line}"});
    EXPECT_EQ(ValuesOf("Footer"), Values{"||"});
}

TEST_F(GeneratedReports, ATitleIsTrimmedInTheHeader) {
    project.GPDProjectFormat.Title = "  Marlow Residence  ";
    surface.Action(3);
    SetPageHeader(context);
    EXPECT_THAT(ValuesOf("Header").at(0),
                testing::HasSubstr("Inc.\\line Marlow Residence\\line Page 1}"));
}

TEST_F(GeneratedReports, BarsAndBracesInNamesSplitTheHeaderAndHarmNothing) {
    for (const char* name : {"A|B", "{", "}", "a\\b", "|||||", "{\\line|", "\\"}) {
        project.GPDProjectFormat.Title = name;
        Owner().OwnerName = name;
        surface.Action(3);
        SetPageHeader(context);
        surface.NewPage();
        surface.Action(6);
        EXPECT_THAT(ValuesOf("Header").at(0),
                    testing::HasSubstr(std::string("Inc.\\line ") + name + "\\line Page 1}"));
        ASSERT_EQ(layout.Result().pages.size(), 2U) << name;
        EXPECT_THAT(PageText(layout.Result().pages[1]), testing::HasSubstr("TENDO - HVAC")) << name;
    }
}

TEST_F(GeneratedReports, TheFirstPageHasNoRunningHeaderOfItsOwn) {
    surface.Action(3);
    surface.Paragraph("first");
    EXPECT_EQ(CountOf("Header"), 0);
    surface.NewPage();
    EXPECT_EQ(CountOf("Header"), 1);
}

TEST_F(GeneratedReports, ASuppressedHeaderIsSuppressedOnce) {
    surface.Action(3);
    surface.Paragraph("first");
    context.SuppressNextPageHeader = true;
    surface.NewPage();
    EXPECT_EQ(CountOf("Header"), 0);
    EXPECT_FALSE(context.SuppressNextPageHeader);
    surface.NewPage();
    EXPECT_EQ(CountOf("Header"), 1);
}

TEST_F(GeneratedReports, TheGreyBandLeavesTheBarsTheirColour) {
    surface.Action(3);
    SetPageHeader(context);
    EXPECT_EQ(ValuesOf("BrushColor").at(0), std::to_string(0xE0E0E0));
    EXPECT_EQ(CurrentReportSettings().SecondaryHeader.barColor, 0xC0FFFF);
}

/// A surface that can't start a document.
class BrokenSurface : public LayoutSurface {
  public:
    using LayoutSurface::LayoutSurface;
    bool Error() const override { return true; }
};

TEST_F(GeneratedReports, ASingleReportOnASurfaceInErrorWritesNothing) {
    BrokenSurface broken(measurer);
    RecordingSurface log(broken);
    ReportContext other(log, project);
    EXPECT_FALSE(PreviewTitleOnly(other));
    EXPECT_FALSE(PreviewSalesOnly(other));
    EXPECT_EQ(log.Log(), "{\"op\":\"Action\",\"value\":3}\n");
}

TEST_F(GeneratedReports, APackageHoldsTheChosenReportsWhateverIsMarked) {
    MarkOnly({});
    ReportSelection selection;
    selection.title = true;
    const Document document = BuildReportPackage(project, measurer, selection);
    EXPECT_EQ(document.pages.size(), 1U);
    EXPECT_EQ(document.title, "Marlow Residence");
    EXPECT_EQ(document.author, "Northfield Heating");
    EXPECT_TRUE(BuildReportPackage(project, measurer).pages.empty());
}

TEST_F(GeneratedReports, APackageTellsWhatIsMissingInIt) {
    MarkOnly({"chkPrintTitleReport", "chkPrintSalesReport"});
    Values problems{"of an earlier package"};
    FillSystem(project, 0);
    BuildReportPackage(project, measurer, {}, &problems);
    EXPECT_EQ(problems, Values{});
    project.ModelInfo[1].WHSalePrice = 800;
    EXPECT_EQ(BuildReportPackage(project, measurer, {}, &problems).pages.size(), 2U);
    EXPECT_THAT(problems, testing::ElementsAre(testing::StartsWith("The Sales Report is not")));
}

TEST_F(GeneratedReports, SectionsOfTheSalesReportMakeTheOutline) {
    MarkOnly({"chkPrintSalesReport"});
    AddLongFootnote();
    GenerateReports(context);
    Values titles;
    for (const OutlineEntry& entry : layout.Result().outline)
        titles.push_back(entry.title);
    EXPECT_EQ(titles, (Values{"Project Summary", "Sales Report", "Footnotes"}));
}

TEST_F(GeneratedReports, HundredthsAndTwipsRoundHalfToEven) {
    EXPECT_EQ(ToTwips(100), 1440);
    EXPECT_EQ(ToTwips(23), 331);     // 331.2
    EXPECT_EQ(ToTwips(778), 11203);  // 11203.2
    EXPECT_EQ(ToHundredths(1440), 100);
    EXPECT_EQ(ToHundredths(36), 2);    // 2.5
    EXPECT_EQ(ToHundredths(108), 8);   // 7.5
    EXPECT_EQ(ToHundredths(-36), -2);  // -2.5
}

TEST_F(GeneratedReports, MoneyAndQuantitiesNeedAModel) {
    EXPECT_EQ(FormatMoneyIfModel(1234.5F, " X "), "$1,234.50");
    EXPECT_EQ(FormatMoneyIfModel(1234.5F, "   "), "");
    EXPECT_EQ(FormatMoneyIfModel(-2, "X"), "-$2.00");
    EXPECT_EQ(FormatQuantityIfModel(1234.5F, "X"), "1,234.50");
    EXPECT_EQ(FormatQuantityIfModel(1, ""), "");
}

TEST_F(GeneratedReports, TheMainBarIsTenHundredthsTaller) {
    surface.Action(3);
    DrawMainBar(surface, 25, 100, 775, 122);
    EXPECT_EQ(CallsText(),
              "Action 3\nBrushColor 12640511\nBrushStyle 0\nPenWidth 0\nPenColor 0\n"
              "X1 360\nY1 1440\nX2 11160\nY2 1901\nDraw 2\nBrushColor -2147483643\n");
}

class Settings : public ReportTest {};

TEST_F(Settings, WithoutAProfileHaveTheirDefaults) {
    const ReportSettings& settings = CurrentReportSettings();
    EXPECT_EQ(settings.MainHeader.barColor, 0xC0E0FF);
    EXPECT_EQ(settings.MainHeader.fontSize, 16);
    EXPECT_TRUE(settings.MainHeader.fontBold);
    EXPECT_EQ(settings.SecondaryHeader.barColor, 0xC0FFFF);
    EXPECT_EQ(settings.SecondaryHeader.fontSize, 14);
    EXPECT_EQ(settings.Body.barColor, WindowColor);
    EXPECT_EQ(settings.Body.fontName, "Arial");
    EXPECT_EQ(settings.Body.fontSize, 10);
    EXPECT_FALSE(settings.Body.fontBold);
    EXPECT_EQ(settings.txtStartingPageNo, 1);
    EXPECT_EQ(settings.txtLineSpacing, 100);
    EXPECT_EQ(settings.chkGraphs, 1);
}

TEST_F(Settings, AreReadFromTheProfile) {
    Option("BodyFont", "Times New Roman");
    Option("BodyFontSize", "11");
    Option("BodyFontBold", "1 'True");
    Option("lblSecondaryHeader", "255");
    Option("lblSecondaryHeaderText", "128");
    Option("SecondaryHeaderFontItalic", "True");
    const ReportSettings& settings = CurrentReportSettings();
    EXPECT_EQ(settings.Body.fontName, "Times New Roman");
    EXPECT_EQ(settings.Body.fontSize, 11);
    EXPECT_TRUE(settings.Body.fontBold);
    EXPECT_EQ(settings.SecondaryHeader.barColor, 255);
    EXPECT_EQ(settings.SecondaryHeader.textColor, 128);
    EXPECT_TRUE(settings.SecondaryHeader.fontItalic);
}

TEST_F(Settings, AFontWithoutANameOrASizeIsTheStandardOne) {
    for (const char* size : {"", "0", "-3", "large"}) {
        Option("BodyFont", " ");
        Option("BodyFontSize", size);
        EXPECT_EQ(CurrentReportSettings().Body.fontName, "Arial");
        EXPECT_EQ(CurrentReportSettings().Body.fontSize, 10) << size;
    }
}

TEST_F(Settings, AnOptionIsOnWhenItIsOne) {
    EXPECT_TRUE(ReportOptionIsOn("chkHeight"));
    Option("chkHeight", "0");
    EXPECT_FALSE(ReportOptionIsOn("chkHeight"));
    Option("chkHeight", "2");
    EXPECT_FALSE(ReportOptionIsOn("chkHeight"));
}

TEST_F(Settings, TheOwnersFiveTextsAreKeptInTheProfile) {
    WriteOwner({"Name", "Street", "City", "State 1", "Phone"});
    Owner() = {};
    EXPECT_TRUE(Owner().IsEmpty());
    ReadOwner();
    EXPECT_EQ(Owner().OwnerName, "Name");
    EXPECT_EQ(Owner().OwnerAddress, "Street");
    EXPECT_EQ(Owner().OwnerCity, "City");
    EXPECT_EQ(Owner().OwnerState, "State 1");
    EXPECT_EQ(Owner().OwnerPhone, "Phone");
    EXPECT_FALSE(Owner().IsEmpty());
}

}  // namespace
}  // namespace tendo
