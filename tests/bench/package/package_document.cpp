#include "package/package_document.h"

#include <utility>

#include "package/package_text.h"
#include "platform/print/layout_surface.h"
#include "platform/qt/text_measurer_qt.h"
#include "reports/preview_code.h"

namespace tendo::bench {
namespace {

constexpr std::int32_t HeaderShade = 0xC0FFFF;

std::string RtfOf(const Note& note) {
    std::string text = "{\\rtf1\\ansi\\deff0{\\fonttbl{\\f0\\fswiss Arial;}}\\pard\\f0\\fs20 ";
    for (const NoteRun& run : note)
        text += run.bold ? "\\b " + run.text + "\\b0 " : run.text;
    return text + "\\par}";
}

std::string HeadRow() {
    std::string row;
    for (const char* head : TableHeads)
        row += (row.empty() ? "" : "|") + std::string(head);
    return row;
}

std::string BodyOf(const PackagePart& part) {
    std::string body;
    for (const MaterialLine& line : part.lines)
        body += line.number + "|" + line.description + "|" + line.quantity + "|" + line.unitCost +
                "|" + line.cost + ";";
    return body;
}

void WritePart(PrintSurface& surface, const PackagePart& part) {
    PrintSectionHeading(surface, part.heading);
    surface.AddTable("<1600|<5200|>1250|>1350|>1350", HeadRow(), BodyOf(part), HeaderShade);
    surface.Paragraph("");
    surface.AutoRTF(true);
    for (const Note& note : part.notes)
        surface.Paragraph(RtfOf(note));
    surface.AutoRTF(false);
}

}  // namespace

Document PackageDocument() {
    QtTextMeasurer measurer;
    LayoutSurface surface(measurer);
    ProjectRecords project;
    project.GPDProjectFormat.Title = "Maple Street 12";
    ReportContext context(surface, project);
    surface.Action(3);
    bool isFirst = true;
    for (const PackagePart& part : PackageText()) {
        if (!std::exchange(isFirst, false)) surface.NewPage();
        WritePart(surface, part);
    }
    surface.Action(6);
    return surface.TakeResult();
}

}  // namespace tendo::bench
