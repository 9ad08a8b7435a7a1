#include "platform/print/rtf_scanner.h"

#include <algorithm>

namespace tendo {

namespace {

constexpr std::size_t LongestWord = 32;
constexpr int LargestNumber = 10'000'000;

bool IsLetter(char character) {
    return (character >= 'a' && character <= 'z') || (character >= 'A' && character <= 'Z');
}
bool IsDigit(char character) {
    return character >= '0' && character <= '9';
}

int HexValue(char character) {
    if (IsDigit(character)) return character - '0';
    if (character >= 'a' && character <= 'f') return character - 'a' + 10;
    if (character >= 'A' && character <= 'F') return character - 'A' + 10;
    return -1;
}

RtfToken Single(RtfToken::Kind kind, char character) {
    RtfToken token;
    token.kind = kind;
    token.byte = static_cast<unsigned char>(character);
    return token;
}

}  // namespace

RtfToken RtfScanner::Next() {
    while (More()) {
        const char character = text_[at_++];
        if (character == '{') return Single(RtfToken::Kind::Open, character);
        if (character == '}') return Single(RtfToken::Kind::Close, character);
        if (character == '\\') {
            const RtfToken token = Backslash();
            if (token.kind != RtfToken::Kind::End) return token;
        } else if (character != '\r' && character != '\n' && character != '\0') {
            return Single(RtfToken::Kind::Byte, character);
        }
    }
    return {};
}

/// Gives `End` for what says nothing.
RtfToken RtfScanner::Backslash() {
    if (!More()) return {};
    if (IsLetter(text_[at_])) return Word();
    const char sign = text_[at_++];
    if (sign == '\'') return HexByte();
    return Single(RtfToken::Kind::Symbol, sign);
}

RtfToken RtfScanner::Word() {
    RtfToken token;
    token.kind = RtfToken::Kind::Word;
    const std::size_t start = at_;
    while (More() && IsLetter(text_[at_]) && at_ - start < LongestWord)
        ++at_;
    token.word = text_.substr(start, at_ - start);
    const bool negative = at_ + 1 < text_.size() && text_[at_] == '-' && IsDigit(text_[at_ + 1]);
    if (negative) ++at_;
    while (More() && IsDigit(text_[at_])) {
        token.number = std::min(token.number * 10 + (text_[at_++] - '0'), LargestNumber);
        token.hasNumber = true;
    }
    if (negative) token.number = -token.number;
    if (More() && text_[at_] == ' ') ++at_;
    if (token.word == "bin")
        at_ += std::min(static_cast<std::size_t>(std::max(token.number, 0)), text_.size() - at_);
    return token;
}

RtfToken RtfScanner::HexByte() {
    if (at_ + 1 >= text_.size()) {
        at_ = text_.size();
        return {};
    }
    const int high = HexValue(text_[at_]), low = HexValue(text_[at_ + 1]);
    if (high < 0 || low < 0) return {};
    at_ += 2;
    return Single(RtfToken::Kind::HexByte, static_cast<char>(high * 16 + low));
}

}  // namespace tendo
