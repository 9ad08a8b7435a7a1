#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "platform/database/query_tokens.h"

namespace tendo::query {

/// The numbers that a text of one sort reports: a SELECT and a criterion tell the same faults by
/// different ones.
struct ErrorNumbers {
    int broken = 0;
    int unknownColumn = 0;
};

/// Walks over the tokens of one text.
class TokenCursor {
  public:
    TokenCursor(std::string_view text, ErrorNumbers errors)
        : tokens_(Tokenize(text, errors.broken)), errors_(errors) {}

    const Token& Peek(std::size_t ahead = 0) const;
    Token Take();
    std::size_t At() const { return at_; }
    void GoTo(std::size_t at) { at_ = at; }

    /// True when the token there is this word, in any case, outside brackets.
    bool IsWord(std::string_view word, std::size_t ahead = 0) const;
    bool IsSign(std::string_view sign, std::size_t ahead = 0) const;
    /// The same, and steps over it.
    bool TakeWord(std::string_view word);
    bool TakeSign(std::string_view sign);
    void ExpectWord(std::string_view word);
    void ExpectSign(std::string_view sign);
    /// A bare word that isn't one of the language's own, or any name in brackets.
    bool IsName() const;
    std::string TakeName(std::string_view what);
    void ExpectEnd();

    const ErrorNumbers& Errors() const { return errors_; }
    [[noreturn]] void Broken(std::string_view problem) const;
    /// The token as messages show it.
    std::string Shown() const;

  private:
    std::vector<Token> tokens_;
    std::size_t at_ = 0;
    ErrorNumbers errors_;
};

}  // namespace tendo::query
