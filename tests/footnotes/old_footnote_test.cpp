#include "footnotes/old_footnote.h"

#include <gtest/gtest.h>

#include <vector>

#include "platform/print/rich_text.h"

namespace tendo {
namespace {

using Lines = std::vector<std::string>;

/// The text of the converted footnote's rich text, a line a paragraph.
std::string TextOf(const Lines& lines) {
    std::string all;
    for (const RichParagraph& paragraph :
         ReadRichText(ConvertOldFootnote(7, lines).Description, {}).paragraphs) {
        for (const RichRun& run : paragraph.runs)
            all += run.text;
        all += "\n";
    }
    return all;
}

TEST(OldFootnote, ItsNumberIsItsNameAndItsLinesAreParagraphsOfRichText) {
    const FootNoteRow footnote = ConvertOldFootnote(12, Lines{"Terms {net}", "Caf\xC3\xA9 \\ bar"});
    EXPECT_EQ(footnote.Name.Trimmed(), "12");
    EXPECT_TRUE(IsRichText(footnote.Description));
    EXPECT_EQ(TextOf({"Terms {net}", "Caf\xC3\xA9 \\ bar"}), "Terms {net}\nCaf\xC3\xA9 \\ bar\n");
}

TEST(OldFootnote, ItsMarkersBecomeTokens) {
    EXPECT_EQ(TextOf({"Price $$$$$$$$$$ net", "PAGE", "end STOP rest"}),
              "Price <$$$$> net\n<PAGE>\nend <STOP> rest\n");
}

TEST(OldFootnote, MarkersThatAreTokensAlreadyStay) {
    EXPECT_EQ(TextOf({"<PAGE><STOP> <$$$$>", "PAGE<PAGE>PAGE"}),
              "<PAGE><STOP> <$$$$>\n<PAGE><PAGE><PAGE>\n");
}

TEST(OldFootnote, TenDollarSignsAreTakenTenAtATime) {
    // Twenty are two prices; of fourteen, four remain.
    EXPECT_EQ(TextOf({std::string(20, '$'), std::string(14, '$'), std::string(9, '$')}),
              "<$$$$><$$$$>\n<$$$$>$$$$\n$$$$$$$$$\n");
}

TEST(OldFootnote, SmallLettersAreNoMarkersAndLongerWordsInCapitalsAre) {
    EXPECT_EQ(TextOf({"page stop", "PAGES NONSTOP"}), "page stop\n<PAGE>S NON<STOP>\n");
}

}  // namespace
}  // namespace tendo
