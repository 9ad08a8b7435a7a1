#include "footnotes/footnote_file.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>

#include "platform/print/rich_text.h"
#include "platform/text/runtime_error.h"

namespace tendo {
namespace {

class FootnoteFile : public testing::Test {
  protected:
    void TearDown() override { std::filesystem::remove(path_); }

    void Write(const std::string& bytes) { std::ofstream(path_, std::ios::binary) << bytes; }
    std::string Read(const std::string& bytes) {
        Write(bytes);
        return ReadFootnoteFile(path_);
    }
    /// The text as it is shown.
    std::string Shown(const std::string& bytes) {
        std::string shown;
        for (const RichParagraph& paragraph : ReadRichOrPlainText(Read(bytes), {}).paragraphs)
            for (const RichRun& run : paragraph.runs)
                shown += run.text;
        return shown;
    }
    /// The message of a file that is refused; empty when it isn't.
    std::string Refusal(const std::string& bytes) {
        Write(bytes);
        try {
            ReadFootnoteFile(path_);
        } catch (const RuntimeError& error) {
            EXPECT_EQ(error.Number(), 3343);
            return error.Description();
        }
        return "";
    }
    void ExpectRefused(const std::string& bytes, const std::string& what) {
        EXPECT_EQ(Refusal(bytes),
                  "\"" + path_ + "\" is " + what +
                      ".  Save it as Rich Text Format (.rtf) or as plain text (.txt) in its own "
                      "program and try again.  The footnote was left as it was.");
    }

    const std::string path_ = testing::TempDir() + "footnote_" +
                              testing::UnitTest::GetInstance()->current_test_info()->name() +
                              ".txt";
};

TEST_F(FootnoteFile, RichTextIsTakenAsItStands) {
    EXPECT_EQ(Read("{\\rtf1\\ansi Terms\\par}"), "{\\rtf1\\ansi Terms\\par}");
    EXPECT_EQ(Shown("\r\n {\\rtf1\\ansi Terms\\par}"), "Terms");
}

TEST_F(FootnoteFile, LettersOfARichTextThatStandAsBytesFollowItsOwnCodePage) {
    EXPECT_EQ(Shown("{\\rtf1\\ansi\\ansicpg1251 \xCA\xEE\xEB}"), "Кол");
    EXPECT_EQ(Shown("{\\rtf1\\ansi caf\xE9}"), "café");
    EXPECT_EQ(Shown("{\\rtf1\\ansi caf\xC3\xA9}"), "café");  // written as UTF-8 by mistake
}

TEST_F(FootnoteFile, RawBytesOfAPictureInARichTextAreLeftOut) {
    const std::string picture("\0}{\\\xFF", 5);
    EXPECT_EQ(Shown("{\\rtf1 a{\\pict\\bin5 " + picture + "}b\\\\bin3 c}"), "ab\\bin3 c");
    EXPECT_EQ(Shown("{\\rtf1 a{\\pict\\bin99999 x}b}"), "a");
}

TEST_F(FootnoteFile, TextIsReadInUtf8Utf16AndWindows1252) {
    EXPECT_EQ(Read("Größe 20°"), "Größe 20°");
    EXPECT_EQ(Read("\xEF\xBB\xBF"
                   "Größe"),
              "Größe");
    EXPECT_EQ(Read("Gr\xF6\xDF"
                   "e \x93so\x94"),
              "Größe “so”");
    EXPECT_EQ(Read(std::string("\xFF\xFEG\0r\0\xF6\0", 8)), "Grö");
    EXPECT_EQ(Read(std::string("\xFE\xFF\0G\0r\0\xF6", 8)), "Grö");
}

TEST_F(FootnoteFile, ADocOfWordByAnotherNameIsRefused) {
    ExpectRefused(std::string("\xD0\xCF\x11\xE0\xA1\xB1\x1A\xE1\0\0", 10),
                  "a document of Word or another Office program");
}

TEST_F(FootnoteFile, ADocxByAnotherNameIsRefused) {
    ExpectRefused(std::string("PK\x03\x04\x14\0", 6),
                  "a document of Word, Writer or another Office program");
}

TEST_F(FootnoteFile, AWebPageByAnotherNameIsRefused) {
    ExpectRefused("<!DOCTYPE html>\n<html><body><p>Terms</p></body></html>", "a web page");
    ExpectRefused("\r\n<HTML><HEAD><TITLE>Terms</TITLE>", "a web page");
    ExpectRefused("<?xml version=\"1.0\"?>\n<html xmlns=\"x\"/>", "a web page");
    ExpectRefused("<!-- saved --><html><table><tr><td>a</td></tr></table></html>", "a web page");
}

TEST_F(FootnoteFile, OtherDocumentsAndPicturesAreRefused) {
    ExpectRefused("<?xml version=\"1.0\"?>\n<office:document/>", "an XML document");
    ExpectRefused("%PDF-1.4\n", "a PDF document");
    ExpectRefused("\x89PNG\r\n\x1A\n", "a picture");
    ExpectRefused("MIME-Version: 1.0\r\n", "a stored web page or mail");
}

TEST_F(FootnoteFile, ATextThatSpeaksOfMarkersAndWebPagesIsNoWebPage) {
    EXPECT_EQ(Refusal("<PAGE> and <STOP>"), "");
    EXPECT_EQ(Refusal("Write <html> at the top of the page."), "");
    EXPECT_EQ(Refusal("{\\rtf1 <html>}"), "");
}

TEST_F(FootnoteFile, AnEmptyFileIsAnEmptyText) {
    EXPECT_EQ(Read(""), "");
}

TEST_F(FootnoteFile, AFileOfNothingButZeroBytesIsRefused) {
    ExpectRefused(std::string(1000, '\0'), "no text");
}

TEST_F(FootnoteFile, AMissingFileGivesItsOwnError) {
    try {
        ReadFootnoteFile(path_);
        FAIL() << "read a file that isn't there";
    } catch (const RuntimeError& error) {
        EXPECT_EQ(error.Number(), 53);
    }
}

}  // namespace
}  // namespace tendo
