#include "programs/driver/script.h"

#include <nlohmann/json.hpp>
#include <stdexcept>

namespace tendo::driver {
namespace {

/// The end of the JSON string that begins at `start`, behind its closing quote.
std::size_t EndOfString(std::string_view line, std::size_t start) {
    for (std::size_t i = start + 1; i < line.size(); ++i) {
        if (line[i] == '\\')
            ++i;
        else if (line[i] == '"')
            return i + 1;
    }
    throw std::runtime_error("a string without its closing quote");
}

/// "#2" (an index) and "#c0e0ff" (a colour) are words; any other "#" begins a comment.
bool IsNumberedWord(std::string_view rest) {
    const std::string_view word = rest.substr(1, rest.find_first_of(" \t\r") - 1);
    const auto all = [word](const char* set) {
        return !word.empty() && word.find_first_not_of(set) == std::string_view::npos;
    };
    return all("0123456789") || (word.size() == 6 && all("0123456789abcdefABCDEF"));
}

std::string StringOf(std::string_view word) {
    const auto value = nlohmann::json::parse(word, nullptr, false);
    if (!value.is_string()) throw std::runtime_error("a broken string: " + std::string(word));
    return value.get<std::string>();
}

}  // namespace

std::vector<std::string> WordsOf(std::string_view line) {
    std::vector<std::string> words;
    std::size_t i = 0;
    while (i < line.size()) {
        const char c = line[i];
        if (c == ' ' || c == '\t' || c == '\r') {
            ++i;
        } else if (c == '#' && (words.empty() || !IsNumberedWord(line.substr(i)))) {
            break;
        } else if (c == '"') {
            const std::size_t end = EndOfString(line, i);
            words.push_back(StringOf(line.substr(i, end - i)));
            i = end;
        } else {
            const std::size_t end = std::min(line.find_first_of(" \t\r", i), line.size());
            words.emplace_back(line.substr(i, end - i));
            i = end;
        }
    }
    return words;
}

std::vector<std::string> CommandsOf(std::string_view text) {
    std::vector<std::string> commands(1);
    for (std::size_t i = 0; i < text.size(); ++i) {
        if (text[i] == '"') {
            const std::size_t end = EndOfString(text, i);
            commands.back() += text.substr(i, end - i);
            i = end - 1;
        } else if (text[i] == ';') {
            commands.emplace_back();
        } else {
            commands.back() += text[i];
        }
    }
    return commands;
}

std::string LineOf(const std::vector<std::string>& words) {
    std::string line;
    for (const std::string& word : words) {
        if (!line.empty()) line += ' ';
        line += nlohmann::json(word).dump();
    }
    return line;
}

}  // namespace tendo::driver
