#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "project/project_records.h"

namespace tendo {

/// One of a project's two lists of footnotes; rows 0 to count - 1 are in use, and an empty list
/// keeps one blank row.
struct FootnoteList {
    std::vector<FootNoteRow>& rows;
    std::int16_t& count;

    std::size_t Size() const;
};

FootnoteList ProposalFootnotes(ProjectRecords& project);
FootnoteList AccessoryFootnotes(ProjectRecords& project);

/// A copy of a footnote becomes the last row. RuntimeError 6 when the list is full.
void AddFootnote(FootnoteList list, std::string_view name, std::string_view text);

/// Leaves the list empty.
void ClearFootnotes(FootnoteList list);

/// Takes a row out by way of the name "Delete": a footnote that carries this name goes too.
void RemoveFootnote(FootnoteList list, std::size_t row);

/// Swaps a row with the one above or below; false at the top or the bottom.
bool MoveFootnoteUp(FootnoteList list, std::size_t row);
bool MoveFootnoteDown(FootnoteList list, std::size_t row);

}  // namespace tendo
