#pragma once

#include <string>
#include <string_view>

namespace tendo {

/// The per-user store, kept as a profile file ("settings.ini" in the program directory).
class SettingsStore {
  public:
    std::string GetSetting(std::string_view section, std::string_view key,
                           std::string_view defaultValue = "") const;
    void SaveSetting(std::string_view section, std::string_view key, std::string_view value) const;

    std::string FileName;
};

/// The shared instance.
SettingsStore& Settings();

}  // namespace tendo
