#include "reports/screens/report_run.h"

#include <QPainter>
#include <QPrintDialog>
#include <QPrinter>
#include <QPrinterInfo>

#include "platform/files/paths.h"
#include "platform/print/layout_surface.h"
#include "platform/qt/dialogs.h"
#include "platform/qt/form.h"
#include "platform/qt/painter_page.h"
#include "platform/qt/painter_pdf.h"
#include "platform/qt/text_measurer_qt.h"
#include "platform/text/runtime_error.h"
#include "project/program_state.h"

namespace tendo {
namespace {

ReportRun lastRun;

}  // namespace

const ReportRun& RunReports(const std::function<void(PrintSurface&)>& reports) {
    QtTextMeasurer measurer;
    LayoutSurface layout(measurer);
    RecordingSurface surface(layout);
    reports(surface);
    lastRun = {layout.TakeResult(), surface.Calls(), lastRun.number + 1};
    return lastRun;
}

const ReportRun& LastReportRun() {
    return lastRun;
}

bool PrintDocument(const Document& document) {
    if (document.pages.empty()) {
        ShowMessage("Print", "There is nothing to print: the reports have no pages.",
                    MessageIcon::Information);
        return false;
    }
    if (QPrinterInfo::availablePrinterNames().isEmpty()) {
        ShowMessage(
            "Print",
            "No printer is set up on this computer. Save the reports as a PDF file instead.",
            MessageIcon::Information);
        return false;
    }
    if (!Dialogs().Print("Print")) return false;
    const Hourglass pointer;
    QPrinter printer(QPrinter::HighResolution);
    printer.setPageSize(QPageSize(QPageSize::Letter));
    printer.setFullPage(true);
    printer.setDocName(QString::fromStdString(document.title));
    QPainter painter;
    if (!painter.begin(&printer)) {
        ShowMessage("Print", "The printer did not accept the document. Nothing was printed.",
                    MessageIcon::Warning);
        return false;
    }
    for (int page = 0; page < static_cast<int>(document.pages.size()); ++page) {
        if (page > 0) printer.newPage();
        PaintPage(painter, document, page, printer.resolution() / 1440.0);
    }
    return true;
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
