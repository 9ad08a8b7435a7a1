#include <gmock/gmock.h>

#include <QImage>
#include <QProcess>
#include <QStandardPaths>
#include <QTemporaryDir>

#include "platform/files/ini_file_handler.h"
#include "platform/files/paths.h"
#include "platform/qt/painter_page.h"
#include "platform/qt/painter_pdf.h"
#include "platform/qt/text_measurer_qt.h"
#include "platform/text/date_text.h"
#include "platform/text/runtime_error.h"
#include "reports/package.h"
#include "reports/report_settings.h"

namespace tendo {
namespace {

using testing::HasSubstr;

ProjectRecords SampleJob() {
    ProjectRecords project;
    project.GPDProjectFormat.Title = "Marlow Résidence";
    project.GPDClientFormat.Name = "Dana Marlow";
    project.CLGModelData[0].ModelNum = "FA-3614";
    project.CLGModelData[0].Manuf = "Frostelm";
    project.HTGModelData[0].ModelNum = "FG-80-095";
    project.ModelInfo[0].CLGModelDealerCost = 2000;
    project.ModelInfo[0].CLGSalePrice = 3310;
    project.ModelInfo[0].HTGSalePrice = 2240;
    project.SystemTendos.TotalSalePrice = 17265.8F;
    project.ProjectFootNotes.push_back(
        {"Terms",
         "{\\rtf1{\\fonttbl{\\f0 Arial;}}\\f0\\fs20 Half of {\\b <$$$$>} is due.<PAGE>"
         "Signature\\par}"});
    project.gvNumOfFootnotes = 1;
    return project;
}

class Painters : public testing::Test {
  protected:
    Painters() {
        Ini().AppProfileFileName = File("Tendo.ini");
        ReadReportSettings();
        Owner() = {"Northfield Heating & Air", "480 Foundry Road", "Alden", "MN 56009", ""};
        SetToday(ReadIsoDate("1998-05-09"));
    }
    ~Painters() override { SetToday(std::nullopt); }

    std::string File(const char* name) const {
        return folder.filePath(QLatin1String(name)).toStdString();
    }
    Document Package() {
        ProjectRecords project = SampleJob();
        ReportSelection selection;
        selection.title = selection.sales = true;
        return BuildReportPackage(project, measurer, selection);
    }
    /// What a tool of the system says about the file; empty when the tool isn't there.
    std::string Ask(const char* tool, const QStringList& arguments) const {
        const QString program = QStandardPaths::findExecutable(QLatin1String(tool));
        if (program.isEmpty()) return {};
        QProcess process;
        process.start(program, arguments);
        EXPECT_TRUE(process.waitForFinished());
        EXPECT_EQ(process.exitCode(), 0);
        EXPECT_EQ(process.readAllStandardError().toStdString(), "");
        return process.readAllStandardOutput().toStdString();
    }

