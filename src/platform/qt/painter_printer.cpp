#include "platform/qt/painter_printer.h"

#include <QFile>
#include <QPageRanges>
#include <QPainter>
#include <QPrinter>
#include <algorithm>

#include "platform/qt/painter_page.h"

namespace tendo {
namespace {

constexpr double TwipsPerInch = 1440;

bool IsInRange(const QPrinter& printer, int page, int shownPage) {
    switch (printer.printRange()) {
        case QPrinter::PageRange:
            return printer.pageRanges().isEmpty() || printer.pageRanges().contains(page + 1);
        case QPrinter::CurrentPage:
            return page == shownPage;
        default:
            return true;
    }
}

/// Collated: the document again and again; else each page in all its copies.
std::vector<int> Copies(const std::vector<int>& pages, int count, bool collated) {
    std::vector<int> all;
    const auto inner = static_cast<std::size_t>(collated ? 1 : count);
    for (int round = 0; round < (collated ? count : 1); ++round)
        for (const int page : pages)
            all.insert(all.end(), inner, page);
    return all;
}

/// What is left of a file that was printed into is no document.
PrintOutcome Withdraw(QPrinter& printer, QPainter& painter, PrintOutcome outcome) {
    printer.abort();
    painter.end();
    if (!printer.outputFileName().isEmpty()) QFile::remove(printer.outputFileName());
    return outcome;
}

bool IsLetter(const QPageLayout& paper) {
    return paper.orientation() == QPageLayout::Portrait &&
           paper.pageSize().isEquivalentTo(QPageSize(QPageSize::Letter));
}

}  // namespace

std::vector<int> PagesToPrint(const QPrinter& printer, int pageCount, int shownPage) {
    std::vector<int> pages;
    for (int page = 0; page < pageCount; ++page)
        if (IsInRange(printer, page, shownPage)) pages.push_back(page);
    if (printer.pageOrder() == QPrinter::LastPageFirst) std::reverse(pages.begin(), pages.end());
    if (printer.supportsMultipleCopies()) return pages;
    return Copies(pages, printer.copyCount(), printer.collateCopies());
}

QTransform PlaceOnPaper(const QPageLayout& paper, int resolution) {
    const double dots = resolution / TwipsPerInch;
    if (IsLetter(paper)) return QTransform::fromScale(dots, dots);
    QPageLayout unprintable = paper;
    unprintable.setUnits(QPageLayout::Inch);
    const QRectF room = unprintable.fullRect().marginsRemoved(unprintable.minimumMargins());
    const double scale = std::min({1.0, room.width() * TwipsPerInch / page_geometry::Width,
                                   room.height() * TwipsPerInch / page_geometry::Height}) *
                         dots;
    const QPointF middle = room.center() * resolution;
    return QTransform::fromTranslate(middle.x(), middle.y())
        .scale(scale, scale)
        .translate(-page_geometry::PaperWidth / 2.0, -page_geometry::PaperHeight / 2.0);
}

PrintOutcome PrintPages(QPrinter& printer, const Document& document, const std::vector<int>& pages,
                        const PrintProgress& progress) {
    printer.setFullPage(true);
    const QTransform place = PlaceOnPaper(printer.pageLayout(), printer.resolution());
    QPainter painter;
    if (pages.empty() || !painter.begin(&printer)) return PrintOutcome::Refused;
    const int count = static_cast<int>(pages.size());
    for (int done = 0; done < count; ++done) {
        if (!progress(done, count)) return Withdraw(printer, painter, PrintOutcome::Cancelled);
        if (done > 0 && !printer.newPage())
            return Withdraw(printer, painter, PrintOutcome::Refused);
        painter.setTransform(place);
        PaintPage(painter, document, pages[static_cast<std::size_t>(done)], 1.0);
    }
    const bool ended = painter.end();
    return ended && printer.printerState() != QPrinter::Error ? PrintOutcome::Printed
                                                              : PrintOutcome::Refused;
}

}  // namespace tendo
