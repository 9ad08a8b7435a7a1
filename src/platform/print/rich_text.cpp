#include "platform/print/rich_text.h"

#include <algorithm>

#include "platform/print/rtf_reader.h"
#include "platform/text/text.h"

namespace tendo {

namespace {

bool IsLetter(char character) {
    return (character >= 'a' && character <= 'z') || (character >= 'A' && character <= 'Z');
}

bool HoldsBackslashWord(std::string_view text) {
    for (std::size_t i = 0; i + 1 < text.size(); ++i)
        if (text[i] == '\\' && (IsLetter(text[i + 1]) || text[i + 1] == '\'')) return true;
    return false;
}

std::string_view WithoutLoneBraces(std::string_view text) {
    const auto count = [&](char brace) { return std::count(text.begin(), text.end(), brace); };
    if (StartsWith(text, "{")) text.remove_prefix(1);
    while (EndsWith(text, "}") && count('}') > count('{'))
        text.remove_suffix(1);
    return text;
}

}  // namespace

RichText PlainAsRich(std::string_view text, const RichRun& base) {
    RichRun run = base;
    run.text = Replaced(text, "\r\n", "\n");
    std::replace(run.text.begin(), run.text.end(), '\r', '\n');
    RichText rich;
    rich.paragraphs.emplace_back().runs.push_back(std::move(run));
    return rich;
}

bool IsRichText(std::string_view text) {
    return StartsWith(TrimmedLeft(text), "{") && HoldsBackslashWord(text);
}

RichText ReadRichText(std::string_view text, const RichRun& base) {
    return RtfReader(text, base).Read();
}

RichText ReadRichOrPlainText(std::string_view text, const RichRun& base) {
    if (IsRichText(text)) return ReadRichText(text, base);
    return PlainAsRich(WithoutLoneBraces(text), base);
}

}  // namespace tendo
