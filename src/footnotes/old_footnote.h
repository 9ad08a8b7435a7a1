#pragma once

#include <span>
#include <string>

#include "project/project_records.h"

namespace tendo {

/// A footnote of the DOS release as one of today: its number is its name, its lines (UTF-8, without
/// their ends) are paragraphs of rich text, and its markers, ten dollar signs and the words PAGE
/// and STOP in capitals, are tokens. A longer word that holds these capitals is turned into one
/// too.
FootNoteRow ConvertOldFootnote(int number, std::span<const std::string> lines);

}  // namespace tendo
