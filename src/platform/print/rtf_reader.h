#pragma once

#include <map>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "platform/print/rich_builder.h"
#include "platform/print/rich_head.h"
#include "platform/print/rtf_list.h"
#include "platform/print/rtf_scanner.h"
#include "platform/print/rtf_words.h"

namespace tendo {

/// One reading of one rich text. Work is linear in the text's length; see `ReadRichText`.
class RtfReader {
  public:
    RtfReader(std::string_view text, const RichRun& base, RichHead* head);
    RichText Read();

  private:
    /// What the text of a group is for.
    enum class Destination {
        Text,
        FontTable,
        ColorTable,
        ListStyle,
        ListBefore,
        ListAfter,
        Skipped
    };
    enum class Script { OnBaseLine, Super, Sub };
    using Font = RichHead::Font;
    struct State {
        RichRun format;
        RichParagraph paragraph;  // its formats only
        Destination destination = Destination::Text;
        Destination outside = Destination::Text;  // of what a substituted group stands in
        int font = -1;                            // number of the font
        int unicodeSkip = 1;  // characters that stand for a \u character in older readers
        int rise = 0;
        int lineHeight = 0;
        bool lineMultiple = false;
        Script script = Script::OnBaseLine;
        TabStop tab;
        RtfListStyle list;
        std::size_t listOwner = 0;  // the state that the style of a list holds for
        bool inTable = false, hidden = false, capitals = false, note = false, nestedProps = false;
    };

    void Step(const RtfToken& token);
    void OpenGroup();
    void CloseGroup();
    void Symbol(unsigned char sign);
    void Word(const RtfToken& token);
    bool ApplyDestination(const RtfWord& word);
    bool ApplyListGroup(RtfMeaning meaning);
    void StartDocument();
    void ApplyHead(const RtfWord& word, const RtfToken& token);
    void ApplyCharacter(const RtfWord& word, const RtfToken& token);
    void ApplyParagraph(const RtfWord& word, const RtfToken& token);
    void ApplyList(const RtfWord& word, const RtfToken& token);
    void ApplyRow(const RtfWord& word, const RtfToken& token);
    void SetScript(Script script) { Now().script = script; }
    void SetPlain();
    void SetTab(int position);
    void SelectFont(int number);

    void AddByte(unsigned char byte, bool raw);
    void AddHeadByte(char character);
    void AddListByte(char character);
    void AddEncoded(unsigned char byte);
    const std::string& Decoded(const std::string& bytes, int page);
    void AddUnicode(int number);
    void AddText(std::string_view text);
    void EndParagraph();

    bool InText() const { return states_.back().destination == Destination::Text && tooDeep_ == 0; }
    bool SkipsOne() { return skip_ > 0 && skip_-- > 0; }
    const Font& FontInUse() const;
    RichRun Format() const;
    RichParagraph ParagraphFormat() const;
    State& Now() { return states_.back(); }

    RtfScanner scanner_;
    RichRun base_;
    std::vector<State> states_;
    RichBuilder builder_;
    RtfLists lists_;
    int tooDeep_ = 0;  // open groups beyond the depth that is followed
    int skip_ = 0;     // characters still to be left out behind a \u
    bool starred_ = false;
    bool wholeDocument_ = false;
    bool ended_ = false;
    unsigned cellSide_ = 0, cellLines_ = 0;  // of the cell being defined
    char32_t highSurrogate_ = 0;
    std::string leadByte_;  // the first half of a character of two bytes
    std::map<std::pair<int, std::string>, std::string> decoded_;
    RichHead head_;
    RichHead* keptHead_;
    std::vector<Rgb> colors_;
    Rgb colorEntry_ = 0;
};

}  // namespace tendo