    QTemporaryDir folder;
    QtTextMeasurer measurer;
};

TEST_F(Painters, ThePdfHoldsItsTextsInReadingOrder) {
    WritePdf(Package(), File("out.pdf"));
    const QString file = QString::fromStdString(File("out.pdf"));
    std::string text = Ask("pdftotext", {QStringLiteral("-layout"), file, QStringLiteral("-")});
    if (text.empty()) GTEST_SKIP() << "pdftotext (poppler-utils) isn't installed";
    std::size_t at = 0;
    for (const char* expected : {"MARLOW RÉSIDENCE",
                                 "TENDO SALES PROPOSAL",
                                 "Dana Marlow",
                                 "Prepared By:",
                                 "\f",
                                 "Northfield Heating & Air",
                                 "480 Foundry Road Alden",
                                 "Project Summary",
                                 "Client:",
                                 "Sales Report",
                                 "COOLING",
                                 "Equipment Manufacturer:",
                                 "Frostelm",
                                 "FA-3614",
                                 "FG-80-095",
                                 "Total Price:",
                                 "$3,310.00",
                                 "$2,240.00",
                                 "Footnotes",
                                 "Half of $17,265.80 is due.",
                                 "Saturday, May 09, 1998",
                                 "\f",
                                 "TENDO - HVAC Estimating and Sales Proposal Program",
                                 "Page 3",
                                 "Signature"}) {
        const std::size_t found = text.find(expected, at);
        ASSERT_NE(found, std::string::npos) << expected << " behind\n" << text.substr(0, at);
        at = found;
    }
}

TEST_F(Painters, ThePdfNamesItsTitleAndAuthorAndEmbedsItsFonts) {
    WritePdf(Package(), File("out.pdf"));
    const QStringList file{QString::fromStdString(File("out.pdf"))};
    const std::string info = Ask("pdfinfo", file);
    if (info.empty()) GTEST_SKIP() << "pdfinfo (poppler-utils) isn't installed";
    EXPECT_THAT(info, HasSubstr("Marlow Résidence"));
    EXPECT_THAT(info, HasSubstr("Northfield Heating & Air"));
    EXPECT_THAT(info, HasSubstr("612 x 792 pts (letter)"));
    const std::string fonts = Ask("pdffonts", file);
    EXPECT_THAT(fonts, HasSubstr("LiberationSans"));
    EXPECT_THAT(fonts, testing::Not(HasSubstr(" no  no ")));
}

TEST_F(Painters, ThePdfHasAnOutlineOfItsSections) {
    const std::string pdf = PdfBytes(Package());
    EXPECT_THAT(pdf, HasSubstr("/Outlines "));
    // "Sales Report" in UTF-16, and title page and three sections in all.
    EXPECT_THAT(pdf, HasSubstr("<FEFF00530061006C006500730020005200650070006F00720074>"));
    EXPECT_THAT(pdf, HasSubstr("/Count 4\n>>\nendobj"));
}

TEST_F(Painters, ADocumentWithoutPagesIsStillAWholePdf) {
    const std::string pdf = PdfBytes({});
    EXPECT_THAT(pdf, testing::StartsWith("%PDF-1."));
    EXPECT_THAT(pdf, testing::EndsWith("%%EOF\n"));
}

TEST_F(Painters, APdfThatCannotBeWrittenIsAnError) {
    EXPECT_THROW(WritePdf(Package(), File("no/such/folder/out.pdf")), RuntimeError);
}

TEST_F(Painters, APageIsPaintedAtItsScale) {
    Document document;
    document.pages.emplace_back();
    // A red box from one inch to two, counted from the printable area: 1.25 to 2.25 inches of
    // paper.
    document.pages[0].shapes.push_back(BoxItem{1440, 1440, 2880, 2880, Rgb{0xFF0000}, {}, 0});
    const QImage image = PageImage(document, 0, 96);
    EXPECT_EQ(image.size(), QSize(816, 1056));
    EXPECT_EQ(image.pixelColor(119, 119), QColor(Qt::white));
    EXPECT_EQ(image.pixelColor(121, 121), QColor(Qt::red));
    EXPECT_EQ(image.pixelColor(214, 214), QColor(Qt::red));
    EXPECT_EQ(image.pixelColor(217, 217), QColor(Qt::white));
}

TEST_F(Painters, SeveralPagesBecomeNumberedPictures) {
    const Document document = Package();
    ASSERT_EQ(document.pages.size(), 3U);
    WritePng(document, File("page.png"), 30);
    for (const char* name : {"page-1.png", "page-2.png", "page-3.png"})
        EXPECT_EQ(QImage(QString::fromStdString(File(name))).size(), QSize(255, 330)) << name;
    EXPECT_FALSE(FileExists(File("page.png")));
}

TEST_F(Painters, APictureThatCannotBeReadIsLeftOut) {
    Document document;
    document.pages.emplace_back();
    document.pages[0].shapes.push_back(PictureItem{0, 0, 1440, 1440, File("gone.png")});
    const QImage image = PageImage(document, 0, 30);
    EXPECT_EQ(image.pixelColor(20, 20), QColor(Qt::white));
}

TEST_F(Painters, ArialIsSetInItsMetricTwin) {
    const FontSpec arial;
    // Liberation Sans has Arial's widths: "Heating" is 722 + 556 + 556 + 278 + 222 + 556 + 556 =
    // 3446 thousandths of the size, 689.2 twips at 10 points. Its line is 1.149 of the size high.
    EXPECT_NEAR(measurer.Width(arial, "Heating"), 689.2, 1.5);
    EXPECT_NEAR(measurer.Metrics(arial).lineHeight, 230, 2);
    EXPECT_NEAR(measurer.Metrics(arial).ascent, 181, 1);
}

TEST_F(Painters, ThePenReachesTheWidthThatWasMeasured) {
    const FontSpec bold{"Arial", 240, true};
    EXPECT_NEAR(
        measurer.Width(bold, "Sales Report"),
        measurer.Width(bold, "Sales") + measurer.Width(bold, " ") + measurer.Width(bold, "Report"),
        2);
}

}  // namespace
}  // namespace tendo
