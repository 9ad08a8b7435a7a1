#include <cstdio>
#include <cstdlib>
#include <fstream>
#include <stdexcept>

#include "benchmarks.h"
#include "measure.h"
#include "platform/files/paths.h"
#include "platform/qt/painter_pdf.h"
#include "platform/qt/text_measurer_qt.h"
#include "project/project_file.h"
#include "reports/package.h"
#include "reports/report_settings.h"

namespace tendo::bench {
namespace {

/// A table document like the package: for each of its pages a heading and 40 rows of four cells, by
/// groff's tbl.
void WriteTableSource(const std::string& file, std::size_t pages) {
    std::ofstream out(file);
    out << ".ll 6.5i\n";
    for (std::size_t page = 0; page < pages; ++page) {
        out << ".ft B\n.ps 14\nSales Report\n.br\n.ft R\n.ps 10\n.TS\nlp10 lp10 lp10 lp10.\n";
        for (int row = 0; row < 40; ++row)
            out << "Unit Description " << row
                << "\tAir conditioner, matched\tGas furnace, two stage\t$" << row * 37 << ".00\n";
        out << ".TE\n.bp\n";
    }
}

}  // namespace

bool ReportPdf(const std::string& folder, const std::string& share) {
    ProjectRecords records;
    LoadProjectData(WithSeparator(share) + "Projects/Maple Street 12.tdw", records);
    ReadReportSettings();
    const std::string pdf = WithSeparator(folder) + "package.pdf";
    std::size_t pages = 0;
    const auto ours = [&] {
        QtTextMeasurer measurer;
        const Document document = BuildReportPackage(records, measurer);
        pages = document.pages.size();
        WritePdf(document, pdf);
    };
    ours();
    const std::string source = WithSeparator(folder) + "table.tr",
                      groffPdf = WithSeparator(folder) + "table.pdf";
    constexpr std::size_t groffPages = 5;
    WriteTableSource(source, groffPages);
    const std::string command = "groff -t -Tpdf '" + source + "' > '" + groffPdf + "' 2>/dev/null";
    const auto peer = [&] {
        if (std::system(command.c_str()) != 0) throw std::runtime_error("groff failed");
    };
    const auto medians = Medians({ours, peer}, 11);
    return Report("sample package to PDF, pages per second (groff)",
                  static_cast<double>(pages) / medians[0],
                  static_cast<double>(groffPages) / medians[1], "pages/s", 2.0, false);
}

}  // namespace tendo::bench
