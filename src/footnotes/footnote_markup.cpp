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
    std::string text =
        Replaced(description, FinalPriceToken, FormatNumber(finalPrice, "$###,###,##0.00"));
    std::vector<std::string> paragraphs;
    for (std::size_t at = text.find(PageBreakToken); at != std::string::npos;
         at = text.find(PageBreakToken)) {
        paragraphs.push_back(text.substr(0, at) + "}");
        text = "{" + text.substr(at + PageBreakToken.size());
    }
    paragraphs.push_back(std::move(text));
    DropBehindEnd(paragraphs);
    return paragraphs;
}

}  // namespace tendo
