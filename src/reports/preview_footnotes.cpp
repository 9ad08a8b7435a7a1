#include <algorithm>
#include <span>
#include <string>
#include <vector>

#include "footnotes/footnote_markup.h"
#include "reports/preview_code.h"

namespace tendo {

namespace {

using FootnoteRows = std::span<const FootNoteRow>;

/// The rows that a list's count calls for; an empty list keeps a blank row.
FootnoteRows FootnotesInUse(FootnoteRows rows, int count) {
    return rows.first(std::min(rows.size(), static_cast<std::size_t>(std::max(count, 0))));
}

FootnoteRows AccessoryFootnotes(const ProjectRecords& project) {
    return FootnotesInUse(project.ProjectAccRptFootNotes, project.NumOfAccRptFootnotes);
}

void PrintRow(ReportContext& context, const FootNoteRow& row) {
    const std::vector<std::string> paragraphs =
        FootnoteParagraphs(row.Description, context.project.SystemTendos.TotalSalePrice);
    for (const std::string& paragraph : paragraphs) {
        if (&paragraph != &paragraphs.front()) context.surface.NewPage();
        context.surface.Paragraph(paragraph);
    }
}

void PrintRows(ReportContext& context, FootnoteRows rows) {
    if (rows.empty()) return;
    context.surface.AutoRTF(true);
    for (const FootNoteRow& row : rows)
        PrintRow(context, row);
}

}  // namespace

void PrintFootnotes(ReportContext& context) {
    const ProjectRecords& project = context.project;
    PrintRows(context, FootnotesInUse(project.ProjectFootNotes, project.gvNumOfFootnotes));
}

void PrintFirstAccessoryFootnote(ReportContext& context) {
    const FootnoteRows rows = AccessoryFootnotes(context.project);
    PrintRows(context, rows.first(std::min<std::size_t>(rows.size(), 1)));
}

void PrintAccessoryFootnotes(ReportContext& context) {
    const FootnoteRows rows = AccessoryFootnotes(context.project);
    PrintRows(context, rows.subspan(std::min<std::size_t>(rows.size(), 1)));
}

}  // namespace tendo
