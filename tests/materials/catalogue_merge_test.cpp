#include "materials/catalogue_merge.h"

#include <gtest/gtest.h>

#include <limits>
#include <random>

#include "material_databases.h"
#include "materials/material_catalogue.h"
#include "platform/text/runtime_error.h"

namespace tendo {
namespace {

using Rows = std::vector<MaterialRow>;

MaterialRow Row(const std::string& description, float unitCost, std::int16_t quantity = 0) {
    MaterialRow row;
    row.Category = "Duct";
    row.Description = description;
    row.PartNumber = "P-" + description;
    row.UnitCst = unitCost;
    row.ListCst = unitCost * 2;
    row.ItemQty = quantity;
    return row;
}

/// A line with a value in every field that a merge may carry.
MaterialRow Line(const std::string& description, float unitCost, std::int16_t quantity) {
    MaterialRow row = Row(description, unitCost, quantity);
    row.Accessory = row.Tax = 1;
    row.GrossMargin = 20;
    row.PriceMarkup = 25;
    row.ListDiscount = 5;
    row.SalePrice = static_cast<float>(quantity) * 10;
    return row;
}

Rows Book() {
    return {Row("Boot", 9.5F), Row("Flex duct", 41.25F), Row("Grille", 18), Row("Wire", 0.35F)};
}

/// The merge step by step, without any index: the position goes back to the top after each line
/// and is moved on once more, so row 0 isn't tested again; the limit stays when the book grows.
void MergeStepByStep(Rows& catalogue, Rows& lines, TakeFields take) {
    const auto limit = static_cast<std::ptrdiff_t>(catalogue.size()) - 1;
    std::size_t k = 0;
    for (std::ptrdiff_t i = 0; i <= limit && k < lines.size(); ++i) {
        MaterialRow& row = catalogue[static_cast<std::size_t>(i)];
        MaterialRow& line = lines[k];
        row.Description = row.Description.Trimmed();
        line.Description = line.Description.Trimmed();
        if (row.UnitCst == line.UnitCst && row.Description == line.Description) {
            take(line, row);
            ++k;
            i = 0;
            continue;
        }
        if (i != static_cast<std::ptrdiff_t>(catalogue.size()) - 1) continue;
        if (line.Description.IsBlank()) return;
        catalogue.push_back(line);
        ++k;
        i = 0;
    }
}

TEST(CatalogueMerge, AMatchTakesMarksQuantityPercentagesAndPriceOnly) {
    Rows book = Book();
    Rows lines = {Line("Grille", 18, 3)};
    lines[0].PartNumber = "another";
    lines[0].ListCst = 99;
    lines[0].Category = "another";
    const MergeCounts counts = MergeIntoCatalogue(book, lines, TakeTakeoffFields);
    MaterialRow expected = Line("Grille", 18, 3);
    EXPECT_EQ(book[2], expected);
    EXPECT_EQ(book[1], Book()[1]);
    EXPECT_EQ(counts.matched, 1);
    EXPECT_EQ(counts.dropped, 0);
}

TEST(CatalogueMerge, AListBringsPricesButNotMargins) {
    Rows book = Book();
    Rows lines = {Line("Grille", 18, 3)};
    MergeIntoCatalogue(book, lines, TakeListFields);
    MaterialRow expected = Line("Grille", 18, 3);
    expected.GrossMargin = expected.PriceMarkup = expected.ListDiscount = 0;
    EXPECT_EQ(book[2], expected);
}

TEST(CatalogueMerge, AChangedUnitCostMakesARowUnmatched) {
    Rows book = Book();
    Rows lines = {Line("Grille", 18.5F, 3)};
    const MergeCounts counts = MergeIntoCatalogue(book, lines, TakeTakeoffFields);
    EXPECT_EQ(counts.appended, 1);
    ASSERT_EQ(book.size(), 5U);
    EXPECT_EQ(book[4], Line("Grille", 18.5F, 3));
    EXPECT_EQ(book[2], Book()[2]);
}

TEST(CatalogueMerge, DescriptionsAreComparedWithTheirCase) {
    Rows book = Book();
    Rows lines = {Line("GRILLE", 18, 3)};
    EXPECT_EQ(MergeIntoCatalogue(book, lines, TakeTakeoffFields).appended, 1);
}

TEST(CatalogueMerge, OfTwoMaterialsThatAreGoneTheFirstStaysAndAllFromTheSecondOnAreLost) {
    Rows book = Book();
    Rows lines = {Line("Boot", 9.5F, 1), Line("Gone 1", 5, 2), Line("Grille", 18, 3),
                  Line("Gone 2", 6, 4), Line("Wire", 0.35F, 5)};
    const MergeCounts counts = MergeIntoCatalogue(book, lines, TakeTakeoffFields);
    ASSERT_EQ(book.size(), 5U);
    EXPECT_EQ(book[4], Line("Gone 1", 5, 2));
    EXPECT_EQ(book[0].ItemQty, 1);
    EXPECT_EQ(book[2].ItemQty, 3);
    EXPECT_EQ(book[3].ItemQty, 0);  // Wire is in the book, but stands behind the second
    EXPECT_EQ(counts.matched, 2);
    EXPECT_EQ(counts.appended, 1);
    EXPECT_EQ(counts.dropped, 2);
}

TEST(CatalogueMerge, TheFirstRowOfTheBookServesTheFirstLineOnly) {
    Rows book = Book();
    Rows lines = {Line("Flex duct", 41.25F, 1), Line("Boot", 9.5F, 2)};
    const MergeCounts counts = MergeIntoCatalogue(book, lines, TakeTakeoffFields);
    EXPECT_EQ(book[0].ItemQty, 0);
    ASSERT_EQ(book.size(), 5U);
    EXPECT_EQ(book[4], Line("Boot", 9.5F, 2));
    EXPECT_EQ(counts.appended, 1);
}

TEST(CatalogueMerge, OfTwoEqualRowsTheUpperOneTakesBothLines) {
    Rows book = Book();
    book.push_back(Row("Grille", 18));
    Rows lines = {Line("Grille", 18, 1), Line("Grille", 18, 2)};
    MergeIntoCatalogue(book, lines, TakeTakeoffFields);
    EXPECT_EQ(book[2].ItemQty, 2);
    EXPECT_EQ(book[4].ItemQty, 0);
}

TEST(CatalogueMerge, ABlankLineEndsTheTakeoff) {
    Rows book = Book();
    Rows lines = {Line("Grille", 18, 1), MaterialRow(), Line("Wire", 0.35F, 2)};
    const MergeCounts counts = MergeIntoCatalogue(book, lines, TakeTakeoffFields);
    EXPECT_EQ(book[3].ItemQty, 0);
    EXPECT_EQ(book.size(), 4U);
    EXPECT_EQ(counts.dropped, 0);
}

TEST(CatalogueMerge, LeadingBlanksDoNotPart) {
    Rows book = Book();
    book[2].Description = "  Grille";
    Rows lines = {Line(" Grille", 18, 3)};
    EXPECT_EQ(MergeIntoCatalogue(book, lines, TakeTakeoffFields).matched, 1);
    EXPECT_EQ(book[2].Description.WithoutPadding(), "Grille");
    EXPECT_EQ(lines[0].Description.WithoutPadding(), "Grille");
}

TEST(CatalogueMerge, AnEmptyBookTakesNothing) {
    Rows book;
    Rows lines = {Line("Grille", 18, 3)};
    EXPECT_EQ(MergeIntoCatalogue(book, lines, TakeTakeoffFields).dropped, 1);
    EXPECT_TRUE(book.empty());
}

TEST(CatalogueMerge, ABookOfOneRowTakesOneLine) {
    Rows book = {Row("Boot", 9.5F)};
    Rows lines = {Line("Boot", 9.5F, 1), Line("Gone", 1, 1)};
    MergeIntoCatalogue(book, lines, TakeTakeoffFields);
    ASSERT_EQ(book.size(), 1U);
    EXPECT_EQ(book[0].ItemQty, 1);
}

TEST(CatalogueMerge, ACostThatIsNoNumberNeverMatches) {
    Rows book = {Row("Boot", 1), Row("Grille", std::numeric_limits<float>::quiet_NaN())};
    Rows lines = {Line("Grille", std::numeric_limits<float>::quiet_NaN(), 1)};
    EXPECT_EQ(MergeIntoCatalogue(book, lines, TakeTakeoffFields).appended, 1);
}

TEST(CatalogueMerge, ABookThatIsFullHasNoRoomForALineWithoutARow) {
    Rows book(32767, Row("Boot", 1));
    Rows lines = {Line("Gone", 5, 1)};
    try {
        MergeIntoCatalogue(book, lines, TakeTakeoffFields);
        ADD_FAILURE() << "a 32768th row was taken";
    } catch (const RuntimeError& error) {
        EXPECT_EQ(error.Number(), 6);
    }
    EXPECT_EQ(book.size(), 32767U);
}

TEST(CatalogueMerge, TheProjectsTakeoffGoesIntoTheCatalogue) {
    BookFolder folder;
    Project() = ProjectRecords();
    MaterialCatalogue() = Book();
    Project().ProjectMaterials[0] = Line("Wire", 0.35F, 250);
    EXPECT_EQ(ProjectMaterialsToCatalogue().matched, 1);
    EXPECT_EQ(MaterialCatalogue()[3].ItemQty, 250);
    Project() = ProjectRecords();
}

/// Rows of few descriptions and costs, so that equal ones, blank ones and row 0 are met often.
Rows RandomRows(std::mt19937& random, std::size_t count, bool lines) {
    const char* const descriptions[] = {"A", " A", "B", "b", "C  ", "D", "E", ""};
    const float costs[] = {0, -0.0F, 1, 1.5F};
    Rows rows;
    for (std::size_t i = 0; i < count; ++i) {
        // One draw a statement: the order of evaluation must not matter.
        const std::size_t description = random() % (random() % 3 == 0 ? 8U : 7U);
        const float cost = costs[random() % 4];
        const auto quantity = static_cast<std::int16_t>(random() % 5);
        rows.push_back(lines ? Line(descriptions[description], cost, quantity)
                             : Row(descriptions[description], cost, 0));
    }
    return rows;
}

TEST(CatalogueMerge, GivesOnRandomBooksWhatTheWalkFromTheTopGives) {
    std::mt19937 random(4711);
    int matched = 0, appended = 0, dropped = 0;
    for (int round = 0; round < 20000; ++round) {
        Rows book = RandomRows(random, random() % 12, false);
        Rows lines = RandomRows(random, random() % 9, true);
        if (round % 3 == 0) lines.resize(lines.size() + 2);  // blank lines behind, as a project has
        const TakeFields take = round % 2 == 0 ? TakeTakeoffFields : TakeListFields;
        Rows bookByStep = book, linesByStep = lines;
        MergeStepByStep(bookByStep, linesByStep, take);
        const MergeCounts counts = MergeIntoCatalogue(book, lines, take);
        ASSERT_EQ(book, bookByStep) << "round " << round;
        ASSERT_EQ(lines, linesByStep) << "round " << round;
        matched += counts.matched;
        appended += counts.appended;
        dropped += counts.dropped;
    }
    // The draws reach every branch.
    EXPECT_GT(matched, 10000);
    EXPECT_GT(appended, 5000);
    EXPECT_GT(dropped, 5000);
}

}  // namespace
}  // namespace tendo
