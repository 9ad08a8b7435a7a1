#include "footnotes/project_footnotes.h"

#include <algorithm>
#include <limits>

#include "platform/text/runtime_error.h"

namespace tendo {

namespace {

constexpr std::string_view DeletedName = "Delete";

/// Keeps at least one row, blank, behind those in use.
void Shrink(FootnoteList list, std::size_t size) {
    list.count = static_cast<std::int16_t>(size);
    list.rows.resize(std::max<std::size_t>(size, 1));
    if (size == 0) list.rows.front() = FootNoteRow();
}

bool Swap(FootnoteList list, std::size_t row, std::size_t other) {
    if (row >= list.Size() || other >= list.Size()) return false;
    std::swap(list.rows[row], list.rows[other]);
    return true;
}

}  // namespace

std::size_t FootnoteList::Size() const {
    return std::min(rows.size(), static_cast<std::size_t>(std::max<int>(count, 0)));
}

FootnoteList ProposalFootnotes(ProjectRecords& project) {
    return {project.ProjectFootNotes, project.gvNumOfFootnotes};
}

FootnoteList AccessoryFootnotes(ProjectRecords& project) {
    return {project.ProjectAccRptFootNotes, project.NumOfAccRptFootnotes};
}

void AddFootnote(FootnoteList list, std::string_view name, std::string_view text) {
    const std::size_t size = list.Size();
    if (size >= static_cast<std::size_t>(std::numeric_limits<std::int16_t>::max()))
        ThrowError(error_number::Overflow);
    list.rows.resize(size + 1);
    list.rows[size].Name = std::string(name);
    list.rows[size].Description = std::string(text);
    list.count = static_cast<std::int16_t>(size + 1);
}

void ClearFootnotes(FootnoteList list) {
    Shrink(list, 0);
}

void RemoveFootnote(FootnoteList list, std::size_t row) {
    const std::size_t size = list.Size();
    if (row >= size) return;
    list.rows[row].Name = std::string(DeletedName);
    list.rows[row].Description = std::string(DeletedName);
    list.rows.resize(size);
    std::erase_if(list.rows, [](const FootNoteRow& footnote) {
        return footnote.Name.Trimmed() == DeletedName;
    });
    Shrink(list, list.rows.size());
}

bool MoveFootnoteUp(FootnoteList list, std::size_t row) {
    return row > 0 && Swap(list, row, row - 1);
}

bool MoveFootnoteDown(FootnoteList list, std::size_t row) {
    return Swap(list, row, row + 1);
}

}  // namespace tendo
