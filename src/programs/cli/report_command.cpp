#include <QGuiApplication>
#include <filesystem>

#include "app/directories.h"
#include "platform/files/ini_file_handler.h"
#include "platform/files/paths.h"
#include "platform/qt/painter_page.h"
#include "platform/qt/painter_pdf.h"
#include "platform/qt/text_measurer_qt.h"
#include "platform/text/text.h"
#include "programs/cli/arguments.h"
#include "programs/cli/format_of_run.h"
#include "programs/cli/messages.h"
#include "programs/cli/project_reading.h"
#include "programs/cli/report_choice.h"
#include "project/program_state.h"
#include "reports/package.h"
#include "reports/report_settings.h"

namespace tendo::cli {
namespace {

constexpr double PictureDpi = 150;

const struct {
    std::string_view extension;
    void (*write)(const Document& document, const std::string& output);
} writers[] = {
    {".pdf",
     [](const Document& document, const std::string& output) { WritePdf(document, output); }},
    {".png", [](const Document& document,
                const std::string& output) { WritePng(document, output, PictureDpi); }},
};

const auto& WriterOf(const std::string& output) {
    if (output.empty()) throw UsageError("the output is to be named with -o");
    for (const auto& writer : writers)
        if (EqualsNoCase(ExtensionOf(output), writer.extension)) return writer;
    throw UsageError(output + ": the output is to end in .pdf or .png");
}

std::optional<std::string> ListOf(const Arguments& arguments) {
    if (!arguments.Has("--reports")) return std::nullopt;
    return arguments.Value("--reports");
}

/// Report options, logo and company of a program directory, which is only read. Where no company is
/// kept there, the project's own stands in.
void ReadSettings(const std::string& home, const ProjectRecords& records) {
    State().ProgramDirectory = FindProgramDirectory(home);
    State().ProfileFile = State().ProgramDirectory + "Tendo.ini";
    Ini().AppProfileFileName = State().ProfileFile;
    ReadReportSettings();
    ReadOwner();
    if (!Owner().IsEmpty()) return;
    const GPDCompanyRecord& company = records.GPDCompanyFormat;
    Owner() = {company.Name.Trimmed(), company.Address.Trimmed(), "",
               company.CityStateZip.Trimmed(), company.Phone.Trimmed()};
}

void RefuseToReplaceTheProject(const std::string& project, const std::string& output) {
    std::error_code notThere;
    if (std::filesystem::equivalent(project, output, notThere))
        throw Failure(output + " is the project itself. Nothing was changed");
}

/// The document, and what its user is to know of it.
struct Package {
    Document document;
    std::vector<std::string> remarks;
};

Package LayOut(ProjectRecords& records, const std::optional<ReportSelection>& selection) {
    Package package;
    const std::string unwritten = UnwrittenReports(selection);
    QtTextMeasurer measurer;
    package.document = BuildReportPackage(records, measurer, selection, &package.remarks);
    if (!unwritten.empty()) package.remarks.push_back(unwritten);
    return package;
}

}  // namespace

void RunReport(const Arguments& arguments) {
    const std::string &project = arguments.plain[0], output = arguments.Value("-o");
    const auto& writer = WriterOf(output);
    const auto selection = SelectionOf(ListOf(arguments));
    ProjectRecords records = ReadProject(project);
    RefuseToReplaceTheProject(project, output);
    ReadSettings(arguments.Value("--home"), records);
    std::optional<FormatOfRun> format;
    if (arguments.Has("--format")) format.emplace(arguments.Value("--format"), records);

    qputenv("QT_QPA_PLATFORM", "offscreen");
    // What Qt has to say of the desktop is no message of this program.
    qInstallMessageHandler([](QtMsgType, const QMessageLogContext&, const QString&) {});
    int count = 1;
    char name[] = "tendo-cli";
    char* words[] = {name, nullptr};
    const QGuiApplication application(count, words);
    if (!DocumentFontsInstalled()) throw Failure(MissingFontsText);
    const Package package = LayOut(records, selection);
    if (package.document.pages.empty())
        throw Failure(project +
                      ": no report is marked in the report options, so nothing was written");
    writer.write(package.document, output);
    for (const std::string& remark : package.remarks)
        TellLine("warning: " + remark);
}

}  // namespace tendo::cli
