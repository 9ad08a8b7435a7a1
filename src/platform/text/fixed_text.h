#pragma once

#include <cstddef>
#include <string>
#include <string_view>

#include "platform/text/text.h"

namespace tendo {

/// A text field of `Width` characters: a stored value is cut at the width, what is read back is
/// padded with blanks on the right. Width counts characters, not bytes. A new field is all blanks.
template <std::size_t Width>
class FixedText {
  public:
    FixedText() = default;
    FixedText(std::string_view value) { *this = value; }  // NOLINT: a store is meant to be plain
    FixedText(const char* value) { *this = std::string_view(value); }         // NOLINT
    FixedText(const std::string& value) { *this = std::string_view(value); }  // NOLINT

    FixedText& operator=(std::string_view value) {
        text_ = TrimmedRight(FirstCharacters(value, Width));
        return *this;
    }
    FixedText& operator=(const char* value) { return *this = std::string_view(value); }
    FixedText& operator=(const std::string& value) { return *this = std::string_view(value); }

    static constexpr std::size_t width() { return Width; }

    /// The value with its blanks, `Width` characters long.
    std::string Padded() const {
        std::string padded = text_;
        padded.append(Width - CharacterCount(text_), ' ');
        return padded;
    }
    /// The value without blanks at both ends.
    std::string Trimmed() const { return std::string(tendo::Trimmed(text_)); }
    /// The value without the padding only; leading blanks stay.
    const std::string& WithoutPadding() const { return text_; }
    bool IsBlank() const { return text_.empty(); }

    friend bool operator==(const FixedText& a, const FixedText& b) { return a.text_ == b.text_; }

  private:
    std::string text_;  // held without the blanks at its end; a thousand rows stay small
};

}  // namespace tendo
