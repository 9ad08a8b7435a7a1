#include "footnotes/footnote_markup.h"

#include "platform/text/number_text.h"
#include "platform/text/text.h"

namespace tendo {

namespace {

void DropBehindEnd(std::vector<std::string>& paragraphs) {
    bool ended = false;
    for (std::string& text : paragraphs) {
        const std::size_t end = text.find(EndToken);
        if (ended)
            text = "{}";
        else if (end != std::string::npos)
            text = text.substr(0, end) + "}";
        ended = ended || end != std::string::npos;
    }
}

}  // namespace

std::vector<std::string> FootnoteParagraphs(std::string_view description, float finalPrice) {
    const std::string text =
        Replaced(description, FinalPriceToken, FormatNumber(finalPrice, "$###,###,##0.00"));
    std::vector<std::string> paragraphs;
    std::string_view rest = text;
    std::string opening;
    for (std::size_t at = rest.find(PageBreakToken); at != std::string_view::npos;
         at = rest.find(PageBreakToken)) {
        paragraphs.push_back(opening + std::string(rest.substr(0, at)) + "}");
        rest.remove_prefix(at + PageBreakToken.size());
        opening = "{";
    }
    paragraphs.push_back(opening + std::string(rest));
    DropBehindEnd(paragraphs);
    return paragraphs;
}

}  // namespace tendo
