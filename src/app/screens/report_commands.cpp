#include "app/screens/report_commands.h"

#include "app/screens/pointer.h"
#include "platform/qt/form.h"
#include "project/project_records.h"
#include "reports/generate_reports.h"
#include "reports/package.h"
#include "reports/screens/frm_owner.h"
#include "reports/screens/print_document.h"
#include "reports/screens/report_run.h"

namespace tendo {

void mnuFilePrint_Click() {
    AskForOwnerOnce();
    Form::StoreAllFields();
    HourglassPointer();
    Document document =
        RunReports([](ReportContext& context) { GenerateReports(context); }).document;
    SetDocumentNames(document, Project());
    NormalPointer();
    PrintDocument(document);
}

void mnuFilePrintSetup_Click() {
    SetUpPrinter();
}

}  // namespace tendo
