// Rich texts of our own writer against the text that LibreOffice reads from them. With
// TENDO_WRITE_RTF=FOLDER in the environment they are written there (scripts/make_rtf_corpus.sh).

#include <gtest/gtest.h>

#include <cstdlib>
#include <fstream>
#include <iterator>

#include "platform/print/rich_text.h"
#include "platform/print/rtf_writer.h"
#include "rich_pieces.h"

namespace tendo {
namespace {

const std::string Corpus = std::string(TENDO_TEST_DATA) + "/rtf/";

std::string FileText(const std::string& path) {
    std::ifstream file(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(file), {}};
}

RichRun Run(std::string text, FontSpec font = {"Arial", 220}, Rgb color = 0) {
    return {std::move(text), std::move(font), color};
}

RichText Letter() {
    RichText text;
    RichParagraph& head = text.paragraphs.emplace_back();
    head.align = RichAlign::Center;
    head.spaceAfter = 240;
    head.runs = {Run("Proposal", {"Times New Roman", 360, true})};
    RichParagraph& body = text.paragraphs.emplace_back();
    body.firstIndent = 360;
    body.lineSpacing = 150;
    body.runs = {Run("Braces {so}, a backslash \\, "), Run("red", {"Arial", 220, true}, 0xC00000),
                 Run(" and "), Run("struck", {"Arial", 220, false, true, true, true}),
                 Run(" words; 20° ± 2°, ½″, “so” – Größe, Łódź, Москва, 日本 😀.\nA second line.")};
    text.paragraphs.emplace_back().runs = {Run("")};
    text.paragraphs.emplace_back().runs = {Run("Area 12 ft"), Run("2", {"Arial", 140}), Run(".")};
    text.paragraphs.back().runs[1].rise = 70;
    text.paragraphs.emplace_back().runs = {Run("The second page, <$$$$>, <PAGE>, <STOP>.")};
    text.paragraphs.back().pageBefore = true;
    return text;
}

RichText Tabs() {
    RichText text;
    for (const auto* line : {"Furnace\t$2,850.00", "Condensing unit\t$975.50"}) {
        RichParagraph& paragraph = text.paragraphs.emplace_back();
        paragraph.tabs = {{8640, TabAlign::Right, '.'}};
        paragraph.runs = {Run(line)};
    }
    for (const auto* point : {"ducts", "registers"}) {
        RichParagraph& paragraph = text.paragraphs.emplace_back();
        paragraph.bullet = true;
        paragraph.leftIndent = 360;
        paragraph.firstIndent = -360;
        paragraph.runs = {Run(std::string(BulletMark) + point)};
    }
    text.paragraphs.emplace_back().runs = {Run("no point\tthird\tcolumn")};
    return text;
}

RichText Table() {
    RichText text;
    for (const auto* line : {"Trade\tRegular\tOvertime", "Helper\t$38.00\t$57.00\nnet"}) {
        RichParagraph& row = text.paragraphs.emplace_back();
        row.cells = {{4000, RichAlign::Left, cell_side::All},
                     {6000, RichAlign::Right, cell_side::All},
                     {8000, RichAlign::Right, cell_side::All}};
        row.runs = {Run(line)};
    }
    text.paragraphs.emplace_back().runs = {Run("Rates hold through December.")};
    return text;
}

struct OwnText {
    std::string name;
    RichText (*build)();
};

/// Texts built here, and texts of other programs written again.
const OwnText Built[] = {{"letter", Letter}, {"tabs", Tabs}, {"table", Table}};
const std::string Rewritten[] = {"writer_layout",   "writer_tables",   "writer_warranty",
                                 "writer_russian",  "writer_symbols",  "writer_japanese",
                                 "abiword_rates",   "abiword_terms",   "pandoc_scope",
                                 "latex2rtf_rates", "rtfwriter_signs", "doxygen_takeoff"};

RichText TextOf(const std::string& name) {
    for (const OwnText& own : Built)
        if (own.name == name) return own.build();
    return ReadRichText(FileText(Corpus + name + ".rtf"), {});
}

std::vector<std::string> Names() {
    std::vector<std::string> names(std::begin(Rewritten), std::end(Rewritten));
    for (const OwnText& own : Built)
        names.push_back(own.name);
    return names;
}

class RtfOwnTexts : public testing::TestWithParam<std::string> {};

TEST_P(RtfOwnTexts, AreReadByLibreOfficeWithTheSameText) {
    const RichText text = TextOf(GetParam());
    const std::string written = WriteRichText(text);
    if (const char* folder = std::getenv("TENDO_WRITE_RTF"))
        std::ofstream(std::string(folder) + "/" + GetParam() + ".rtf", std::ios::binary) << written;
    EXPECT_EQ(FileText(Corpus + "own/" + GetParam() + ".rtf"), written);
    EXPECT_EQ(Difference(OfficePiecesOf(FileText(Corpus + "own/" + GetParam() + ".txt")),
                         PiecesOf(PlainTextOf(text))),
              "");
}

INSTANTIATE_TEST_SUITE_P(Files, RtfOwnTexts, testing::ValuesIn(Names()),
                         [](const auto& test) { return test.param; });

}  // namespace
}  // namespace tendo
