#include "reports/sales_report.h"

#include <gmock/gmock.h>

#include <limits>

#include "report_fixture.h"
#include "reports/generate_reports.h"

namespace tendo {
namespace {

class SalesReport : public ReportTest {
  protected:
    std::string Summary() const { return ProjectSummaryBody(project); }
};

TEST_F(SalesReport, IsWrittenAsTold) {
    FillSystem(project, 0);
    project.ProjectFootNotes.push_back({"Terms", "{\\rtf1 Price <$$$$>}"});
    project.gvNumOfFootnotes = 1;
    EXPECT_TRUE(PreviewSalesOnly(plainContext));
    ExpectGolden("sales_one_system.txt", plainSurface);
}

TEST_F(SalesReport, WithoutFootnotesHasNoSuchHeading) {
    FillSystem(project, 0);
    PreviewSalesOnly(context);
    EXPECT_THAT(ValuesOf("Paragraph"), testing::Not(testing::Contains("Footnotes")));
    EXPECT_EQ(CountOf("AutoRTF"), 0);
}

TEST_F(SalesReport, WithoutAPricedSystemHasNoTable) {
    PreviewSalesOnly(context);
    EXPECT_EQ(CountOf("AddTable"), 1);  // the Project Summary
    EXPECT_THAT(ValuesOf("Paragraph"), testing::Contains("Sales Report"));
}

TEST_F(SalesReport, ASectionWithoutAnInchOfRoomGoesToANewPage) {
    surface.Action(3);
    surface.CurrentY(ToTwips(900));
    CheckPageRoom(surface);
    EXPECT_EQ(CountOf("NewPage"), 0);
    surface.CurrentY(ToTwips(900) + 1);
    CheckPageRoom(surface);
    EXPECT_EQ(CountOf("NewPage"), 1);
}

TEST_F(SalesReport, TheSummaryHoldsTwoPairsARow) {
    EXPECT_EQ(Summary(),
              "||Company:|Northfield Air;"
              "Client:|Dana Marlow|Company Rep:|Robin Vance;"
              "||ID Number:|MN-4471;"
              "Address:|12 Maple Street|Address:|480 Foundry Rd;"
              "City:|Alden, MN 56009|City:|Alden, MN 56007;"
              "Phone:|(507) 555-0142|Phone:|(507) 555-0100;"
              "Fax:|(507) 555-0143|Fax:|(507) 555-0101;");
}

TEST_F(SalesReport, WithoutTheRepresentativeTheCompanyStandsInTheClientsRow) {
    Option("CompanyRep", "0");
    EXPECT_THAT(Summary(), testing::StartsWith("Client:|Dana Marlow|Company:|Northfield Air;"
                                               "||ID Number:|MN-4471;"));
}

TEST_F(SalesReport, TheIdNumberNeedsItsOptionAndAValue) {
    Option("CompanyID", "0");
    EXPECT_THAT(Summary(), testing::Not(testing::HasSubstr("ID Number:")));
    Option("CompanyID", "1");
    project.GPDCompanyFormat.CompanyIDNumber = "";
    EXPECT_THAT(Summary(), testing::Not(testing::HasSubstr("ID Number:")));
}

TEST_F(SalesReport, AClientWithNoFaxAndClientFaxOnStillShowsTheLabel) {
    project.GPDClientFormat.Fax = "";
    EXPECT_THAT(Summary(), testing::EndsWith("Fax:||Fax:|(507) 555-0101;"));
}

TEST_F(SalesReport, TheFaxRowShowsTheSidesThatAreMarked) {
    Option("ClientFax", "0");
    EXPECT_THAT(Summary(), testing::EndsWith(";||Fax:|(507) 555-0101;"));
    Option("CompanyFax", "0");
    EXPECT_THAT(Summary(), testing::EndsWith("Phone:|(507) 555-0100;"));
    Option("ClientFax", "1");
    EXPECT_THAT(Summary(), testing::EndsWith(";Fax:|(507) 555-0143||;"));
}

TEST_F(SalesReport, BothCommentsEmptyGiveNoCommentRow) {
    EXPECT_THAT(Summary(), testing::Not(testing::HasSubstr("Comment:")));
}

TEST_F(SalesReport, ACommentIsShownWhenItIsThereAndMayBePrinted) {
    project.GPDClientFormat.Comment = "Dog in yard";
    EXPECT_THAT(Summary(), testing::EndsWith(";Comment:|Dog in yard||;"));
    project.GPDCompanyFormat.Comment = "Licensed";
    EXPECT_THAT(Summary(), testing::EndsWith(";Comment:|Dog in yard|Comment:|Licensed;"));
    project.GPDClientFormat.ClientPrintComment = 0;
    EXPECT_THAT(Summary(), testing::EndsWith(";||Comment:|Licensed;"));
    project.GPDCompanyFormat.CompanyPrintComment = 0;
    EXPECT_THAT(Summary(), testing::EndsWith("(507) 555-0101;|||;"));  // the row stays, empty
}

TEST_F(SalesReport, AllSummaryOptionsOffLeaveTheFourFixedRows) {
    for (const char* key : {"CompanyRep", "CompanyID", "ClientFax", "CompanyFax"})
        Option(key, "0");
    EXPECT_EQ(Summary(),
              "Client:|Dana Marlow|Company:|Northfield Air;"
              "Address:|12 Maple Street|Address:|480 Foundry Rd;"
              "City:|Alden, MN 56009|City:|Alden, MN 56007;"
              "Phone:|(507) 555-0142|Phone:|(507) 555-0100;");
}

TEST_F(SalesReport, SummaryValuesAreTrimmedAndANumberOfBlanksIsNone) {
    project.GPDClientFormat.Name = "  Dana ";
    project.GPDCompanyFormat.CompanyIDNumber = "   ";
    project.GPDClientFormat.Comment = "   ";
    EXPECT_THAT(Summary(), testing::StartsWith("||Company:|Northfield Air;"
                                               "Client:|Dana|Company Rep:|Robin Vance;"
                                               "Address:|"));
    EXPECT_THAT(Summary(), testing::Not(testing::HasSubstr("Comment:")));
}

TEST_F(SalesReport, AnEmptyProjectKeepsItsLabels) {
    project = {};
    EXPECT_EQ(Summary(),
              "||Company:|;Client:||Company Rep:|;Address:||Address:|;City:||City:|;"
              "Phone:||Phone:|;Fax:||Fax:|;");
}

TEST_F(SalesReport, BarsAndSemicolonsInNamesSplitTheSummaryAndHarmNothing) {
    project.GPDClientFormat.Name = "Marlow | Sons; Ltd";
    EXPECT_THAT(Summary(), testing::HasSubstr("Client:|Marlow | Sons; Ltd|Company Rep:|"));
    PreviewSalesOnly(context);
    const std::string text = PageText(layout.Result().pages.at(0));
    EXPECT_THAT(text, testing::HasSubstr("Client: Marlow  Sons\n"));
    EXPECT_THAT(text, testing::HasSubstr("Ltd Company Rep: Robin Vance"));
    EXPECT_THAT(text, testing::HasSubstr("Phone: (507) 555-0142"));
}

struct CommentCase {
    const char *client, *company;
    std::int16_t clientMark, companyMark;
    const char* row;  // "" for none
};

TEST_F(SalesReport, TheCommentRowStandsForAnyCommentAndShowsTheMarkedOnes) {
    constexpr CommentCase cases[] = {
        {"", "", 1, 1, ""},
        {"c", "", 1, 1, "Comment:|c||;"},
        {"c", "", 1, 0, "Comment:|c||;"},
        {"c", "", 0, 1, "|||;"},
        {"c", "", 2, 1, "|||;"},  // only a one is a mark
        {"", "o", 1, 1, "||Comment:|o;"},
        {"", "o", 0, 1, "||Comment:|o;"},
        {"", "o", 1, 0, "|||;"},
        {"c", "o", 1, 1, "Comment:|c|Comment:|o;"},
        {"c", "o", 1, 0, "Comment:|c||;"},
        {"c", "o", 0, 1, "||Comment:|o;"},
        {"c", "o", 0, 0, "|||;"},
    };
    const std::string without = Summary();
    for (const CommentCase& entry : cases) {
        project.GPDClientFormat.Comment = entry.client;
        project.GPDCompanyFormat.Comment = entry.company;
        project.GPDClientFormat.ClientPrintComment = entry.clientMark;
        project.GPDCompanyFormat.CompanyPrintComment = entry.companyMark;
        EXPECT_EQ(Summary(), without + entry.row) << entry.client << entry.company;
    }
}

TEST_F(SalesReport, AbsurdFiguresAndTextsHarmNothing) {
    for (int system = 0; system < 5; ++system)
        FillSystem(project, system);
    project.WHModelData[4].ModelDesc = "a\nb\tc\r\n;|{\\rtf1}\xFF";
    project.ProjectFootNotes = {{"Terms", "<$$$$>"}};
    project.gvNumOfFootnotes = 1;
    for (const float figure : {-std::numeric_limits<float>::max(), 1e-40F}) {
        project.CLGModelData[0].Cap = project.HTGModelData[1].CFMRate = figure;
        project.ModelInfo[2].CLGSalePrice = project.SystemInfo[3].WHProposedOpCost = figure;
        project.SystemTendos.TotalSalePrice = figure;
        EXPECT_TRUE(PreviewSalesOnly(context));
        EXPECT_TRUE(context.Problems.empty());
        EXPECT_THAT(ValuesOf("Paragraph"), testing::Contains("Footnotes"));
        EXPECT_GE(layout.Result().pages.size(), 2U);
    }
}

TEST_F(SalesReport, AFigureThatIsNoNumberStopsTheReportAndIsNamed) {
    FillSystem(project, 0);
    project.HTGModelData[0].Weight = std::numeric_limits<float>::infinity();
    EXPECT_TRUE(PreviewSalesOnly(context));
    EXPECT_EQ(context.Problems,
              std::vector<std::string>{
                  "The Sales Report is not complete. \"Weight\" of system 1 is no number, so the "
                  "comparison table and the footnotes behind it are left out. Enter it again, then "
                  "write the report again."});
    Option("chkWeight", "0");
    context.Problems.clear();
    project.SystemTendos.TotalSalePrice = std::numeric_limits<float>::quiet_NaN();
    project.ProjectFootNotes = {{"Terms", "<$$$$>"}};
    project.gvNumOfFootnotes = 1;
    EXPECT_TRUE(PreviewSalesOnly(context));
    EXPECT_EQ(context.Problems,
              std::vector<std::string>{
                  "The Sales Report is not complete. Overflow. What follows is left out."});
}

}  // namespace
}  // namespace tendo
