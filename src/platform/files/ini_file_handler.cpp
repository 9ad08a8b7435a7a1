#include "platform/files/ini_file_handler.h"

#include "platform/files/profile.h"
#include "platform/text/number_text.h"
#include "platform/text/text.h"

namespace tendo {

namespace {

constexpr std::size_t LongestValue = 255;

}  // namespace

void INIFileHandler::MyDeleteAppProfileItem(std::string_view section, std::string_view key) const {
    DeleteProfileKey(AppProfileFileName, section, key);
}

bool INIFileHandler::MyGetAppProfileBoolean(std::string_view section, std::string_view key,
                                            bool defaultValue) const {
    const std::string text = MyGetAppProfileString(section, key, defaultValue ? "True" : "False");
    return UpperCase(Trimmed(text)) == "TRUE" || LeadingNumber(text) != 0;
}

std::int16_t INIFileHandler::MyGetAppProfileInteger(std::string_view section, std::string_view key,
                                                    std::int16_t defaultValue) const {
    return LeadingInteger(
        MyGetAppProfileString(section, key, PlainNumberText(std::int32_t{defaultValue})));
}

std::int32_t INIFileHandler::MyGetAppProfileLong(std::string_view section, std::string_view key,
                                                 std::int32_t defaultValue) const {
    return LeadingLong(MyGetAppProfileString(section, key, PlainNumberText(defaultValue)));
}

float INIFileHandler::MyGetAppProfileSingle(std::string_view section, std::string_view key,
                                            float defaultValue) const {
    return LeadingSingle(MyGetAppProfileString(section, key, PlainNumberText(defaultValue)));
}

std::string INIFileHandler::MyGetAppProfileString(std::string_view section, std::string_view key,
                                                  std::string_view defaultValue) const {
    const std::string value = ReadProfileString(AppProfileFileName, section, key, defaultValue);
    return std::string(FirstCharacters(value, LongestValue));
}

void INIFileHandler::MyWriteAppProfileBoolean(std::string_view section, std::string_view key,
                                              bool value) const {
    MyWriteAppProfileString(section, key, value ? "1 'True" : "0 'False");
}

void INIFileHandler::MyWriteAppProfileString(std::string_view section, std::string_view key,
                                             std::string_view value) const {
    WriteProfileString(AppProfileFileName, section, key, value);
}

INIFileHandler& Ini() {
    static INIFileHandler handler;
    return handler;
}

}  // namespace tendo
