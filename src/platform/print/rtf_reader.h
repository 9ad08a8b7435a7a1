#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "platform/print/rich_model.h"

namespace tendo {

/// One reading of one rich text. Work is linear in the text's length; see `ReadRichText`.
class RtfReader {
  public:
    RtfReader(std::string_view text, const RichRun& base);
    RichText Read();

  private:
    /// What the text of a group is for.
    enum class Destination { Text, FontTable, ColorTable, Skipped };
    struct State {
        RichRun format;
        RichParagraph paragraph;  // its formats only
        Destination destination = Destination::Text;
        int unicodeSkip = 1;  // bytes that stand for a \u character in older readers
        bool symbolFont = false;
        int codePage = 0;  // of the font; 0 is the document's
    };
    struct Font {
        int number = 0;
        std::string name;
        bool symbol = false;
        int codePage = 0;
    };
    struct Control {
        std::string_view word;
        int number = 0;
        bool hasNumber = false;
        bool On() const { return !hasNumber || number != 0; }
    };

    void Step();
    void OpenGroup();
    void CloseGroup();
    void Backslash();
    void HexByte();
    Control ReadControl();
    void Apply(const Control& control);
    bool ApplyDestination(const Control& control);
    bool ApplyFont(const Control& control);
    bool ApplyParagraph(const Control& control);
    bool ApplyCharacter(const Control& control);
    bool ApplyCodePage(const Control& control);
    void ApplyColorEntry(const Control& control);

    void AddByte(unsigned char byte);
    void AddText(std::string_view text);
    void AddCodePageByte(unsigned char byte);
    void AddUnicode(int number);
    void AddTableText(char character);
    void EndParagraph();
    void SelectFont(int number);
    State& Now() { return states_.back(); }

    std::string_view text_;
    std::size_t at_ = 0;
    RichRun base_;
    std::vector<State> states_;
    int tooDeep_ = 0;  // open groups beyond the depth that is followed
    int skipBytes_ = 0;
    bool starred_ = false;
    bool wholeDocument_ = false;
    bool listText_ = false;  // the paragraph has a list's mark
    char32_t highSurrogate_ = 0;
    int documentPage_ = 1252;
    std::string leadByte_;  // the first half of a character of two bytes
    std::vector<Font> fonts_;
    std::vector<Rgb> colors_;
    Rgb colorEntry_ = 0;
    RichText result_;
    std::vector<RichRun> runs_;
};

}  // namespace tendo
