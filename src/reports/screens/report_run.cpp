#include "reports/screens/report_run.h"

#include "platform/files/paths.h"
#include "platform/print/layout_surface.h"
#include "platform/qt/dialogs.h"
#include "platform/qt/form.h"
#include "platform/qt/painter_pdf.h"
#include "platform/qt/text_measurer_qt.h"
#include "platform/text/runtime_error.h"
#include "project/program_state.h"

namespace tendo {
namespace {

ReportRun lastRun;

}  // namespace

const ReportRun& RunReports(const std::function<void(ReportContext&)>& reports) {
    QtTextMeasurer measurer;
    LayoutSurface layout(measurer);
    RecordingSurface surface(layout);
    ReportContext context(surface, Project());
    reports(context);
    lastRun = {layout.TakeResult(), surface.Calls(), std::move(context.Problems),
               lastRun.number + 1};
    return lastRun;
}

const ReportRun& LastReportRun() {
    return lastRun;
}

bool ExportDocument(const Document& document) {
    FileDialog dialog;
    dialog.kind = FileDialog::Kind::Save;
    dialog.title = "Save as PDF";
    dialog.filter = "PDF File (*.pdf)|*.pdf";
    dialog.folder = State().ProjectsDirectory;
    dialog.fileName = StemOf(State().ProjectFileName) + ".pdf";
    dialog.defaultExtension = "pdf";
    dialog.promptOnOverwrite = true;
    const auto file = Dialogs().File(dialog);
    if (!file) return false;
    try {
        const Hourglass pointer;
        WritePdf(document, *file);
        return true;
    } catch (const RuntimeError& error) {
        ShowMessage("Save as PDF", error.Description(), MessageIcon::Warning);
        return false;
    }
}

}  // namespace tendo
