#pragma once

#include <QTransform>
#include <functional>
#include <string>
#include <vector>

#include "platform/print/document.h"

class QPageLayout;
class QPrinter;

namespace tendo {

/// How a print job ended, and what the print system said when it refused.
enum class PrintOutcome { Printed, Cancelled, Refused };
struct PrintResult {
    PrintOutcome outcome = PrintOutcome::Printed;
    std::string reason;
};

/// Called ahead of each page with the count of those done; false stops the job.
using PrintProgress = std::function<bool(int done, int count)>;

/// Pages in the order in which the printer gets them, from 0: its page range (`shownPage`, from 0,
/// for "current page"), its order, and its copies where it can't make them itself.
std::vector<int> PagesToPrint(const QPrinter& printer, int pageCount, int shownPage = 0);

/// Where a page's twips stand on paper, in dots of `resolution` an inch. On Letter at true size. On
/// any other paper the page's printable area is centred in the paper's, and made smaller where it
/// doesn't fit; never larger.
QTransform PlaceOnPaper(const QPageLayout& paper, int resolution);

/// Prints those pages as one job. A stopped job is withdrawn.
PrintResult PrintPages(QPrinter& printer, const Document& document, const std::vector<int>& pages,
                       const PrintProgress& progress);

}  // namespace tendo
