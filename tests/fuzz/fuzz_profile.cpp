// Profile files: reading any bytes, then changing them, must be safe and must say what was set.

#include <algorithm>
#include <cstdint>
#include <cstdlib>
#include <string>
#include <string_view>

#include "platform/files/profile.h"
#include "platform/files/profile_text.h"

namespace {

void Require(bool condition) {
    if (!condition) std::abort();
}

/// The part of the input up to a zero byte; the rest remains.
std::string_view TakePart(std::string_view& input) {
    const std::string_view part = input.substr(0, input.find('\0'));
    input.remove_prefix(std::min(part.size() + 1, input.size()));
    return part;
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    std::string_view input(reinterpret_cast<const char*>(data), size);
    const std::string_view section = TakePart(input);
    const std::string_view key = TakePart(input);
    const std::string_view value = TakePart(input);
    tendo::ParseProfileSection(input, section);

    tendo::ProfileText text(input);
    const std::string before = text.Bytes();
    Require(tendo::ProfileText(before).Bytes() == before);

    text.Set("Options", "AutoSave", "1 'True");
    const tendo::ProfileText again(text.Bytes());
    const std::string* set = again.Find("options", "autosave");
    Require(set && *set == "1 'True");
    text.Remove("Options", "AutoSave");
    Require(!text.Find("Options", "AutoSave"));

    text.Set(section, key, value);
    text.Remove(section, key);
    text.Bytes();
    return 0;
}
