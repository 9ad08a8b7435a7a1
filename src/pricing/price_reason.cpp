#include "pricing/price_reason.h"

namespace tendo {

std::string PlainText(const PriceReason& reason) {
    std::string text = reason.title + ": " + reason.figure;
    for (const std::string* line : {&reason.rule, &reason.worked, &reason.note})
        if (!line->empty()) text += "\n" + *line;
    for (const PriceReason::Part& part : reason.parts)
        text += "\n" + part.name + ": " + part.value +
                (part.source.empty() ? std::string() : ", " + part.source);
    return text;
}

}  // namespace tendo
