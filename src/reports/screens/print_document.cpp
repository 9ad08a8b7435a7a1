#include "reports/screens/print_document.h"

#include <QPainter>
#include <QPrinter>
#include <QPrinterInfo>

#include "platform/qt/dialogs.h"
#include "platform/qt/form.h"
#include "platform/qt/painter_page.h"

namespace tendo {

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

}  // namespace tendo
