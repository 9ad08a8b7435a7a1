#include <gtest/gtest.h>

#include <string>

#include "platform/files/safe_file.h"
#include "platform/office/cell_format.h"
#include "platform/office/read_workbook.h"
#include "platform/office/xls_reader.h"
#include "platform/text/runtime_error.h"
#include "record_bytes.h"

namespace tendo {
namespace {

std::string DataFile(const std::string& name) {
    return ReadWholeFile(TENDO_TEST_DATA "/office/" + name);
}

const std::string Begin = Record(0x809, U16(0x600) + U16(5));
const std::string End = Record(0x0A, "");

/// A stream of given globals and the records of one sheet "S".
std::string Stream(const std::string& globals, const std::string& cells) {
    const std::string sheet = std::string("\1", 1) + std::string(1, '\0') + "S";
    const std::size_t size = Begin.size() + globals.size() + 4 + 6 + sheet.size() + End.size();
    const std::string place = U32(static_cast<std::uint32_t>(size)) + std::string(2, '\0');
    return Begin + globals + Record(0x85, place + sheet) + End + Begin + cells + End;
}

Workbook Read(const std::string& globals, const std::string& cells) {
    return ReadXlsStream(Stream(globals, cells), "p.xls");
}

std::string MessageOf(const std::string& bytes, bool stream = false) {
    try {
        stream ? ReadXlsStream(bytes, "p.xls") : ReadWorkbook(bytes, "p.xls");
    } catch (const RuntimeError& error) {
        EXPECT_EQ(error.Number(), error_number::UnrecognizedFormat);
        return error.Description();
    }
    return "";
}

/// The file says: 0012 read as 12, 12.5, 3, 4 May 1998 (day 35919), "TRUE", 12.5 * 3.
void ExpectParts(const Workbook& book) {
    EXPECT_EQ(book.sheetName, "base");
    EXPECT_EQ(book.RowCount(), 4u);
    EXPECT_EQ(book.ColumnCount(), 7u);
    EXPECT_EQ(book.Cell(1, 1).text, "Elbow, 90 deg \"long\"");
    EXPECT_EQ(book.Cell(1, 2).number, 12.5);
    EXPECT_EQ(book.Cell(1, 4).kind, CellKind::Date);
    EXPECT_EQ(book.Cell(1, 4).number, 35919);
    EXPECT_EQ(book.Cell(1, 5).text, "TRUE");  // a text in the file itself
    EXPECT_EQ(book.Cell(1, 6).number, 37.5);
    EXPECT_EQ(book.Cell(2, 6).kind, CellKind::Error);
    EXPECT_EQ(book.Cell(2, 6).text, "#DIV/0!");
    EXPECT_EQ(book.Cell(3, 1).text, "two\nlines");
    EXPECT_EQ(book.Cell(3, 2).number, 1234567.891);
}

TEST(Workbook, AnXlsFileOfAnotherProgramIsRead) {
    const Workbook book = ReadWorkbook(DataFile("parts.xls"), "parts.xls");
    EXPECT_EQ(book.kind, WorkbookKind::Xls);
    EXPECT_EQ(book.remark, "");
    ExpectParts(book);
}

TEST(Workbook, AnXlsxNamedXlsIsReadAndTold) {
    const Workbook book = ReadWorkbook(DataFile("parts.xlsx"), "parts.xls");
    EXPECT_EQ(book.kind, WorkbookKind::Xlsx);
    EXPECT_EQ(book.remark,
              "This .xls file is really an Excel workbook (.xlsx); its first sheet was read.");
    ExpectParts(book);
}

TEST(Workbook, ACutXlsFileGivesAMessageThatNamesItAndThePlace) {
    const std::string whole = DataFile("parts.xls");
    for (std::size_t size = 512; size < whole.size(); size += 512)
        EXPECT_NE(MessageOf(whole.substr(0, size)).find("\"p.xls\" is damaged at "),
                  std::string::npos)
            << size;
}

TEST(Workbook, ACutXlsxFileGivesAMessage) {
    const std::string whole = DataFile("parts.xlsx");
    for (std::size_t size = 8; size < whole.size(); size += 97)
        EXPECT_FALSE(MessageOf(whole.substr(0, size)).empty()) << size;
}

TEST(XlsRecords, TheShortNumberFormsAreRead) {
    // 5 << 2 | 2 is the whole 5; with bit 0 also 0.05; 0x3FF80000 is the upper half of 1.5.
    const Workbook book = Read("", Record(0x27E, U16(0) + U16(0) + U16(0) + U32(22)) +
                                       Record(0xBD, U16(1) + U16(0) + U16(0) + U32(23) + U16(0) +
                                                        U32(0x3FF80000) + U16(1)));
    EXPECT_EQ(book.Cell(0, 0).number, 5);
    EXPECT_EQ(book.Cell(1, 0).number, 0.05);
    EXPECT_EQ(book.Cell(1, 1).number, 1.5);
}

TEST(XlsRecords, ASharedTextRunsOnInTheNextRecordWithNewFlags) {
    // "abcd": two narrow characters, then two wide ones behind the new flags.
    const std::string start = U32(1) + U32(1) + U16(4) + std::string(1, '\0') + "ab";
    const std::string rest = std::string("\1c\0d\0", 5);
    const Workbook book = Read(Record(0xFC, start) + Record(0x3C, rest),
                               Record(0xFD, U16(65535) + U16(2) + U16(0) + U32(0)));
    EXPECT_EQ(book.Cell(65535, 2).text, "abcd");
}

TEST(XlsRecords, RunsAndPhoneticPartsOfATextArePassedOver) {
    const std::string rich = U16(1) + "\x0C" + U16(1) + U32(3) + "x" + "runs" + "pho";
    const std::string plain = U16(1) + std::string(1, '\0') + "y";
    const Workbook book = Read(Record(0xFC, U32(2) + U32(2) + rich + plain),
                               Record(0xFD, U16(0) + U16(0) + U16(0) + U32(0)) +
                                   Record(0xFD, U16(0) + U16(1) + U16(0) + U32(1)));
    EXPECT_EQ(book.Cell(0, 0).text, "x");
    EXPECT_EQ(book.Cell(0, 1).text, "y");
}

TEST(XlsRecords, AFormulaHasItsTextInTheRecordBehindIt) {
    const std::string result = std::string(6, '\0') + U16(0xFFFF);
    const Workbook book = Read("", Record(0x06, U16(0) + U16(0) + U16(0) + result) +
                                       Record(0x207, U16(2) + std::string(1, '\0') + "ok"));
    EXPECT_EQ(book.Cell(0, 0).text, "ok");
}

TEST(XlsRecords, DaysOf1904AreBroughtToTheSameCount) {
    // Format 14 is a date; 1462 days lie between the two beginnings.
    const Workbook book = Read(Record(0x22, U16(1)) + Record(0xE0, U16(0) + U16(14)),
                               Record(0x27E, U16(0) + U16(0) + U16(0) + U32(100 << 2 | 2)));
    EXPECT_EQ(book.Cell(0, 0).kind, CellKind::Date);
    EXPECT_EQ(book.Cell(0, 0).number, 1562);
}

TEST(XlsRecords, AProtectedWorkbookIsRefused) {
    EXPECT_EQ(MessageOf(Stream(Record(0x2F, U16(0)), ""), true),
              "\"p.xls\" cannot be read: it is protected with a password; save it without one and "
              "try again.");
}

TEST(XlsRecords, AMissingSharedTextIsDamage) {
    const std::string cell = Record(0xFD, U16(0) + U16(0) + U16(0) + U32(1'000'000));
    EXPECT_NE(MessageOf(Stream("", cell), true).find("its text is missing"), std::string::npos);
}

TEST(CellFormats, DatesAreToldFromNumbers) {
    for (const char* code : {"yyyy-mm-dd", "[h]:mm", "[$-409]d/m/yy", "\"on\" d"})
        EXPECT_TRUE(IsDateFormat(code)) << code;
    for (const char* code :
         {"General", "0.00", "[Red]0.00", "0 \"days\"", "\\d0", "\"open", "[open", ""})
        EXPECT_FALSE(IsDateFormat(code)) << code;
}

}  // namespace
}  // namespace tendo
