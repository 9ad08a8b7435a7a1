// Rich texts that several programs wrote, against the text that LibreOffice reads from them;
// scripts/make_rtf_corpus.sh makes both.

#include <gtest/gtest.h>

#include <algorithm>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>

#include "platform/print/fixed_measurer.h"
#include "platform/print/layout_surface.h"
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

std::vector<std::string> RichTexts(const std::string& folder) {
    std::vector<std::string> names;
    for (const auto& entry : std::filesystem::directory_iterator(folder))
        if (entry.path().extension() == ".rtf") names.push_back(entry.path().stem().string());
    std::sort(names.begin(), names.end());
    return names;
}

/// Where the two texts differ for a reason.
struct Exception {
    std::string_view file, difference, reason;
};
const Exception Exceptions[] = {
    {"abiword_characters", "- Seen and hidden text again.\n+ Seen again.\n",
     "hidden text is not printed"},
    {"abiword_fields",
     "- The duct1 is round.\n+ The duct2 is round.\n- Dated 23:13:18.\n+ Dated .\n"
     "+ 1\n+ Calculated by Manual J.\n+ 2\n+ Sized by Manual D.\n",
     "notes stand behind the text, numbered in one row; a field without a result shows nothing"},
    {"abiword_lists",
     "+ furnace\n+ gas valve\n+ regulator\n+ shut-off\n+ vent\n+ coil\n+ condenser\n+ General\n"
     "+ Permits\n+ mechanical\n+ electrical\n+ Insurance\n+ Payment\n+ Heating\n+ boiler\n+ pumps\n"
     "+ Cooling\n+ ducts\n+ supply\n+ takeoffs\n+ return\n+ registers\n"
     "+ a second paragraph of the same point\n+ line one\n+ line two\n",
     "the text stands within the marks of its list, where LibreOffice drops it"},
    {"abiword_warranty", "- a.a.\n+ a.\n- a.b.\n+ b.\n",
     "the marks of the second level are one letter each"},
    {"abiword_notes", "+ 1 At 99 % design conditions.\n+ 2 At 0.08 in. w.g. per 100 feet.\n",
     "notes"},
    {"pandoc_notes",
     "+ 1\u00A0At 99 % design conditions.\n+ 2\u00A0At 0.08 in. w.g. per 100 feet.\n", "notes"},
    {"writer_notes", "+ 1 At 99 % design conditions.\n+ 2 At 0.08 in. w.g. per 100 feet.\n",
     "notes"},
    {"writer_characters",
     "- Seen and hidden text again.\n- Small Capitals all capitals spaced.\n"
     "+ Seen again.\n+ Small Capitals ALL CAPITALS spaced.\n",
     "hidden text is not printed, capitals are"},
    {"writer_fields",
     "- The ducti is round.\n+ The duct2 is round.\n"
     "- We add inserted words and strike deleted words others.\n"
     "+ We add inserted words and strike others.\n"
     "+ 1\n+ Calculated by Manual J.\n+ 2\n+ Sized by Manual D.\n",
     "notes; words that a reviewer struck out are not printed"},
    {"openjade_french",
     "- Temp\u00E9rature : 20 \u00B0C \u00E0 l\u2019int\u00E9rieur, \uF02D7 \u00B0C \u00E0 "
     "l\u2019ext\u00E9rieur\n"
     "+ Temp\u00E9rature : 20 \u00B0C \u00E0 l\u2019int\u00E9rieur, \u22127 \u00B0C \u00E0 "
     "l\u2019ext\u00E9rieur\n",
     "the minus of the font Symbol is a minus"},
};

std::string ExpectedDifference(const std::string& file) {
    for (const Exception& exception : Exceptions)
        if (exception.file == file) return std::string(exception.difference);
    return "";
}

class RtfCorpus : public testing::TestWithParam<std::string> {};

TEST_P(RtfCorpus, ReadsTheTextThatLibreOfficeReads) {
    const RichText text = ReadRichOrPlainText(FileText(Corpus + GetParam() + ".rtf"), {});
    const std::string expected = FileText(Corpus + GetParam() + ".txt");
    ASSERT_FALSE(expected.empty());
    EXPECT_EQ(Difference(OfficePiecesOf(expected), PiecesOf(PlainTextOf(text))),
              ExpectedDifference(GetParam()));
}

TEST_P(RtfCorpus, IsWrittenAgainWithTheSameText) {
    const RichText text = ReadRichOrPlainText(FileText(Corpus + GetParam() + ".rtf"), {});
    const RichText again = ReadRichText(WriteRichText(text), {});
    EXPECT_EQ(PlainTextOf(again), PlainTextOf(text));
}

/// Every piece of the text stands on the pages; a piece may be broken over lines.
TEST_P(RtfCorpus, IsLaidOutWithoutLosingAWord) {
    const std::string rich = FileText(Corpus + GetParam() + ".rtf");
    FixedMeasurer measurer;
    LayoutSurface surface(measurer);
    surface.Action(3);
    surface.AutoRTF(true);
    surface.Paragraph(rich);
    surface.Action(6);
    std::size_t onPages = 0, inText = 0;
    const auto isLetter = [](char c) { return c != ' ' && c != '\n' && c != '\t' && c != '.'; };
    for (const Page& page : surface.Result().pages)
        for (const TextItem& item : page.texts)
            onPages += static_cast<std::size_t>(
                std::count_if(item.text.begin(), item.text.end(), isLetter));
    const std::string plain = PlainTextOf(ReadRichOrPlainText(rich, {}));
    inText = static_cast<std::size_t>(std::count_if(plain.begin(), plain.end(), isLetter));
    EXPECT_EQ(onPages, inText);
}

INSTANTIATE_TEST_SUITE_P(Files, RtfCorpus, testing::ValuesIn(RichTexts(Corpus)),
                         [](const auto& test) { return test.param; });

TEST(RtfCorpusFiles, AreFiftyFromEightPrograms) {
    std::vector<std::string> programs;
    for (const std::string& name : RichTexts(Corpus))
        programs.push_back(name.substr(0, name.find('_')));
    EXPECT_GE(programs.size(), 50u);
    programs.erase(std::unique(programs.begin(), programs.end()), programs.end());
    EXPECT_GE(programs.size(), 8u);
}

}  // namespace
}  // namespace tendo
