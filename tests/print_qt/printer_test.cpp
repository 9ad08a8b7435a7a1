#include <gmock/gmock.h>

#include <QFile>
#include <QPageRanges>
#include <QPrinter>
#include <QProcess>
#include <QStandardPaths>
#include <QTemporaryDir>
#include <algorithm>

#include "platform/print/layout_surface.h"
#include "platform/qt/painter_pdf.h"
#include "platform/qt/painter_printer.h"
#include "platform/qt/text_measurer_qt.h"

namespace tendo {
namespace {

using testing::ElementsAre;

constexpr int Resolution = 1200;

bool GoOn(int, int) {
    return true;
}

/// A document of table pages in several fonts.
Document Tables(int rows) {
    QtTextMeasurer measurer;
    LayoutSurface surface(measurer);
    surface.Action(3);
    surface.FontSize(16);
    surface.Paragraph("Materials");
    surface.FontSize(10);
    std::string body;
    for (int row = 0; row < rows; ++row)
        body += "Part " + std::to_string(row) + "|Flexible duct, insulated, six inches wide|$" +
                std::to_string(row) + ".00;";
    surface.AddTable("<3000|<5000|>2000", "Part|Description|Cost", body);
    surface.Action(6);
    Document document = surface.TakeResult();
    document.title = "Kestrel Row";
    return document;
}

class Printing : public testing::Test {
  protected:
    Printing() : printer(QPrinter::HighResolution) {
        printer.setOutputFormat(QPrinter::PdfFormat);
        printer.setOutputFileName(File());
        printer.setPageSize(QPageSize(QPageSize::Letter));
    }
    QString File() const { return folder.filePath(QStringLiteral("print.pdf")); }
    PrintOutcome Print(const Document& document) {
        return PrintPages(printer, document,
                          PagesToPrint(printer, static_cast<int>(document.pages.size())), GoOn)
            .outcome;
    }
    /// What a tool of the system says about a file; empty when the tool isn't there.
    static std::string Ask(const char* tool, const QStringList& arguments) {
        const QString program = QStandardPaths::findExecutable(QLatin1String(tool));
        if (program.isEmpty()) return {};
        QProcess process;
        process.start(program, arguments);
        EXPECT_TRUE(process.waitForFinished());
        EXPECT_EQ(process.exitCode(), 0) << process.readAllStandardError().toStdString();
        return process.readAllStandardOutput().toStdString();
    }
    static std::string TextOf(const QString& file) {
        return Ask("pdftotext", {QStringLiteral("-layout"), file, QStringLiteral("-")});
    }
    std::vector<int> Chosen(int pageCount, int shownPage = 0) const {
        return PagesToPrint(printer, pageCount, shownPage);
    }

