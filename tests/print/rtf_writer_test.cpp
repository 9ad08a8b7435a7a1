#include "platform/print/rtf_writer.h"

#include <gtest/gtest.h>

#include "platform/print/rich_text.h"

namespace tendo {
namespace {

RichRun Piece(std::string text, FontSpec font = {"Arial", 240}, Rgb color = 0) {
    return {std::move(text), std::move(font), color};
}

RichText OneParagraph(std::vector<RichRun> runs) {
    RichText text;
    text.paragraphs.emplace_back().runs = std::move(runs);
    return text;
}

RichText ReadBack(const RichText& text) {
    return ReadRichText(WriteRichText(text), {});
}

TEST(RtfWriter, AWrittenTextIsRichText) {
    EXPECT_TRUE(IsRichText(WriteRichText({})));
    EXPECT_EQ(
        WriteRichText(OneParagraph({Piece("Hi {you}\\", {"Arial", 200, true})})),
        "{\\rtf1\\ansi\\ansicpg1252\\deff0{\\fonttbl{\\f0\\fnil Arial;}}{\\colortbl ;}\\uc1\r\n"
        "\\pard\\plain\\f0\\fs20\\b Hi \\{you\\}\\\\\\par\r\n}");
}

TEST(RtfWriter, FontsStylesAndColoursReadBackTheSame) {
    const RichText text =
        OneParagraph({Piece("plain "), Piece("bold ", {"Arial", 200, true}),
                      Piece("all", {"Times New Roman", 410, true, true, true, true}, 0x12AB03),
                      Piece(" red", {"Arial", 240}, 0xFF0000)});
    const RichText read = ReadBack(text);
    ASSERT_EQ(read.paragraphs.size(), 1u);
    ASSERT_EQ(read.paragraphs[0].runs.size(), 4u);
    for (std::size_t i = 0; i < 4; ++i) {
        EXPECT_EQ(read.paragraphs[0].runs[i].text, text.paragraphs[0].runs[i].text);
        EXPECT_EQ(read.paragraphs[0].runs[i].font, text.paragraphs[0].runs[i].font);
        EXPECT_EQ(read.paragraphs[0].runs[i].color, text.paragraphs[0].runs[i].color);
    }
}

TEST(RtfWriter, ParagraphFormatsAndEmptyLinesReadBackTheSame) {
    RichText text = OneParagraph({Piece("one")});
    text.paragraphs[0].align = RichAlign::Center;
    text.paragraphs[0].leftIndent = 720;
    text.paragraphs[0].firstIndent = -360;
    text.paragraphs[0].rightIndent = 100;
    text.paragraphs[0].spaceBefore = 60;
    text.paragraphs[0].spaceAfter = 120;
    text.paragraphs[0].tabs = {{720}, {1440}};
    text.paragraphs.emplace_back().runs = {Piece("")};
    text.paragraphs.emplace_back().runs = {Piece("right")};
    text.paragraphs[2].align = RichAlign::Right;
    const RichText read = ReadBack(text);
    ASSERT_EQ(read.paragraphs.size(), 3u);
    EXPECT_EQ(read.paragraphs[0].align, RichAlign::Center);
    EXPECT_EQ(read.paragraphs[0].leftIndent, 720);
    EXPECT_EQ(read.paragraphs[0].firstIndent, -360);
    EXPECT_EQ(read.paragraphs[0].rightIndent, 100);
    EXPECT_EQ(read.paragraphs[0].spaceBefore, 60);
    EXPECT_EQ(read.paragraphs[0].spaceAfter, 120);
    EXPECT_EQ(read.paragraphs[0].tabs, (std::vector<TabStop>{{720}, {1440}}));
    EXPECT_EQ(read.paragraphs[1].runs[0].text, "");
    EXPECT_EQ(read.paragraphs[1].leftIndent, 0);
    EXPECT_EQ(read.paragraphs[2].align, RichAlign::Right);
}

TEST(RtfWriter, LettersTabsAndLineBreaksReadBackTheSame) {
    const std::string words = "Größe 90° — “quoted”\tЖ\n日本 😀 <$$$$> <PAGE>";
    EXPECT_EQ(ReadBack(OneParagraph({Piece(words)})).paragraphs[0].runs[0].text, words);
    EXPECT_NE(WriteRichText(OneParagraph({Piece(words)})).find("<$$$$> <PAGE>"), std::string::npos);
}

TEST(RtfWriter, LettersInAFontOfSymbolsStayLetters) {
    const RichText read =
        ReadBack(OneParagraph({Piece("Sum ", {"Symbol", 240}), Piece("and", {"Wingdings", 200})}));
    EXPECT_EQ(read.paragraphs[0].runs[0].text, "Sum ");
    EXPECT_EQ(read.paragraphs[0].runs[1].text, "and");
}

TEST(RtfWriter, ABulletReadsBackAsOne) {
    RichText text = OneParagraph({Piece("•\tfirst point")});
    text.paragraphs[0].bullet = true;
    text.paragraphs.emplace_back().runs = {Piece("no point")};
    const RichText read = ReadBack(text);
    ASSERT_EQ(read.paragraphs.size(), 2u);
    EXPECT_TRUE(read.paragraphs[0].bullet);
    std::string shown;
    for (const RichRun& run : read.paragraphs[0].runs)
        shown += run.text;
    EXPECT_EQ(shown, "•\tfirst point");
    EXPECT_FALSE(read.paragraphs[1].bullet);
}

}  // namespace
}  // namespace tendo
