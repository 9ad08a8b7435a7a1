#include <gtest/gtest.h>
#include <zip.h>

#include <string>
#include <vector>

#include "platform/office/compound_file.h"
#include "platform/office/read_workbook.h"
#include "platform/office/xls_reader.h"
#include "platform/text/runtime_error.h"
#include "record_bytes.h"

namespace tendo {
namespace {

std::string MessageOf(const std::string& bytes, const std::string& name) {
    try {
        ReadWorkbook(bytes, name);
    } catch (const RuntimeError& error) {
        return error.Description();
    }
    return "";
}

constexpr std::size_t SectorSize = 512;
constexpr std::size_t NumbersInSector = SectorSize / 4;
constexpr std::size_t FreeSector = 0xFFFFFFFF;
constexpr std::size_t EndOfChain = 0xFFFFFFFE;

/// Fills up to whole sectors.
std::string Padded(std::string bytes, char filler = '\0') {
    bytes.resize((bytes.size() + SectorSize - 1) / SectorSize * SectorSize, filler);
    return bytes;
}

std::string DirectoryEntry(const std::string& name, char type, std::size_t child, std::size_t start,
                           std::size_t size) {
    std::string wide;
    for (const char letter : name)
        wide += {letter, '\0'};
    std::string entry = wide;
    entry.resize(64);
    entry += U16(static_cast<unsigned>(wide.size() + 2)) + std::string{type, '\1'};
    entry += U32(FreeSector) + U32(FreeSector) + U32(child) + std::string(36, '\0');
    return entry + U32(start) + U32(size) + U32(0);
}

/// A compound file of one stream "Workbook"; the sectors of its table that the header has no room
/// for are listed in sectors of their own. In order: directory, stream, table, lists of the table.
std::string CompoundFileOf(const std::string& stream, bool listInCircle = false) {
    const std::size_t streamSectors = Padded(stream).size() / SectorSize;
    std::size_t tableSectors = 1;
    std::size_t listSectors = 0;
    for (;;) {
        const std::size_t all = 1 + streamSectors + tableSectors + listSectors;
        if (tableSectors * NumbersInSector >= all) break;
        ++tableSectors;
        listSectors = tableSectors <= 109 ? 0 : (tableSectors - 109 + 126) / 127;
    }
    const std::size_t firstTable = 1 + streamSectors;
    const std::size_t firstList = firstTable + tableSectors;
    std::string header("\xD0\xCF\x11\xE0\xA1\xB1\x1A\xE1", 8);
    header += std::string(16, '\0') + U16(62) + U16(3) + U16(0xFFFE) + U16(9) + U16(6);
    header += std::string(10, '\0') + U32(tableSectors) + U32(0) + U32(0) + U32(4096);
    header += U32(EndOfChain) + U32(0) + U32(listSectors ? firstList : EndOfChain);
    header += U32(listSectors);
    for (std::size_t i = 0; i < 109; ++i)
        header += U32(i < tableSectors ? firstTable + i : FreeSector);
    std::string table = U32(EndOfChain);
    for (std::size_t i = 1; i <= streamSectors; ++i)
        table += U32(i == streamSectors ? EndOfChain : i + 1);
    for (std::size_t i = 0; i < tableSectors; ++i)
        table += U32(0xFFFFFFFD);
    for (std::size_t i = 0; i < listSectors; ++i)
        table += U32(0xFFFFFFFC);
    std::string lists;
    for (std::size_t list = 0, next = 109; list < listSectors; ++list) {
        for (std::size_t i = 0; i < 127; ++i, ++next)
            lists += U32(next < tableSectors ? firstTable + next : FreeSector);
        const bool last = list + 1 == listSectors;
        lists += U32(!last ? firstList + list + 1 : listInCircle ? firstList : EndOfChain);
    }
    const std::string directory = DirectoryEntry("Root Entry", 5, 1, EndOfChain, 0) +
                                  DirectoryEntry("Workbook", 2, FreeSector, 1, stream.size());
    return header + Padded(directory) + Padded(stream) + Padded(table, '\xFF') + lists;
}

TEST(HostileWorkbook, AFileWhoseSectorTableNeedsItsOwnListIsRead) {
    // 109 sectors of the table reach 109 * 128 * 512 bytes, a little over 7 million.
    std::string stream(8'000'000, '\0');
    for (std::size_t i = 0; i < stream.size(); i += 1000)
        stream[i] = static_cast<char>(i / 1000);
    const std::string bytes = CompoundFileOf(stream);
    const CompoundFile file(bytes, "big.xls");
    EXPECT_TRUE(file.Stream("workbook") == stream);
}

TEST(HostileWorkbook, AListOfTableSectorsInACircleEnds) {
    const std::string stream(8'000'000, 'w');
    const std::string bytes = CompoundFileOf(stream, true);
    EXPECT_TRUE(CompoundFile(bytes, "p.xls").Stream("Workbook") == stream);
}

TEST(HostileWorkbook, AStreamChainedInACircleIsDamage) {
    std::string bytes = CompoundFileOf(std::string(20'000, '\0'));
    // The entry of sector 5 in the table leads back to sector 2; the table follows 40 sectors.
    const std::size_t table = SectorSize * (1 + 1 + 40);
    bytes.replace(table + 4 * 5, 4, U32(2));
    // The stated size is believed only as far as the sectors go.
    const std::size_t entry = SectorSize + 128 + 120;
    bytes.replace(entry, 4, U32(0x7FFFFFFF));
    EXPECT_NE(MessageOf(bytes, "p.xls").find("the sectors run in a circle"), std::string::npos);
}

using Parts = std::vector<std::pair<std::string, std::string>>;

std::string ZipOf(const Parts& parts) {
    zip_error_t error;
    zip_source_t* target = zip_source_buffer_create(nullptr, 0, 0, &error);
    zip_source_keep(target);
    zip_t* archive = zip_open_from_source(target, ZIP_TRUNCATE, &error);
    for (const auto& [name, bytes] : parts) {
        zip_source_t* source = zip_source_buffer(archive, bytes.data(), bytes.size(), 0);
        zip_file_add(archive, name.c_str(), source, ZIP_FL_ENC_UTF_8);
    }
    zip_close(archive);
    zip_source_open(target);
    zip_stat_t stat;
    zip_source_stat(target, &stat);
    std::string result(stat.size, '\0');
    zip_source_read(target, result.data(), result.size());
    zip_source_close(target);
    zip_source_free(target);
    return result;
}

/// An .xlsx workbook of one sheet with this XML.
std::string XlsxOf(const std::string& sheet) {
    const std::string relations =
        "http://schemas.openxmlformats.org/officeDocument/2006/relationships";
    return ZipOf({
        {"_rels/.rels", "<Relationships><Relationship Id=\"r1\" Type=\"" + relations +
                            "/officeDocument\" Target=\"xl/workbook.xml\"/></Relationships>"},
        {"xl/workbook.xml", "<workbook xmlns:r=\"" + relations +
                                "\"><sheets><sheet name=\"S\" r:id=\"r2\"/></sheets></workbook>"},
        {"xl/_rels/workbook.xml.rels",
         "<Relationships><Relationship Id=\"r2\" Type=\"" + relations +
             "/worksheet\" Target=\"worksheets/sheet1.xml\"/></Relationships>"},
        {"xl/worksheets/sheet1.xml", sheet},
    });
}

std::string SheetOf(const std::string& rows) {
    return "<worksheet><dimension ref=\"A1:XFD1048576\"/><sheetData>" + rows +
           "</sheetData></worksheet>";
}

TEST(HostileWorkbook, ASmallZipThatUnpacksToHundredsOfMegabytesIsRefused) {
    const std::string bomb = XlsxOf(SheetOf(std::string(200'000'000, ' ')));
    EXPECT_LT(bomb.size(), 1'000'000u);
    EXPECT_NE(MessageOf(bomb, "p.xlsx").find("is too large when unpacked"), std::string::npos);
}

TEST(HostileWorkbook, AMillionClaimedRowsCostNothing) {
    const Workbook book =
        ReadWorkbook(XlsxOf(SheetOf("<row r=\"1\"><c r=\"A1\"><v>1</v></c></row>"
                                    "<row r=\"1048576\"><c r=\"XFD1048576\" s=\"1\"/></row>")),
                     "p.xlsx");
    // The far cell has a look but no content.
    EXPECT_EQ(book.RowCount(), 1u);
    EXPECT_EQ(book.ColumnCount(), 1u);
}

TEST(HostileWorkbook, ACellBeyondTheLastRowOfASheetIsLeftOut) {
    const Workbook book = ReadWorkbook(
        XlsxOf(
            SheetOf("<row r=\"1\"><c r=\"A1\"><v>1</v></c><c r=\"A1048577\"><v>2</v></c></row>")),
        "p.xlsx");
    EXPECT_EQ(book.RowCount(), 1u);
}

TEST(HostileWorkbook, FormatsToTheLastRowOfAnOldWorkbookMakeNoRows) {
    const std::string begin = Record(0x809, U16(0x600) + U16(5));
    const std::string end = Record(0x0A, "");
    const std::string sheet = std::string("\1\0S", 3);
    const std::size_t at = begin.size() + 4 + 6 + sheet.size() + end.size();
    std::string cells = Record(0x200, U32(0) + U32(65536) + U16(0) + U16(256) + U16(0));
    cells += Record(0x203, U16(0) + U16(0) + U16(0) + std::string(6, '\0') + "\xF0\x3F");
    // Empty cells with a look, single and in a run of columns, in the last row.
    cells += Record(0x201, U16(65535) + U16(0) + U16(1));
    cells += Record(0xBE, U16(65535) + U16(1) + U16(1) + U16(1) + U16(2));
    const Workbook book = ReadXlsStream(
        begin + Record(0x85, U32(at) + std::string(2, '\0') + sheet) + end + begin + cells + end,
        "p.xls");
    EXPECT_EQ(book.RowCount(), 1u);
    EXPECT_EQ(book.Cell(0, 0).number, 1);
}

TEST(HostileWorkbook, AnEncryptedXlsxIsToldToBeProtected) {
    std::string bytes = CompoundFileOf(std::string(5000, 'x'));
    const std::string wide = DirectoryEntry("EncryptedPackage", 2, FreeSector, 1, 5000);
    bytes.replace(SectorSize + 128, 128, wide);
    EXPECT_NE(MessageOf(bytes, "p.xlsx").find("protected with a password"), std::string::npos);
}

TEST(HostileWorkbook, NestedElementsWithoutEndAreRefused) {
    std::string deep;
    for (int i = 0; i < 200'000; ++i)
        deep += "<row>";
    EXPECT_FALSE(MessageOf(XlsxOf(SheetOf(deep)), "p.xlsx").empty());
}

}  // namespace
}  // namespace tendo