    QTemporaryDir folder;
    QPrinter printer;
};

TEST_F(Printing, AllPagesInTheirOrder) {
    EXPECT_THAT(Chosen(3), ElementsAre(0, 1, 2));
}

TEST_F(Printing, APageRangeIsKeptTo) {
    printer.setPrintRange(QPrinter::PageRange);
    printer.setFromTo(2, 3);
    EXPECT_THAT(Chosen(5), ElementsAre(1, 2));
    printer.setPageRanges(QPageRanges::fromString(QStringLiteral("1,4-9")));
    EXPECT_THAT(Chosen(5), ElementsAre(0, 3, 4));
}

TEST_F(Printing, TheCurrentPageIsTheOneShown) {
    printer.setPrintRange(QPrinter::CurrentPage);
    EXPECT_THAT(Chosen(5, 3), ElementsAre(3));
}

TEST_F(Printing, CopiesAreCollatedOrNot) {
    printer.setCopyCount(2);
    printer.setCollateCopies(true);
    EXPECT_THAT(Chosen(3), ElementsAre(0, 1, 2, 0, 1, 2));
    printer.setCollateCopies(false);
    EXPECT_THAT(Chosen(3), ElementsAre(0, 0, 1, 1, 2, 2));
}

TEST_F(Printing, TheLastPageComesFirstInReverseOrder) {
    printer.setPageOrder(QPrinter::LastPageFirst);
    printer.setPrintRange(QPrinter::PageRange);
    printer.setFromTo(2, 4);
    EXPECT_THAT(Chosen(5), ElementsAre(3, 2, 1));
}

TEST_F(Printing, PaperAndPdfHaveTheSameTextsOnEachPage) {
    const Document document = Tables(150);
    ASSERT_GT(document.pages.size(), 2U);
    ASSERT_EQ(Print(document), PrintOutcome::Printed);
    const QString pdf = folder.filePath(QStringLiteral("export.pdf"));
    WritePdf(document, pdf.toStdString());
    const std::string printed = TextOf(File());
    if (printed.empty()) GTEST_SKIP() << "pdftotext (poppler-utils) isn't installed";
    EXPECT_EQ(printed, TextOf(pdf));
    EXPECT_EQ(std::count(printed.begin(), printed.end(), '\f'),
              static_cast<std::ptrdiff_t>(document.pages.size()));
}

TEST_F(Printing, TheJobIsNamedAfterTheDocument) {
    const Document document = Tables(3);
    printer.setDocName(QString::fromStdString(document.title));
    ASSERT_EQ(Print(document), PrintOutcome::Printed);
    const std::string info = Ask("pdfinfo", {File()});
    if (info.empty()) GTEST_SKIP() << "pdfinfo (poppler-utils) isn't installed";
    EXPECT_THAT(info, testing::HasSubstr("Kestrel Row"));
    EXPECT_THAT(info, testing::HasSubstr("612 x 792 pts (letter)"));
}

TEST_F(Printing, ACancelledJobLeavesNothing) {
    const Document document = Tables(150);
    std::vector<int> told;
    const auto stopAtTwo = [&](int done, int count) {
        EXPECT_EQ(count, static_cast<int>(document.pages.size()));
        told.push_back(done);
        return done < 2;
    };
    EXPECT_EQ(PrintPages(printer, document,
                         PagesToPrint(printer, static_cast<int>(document.pages.size())), stopAtTwo)
                  .outcome,
              PrintOutcome::Cancelled);
    EXPECT_THAT(told, ElementsAre(0, 1, 2));
    EXPECT_FALSE(QFile::exists(File()));
}

TEST_F(Printing, APrinterThatCantBeWrittenToRefuses) {
    printer.setOutputFileName(folder.filePath(QStringLiteral("no/such/folder/print.pdf")));
    EXPECT_EQ(Print(Tables(3)), PrintOutcome::Refused);
}

/// Where a point of the page, in inches, comes to stand on the paper, in inches.
QPointF OnPaper(const QPageLayout& paper, double x, double y) {
    return PlaceOnPaper(paper, Resolution).map(QPointF(x * 1440, y * 1440)) / Resolution;
}

void ExpectPoint(const QPointF& point, double x, double y) {
    EXPECT_NEAR(point.x(), x, 0.002);
    EXPECT_NEAR(point.y(), y, 0.002);
}

TEST(PlaceOnPaper, LetterIsTrueToSizeWhateverThePrintersMargins) {
    const QPageLayout letter(QPageSize(QPageSize::Letter), QPageLayout::Portrait,
                             QMarginsF(0, 0, 0, 0), QPageLayout::Inch,
                             QMarginsF(0.5, 0.5, 0.5, 0.5));
    ExpectPoint(OnPaper(letter, 0.25, 0.25), 0.25, 0.25);
    ExpectPoint(OnPaper(letter, 8.5, 11), 8.5, 11);
}

// A4 is 8.27 by 11.69 inches: wide enough for the page's printable area of 8.0 by 10.5, so the page
// keeps its size; its middle (4.25, 5.5) comes to the paper's (4.135, 5.845).
TEST(PlaceOnPaper, OnA4ThePageIsCentredAtItsSize) {
    const QPageLayout a4(QPageSize(QPageSize::A4), QPageLayout::Portrait, QMarginsF(0, 0, 0, 0));
    ExpectPoint(OnPaper(a4, 4.25, 5.5), 4.135, 5.845);
    ExpectPoint(OnPaper(a4, 5.25, 6.5), 5.135, 6.845);
}

// With half an inch unprintable at each side of A4 there are 7.27 inches for 8.0.
TEST(PlaceOnPaper, APageTooWideForThePaperIsMadeSmaller) {
    const QPageLayout a4(QPageSize(QPageSize::A4), QPageLayout::Portrait, QMarginsF(0, 0, 0, 0),
                         QPageLayout::Point, QMarginsF(36, 36, 36, 36));
    ExpectPoint(OnPaper(a4, 4.25, 5.5), 4.135, 5.845);
    ExpectPoint(OnPaper(a4, 0.25, 5.5), 0.5, 5.845);
    ExpectPoint(OnPaper(a4, 8.25, 5.5), 7.77, 5.845);
}

// Letter on its side is 8.5 inches high for 10.5: a factor of 0.8095, centred on (5.5, 4.25).
TEST(PlaceOnPaper, APaperOnItsSideTakesTheWholePage) {
    const QPageLayout side(QPageSize(QPageSize::Letter), QPageLayout::Landscape,
                           QMarginsF(0, 0, 0, 0));
    ExpectPoint(OnPaper(side, 4.25, 5.5), 5.5, 4.25);
    ExpectPoint(OnPaper(side, 4.25, 0.25), 5.5, 0);
    ExpectPoint(OnPaper(side, 4.25, 10.75), 5.5, 8.5);
}

}  // namespace
}  // namespace tendo
