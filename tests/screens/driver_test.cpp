#include <gtest/gtest.h>

#include "programs/driver/compare.h"
#include "programs/driver/controls.h"
#include "programs/driver/script.h"

namespace tendo::driver {
namespace {

using Texts = std::vector<std::string>;

TEST(DriverScript, WordsAreBareOrStrings) {
    EXPECT_EQ(WordsOf("enter frmGPD.txtClientName \"Dana \\\"D\\\" Lee\""),
              (Texts{"enter", "frmGPD.txtClientName", "Dana \"D\" Lee"}));
    EXPECT_EQ(WordsOf("  tool\tToolNew\r"), (Texts{"tool", "ToolNew"}));
    EXPECT_EQ(WordsOf("type a.b \"\""), (Texts{"type", "a.b", ""}));
}

TEST(DriverScript, ACommentBeginsAtItsMarkOutsideStrings) {
    EXPECT_EQ(WordsOf("# nothing here"), Texts{});
    EXPECT_EQ(WordsOf("leave # the field"), Texts{"leave"});
    EXPECT_EQ(WordsOf("leave #add this"), Texts{"leave"});
    EXPECT_EQ(WordsOf("type a.b \"# no comment\""), (Texts{"type", "a.b", "# no comment"}));
}

TEST(DriverScript, AnIndexAndAColourAreWords) {
    EXPECT_EQ(WordsOf("choose a.b #2"), (Texts{"choose", "a.b", "#2"}));
    EXPECT_EQ(WordsOf("answer color #c0e0ff # light"), (Texts{"answer", "color", "#c0e0ff"}));
}

TEST(DriverScript, AStringWithoutItsEndIsAFault) {
    EXPECT_THROW(WordsOf("type a.b \"open"), std::runtime_error);
    EXPECT_THROW(WordsOf("type a.b \"bad \\q\""), std::runtime_error);
}

TEST(DriverScript, CommandsOfAFormArePartedBySemicolonsOutsideStrings) {
    EXPECT_EQ(CommandsOf("row f.g 2;type f.t \"a;b\""), (Texts{"row f.g 2", "type f.t \"a;b\""}));
    EXPECT_EQ(WordsOf(LineOf({"a b", "c\"d"})), (Texts{"a b", "c\"d"}));
}

TEST(DriverCompare, NumbersAgreeToOneUnitInTheSeventhDigit) {
    EXPECT_TRUE(Agrees("1250", Json(1250.0)));
    EXPECT_TRUE(Agrees("33.33333", Json("33.33334")));  // the seventh digits differ by one
    EXPECT_FALSE(Agrees("33.33333", Json("33.33336")));
    EXPECT_FALSE(Agrees("0", Json(0.001)));
    EXPECT_TRUE(Agrees("-5", Json("-5.000")));
}

TEST(DriverCompare, TextsTruthValuesAndParts) {
    EXPECT_TRUE(Agrees("true", Json(true)));
    EXPECT_FALSE(Agrees("true", Json(false)));
    EXPECT_TRUE(Agrees("~Model", Json("Summary Model Data")));
    EXPECT_FALSE(Agrees("~model", Json("Summary Model Data")));
    EXPECT_TRUE(Agrees("Lee", Json("Lee   ")));  // trailing blanks of a record don't count
    EXPECT_FALSE(Agrees("$5.00", Json("5")));
    EXPECT_TRUE(Agrees("~two", Json({"one", "two"})));
    EXPECT_FALSE(Agrees("three", Json({"one", "two"})));
}

TEST(DriverPaths, AControlAndItsProperty) {
    const ControlPath path = PathOf("frmMatCosts.txtItemQty(3).enabled");
    EXPECT_EQ(path.form, "frmMatCosts");
    EXPECT_EQ(path.control, "txtItemQty(3)");
    EXPECT_EQ(path.property, "enabled");
    EXPECT_EQ(PathOf("frmGPD").control, "");
}

}  // namespace
}  // namespace tendo::driver
