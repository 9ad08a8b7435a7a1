#include "footnotes/old_footnote.h"

#include "footnotes/footnote_markup.h"
#include "platform/print/rtf_writer.h"

namespace tendo {

namespace {

/// Each marker becomes the token, except where it is part of the token already.
void ReplaceMarker(std::string& text, std::string_view marker, std::string_view token) {
    const std::size_t lead = token.find(marker);  // of the token ahead of the marker
    std::size_t at = 0;
    while ((at = text.find(marker, at)) != std::string::npos) {
        const bool isToken = lead != std::string_view::npos && at >= lead &&
                             text.compare(at - lead, token.size(), token) == 0;
        if (!isToken) text.replace(at, marker.size(), token);
        at += isToken ? marker.size() : token.size();
    }
}

std::string AsRichText(std::span<const std::string> lines) {
    RichText text;
    for (const std::string& line : lines)
        text.paragraphs.emplace_back().runs.push_back(
            {.text = line, .font = {.family = "Arial", .sizeTwips = 240}});
    return WriteRichText(text);
}

}  // namespace

FootNoteRow ConvertOldFootnote(int number, std::span<const std::string> lines) {
    std::string text = AsRichText(lines);
    ReplaceMarker(text, "$$$$$$$$$$", FinalPriceToken);
    ReplaceMarker(text, "PAGE", PageBreakToken);
    ReplaceMarker(text, "STOP", EndToken);
    FootNoteRow footnote;
    footnote.Name = std::to_string(number);
    footnote.Description = std::move(text);
    return footnote;
}

}  // namespace tendo
