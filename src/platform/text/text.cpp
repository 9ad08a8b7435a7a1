#include "platform/text/text.h"

#include <algorithm>

#include "platform/text/utf8.h"

namespace tendo {

std::string_view TrimmedLeft(std::string_view text) {
    const std::size_t first = text.find_first_not_of(' ');
    return first == std::string_view::npos ? std::string_view() : text.substr(first);
}

std::string_view TrimmedRight(std::string_view text) {
    return text.substr(0, text.find_last_not_of(' ') + 1);
}

std::string_view Trimmed(std::string_view text) {
    return TrimmedLeft(TrimmedRight(text));
}

std::size_t CharacterCount(std::string_view text) {
    std::size_t count = 0;
    for (std::size_t at = 0; at < text.size(); at += Utf8At(text, at).length)
        ++count;
    return count;
}

std::string_view FirstCharacters(std::string_view text, std::size_t count) {
    if (text.size() <= count) return text;
    std::size_t at = 0;
    for (; at < text.size() && count > 0; --count)
        at += Utf8At(text, at).length;
    return text.substr(0, at);
}

std::string_view LastCharacters(std::string_view text, std::size_t count) {
    if (text.size() <= count) return text;
    const std::size_t all = CharacterCount(text);
    if (all <= count) return text;
    return text.substr(FirstCharacters(text, all - count).size());
}

bool StartsWith(std::string_view text, std::string_view start) {
    return text.starts_with(start);
}

bool EndsWith(std::string_view text, std::string_view end) {
    return text.ends_with(end);
}

bool Contains(std::string_view text, std::string_view part) {
    return text.find(part) != std::string_view::npos;
}

std::string Replaced(std::string_view text, std::string_view what, std::string_view with) {
    if (what.empty()) return std::string(text);
    std::string result;
    std::size_t from = 0;
    for (std::size_t at = text.find(what); at != std::string_view::npos;
         at = text.find(what, from)) {
        result.append(text.substr(from, at - from)).append(with);
        from = at + what.size();
    }
    return result.append(text.substr(from));
}

std::vector<std::string> Split(std::string_view text, char separator) {
    std::vector<std::string> parts;
    std::size_t from = 0;
    for (std::size_t at = text.find(separator); at != std::string_view::npos;
         at = text.find(separator, from)) {
        parts.emplace_back(text.substr(from, at - from));
        from = at + 1;
    }
    parts.emplace_back(text.substr(from));
    return parts;
}

std::u32string ToCodePoints(std::string_view text) {
    std::u32string codePoints;
    codePoints.reserve(text.size());
    for (std::size_t at = 0; at < text.size();) {
        const Utf8Step step = Utf8At(text, at);
        codePoints += step.codePoint;
        at += step.length;
    }
    return codePoints;
}

std::string FromCodePoints(std::u32string_view text) {
    std::string result;
    result.reserve(text.size());
    for (const char32_t codePoint : text)
        AppendUtf8(result, codePoint);
    return result;
}

bool IsUtf8(std::string_view bytes) {
    for (std::size_t at = 0; at < bytes.size();) {
        const Utf8Step step = Utf8At(bytes, at);
        if (!step.wellFormed) return false;
        at += step.length;
    }
    return true;
}

}  // namespace tendo
