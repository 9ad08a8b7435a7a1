#include "platform/print/recording_surface.h"

#include <gtest/gtest.h>

#include <nlohmann/json.hpp>

#include "platform/print/fixed_measurer.h"
#include "platform/print/layout_surface.h"

namespace tendo {
namespace {

class Recording : public testing::Test {
  protected:
    FixedMeasurer measurer;
    LayoutSurface layout{measurer};
    RecordingSurface surface{layout};
};

TEST_F(Recording, EveryCallIsALineOfJsonUnderItsOwnName) {
    surface.Action(3);
    surface.FontName("Arial");
    surface.FontSize(16);
    surface.FontBold(true);
    surface.Paragraph("a \"quoted\" text");
    surface.DrawLine(331, 2520, 11203, 2520);
    surface.AddTable("<1|<2", "", "x|y;");
    surface.AddTable("<1", "h", "x;", 12648447);
    surface.NewPage();
    surface.Action(6);
    EXPECT_EQ(surface.Log(),
              "{\"op\":\"Action\",\"value\":3}\n"
              "{\"op\":\"FontName\",\"value\":\"Arial\"}\n"
              "{\"op\":\"FontSize\",\"value\":16}\n"
              "{\"op\":\"FontBold\",\"value\":true}\n"
              "{\"op\":\"Paragraph\",\"value\":\"a \\\"quoted\\\" text\"}\n"
              "{\"op\":\"DrawLine\",\"x1\":331,\"y1\":2520,\"x2\":11203,\"y2\":2520}\n"
              "{\"op\":\"AddTable\",\"format\":\"<1|<2\",\"header\":\"\",\"body\":\"x|y;\"}\n"
              "{\"op\":\"AddTable\",\"format\":\"<1\",\"header\":\"h\",\"body\":\"x;\","
              "\"shade\":12648447}\n"
              "{\"op\":\"NewPage\"}\n"
              "{\"op\":\"Action\",\"value\":6}\n");
}

TEST_F(Recording, PassesOnWhatItLogsAndAnswersForTheSurfaceBehindIt) {
    surface.Action(3);
    surface.Paragraph("text");
    EXPECT_EQ(surface.CurrentY(), layout.CurrentY());
    EXPECT_EQ(surface.CurrentY(), 920);
    surface.Measure("ab");
    EXPECT_EQ(surface.MeasuredWidth(), 200);
    surface.Footer("||x");
    EXPECT_EQ(surface.Footer(), "||x");
    surface.Action(6);
    EXPECT_EQ(PageText(layout.Result().pages.at(0)), "text\nx");
}

TEST_F(Recording, RaisesTheEventAndLogsWhatItsHandlerWrites) {
    surface.NewPageEvent = [&] { surface.Paragraph("opened"); };
    surface.Action(3);
    surface.Paragraph("text");
    ASSERT_EQ(surface.Calls().size(), 3U);
    EXPECT_EQ(CallJson(surface.Calls()[2]), "{\"op\":\"Paragraph\",\"value\":\"opened\"}");
}

TEST_F(Recording, ANewDocumentStartsANewLog) {
    surface.Action(3);
    surface.Paragraph("old");
    surface.Action(6);
    surface.Action(3);
    EXPECT_EQ(surface.Log(), "{\"op\":\"Action\",\"value\":3}\n");
}

TEST_F(Recording, TheDocumentAsJsonHoldsTextsShapesAndOutline) {
    surface.Action(3);
    surface.X1(360);
    surface.X2(11160);
    surface.Y1(700);
    surface.Y2(1000);
    surface.Draw(2);
    surface.Paragraph("Heading");
    surface.Picture("logo.png");
    surface.DrawLine(1, 2, 3, 4);
    surface.Action(6);
    const nlohmann::json json = nlohmann::json::parse(DocumentJson(layout.Result()));
    EXPECT_EQ(json["outline"][0]["title"], "Heading");
    EXPECT_EQ(json["outline"][0]["page"], 1);
    EXPECT_EQ(json["pages"][0]["texts"][0]["text"], "Heading");
    EXPECT_EQ(json["pages"][0]["texts"][0]["size"], 10.0);
    EXPECT_EQ(json["pages"][0]["shapes"][0]["kind"], "box");
    EXPECT_EQ(json["pages"][0]["shapes"][1]["path"], "logo.png");
    EXPECT_EQ(json["pages"][0]["shapes"][2]["y2"], 4);
}

}  // namespace
}  // namespace tendo
