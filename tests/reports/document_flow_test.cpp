#include <gmock/gmock.h>

#include <map>

#include "platform/text/runtime_error.h"
#include "report_fixture.h"
#include "reports/generate_reports.h"

namespace tendo {
namespace {

/// Reports that only say their letter, for the three that come behind the Sales Report.
template <char Letter>
void SayLetter(ReportContext& context) {
    context.surface.Paragraph(std::string(1, Letter));
}
constexpr ReportProcedures Stubs = {SayLetter<'C'>, SayLetter<'c'>, SayLetter<'A'>, SayLetter<'I'>};

const std::map<char, const char*> Marks = {{'T', "chkPrintTitleReport"},
                                           {'S', "chkPrintSalesReport"},
                                           {'C', "chkPrintDetailedCostReport"},
                                           {'A', "chkPrintOptionalAccessoriesRpt"},
                                           {'I', "chkPrintInstallersReport"}};

class DocumentFlow : public ReportTest {
  protected:
    void Mark(const std::string& letters) {
        plainContext.isMarked = context.isMarked = [letters](const char* key) {
            for (const auto& [letter, mark] : Marks)
                if (mark == std::string(key)) return letters.find(letter) != std::string::npos;
            return ReportOptionIsOn(key);
        };
    }

    /// The document in letters: "(" and ")" its start and end, N a new page, H the running header,
    /// and a letter for each report.
    std::string Flow() const {
        std::string flow;
        for (const SurfaceCall& call : surface.Calls()) {
            const std::string text = CallText(call);
            if (text == "Action 3\n") flow += '(';
            if (text == "Action 6\n") flow += ')';
            if (call.op == "NewPage") flow += 'N';
            if (call.op == "HdrFontName") flow += 'H';
            if (text == "Paragraph \"TENDO SALES PROPOSAL\"\n") flow += 'T';
            if (text == "Paragraph \"Project Summary\"\n") flow += 'S';
            for (const char letter : {'C', 'c', 'A', 'I'})
                if (text == "Paragraph \"" + std::string(1, letter) + "\"\n") flow += letter;
        }
        return flow;
    }
};

struct FlowCase {
    const char *marked, *flow;
};

/// Title and Sales Report push what follows them to a new page; without them all runs on. The Sales
/// and the Cost Report keep the running header away from their first page.
constexpr FlowCase Flows[] = {
    {"", "()"},
    {"T", "(T)"},
    {"S", "(S)"},
    {"C", "(C)"},
    {"A", "(A)"},
    {"I", "(I)"},
    {"TS", "(TNS)"},
    {"TC", "(TNC)"},
    {"TA", "(TNHA)"},
    {"TI", "(TNHI)"},
    {"SC", "(SNC)"},
    {"SA", "(SNHA)"},
    {"SI", "(SNHI)"},
    {"CA", "(CA)"},
    {"CI", "(CI)"},
    {"AI", "(AI)"},
    {"TSC", "(TNSNC)"},
    {"TSA", "(TNSNHA)"},
    {"TSI", "(TNSNHI)"},
    {"TCA", "(TNCNHA)"},
    {"TCI", "(TNCNHI)"},
    {"TAI", "(TNHANHI)"},
    {"SCA", "(SNCNHA)"},
    {"SCI", "(SNCNHI)"},
    {"SAI", "(SNHANHI)"},
    {"CAI", "(CAI)"},
    {"TSCA", "(TNSNCNHA)"},
    {"TSCI", "(TNSNCNHI)"},
    {"TSAI", "(TNSNHANHI)"},
    {"TCAI", "(TNCNHANHI)"},
    {"SCAI", "(SNCNHANHI)"},
    {"TSCAI", "(TNSNCNHANHI)"},
};

TEST_F(DocumentFlow, EachChoiceOfReportsHasItsPagesAndHeaders) {
    static_assert(std::size(Flows) == 32);
    for (const FlowCase& entry : Flows) {
        Mark(entry.marked);
        GenerateReports(context, Stubs);
        EXPECT_EQ(Flow(), entry.flow) << entry.marked;
        const std::string flow = entry.flow;
        const auto breaks = std::count(flow.begin(), flow.end(), 'N');
        EXPECT_EQ(std::ssize(layout.Result().pages), *entry.marked ? breaks + 1 : 0)
            << entry.marked;
        EXPECT_FALSE(context.SuppressNextPageHeader) << entry.marked;
    }
}

TEST_F(DocumentFlow, AReportThatIsNotThereIsSkippedWithItsPageBreak) {
    for (const FlowCase& entry : Flows) {
        const std::string marked = entry.marked;
        const bool title = marked.find('T') != std::string::npos;
        const bool sales = marked.find('S') != std::string::npos;
        Mark(marked);
        GenerateReports(context, ReportProcedures{});
        EXPECT_EQ(Flow(), title && sales ? "(TNS)" : title ? "(T)" : sales ? "(S)" : "()");
    }
}

TEST_F(DocumentFlow, OnlyTheAccessoriesAndInstallersReportsMarkedFollowOnOnePageRun) {
    Mark("AI");
    GenerateReports(context, Stubs);
    EXPECT_EQ(CountOf("NewPage"), 0);
    EXPECT_EQ(PageText(layout.Result().pages.at(0)), "A\nI");
}

TEST_F(DocumentFlow, TheDealersCostDecidesBetweenTheTwoCostReports) {
    Mark("C");
    GenerateReports(context, Stubs);
    EXPECT_EQ(Flow(), "(C)");
    Option("chkShowDealersCost", "0");
    GenerateReports(context, Stubs);
    EXPECT_EQ(Flow(), "(c)");
}

TEST_F(DocumentFlow, WithoutAChoiceTheOptionsDecideAndOnlyAOneIsAMark) {
    for (const auto& [letter, key] : Marks)
        Option(key, "0");
    Option("chkPrintTitleReport", "2");
    Option("chkPrintInstallersReport", "1");
    GenerateReports(context, Stubs);
    EXPECT_EQ(Flow(), "(I)");
}

TEST_F(DocumentFlow, AReportThatFailsIsToldOfAndTheNextFollows) {
    ReportProcedures failing = Stubs;
    failing.PrintDetailedCostReport = [](ReportContext& report) {
        report.surface.Paragraph("C");
        ThrowError(error_number::DivisionByZero);
    };
    Mark("TCA");
    GenerateReports(context, failing);
    EXPECT_EQ(Flow(), "(TNCNHA)");
    EXPECT_THAT(context.Problems,
                testing::ElementsAre("The Detailed Cost Report is not complete. Division by zero. "
                                     "What follows is left out."));
}

TEST_F(DocumentFlow, TitleAndSalesReportOfTwoSystemsWithFootnotesAreWrittenAsTold) {
    Mark("TS");
    FillSystem(project, 0);
    FillSystem(project, 1);
    project.WHModelData[1].WHIsHydroAirComponent = 1;
    SwitchOffAllRows();
    project.ProjectFootNotes = {{"Terms", "{\\rtf1 One<PAGE>Two}"}, {"Terms", "Three"}};
    project.gvNumOfFootnotes = 2;
    GenerateReports(plainContext, Stubs);
    ExpectGolden("title_and_sales.txt", plainSurface);
}

}  // namespace
}  // namespace tendo
