#pragma once

#include <string_view>

namespace tendo {

/// One piece of a rich text.
struct RtfToken {
    enum class Kind { End, Open, Close, Word, Symbol, HexByte, Byte };
    Kind kind = Kind::End;
    /// The name behind the backslash of a `Word`.
    std::string_view word;
    /// The number behind a `Word`, held within +-10,000,000.
    int number = 0;
    bool hasNumber = false;
    /// The byte of a `Byte` or `HexByte`, the sign behind the backslash of a `Symbol`.
    unsigned char byte = 0;

    /// The switch that a word without a number turns on, and with 0 off.
    bool On() const { return !hasNumber || number != 0; }
};

/// Cuts a rich text into its pieces. Line ends and zero bytes are passed over, and so are the raw
/// bytes that "\bin" announces. What is broken ends with the text.
class RtfScanner {
  public:
    explicit RtfScanner(std::string_view text) : text_(text) {}
    RtfToken Next();

  private:
    RtfToken Backslash();
    RtfToken Word();
    RtfToken HexByte();
    bool More() const { return at_ < text_.size(); }

    std::string_view text_;
    std::size_t at_ = 0;
};

}  // namespace tendo
