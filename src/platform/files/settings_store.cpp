#include "platform/files/settings_store.h"

#include "platform/files/profile.h"

namespace tendo {

namespace {

/// A value that a profile would give back without its ends stands in quotes.
bool NeedsQuotes(std::string_view value) {
    constexpr std::string_view Ends = " \t\"'";
    return !value.empty() && (Ends.find(value.front()) != std::string_view::npos ||
                              Ends.find(value.back()) != std::string_view::npos);
}

}  // namespace

std::string SettingsStore::GetSetting(std::string_view section, std::string_view key,
                                      std::string_view defaultValue) const {
    return ReadProfileString(FileName, section, key, defaultValue);
}

void SettingsStore::SaveSetting(std::string_view section, std::string_view key,
                                std::string_view value) const {
    std::string stored(value);
    if (NeedsQuotes(value)) stored = '"' + stored + '"';
    WriteProfileString(FileName, section, key, stored);
}

SettingsStore& Settings() {
    static SettingsStore store;
    return store;
}

}  // namespace tendo
