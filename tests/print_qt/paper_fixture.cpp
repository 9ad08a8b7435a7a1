#include "paper_fixture.h"

#include <QProcess>
#include <QStandardPaths>
#include <filesystem>
#include <sstream>

#include "platform/files/ini_file_handler.h"
#include "platform/files/profile.h"
#include "platform/qt/painter_pdf.h"
#include "platform/text/date_text.h"
#include "platform/text/text.h"
#include "reports/package.h"
#include "reports/report_settings.h"

namespace tendo {

PaperTest::PaperTest() {
    Ini().AppProfileFileName = File("Tendo.ini");
    ReadReportSettings();
    Owner() = {"Northfield Heating & Air", "480 Foundry Road", "Alden", "MN 56009",
               "(507) 555-0100"};
    SetToday(ReadIsoDate("1998-05-09"));
}

PaperTest::~PaperTest() {
    SetToday(std::nullopt);
    Ini().AppProfileFileName.clear();
    CurrentReportSettings() = DefaultReportSettings();
}

std::string PaperTest::File(const std::string& name) const {
    return folder.filePath(QString::fromStdString(name)).toStdString();
}

Document PaperTest::LayOut(const PaperJob& job) {
    PaperJob::Settings options;
    for (const std::string& key : ProposalRowKeys())
        options.emplace_back(key, "0");
    for (const char* key : {"CompanyRep", "CompanyID", "ClientFax", "CompanyFax", "chkPrintLogo"})
        options.emplace_back(key, "0");
    options.insert(options.end(), job.options.begin(), job.options.end());
    std::filesystem::remove(Ini().AppProfileFileName);
    WriteProfileSection(Ini().AppProfileFileName, "ReportOptions", options);
    WriteProfileSection(Ini().AppProfileFileName, "BannerOptions", job.banner);
    ReadReportSettings();
    ReportSelection selection;
    selection.title = selection.sales = true;
    ProjectRecords project = job.project;
    return BuildReportPackage(project, measurer, selection);
}

std::string PaperTest::PdfOf(const PaperJob& job) {
    const std::string kept = qEnvironmentVariable("TENDO_PAPERS").toStdString();
    const std::string path =
        kept.empty() ? File(job.name + ".pdf") : kept + "/" + job.name + ".pdf";
    WritePdf(LayOut(job), path);
    return path;
}

std::optional<std::string> AskTool(const char* tool, const QStringList& arguments) {
    const QString program = QStandardPaths::findExecutable(QLatin1String(tool));
    if (program.isEmpty()) return std::nullopt;
    QProcess process;
    process.start(program, arguments);
    EXPECT_TRUE(process.waitForFinished());
    EXPECT_EQ(process.exitCode(), 0) << tool;
    EXPECT_EQ(process.readAllStandardError().toStdString(), "") << tool;
    return process.readAllStandardOutput().toStdString();
}

std::vector<std::string> Words(const std::string& text) {
    std::istringstream stream(Replaced(text, "|", " "));
    std::vector<std::string> words;
    for (std::string word; stream >> word;)
        words.push_back(word);
    return words;
}

std::optional<std::vector<std::string>> PdfPages(const std::string& path, const char* order) {
    const std::optional<std::string> text =
        AskTool("pdftotext", {QLatin1String(order), QStringLiteral("-enc"), QStringLiteral("UTF-8"),
                              QString::fromStdString(path), QStringLiteral("-")});
    if (!text) return std::nullopt;
    std::vector<std::string> pages = Split(*text, '\f');
    pages.pop_back();  // each page ends with a form feed
    return pages;
}

}  // namespace tendo
