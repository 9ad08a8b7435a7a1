#include "platform/database/token_cursor.h"

#include <algorithm>

#include "platform/text/text.h"

namespace tendo::query {
namespace {

constexpr std::string_view ownWords[] = {
    "all",   "and",   "as",    "asc",    "between", "by",    "desc", "distinct", "false", "from",
    "in",    "inner", "is",    "join",   "left",    "like",  "not",  "null",     "on",    "or",
    "order", "outer", "right", "select", "true",    "where", "yes",  "no"};

bool IsOwnWord(std::string_view word) {
    return std::any_of(std::begin(ownWords), std::end(ownWords),
                       [word](std::string_view own) { return EqualsNoCase(own, word); });
}

}  // namespace

const Token& TokenCursor::Peek(std::size_t ahead) const {
    return tokens_[std::min(at_ + ahead, tokens_.size() - 1)];
}

Token TokenCursor::Take() {
    const Token token = Peek();
    if (at_ + 1 < tokens_.size()) ++at_;
    return token;
}

bool TokenCursor::IsWord(std::string_view word, std::size_t ahead) const {
    return Peek(ahead).kind == TokenKind::Word && EqualsNoCase(Peek(ahead).text, word);
}

bool TokenCursor::IsSign(std::string_view sign, std::size_t ahead) const {
    return Peek(ahead).kind == TokenKind::Sign && Peek(ahead).text == sign;
}

bool TokenCursor::TakeWord(std::string_view word) {
    const bool found = IsWord(word);
    if (found) Take();
    return found;
}

bool TokenCursor::TakeSign(std::string_view sign) {
    const bool found = IsSign(sign);
    if (found) Take();
    return found;
}

void TokenCursor::ExpectWord(std::string_view word) {
    if (!TakeWord(word)) Broken(UpperCase(word) + " is missing before " + Shown());
}

void TokenCursor::ExpectSign(std::string_view sign) {
    if (!TakeSign(sign)) Broken("\"" + std::string(sign) + "\" is missing before " + Shown());
}

bool TokenCursor::IsName() const {
    const Token& token = Peek();
    if (token.kind == TokenKind::BracketedName) return true;
    return token.kind == TokenKind::Word && !IsOwnWord(token.text);
}

std::string TokenCursor::TakeName(std::string_view what) {
    if (!IsName()) Broken("the name of " + std::string(what) + " is missing before " + Shown());
    return Take().text;
}

void TokenCursor::ExpectEnd() {
    if (Peek().kind != TokenKind::End) Broken("an operator is missing before " + Shown());
}

void TokenCursor::Broken(std::string_view problem) const {
    ThrowBroken(errors_.broken, problem);
}

std::string TokenCursor::Shown() const {
    const Token& token = Peek();
    return token.kind == TokenKind::End ? "the end of the text" : "\"" + token.text + "\"";
}

}  // namespace tendo::query
