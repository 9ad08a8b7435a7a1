#include "platform/files/ini_file_handler.h"

#include "platform/files/settings_store.h"
#include "platform/text/text.h"
#include "test_folder.h"

namespace tendo {
namespace {

class IniFile : public TestFolder {
  protected:
    IniFile() { ini_.AppProfileFileName = Path("Tendo.ini"); }

    /// Stores a text under [s] k.
    void Store(const std::string& value) { Put("Tendo.ini", "[s]\nk=" + value + "\n"); }

    INIFileHandler ini_;
};

TEST_F(IniFile, ABooleanStoredAsZeroWithACommentReadsFalse) {
    Store("0 'False");
    EXPECT_FALSE(ini_.MyGetAppProfileBoolean("s", "k", true));
}

TEST_F(IniFile, ABooleanStoredAsTrueReadsTrue) {
    for (const char* text : {"True", "TRUE", " true ", "\"true\""}) {
        Store(text);
        EXPECT_TRUE(ini_.MyGetAppProfileBoolean("s", "k", false)) << text;
    }
}

TEST_F(IniFile, ABooleanStoredAsMinusOneReadsTrue) {
    Store("-1");
    EXPECT_TRUE(ini_.MyGetAppProfileBoolean("s", "k", false));
}

TEST_F(IniFile, AnyOtherTextIsTrueWhenItsNumberIsNotZero) {
    struct Case {
        const char* text;
        bool value;
    };
    for (const Case& one : {Case{"1 'True", true}, Case{"yes", false}, Case{"", false},
                            Case{"False", false}, Case{"0.5", true}, Case{"00", false}}) {
        Store(one.text);
        EXPECT_EQ(ini_.MyGetAppProfileBoolean("s", "k", !one.value), one.value) << one.text;
    }
}

TEST_F(IniFile, AMissingBooleanReadsAsItsDefault) {
    EXPECT_TRUE(ini_.MyGetAppProfileBoolean("s", "k", true));
    EXPECT_FALSE(ini_.MyGetAppProfileBoolean("s", "k", false));
}

TEST_F(IniFile, ABooleanIsWrittenWithAComment) {
    ini_.MyWriteAppProfileBoolean("Options", "AutoSave", true);
    ini_.MyWriteAppProfileBoolean("Options", "OpenLastProject", false);
    EXPECT_EQ(Get("Tendo.ini"), "[Options]\nAutoSave=1 'True\nOpenLastProject=0 'False\n");
    EXPECT_TRUE(ini_.MyGetAppProfileBoolean("Options", "AutoSave", false));
    EXPECT_FALSE(ini_.MyGetAppProfileBoolean("Options", "OpenLastProject", true));
}

TEST_F(IniFile, NumbersReadByTheirLeadingDigits) {
    Store("12 'pixels");
    EXPECT_EQ(ini_.MyGetAppProfileInteger("s", "k", 1), 12);
    EXPECT_EQ(ini_.MyGetAppProfileLong("s", "k", 1), 12);
    EXPECT_EQ(ini_.MyGetAppProfileSingle("s", "k", 1), 12.0f);
    Store("none");
    EXPECT_EQ(ini_.MyGetAppProfileInteger("s", "k", 1), 0);  // there, but no number
    Store("-2147483643");
    EXPECT_EQ(ini_.MyGetAppProfileLong("s", "k", 1), -2147483643);
}

TEST_F(IniFile, MissingNumbersReadAsTheirDefaults) {
    EXPECT_EQ(ini_.MyGetAppProfileInteger("s", "k", -7), -7);
    EXPECT_EQ(ini_.MyGetAppProfileLong("s", "k", static_cast<std::int32_t>(0x80000005u)),
              -2147483643);
    EXPECT_EQ(ini_.MyGetAppProfileSingle("s", "k", 8.25f), 8.25f);
}

TEST_F(IniFile, AStringIsReadUpTo255Characters) {
    std::string text;
    for (int i = 0; i < 300; ++i)
        text += "ö";
    ini_.MyWriteAppProfileString("s", "k", text);
    EXPECT_EQ(CharacterCount(ini_.MyGetAppProfileString("s", "k", "")), 255u);
    EXPECT_EQ(ini_.MyGetAppProfileString("s", "none", "default"), "default");
}

TEST_F(IniFile, AnItemIsDeleted) {
    Store("1");
    ini_.MyDeleteAppProfileItem("s", "k");
    EXPECT_EQ(ini_.MyGetAppProfileString("s", "k", "gone"), "gone");
}

TEST_F(IniFile, OneInstanceServesTheProgram) {
    EXPECT_EQ(&Ini(), &Ini());
    EXPECT_EQ(&Settings(), &Settings());
}

class SettingsFile : public TestFolder {};

TEST_F(SettingsFile, KeepsWhatIsSaved) {
    SettingsStore store;
    store.FileName = Path("settings.ini");
    EXPECT_EQ(store.GetSetting("Settings", "MaterialDatabase", "tendo.mdb"), "tendo.mdb");
    store.SaveSetting("Settings", "MaterialDatabase", "/data/prices.mdb");
    EXPECT_EQ(store.GetSetting("settings", "materialdatabase", "tendo.mdb"), "/data/prices.mdb");
    EXPECT_EQ(store.GetSetting("Options", "Show Tips at Startup"), "");
}

TEST_F(SettingsFile, GivesAValueBackWithItsBlanksAndQuotes) {
    SettingsStore store;
    store.FileName = Path("settings.ini");
    const std::string longText(300, 'x');
    for (const std::string& value : {std::string(" a "), std::string("\"q\""), std::string("'"),
                                     std::string("it's"), std::string(), longText}) {
        store.SaveSetting("s", "k", value);
        EXPECT_EQ(store.GetSetting("s", "k", "(default)"), value);
    }
}

}  // namespace
}  // namespace tendo
