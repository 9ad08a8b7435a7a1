#include "app/color_handler.h"

#include <map>

#include "platform/files/profile.h"
#include "program_home.h"

namespace tendo {
namespace {

/// The profile's keys and the current colour that each keeps.
struct KeyRow {
    const char* key;
    std::int32_t (ColorHandler::*get)() const;
    void (ColorHandler::*set)(std::int32_t);
    void (ColorHandler::*setDefault)(std::int32_t);
    std::int32_t (ColorHandler::*getDefault)() const;
};

#define TENDO_COLOR(key, name)                                                   \
    {                                                                            \
        key, &ColorHandler::Color##name, &ColorHandler::Color##name,             \
            &ColorHandler::DefaultColor##name, &ColorHandler::DefaultColor##name \
    }
const KeyRow keys[] = {
    TENDO_COLOR("lblDefault", lblDefault),
    TENDO_COLOR("lblHelpCaptionText", LblHelpCaptionText),
    TENDO_COLOR("Frame", Frame),
    TENDO_COLOR("SSCheck", SSCheck),
    TENDO_COLOR("SSOption", SSOption),
    TENDO_COLOR("Check", Check),
    TENDO_COLOR("Option", Option),
    TENDO_COLOR("lblHelpCaptionBackground", LblHelpCaptionBackground),
    TENDO_COLOR("TextColor", TextText),
};
#undef TENDO_COLOR

class ColorsOfScreens : public ProgramHome {
  protected:
    void SetUp() override {
        ProgramHome::SetUp();
        profile.AppProfileFileName = directory + "Colors.ini";
        handler.INIFileHandler(&profile);
        handler.INIFileColorSection("Colors");
    }
    std::string Stored(const char* key) const {
        return ReadProfileString(profile.AppProfileFileName, "Colors", key, "missing");
    }

    INIFileHandler profile;
    ColorHandler handler;
};

TEST_F(ColorsOfScreens, AreNineAndEachIsKeptUnderItsKey) {
    EXPECT_EQ(std::size(keys), static_cast<std::size_t>(ControlClassCount));
    std::int32_t color = 0x010203;
    for (const KeyRow& row : keys)
        (handler.*row.set)(color++);
    handler.SaveColorsToIni();
    color = 0x010203;
    for (const KeyRow& row : keys) {
        EXPECT_EQ(Stored(row.key), std::to_string(color)) << row.key;
        EXPECT_EQ((handler.*row.get)(), color++) << row.key;
    }
}

TEST_F(ColorsOfScreens, AreReadBackAsTheyWereSaved) {
    std::int32_t color = -2147483643;  // a system colour, 80000005
    for (const KeyRow& row : keys)
        (handler.*row.set)(color++);
    handler.SaveColorsToIni();
    ColorHandler other;
    other.INIFileHandler(handler.INIFileHandler());
    other.INIFileColorSection("Colors");
    other.GetColorsFromIni();
    color = -2147483643;
    for (const KeyRow& row : keys)
        EXPECT_EQ((other.*row.get)(), color++) << row.key;
}

TEST_F(ColorsOfScreens, TakeTheirOwnDefaultWhereTheKeyIsMissing) {
    std::int32_t color = 100;
    for (const KeyRow& row : keys)
        (handler.*row.setDefault)(color++);
    WriteProfileString(profile.AppProfileFileName, "Colors", "Frame", "255");
    handler.GetColorsFromIni();
    color = 100;
    for (const KeyRow& row : keys) {
        const bool stored = std::string(row.key) == "Frame";
        EXPECT_EQ((handler.*row.get)(), stored ? 255 : color) << row.key;
        EXPECT_EQ((handler.*row.getDefault)(), color++) << row.key;
    }
}

TEST_F(ColorsOfScreens, OfAnotherSectionAreOthers) {
    handler.ColorFrame(7);
    handler.SaveColorsToIni();
    handler.INIFileColorSection("More Colors");
    handler.GetColorsFromIni();
    EXPECT_EQ(handler.ColorFrame(), 0);
}

TEST_F(ColorsOfScreens, ThatAreNoNumbersCountAsNought) {
    WriteProfileString(profile.AppProfileFileName, "Colors", "TextColor", "purple");
    WriteProfileString(profile.AppProfileFileName, "Colors", "Option", "99999999999999");
    handler.DefaultColorTextText(5);
    handler.GetColorsFromIni();
    EXPECT_EQ(handler.ColorTextText(), 0);
    EXPECT_EQ(handler.ColorOption(), 0);
}

TEST_F(ColorsOfScreens, StartBlackButForTheGroundOfHelpCaptions) {
    Ini().AppProfileFileName = profile.AppProfileFileName;
    PrepareColors(handler);
    for (const KeyRow& row : keys) {
        const bool ground = std::string(row.key) == "lblHelpCaptionBackground";
        EXPECT_EQ((handler.*row.getDefault)(), ground ? 0xC0FFFF : 0) << row.key;
        EXPECT_EQ((handler.*row.get)(), ground ? 0xC0FFFF : 0) << row.key;
    }
}

TEST_F(ColorsOfScreens, AreGivenToEachClassOfAForm) {
    class Form : public ColoredForm {
      public:
        void SetClassColor(ControlClass controls, std::int32_t color) override {
            EXPECT_TRUE(given.emplace(controls, color).second);
        }
        std::map<ControlClass, std::int32_t> given;
    } form;
    handler.ColorlblDefault(1);
    handler.ColorLblHelpCaptionText(2);
    handler.ColorFrame(3);
    handler.ColorSSCheck(4);
    handler.ColorSSOption(5);
    handler.ColorCheck(6);
    handler.ColorOption(7);
    handler.ColorLblHelpCaptionBackground(8);
    handler.ColorTextText(9);
    handler.SetFormColorsCLASS(form);
    const std::map<ControlClass, std::int32_t> expected = {
        {ControlClass::lblDefault, 1}, {ControlClass::LblHelpCaptionText, 2},
        {ControlClass::Frame, 3},      {ControlClass::SSCheck, 4},
        {ControlClass::SSOption, 5},   {ControlClass::Check, 6},
        {ControlClass::Option, 7},     {ControlClass::LblHelpCaptionBackground, 8},
        {ControlClass::TextText, 9}};
    EXPECT_EQ(form.given, expected);
}

}  // namespace
}  // namespace tendo
