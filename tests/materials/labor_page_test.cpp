#include "materials/labor_page.h"

#include <gtest/gtest.h>

#include "project/project_records.h"

namespace tendo {
namespace {

using Field = LaborField;

/// A page over lines of its own; the project's labor rate is $40.00.
class LaborPageTest : public testing::Test {
  protected:
    void SetUp() override {
        Project().GPDProjectFormat.LaborRate = 40;
        page.ShowMessage = [this](const std::string& title, const std::string& text) {
            messages.push_back(title + ": " + text);
        };
        page.ShowRows();
    }

    void TearDown() override { Project() = ProjectRecords(); }

    /// What the estimator does: types and leaves the field.
    void Enter(int line, Field field, const std::string& text) {
        page.SetText(line, field, text);
        page.Commit(line, field);
    }

    std::string Line(int line) const {
        std::string texts;
        for (int i = 0; i < LaborFieldCount; ++i)
            texts += page.Text(line, static_cast<Field>(i)) + "|";
        return texts;
    }

    std::vector<LaborRow> rows = std::vector<LaborRow>(LaborRowCount);
    LaborPage page{rows};
    std::vector<std::string> messages;
};

TEST_F(LaborPageTest, ANewLineTakesTheProjectsLaborRateAsItsRate) {
    Enter(0, Field::QtyHrs, "10");
    EXPECT_EQ(Line(0), "10.0||$40.00|$400.00|0.0|0.0|$0.00|");
}

TEST_F(LaborPageTest, ARateOverAThousandComesWithoutItsSeparatorFromTheProject) {
    Project().GPDProjectFormat.LaborRate = 1250;
    Enter(0, Field::QtyHrs, "2");
    EXPECT_EQ(page.Text(0, Field::LaborPerHour), "$1250.00");
    EXPECT_EQ(page.Text(0, Field::LaborCost), "$2,500.00");
    page.Commit(0, Field::LaborPerHour);
    EXPECT_EQ(page.Text(0, Field::LaborPerHour), "$1,250.00");
}

TEST_F(LaborPageTest, ALineThatHasARateKeepsIt) {
    Enter(0, Field::LaborPerHour, "55");
    Enter(0, Field::QtyHrs, "2");
    EXPECT_EQ(page.Text(0, Field::LaborPerHour), "$55.00");
    EXPECT_EQ(page.Text(0, Field::LaborCost), "$110.00");
}

TEST_F(LaborPageTest, ARateOfZeroBesideAPriceIsARate) {
    Enter(0, Field::QtyHrs, "1");
    Enter(0, Field::LaborPerHour, "0");
    Enter(0, Field::LaborPrice, "850");
    Enter(0, Field::QtyHrs, "2");
    EXPECT_EQ(Line(0), "2.0||$0.00|$0.00|0.0|0.0|$850.00|");
}

TEST_F(LaborPageTest, EmptyHoursReadAsZero) {
    Enter(3, Field::QtyHrs, "");
    EXPECT_EQ(Line(3), "0.0||$40.00|$0.00|0.0|0.0|$0.00|");
}

TEST_F(LaborPageTest, HoursShowOneDecimalAndTheCostIsOfWhatShows) {
    // 2.25 shows as 2.3, a tie away from zero; 2.3 * 40 = 92.
    Enter(0, Field::QtyHrs, "2.25");
    EXPECT_EQ(page.Text(0, Field::QtyHrs), "2.3");
    EXPECT_EQ(page.Text(0, Field::LaborCost), "$92.00");
}

TEST_F(LaborPageTest, HoursTakeSimpleArithmetic) {
    Enter(0, Field::QtyHrs, "2*3+1.5");
    EXPECT_EQ(page.Text(0, Field::QtyHrs), "7.5");
    EXPECT_EQ(page.Text(0, Field::LaborCost), "$300.00");
    Enter(0, Field::QtyHrs, "2/0");
    EXPECT_EQ(messages.size(), 1U);
    EXPECT_EQ(page.Text(0, Field::LaborCost), "$300.00");
}

TEST_F(LaborPageTest, ATextThatDoesNotConvertCountsAsZero) {
    Enter(0, Field::QtyHrs, "abc");
    Enter(0, Field::LaborPerHour, "-");
    Enter(0, Field::LaborPrice, ".");
    EXPECT_EQ(Line(0), "0.0||$0.00|$0.00|0.0|0.0|$0.00|");
    EXPECT_TRUE(messages.empty());
}

TEST_F(LaborPageTest, ARateMovesTheCostAndLeavesThePrice) {
    Enter(0, Field::QtyHrs, "10");
    Enter(0, Field::LaborPrice, "1000");
    Enter(0, Field::LaborPerHour, "75");
    // 10 * 75 = 750; the percentages stay those of the cost of 400: (1000 - 400) / 1000 = 60 %,
    // (1000 - 400) / 400 = 150 %.
    EXPECT_EQ(Line(0), "10.0||$75.00|$750.00|60.0|150.0|$1,000.00|");
}

TEST_F(LaborPageTest, AMarginGivesThePriceAndThatTheMarkup) {
    Enter(0, Field::QtyHrs, "10");
    Enter(0, Field::LaborPerHour, "75");
    Enter(0, Field::GrossMargin, "25");
    // 750 / (1 - 0.25) = 1000; 250 / 750 = 33.33 %.
    EXPECT_EQ(Line(0), "10.0||$75.00|$750.00|25.0|33.3|$1,000.00|");
}

TEST_F(LaborPageTest, AMarkupGivesThePriceAndThatTheMargin) {
    Enter(0, Field::QtyHrs, "10");
    Enter(0, Field::LaborPerHour, "75");
    Enter(0, Field::PriceMarkup, "50");
    // 750 + 50 * 750 / 100 = 1125; 375 / 1125 = 33.33 %.
    EXPECT_EQ(Line(0), "10.0||$75.00|$750.00|33.3|50.0|$1,125.00|");
}

TEST_F(LaborPageTest, EachChangeOfThePriceMovesBothPercentages) {
    Enter(0, Field::QtyHrs, "10");
    Enter(0, Field::LaborPerHour, "75");
    page.SetText(0, Field::LaborPrice, "1000");
    EXPECT_EQ(page.Text(0, Field::GrossMargin), "25.0");
    EXPECT_EQ(page.Text(0, Field::PriceMarkup), "33.3");
    page.SetText(0, Field::LaborPrice, "500");
    // (500 - 750) / 500 = -50 %, (500 - 750) / 750 = -33.33 %.
    EXPECT_EQ(page.Text(0, Field::GrossMargin), "-50.0");
    EXPECT_EQ(page.Text(0, Field::PriceMarkup), "-33.3");
    page.Commit(0, Field::LaborPrice);
    EXPECT_EQ(page.Text(0, Field::LaborPrice), "$500.00");
}

TEST_F(LaborPageTest, WithoutACostOrAPriceThePercentagesReadZero) {
    Enter(0, Field::LaborPrice, "500");
    EXPECT_EQ(Line(0), "||||0.0|0.0|$500.00|");
    Enter(1, Field::QtyHrs, "10");
    Enter(1, Field::LaborPrice, "800");
    EXPECT_EQ(page.Text(1, Field::GrossMargin), "50.0");
    Enter(1, Field::LaborPrice, "0");
    EXPECT_EQ(page.Text(1, Field::GrossMargin), "0.0");
    EXPECT_EQ(page.Text(1, Field::PriceMarkup), "0.0");
}

TEST_F(LaborPageTest, ALoneMinusSignIsALegalTextOnTheWayToAPercentage) {
    Enter(0, Field::QtyHrs, "10");
    page.SetText(0, Field::GrossMargin, "-");
    EXPECT_EQ(page.Text(0, Field::GrossMargin), "-");
    page.SetText(0, Field::GrossMargin, "-25");
    page.Commit(0, Field::GrossMargin);
    // 400 / 1.25 = 320; (320 - 400) / 400 = -20 %.
    EXPECT_EQ(Line(0), "10.0||$40.00|$400.00|-25.0|-20.0|$320.00|");
    Enter(0, Field::PriceMarkup, "-");
    EXPECT_EQ(page.Text(0, Field::LaborPrice), "$400.00");  // it reads as 0
}

TEST_F(LaborPageTest, APercentageThatIsMerelyPassedKeepsThePriceToTheCent) {
    Enter(0, Field::QtyHrs, "10");
    Enter(0, Field::GrossMargin, "25");  // 400 / 0.75 = 533.33
    ASSERT_EQ(page.Text(0, Field::LaborPrice), "$533.33");
    page.Commit(0, Field::PriceMarkup);  // 33.3 % alone would give 533.20
    page.Commit(0, Field::GrossMargin);
    EXPECT_EQ(page.Text(0, Field::LaborPrice), "$533.33");
}

TEST_F(LaborPageTest, APercentagePassedAfterTheCostChangedBringsThePriceAlong) {
    Enter(0, Field::QtyHrs, "10");
    Enter(0, Field::GrossMargin, "25");
    Enter(0, Field::QtyHrs, "12");
    EXPECT_EQ(page.Text(0, Field::LaborPrice), "$533.33");
    page.Commit(0, Field::GrossMargin);  // 480 / 0.75 = 640
    EXPECT_EQ(page.Text(0, Field::LaborPrice), "$640.00");
}

TEST_F(LaborPageTest, AMarginOfAHundredLeavesTheLineAsItIs) {
    Enter(0, Field::QtyHrs, "10");
    Enter(0, Field::GrossMargin, "25");
    Enter(0, Field::GrossMargin, "100");
    EXPECT_EQ(page.Text(0, Field::LaborPrice), "$533.33");
    ASSERT_EQ(messages.size(), 1U);
    EXPECT_EQ(messages[0],
              "Tendo: TENDO encountered an error while in Sub txtGrossMargin_LostFocus");
}

TEST_F(LaborPageTest, AnOverflowEndsTheStepWithItsMessage) {
    Enter(0, Field::LaborPerHour, "3E38");
    Enter(0, Field::QtyHrs, "10");
    EXPECT_EQ(messages.size(), 1U);
    EXPECT_EQ(page.Text(0, Field::LaborCost), "$0.00");
}

TEST_F(LaborPageTest, ARowWithHoursZeroShowsBlankOnReopeningWhateverItsDescriptionHolds) {
    rows[0] = {0, "Permit", 40, 0, 0, 0, 120};
    rows[1] = {1.5F, "Start up", 40, 60, 25, 33.3F, 80};
    page.ShowRows();
    EXPECT_EQ(Line(0), "|||||||");
    EXPECT_EQ(Line(1), "1.5|Start up|$40.00|$60.00|25.0|33.3|$80.00|");
}

TEST_F(LaborPageTest, ALineOfAListCostsItsHoursTimesItsRate) {
    rows[0] = {2, "Start up", 35, 999, 30, 42.9F, 100};
    rows[1] = {0, "Nothing", 35, 999, 0, 0, 0};
    page.ShowListRows();
    EXPECT_EQ(Line(0), "2.0|Start up|$35.00|$70.00|30.0|42.9|$100.00|");
    EXPECT_EQ(Line(1), "|||||||");
}

TEST_F(LaborPageTest, TheTextsGoBackToTheRows) {
    Enter(0, Field::QtyHrs, "10");
    page.SetText(0, Field::LaborDescription, std::string(60, 'x'));
    Enter(0, Field::GrossMargin, "25");
    page.StoreRows();
    EXPECT_EQ(rows[0].QtyHrs, 10);
    EXPECT_EQ(rows[0].LaborDescription.Trimmed(), std::string(50, 'x'));
    EXPECT_EQ(rows[0].LaborPerHour, 40);
    EXPECT_EQ(rows[0].LaborCost, 400);
    EXPECT_EQ(rows[0].GrossMargin, 25);
    EXPECT_EQ(rows[0].PriceMarkup, 33.3F);
    EXPECT_EQ(rows[0].LaborPrice, 533.33F);
    EXPECT_EQ(rows[1].LaborPerHour, 0);  // a blank line reads as zeros
}

TEST_F(LaborPageTest, ClearBlanksDescriptionsAndRatesAndZeroesTheRest) {
    for (const int line : {0, 14}) {
        Enter(line, Field::QtyHrs, "10");
        page.SetText(line, Field::LaborDescription, "Start up");
        Enter(line, Field::GrossMargin, "25");
    }
    page.Clear();
    for (int line = 0; line < LaborLineCount; ++line)
        EXPECT_EQ(Line(line), "0.0|||$0.00|0.0|0.0|$0.00|") << line;
    page.StoreRows();
    EXPECT_TRUE(rows[0].LaborDescription.IsBlank());
    EXPECT_EQ(rows[14].LaborPrice, 0);
}

TEST_F(LaborPageTest, EveryChangeOfATextIsTold) {
    std::vector<Field> told;
    page.TextChanged = [&](int line, Field field) {
        EXPECT_EQ(line, 2);
        told.push_back(field);
    };
    Enter(2, Field::QtyHrs, "1.5");
    // As typed, then rate, cost, price and what it gives, then the cost of the hours.
    const std::vector<Field> expected = {Field::QtyHrs,     Field::LaborPerHour, Field::LaborCost,
                                         Field::LaborPrice, Field::GrossMargin,  Field::PriceMarkup,
                                         Field::LaborCost};
    EXPECT_EQ(told, expected);
}

}  // namespace
}  // namespace tendo
