#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace tendo::query {

enum class TokenKind { Word, BracketedName, Text, Number, Date, Sign, End };

/// One token of the query language. `text`: the name without brackets, the text without its
/// quotation marks, or the sign ("<=").
struct Token {
    TokenKind kind = TokenKind::End;
    std::string text;
    double number = 0;  // Number, and the serial date of a Date
};

/// Cuts a text into tokens; the last one is End. Broken text (an open apostrophe, bracket or date,
/// a sign that the language lacks) throws the RuntimeError of this number.
std::vector<Token> Tokenize(std::string_view text, int errorNumber);

/// Throws the RuntimeError of a broken text: "Syntax error in ...: " + problem.
[[noreturn]] void ThrowBroken(int errorNumber, std::string_view problem);

}  // namespace tendo::query
