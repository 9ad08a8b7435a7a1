#pragma once

#include <string_view>

#include "platform/print/rich_head.h"
#include "platform/print/rich_model.h"

namespace tendo {

/// True when the text is to be read as rich text: a group that holds at least one backslash word.
bool IsRichText(std::string_view text);

/// Reads rich text. Format the text doesn't name itself is that of `base`; a whole document
/// ("{\rtf1") starts from twelve points, regular. Never fails: broken groups end with the text,
/// groups deeper than 100 and numbers out of range are passed over, pictures and objects are left
/// out.
/// `head` gives the head of the text ahead of a part without one, and takes that of a whole
/// document.
RichText ReadRichText(std::string_view text, const RichRun& base, RichHead* head = nullptr);

/// A plain text as one paragraph in one format.
RichText PlainAsRich(std::string_view text, const RichRun& base);

/// A text that may be rich or plain. What remains of a text after the footnote markers were taken
/// out of it can hold braces without a partner; they aren't shown.
RichText ReadRichOrPlainText(std::string_view text, const RichRun& base, RichHead* head = nullptr);

}  // namespace tendo
