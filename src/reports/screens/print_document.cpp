#include "reports/screens/print_document.h"

#include <QElapsedTimer>
#include <QPrinter>
#include <functional>

#include "platform/qt/dialogs.h"
#include "platform/qt/form.h"
#include "platform/qt/painter_printer.h"
#include "platform/qt/progress_window.h"
#include "reports/screens/export_document.h"

namespace tendo {
namespace {

/// What the user chose of a printer, for as long as the program runs.
struct PrinterChoice {
    QString printerName;
    QPageLayout paper;
    QPrinter::ColorMode colorMode = QPrinter::Color;
    QPrinter::DuplexMode duplex = QPrinter::DuplexNone;
};
std::optional<PrinterChoice> printerChoice;

/// The printer's own paper at first; what has none of its own gets Letter.
void PutIntoForce(QPrinter& printer) {
    if (!printerChoice) {
        if (!printer.isValid() || printer.outputFormat() == QPrinter::PdfFormat)
            printer.setPageSize(QPageSize(QPageSize::Letter));
        return;
    }
    if (!printerChoice->printerName.isEmpty()) printer.setPrinterName(printerChoice->printerName);
    printer.setPageLayout(printerChoice->paper);
    printer.setColorMode(printerChoice->colorMode);
    printer.setDuplex(printerChoice->duplex);
}

void Keep(const QPrinter& printer) {
    printerChoice = {printer.printerName(), printer.pageLayout(), printer.colorMode(),
                     printer.duplex()};
}

bool OfferPdf(const Document& document) {
    return Ask("Print",
               "No printer is set up on this computer. The reports can be saved as a PDF file "
               "instead, to be printed elsewhere or sent by e-mail.\n\nSave them as a PDF file "
               "now?",
               Buttons::OkCancel) == Answer::Ok &&
           !ExportPdf(document).empty();
}

/// Shows the window once the job proves to be a long one.
class JobProgress {
  public:
    JobProgress() : window_("Printing...") { clock_.start(); }
    bool operator()(int done, int count) const {
        if (count <= FewPages && clock_.elapsed() < ShortTime) return true;
        return ShowStep(
            "Printing page " + std::to_string(done + 1) + " of " + std::to_string(count) + "...",
            done, count);
    }

  private:
    static constexpr int FewPages = 20;
    static constexpr int ShortTime = 500;  // milliseconds
    WindowWhileWorking window_;
    QElapsedTimer clock_;
};

PrintResult RunJob(QPrinter& printer, const Document& document, std::optional<int> shownPage) {
    const Hourglass pointer;
    const JobProgress progress;
    return PrintPages(
        printer, document,
        PagesToPrint(printer, static_cast<int>(document.pages.size()), shownPage.value_or(0)),
        std::cref(progress));
}

void TellRefusal(const std::string& reason) {
    ShowMessage("Print",
                "The printer did not take the reports." + (reason.empty() ? "" : "\n" + reason) +
                    "\n\nLook whether it is switched on and connected, then print again, or save "
                    "the reports as a PDF file.",
                MessageIcon::Warning);
}

}  // namespace

bool PrintDocument(const Document& document, std::optional<int> shownPage) {
    if (document.pages.empty()) {
        ShowMessage("Print", "There is nothing to print: the reports have no pages.",
                    MessageIcon::Information);
        return false;
    }
    if (!Dialogs().HasPrinter()) return OfferPdf(document);
    QPrinter printer(QPrinter::HighResolution);
    PutIntoForce(printer);
    printer.setDocName(QString::fromStdString(document.title));
    printer.setCreator(QStringLiteral("TENDO"));
    if (!Dialogs().Print({"Print", static_cast<int>(document.pages.size()), shownPage.has_value()},
                         printer))
        return false;
    Keep(printer);
    const PrintResult result = RunJob(printer, document, shownPage);
    if (result.outcome == PrintOutcome::Refused) TellRefusal(result.reason);
    return result.outcome == PrintOutcome::Printed;
}

void SetUpPrinter() {
    if (!Dialogs().HasPrinter()) {
        ShowMessage("Printer Setup", "No printer is set up on this computer.",
                    MessageIcon::Information);
        return;
    }
    QPrinter printer(QPrinter::HighResolution);
    PutIntoForce(printer);
    if (Dialogs().Print({"Printer Setup"}, printer)) Keep(printer);
}

}  // namespace tendo
