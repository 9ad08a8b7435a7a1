#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace tendo {

/// Typed access to one profile file. One shared instance, `Ini()`, serves the whole program.
class INIFileHandler {
  public:
    void MyDeleteAppProfileItem(std::string_view section, std::string_view key) const;
    /// "TRUE" in any case, trimmed, is true; any other text is true when its leading number isn't
    /// zero.
    bool MyGetAppProfileBoolean(std::string_view section, std::string_view key,
                                bool defaultValue) const;
    std::int16_t MyGetAppProfileInteger(std::string_view section, std::string_view key,
                                        std::int16_t defaultValue) const;
    std::int32_t MyGetAppProfileLong(std::string_view section, std::string_view key,
                                     std::int32_t defaultValue) const;
    float MyGetAppProfileSingle(std::string_view section, std::string_view key,
                                float defaultValue) const;
    /// At most 255 characters.
    std::string MyGetAppProfileString(std::string_view section, std::string_view key,
                                      std::string_view defaultValue) const;
    /// Writes "1 'True" or "0 'False".
    void MyWriteAppProfileBoolean(std::string_view section, std::string_view key, bool value) const;
    void MyWriteAppProfileString(std::string_view section, std::string_view key,
                                 std::string_view value) const;

    std::string AppProfileFileName;
};

/// The shared instance.
INIFileHandler& Ini();

}  // namespace tendo
