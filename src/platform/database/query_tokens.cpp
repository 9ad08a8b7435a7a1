#include "platform/database/query_tokens.h"

#include <charconv>
#include <cmath>

#include "platform/text/date_text.h"
#include "platform/text/runtime_error.h"

namespace tendo::query {
namespace {

bool IsDigit(char c) {
    return c >= '0' && c <= '9';
}

bool IsWordStart(char c) {
    return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') || c == '_' ||
           static_cast<unsigned char>(c) >= 0x80;
}

bool IsBlank(char c) {
    return c == ' ' || c == '\t' || c == '\r' || c == '\n';
}

class Tokenizer {
  public:
    Tokenizer(std::string_view text, int errorNumber) : rest_(text), errorNumber_(errorNumber) {}

    Token Next() {
        while (!rest_.empty() && IsBlank(rest_.front()))
            rest_.remove_prefix(1);
        if (rest_.empty()) return {};
        const char c = rest_.front();
        if (c == '[') return BracketedName();
        if (c == '\'' || c == '"') return QuotedText(c);
        if (c == '#') return DateLiteral();
        if (IsDigit(c) || (c == '.' && rest_.size() > 1 && IsDigit(rest_[1])))
            return NumberLiteral();
        if (IsWordStart(c)) return Word();
        return Sign();
    }

  private:
    std::string Take(std::size_t count) {
        std::string taken(rest_.substr(0, count));
        rest_.remove_prefix(count);
        return taken;
    }

    Token Word() {
        std::size_t length = 1;
        while (length < rest_.size() && (IsWordStart(rest_[length]) || IsDigit(rest_[length])))
            ++length;
        return {TokenKind::Word, Take(length)};
    }

    Token BracketedName() {
        const std::size_t end = rest_.find(']');
        if (end == std::string_view::npos)
            ThrowBroken(errorNumber_, "the bracket of " + std::string(rest_) + " is never closed");
        if (end == 1) ThrowBroken(errorNumber_, "there is no name between the brackets []");
        Token token{TokenKind::BracketedName, std::string(rest_.substr(1, end - 1))};
        rest_.remove_prefix(end + 1);
        return token;
    }

    /// A doubled quotation mark inside stands for itself.
    Token QuotedText(char mark) {
        Token token{TokenKind::Text, ""};
        for (std::size_t i = 1; i < rest_.size(); ++i) {
            if (rest_[i] != mark) {
                token.text += rest_[i];
            } else if (i + 1 < rest_.size() && rest_[i + 1] == mark) {
                token.text += rest_[i++];
            } else {
                rest_.remove_prefix(i + 1);
                return token;
            }
        }
        ThrowBroken(errorNumber_, "the quotation of " + std::string(rest_) + " is never closed");
    }

    Token DateLiteral() {
        const std::size_t end = rest_.find('#', 1);
        if (end == std::string_view::npos)
            ThrowBroken(errorNumber_, "the date " + std::string(rest_) + " is never closed");
        const std::string text = Take(end + 1);
        const auto date = ReadDate(std::string_view(text).substr(1, end - 1));
        if (!date) ThrowBroken(errorNumber_, text + " is no date");
        return {TokenKind::Date, text, SerialOfDate(*date)};
    }

    Token NumberLiteral() {
        Token token{TokenKind::Number, ""};
        const char* begin = rest_.data();
        const auto read = std::from_chars(begin, begin + rest_.size(), token.number);
        token.text = Take(static_cast<std::size_t>(read.ptr - begin));
        if (read.ec != std::errc() || !std::isfinite(token.number))
            ThrowBroken(errorNumber_, token.text + " is out of the range of numbers");
        if (!rest_.empty() && IsWordStart(rest_.front()))
            ThrowBroken(errorNumber_, "letters follow the number " + token.text);
        return token;
    }

    Token Sign() {
        constexpr std::string_view Signs[] = {"<=", ">=", "<>", "=", "<", ">", "(", ")",
                                              ",",  ".",  ";",  "*", "+", "-", "/"};
        for (const std::string_view sign : Signs)
            if (rest_.starts_with(sign)) return {TokenKind::Sign, Take(sign.size())};
        ThrowBroken(errorNumber_, "the sign " + Take(1) + " has no meaning");
    }

    std::string_view rest_;
    int errorNumber_;
};

}  // namespace

std::vector<Token> Tokenize(std::string_view text, int errorNumber) {
    Tokenizer tokenizer(text, errorNumber);
    std::vector<Token> tokens;
    do
        tokens.push_back(tokenizer.Next());
    while (tokens.back().kind != TokenKind::End);
    return tokens;
}

void ThrowBroken(int errorNumber, std::string_view problem) {
    std::string text = ErrorDescription(errorNumber);
    if (text.ends_with('.')) text.pop_back();
    throw RuntimeError(errorNumber, text + ": " + std::string(problem) + ".");
}

}  // namespace tendo::query
