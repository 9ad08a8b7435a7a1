#include <gmock/gmock.h>

#include <QRegularExpression>
#include <fstream>
#include <sstream>

#include "paper_fixture.h"
#include "platform/files/safe_file.h"
#include "platform/qt/painter_pdf.h"
#include "platform/text/text.h"

namespace tendo {
namespace {

using testing::HasSubstr;
using testing::Not;

constexpr const char* NoTools = "pdftotext and its kin (poppler-utils) aren't installed";

/// "@clauses 2 4" as the sentences of clauses 2 to 4.
std::string Clauses(const std::string& line) {
    std::istringstream stream(line.substr(std::string("@clauses").size()));
    int first = 0, last = 0;
    stream >> first >> last;
    std::string text;
    for (int i = first; i <= last; ++i)
        text += "Clause " + std::to_string(i) +
                " holds for all equipment that the contractor delivers and sets in place. ";
    return text;
}

/// tests/print_qt/papers/NAME.txt: the pages parted by a line "---", the cells of a table's row by
/// "|", every other line a paragraph. Lines that begin with '#' explain.
std::vector<std::vector<std::string>> ExpectedPages(const std::string& name) {
    std::ifstream file(std::string(TENDO_SOURCE_DIR) + "/tests/print_qt/papers/" + name + ".txt");
    EXPECT_TRUE(file.good()) << name;
    std::vector<std::vector<std::string>> pages(1);
    for (std::string line; std::getline(file, line);) {
        if (line == "---")
            pages.emplace_back();
        else if (StartsWith(line, "@clauses"))
            pages.back().push_back(Clauses(line));
        else if (!line.empty() && line[0] != '#')
            pages.back().push_back(line);
    }
    return pages;
}

/// A pattern for a line of paper that holds the first word of each cell of a row, in order.
QRegularExpression RowPattern(const std::string& row) {
    QStringList words;
    for (const std::string& cell : Split(row, '|'))
        words += QRegularExpression::escape(QString::fromStdString(cell.substr(0, cell.find(' '))));
    return QRegularExpression(QStringLiteral("^ *") + words.join(QStringLiteral(" .*")),
                              QRegularExpression::MultilineOption);
}

/// Where qpdf is installed, it must find nothing wrong.
void ExpectWholeFile(const QString& file) {
    const auto check = AskTool("qpdf", {QStringLiteral("--check"), file});
    const std::string text = check.value_or("No syntax or stream encoding errors found");
    EXPECT_THAT(text, HasSubstr("No syntax or stream encoding errors found"));
}

class PdfText : public PaperTest, public testing::WithParamInterface<std::size_t> {
  protected:
    const PaperJob& Job() const { return PaperJobs()[GetParam()]; }
};

TEST_P(PdfText, EachPageReadsInOrder) {
    const auto pages = PdfPages(PdfOf(Job()), "-raw");
    if (!pages) GTEST_SKIP() << NoTools;
    const auto expected = ExpectedPages(Job().name);
    ASSERT_EQ(pages->size(), expected.size());
    for (std::size_t page = 0; page < pages->size(); ++page) {
        std::string text;
        for (const std::string& line : expected[page])
            text += line + "\n";
        EXPECT_EQ(Words((*pages)[page]), Words(text)) << "page " << page + 1;
    }
}

TEST_P(PdfText, TheCellsOfARowStandOnOneLine) {
    const auto pages = PdfPages(PdfOf(Job()), "-layout");
    if (!pages) GTEST_SKIP() << NoTools;
    const auto expected = ExpectedPages(Job().name);
    ASSERT_EQ(pages->size(), expected.size());
    int rows = 0;
    for (std::size_t page = 0; page < pages->size(); ++page)
        for (const std::string& line : expected[page]) {
            if (!Contains(line, "|")) continue;
            ++rows;
            EXPECT_TRUE(RowPattern(line).match(QString::fromStdString((*pages)[page])).hasMatch())
                << line << "\nis on no line of\n"
                << (*pages)[page];
        }
    EXPECT_GT(rows, 4);
}

TEST_P(PdfText, TheFileIsWholeAndSmallAndItsFontsAreEmbedded) {
    const std::string path = PdfOf(Job());
    const QString file = QString::fromStdString(path);
    EXPECT_LT(ReadWholeFile(path).size(), 60'000U);
    const auto fonts = AskTool("pdffonts", {file});
    if (!fonts) GTEST_SKIP() << NoTools;
    int count = 0;
    for (const std::string& line : Split(*fonts, '\n')) {
        if (!Contains(line, "Liberation")) continue;
        ++count;
        // Type, encoding, then whether it is embedded, a named subset, and mapped to Unicode.
        EXPECT_THAT(line, testing::ContainsRegex("Identity-H +yes (yes|no)  yes"));
    }
    EXPECT_GE(count, 2);
    ExpectWholeFile(file);
}

std::string NameOfJob(const testing::TestParamInfo<std::size_t>& info) {
    return PaperJobs()[info.param].name;
}

INSTANTIATE_TEST_SUITE_P(Jobs, PdfText, testing::Range(std::size_t{0}, PaperJobs().size()),
                         NameOfJob);

class Pdf : public PaperTest {
  protected:
    const PaperJob& Job(const char* name) const {
        for (const PaperJob& job : PaperJobs())
            if (job.name == name) return job;
        throw std::invalid_argument(name);
    }
};

TEST_F(Pdf, TheSameDayGivesTheSameFileByteForByte) {
    const Document document = LayOut(Job("one_system"));
    const std::string first = PdfBytes(document);
    EXPECT_EQ(PdfBytes(document), first);
    EXPECT_THAT(first, HasSubstr("/CreationDate (D:19980509000000"));
    EXPECT_THAT(first, Not(HasSubstr("/CreationDate (D:2")));
}

TEST_F(Pdf, EverySectionStandsInTheOutlineWithItsPageAndPlace) {
    const std::string path = PdfOf(Job("one_system"));
    const auto outline = AskTool("mutool", {QStringLiteral("show"), QString::fromStdString(path),
                                            QStringLiteral("outline")});
    if (!outline) GTEST_SKIP() << "mutool (mupdf-tools) isn't installed";
    std::vector<std::string> lines = Split(*outline, '\n');
    lines.pop_back();
    const Document document = LayOut(Job("one_system"));
    ASSERT_EQ(lines.size(), 4U);
    ASSERT_EQ(document.outline.size(), 4U);
    const std::pair<const char*, int> expected[] = {
        {"MARLOW RESIDENCE", 1}, {"Project Summary", 2}, {"Sales Report", 2}, {"Footnotes", 3}};
    for (std::size_t i = 0; i < 4; ++i) {
        const auto& [title, page] = expected[i];
        EXPECT_THAT(lines[i], HasSubstr('"' + std::string(title) + '"'));
        // In points from the upper edge of the paper, which is a quarter inch above the page's.
        const int points = (document.outline[i].y + 360) / 20;
        EXPECT_THAT(lines[i], testing::ContainsRegex("#page=" + std::to_string(page) +
                                                     "&zoom=[0-9]+,0,(" + std::to_string(points) +
                                                     "|" + std::to_string(points + 1) + ")"));
    }
}

TEST_F(Pdf, TheTitlesOfTheFileAreThoseOfTheProject) {
    const std::string path = PdfOf(Job("four_systems"));
    const auto info = AskTool("pdfinfo", {QString::fromStdString(path)});
    if (!info) GTEST_SKIP() << NoTools;
    EXPECT_THAT(*info, testing::ContainsRegex("Title: +Łódź Street “Garden” Houses\n"));
    EXPECT_THAT(*info, testing::ContainsRegex("Author: +Northfield Heating & Air\n"));
    EXPECT_THAT(*info, testing::ContainsRegex("Pages: +2\n"));
    EXPECT_THAT(*info, testing::ContainsRegex("Page size: +612 x 792 pts \\(letter\\)"));
}

TEST_F(Pdf, ASignThatTheFontLacksIsTakenFromAnotherFont) {
    PaperJob job;
    job.name = "signs";
    job.project.GPDProjectFormat.Title = "Ω Works";
    job.project.GPDClientFormat.Name = "☎ Ring twice ✓";
    const std::string path = PdfOf(job);
    const auto pages = PdfPages(path, "-raw");
    if (!pages) GTEST_SKIP() << NoTools;
    EXPECT_THAT(pages->at(0), HasSubstr("Ω WORKS"));
    EXPECT_THAT(pages->at(0), HasSubstr("Ring twice"));
    ExpectWholeFile(QString::fromStdString(path));
}

}  // namespace
}  // namespace tendo
