#include "platform/qt/painter_printer.h"

#include <QDir>
#include <QFile>
#include <QLibrary>
#include <QPageRanges>
#include <QPainter>
#include <QPrinter>
#include <QTemporaryDir>
#include <algorithm>
#include <optional>

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

/// Where the print system collects a job before it sends it: a folder of our own, so that a job
/// that is given up can be taken from under it. `QPrinter::abort` sends it all the same.
class SpoolFolder {
  public:
    SpoolFolder() { qputenv(variable, folder_.path().toLocal8Bit()); }
    ~SpoolFolder() {
        if (before_)
            qputenv(variable, *before_);
        else
            qunsetenv(variable);
    }
    SpoolFolder(const SpoolFolder&) = delete;
    SpoolFolder& operator=(const SpoolFolder&) = delete;
    void Empty() const {
        for (const QFileInfo& file : QDir(folder_.path()).entryInfoList(QDir::Files))
            QFile::remove(file.filePath());
    }

  private:
    static constexpr const char* variable = "TMPDIR";
    QTemporaryDir folder_;
    std::optional<QByteArray> before_ =
        qEnvironmentVariableIsSet(variable) ? std::optional(qgetenv(variable)) : std::nullopt;
};

/// What CUPS says of the job that it was handed last; empty when it took it. Qt doesn't tell, but
/// has the library loaded.
std::string LastRefusal() {
    constexpr int firstError = 0x400;
    QLibrary cups(QStringLiteral("cups"), 2);
    const auto status = reinterpret_cast<int (*)()>(cups.resolve("cupsLastError"));
    const auto text = reinterpret_cast<const char* (*)()>(cups.resolve("cupsLastErrorString"));
    if (!status || !text || (status() >= 0 && status() < firstError)) return {};
    return text() ? text() : "The print system gave no reason.";
}

/// What is left of a file that was printed into is no document.
PrintResult Withdraw(QPrinter& printer, QPainter& painter, const SpoolFolder& spool,
                     PrintOutcome outcome) {
    printer.abort();
    spool.Empty();
    painter.end();
    if (!printer.outputFileName().isEmpty()) QFile::remove(printer.outputFileName());
    return {outcome, {}};
}

PrintResult Finish(const QPrinter& printer, QPainter& painter) {
    const bool ended = painter.end() && printer.printerState() != QPrinter::Error;
    const std::string refusal =
        printer.outputFormat() == QPrinter::NativeFormat ? LastRefusal() : std::string();
    return {ended && refusal.empty() ? PrintOutcome::Printed : PrintOutcome::Refused, refusal};
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

PrintResult PrintPages(QPrinter& printer, const Document& document, const std::vector<int>& pages,
                       const PrintProgress& progress) {
    printer.setFullPage(true);
    const QTransform place = PlaceOnPaper(printer.pageLayout(), printer.resolution());
    const SpoolFolder spool;
    QPainter painter;
    LetterSetter letters;
    if (pages.empty() || !painter.begin(&printer)) return {PrintOutcome::Refused, {}};
    const int count = static_cast<int>(pages.size());
    for (int done = 0; done < count; ++done) {
        if (!progress(done, count))
            return Withdraw(printer, painter, spool, PrintOutcome::Cancelled);
        if (done > 0 && !printer.newPage())
            return Withdraw(printer, painter, spool, PrintOutcome::Refused);
        painter.setTransform(place);
        PaintPage(painter, document, pages[static_cast<std::size_t>(done)], 1.0, &letters);
    }
    return Finish(printer, painter);
}

}  // namespace tendo
