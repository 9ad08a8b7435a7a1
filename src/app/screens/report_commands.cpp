#include "app/screens/report_commands.h"

#include <string>
#include <vector>

#include "app/screens/pointer.h"
#include "platform/qt/dialogs.h"
#include "platform/qt/form.h"
#include "project/project_records.h"
#include "reports/generate_reports.h"
#include "reports/package.h"
#include "reports/screens/frm_owner.h"
#include "reports/screens/print_document.h"
#include "reports/screens/report_run.h"

namespace tendo {

namespace {

/// False when reports aren't complete and the user doesn't want them so.
bool AreGoodToPrint(const std::vector<std::string>& problems) {
    if (problems.empty()) return true;
    std::string text;
    for (const std::string& problem : problems)
        text += problem + "\n\n";
    return Ask("Print", text + "Do you wish to print what there is?", Buttons::YesNo,
               MessageIcon::Warning) == Answer::Yes;
}

}  // namespace

void mnuFilePrint_Click() {
    AskForOwnerOnce();
    Form::StoreAllFields();
    HourglassPointer();
    const ReportRun& run = RunReports([](ReportContext& context) { GenerateReports(context); });
    Document document = run.document;
    SetDocumentNames(document, Project());
    NormalPointer();
    if (AreGoodToPrint(run.problems)) PrintDocument(document);
}

void mnuFilePrintSetup_Click() {
    SetUpPrinter();
}

}  // namespace tendo
