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

/// The text from its first brace on, without the blanks, line ends and byte order mark before it.
std::string_view FromFirstBrace(std::string_view text) {
    if (StartsWith(text, "\uFEFF")) text.remove_prefix(3);
    const std::size_t start = text.find_first_not_of(" \t\r\n");
    return start == std::string_view::npos ? text : text.substr(start);
}

/// Without the brace at its start and the closing ones that belong to none behind it.
std::string WithoutLoneBraces(std::string_view text) {
    if (StartsWith(text, "{")) text.remove_prefix(1);
    std::string shown;
    int open = 0;
    for (const char character : text) {
        if (character == '{') ++open;
        if (character == '}' && open-- == 0) {
            open = 0;
            continue;
        }
        shown += character;
    }
    return shown;
}

}  // namespace

RichText PlainAsRich(std::string_view text, const RichRun& base) {
    RichRun run = base;
    run.text = Replaced(text, "\r\n", "\n");
    std::replace(run.text.begin(), run.text.end(), '\r', '\n');
    std::erase_if(run.text, [](char c) { return c >= 0 && c < ' ' && c != '\n' && c != '\t'; });
    RichText rich;
    rich.paragraphs.emplace_back().runs.push_back(std::move(run));
    return rich;
}

bool IsRichText(std::string_view text) {
    return StartsWith(FromFirstBrace(text), "{") && HoldsBackslashWord(text);
}

RichText ReadRichText(std::string_view text, const RichRun& base, RichHead* head) {
    return RtfReader(FromFirstBrace(text), base, head).Read();
}

RichText ReadRichOrPlainText(std::string_view text, const RichRun& base, RichHead* head) {
    if (IsRichText(text)) return ReadRichText(text, base, head);
    return PlainAsRich(WithoutLoneBraces(text), base);
}

}  // namespace tendo
