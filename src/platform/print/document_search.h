#pragma once

#include <string_view>
#include <vector>

#include "platform/print/document.h"
#include "platform/print/text_measurer.h"

namespace tendo {

/// The bytes from `begin` up to `end` of a text of a page.
struct MatchPart {
    std::size_t text = 0;  // counts into `Page::texts`
    std::size_t begin = 0, end = 0;
    friend bool operator==(const MatchPart&, const MatchPart&) = default;
};

/// A place where a searched text stands; it has several parts when it runs over lines or fonts.
struct DocumentMatch {
    int page = 0;  // from 0
    std::vector<MatchPart> parts;
    friend bool operator==(const DocumentMatch&, const DocumentMatch&) = default;
};

/// All places of a text, in reading order, none overlapping another. Case doesn't count, and one
/// blank stands for any number of them. The lines of a paragraph or of a table's cell, and the
/// cells of a row, follow each other with a blank between; paragraphs and pages stand apart.
std::vector<DocumentMatch> FindText(const Document& document, std::string_view text);

/// A box on a page in twips.
struct TextBox {
    int left = 0, top = 0, right = 0, bottom = 0;
};
/// Where the parts of a match stand.
std::vector<TextBox> BoxesOf(const Document& document, const DocumentMatch& match,
                             TextMeasurer& measurer);

}  // namespace tendo
