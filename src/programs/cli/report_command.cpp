#include <QGuiApplication>

#include "app/directories.h"
#include "platform/files/ini_file_handler.h"
#include "platform/files/paths.h"
#include "platform/qt/painter_page.h"
#include "platform/qt/painter_pdf.h"
#include "platform/qt/text_measurer_qt.h"
#include "platform/text/text.h"
#include "programs/cli/arguments.h"
#include "programs/cli/project_reading.h"
#include "project/program_state.h"
#include "reports/package.h"
#include "reports/report_settings.h"

namespace tendo::cli {
namespace {

constexpr double PictureDpi = 150;

std::optional<ReportSelection> SelectionOf(const Arguments& arguments) {
    if (!arguments.Has("--reports")) return std::nullopt;
    ReportSelection selection;
    for (const std::string& name : Split(arguments.Value("--reports"), ',')) {
        if (name == "title")
            selection.title = true;
        else if (name == "sales")
            selection.sales = true;
        else
            throw UsageError("there is no report \"" + name + "\"");
    }
    return selection;
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

void WriteOutput(const Document& document, const std::string& output,
                 const std::string& extension) {
    if (extension == ".pdf")
        WritePdf(document, output);
    else
        WritePng(document, output, PictureDpi);
}

}  // namespace

void RunReport(const Arguments& arguments) {
    const std::string output = arguments.Value("-o");
    if (output.empty()) throw UsageError("the output is to be named with -o");
    const std::string extension = LowerCase(ExtensionOf(output));
    if (extension != ".pdf" && extension != ".png")
        throw UsageError(output + ": the output is to end in .pdf or .png");
    const auto selection = SelectionOf(arguments);
    ProjectRecords records = ReadProject(arguments.plain[0]);
    ReadSettings(arguments.Value("--home"), records);

    qputenv("QT_QPA_PLATFORM", "offscreen");
    // What Qt has to say of the desktop is no message of this program.
    qInstallMessageHandler([](QtMsgType, const QMessageLogContext&, const QString&) {});
    int count = 1;
    char name[] = "tendo-cli";
    char* words[] = {name, nullptr};
    const QGuiApplication application(count, words);
    if (!DocumentFontsInstalled()) throw Failure(MissingFontsText);
    QtTextMeasurer measurer;
    const Document document = BuildReportPackage(records, measurer, selection);
    if (document.pages.empty())
        throw Failure(arguments.plain[0] +
                      ": no report is marked in the report options, so nothing was written");
    WriteOutput(document, output, extension);
}

}  // namespace tendo::cli
