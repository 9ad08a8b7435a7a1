#include "platform/files/profile.h"

#include <sys/stat.h>

#include <ctime>
#include <functional>
#include <map>
#include <optional>

#include "platform/files/profile_text.h"
#include "platform/files/safe_file.h"
#include "platform/text/runtime_error.h"

namespace tendo {

namespace {

constexpr std::uint64_t LargestProfile = std::uint64_t{16} << 20;
constexpr std::size_t MostKept = 16;
constexpr std::int64_t NanosecondsOfSecond = 1'000'000'000;
/// Within this time a second change of a file may carry the same time stamp as the first.
constexpr std::int64_t StampGranularity = 50'000'000;

/// What shows that a file was changed: its identity, its size and its times.
struct Stamp {
    dev_t device = 0;
    ino_t inode = 0;
    off_t size = 0;
    std::int64_t modified = 0;  // nanoseconds since 1970
    std::int64_t changed = 0;
    friend bool operator==(const Stamp&, const Stamp&) = default;
};

struct KeptProfile {
    Stamp stamp;
    bool settled = false;  // the file was old enough when read for its stamp to be trusted
    ProfileText text{""};
};

std::int64_t Nanoseconds(const timespec& time) {
    return std::int64_t{time.tv_sec} * NanosecondsOfSecond + time.tv_nsec;
}

std::optional<Stamp> StampOf(const std::string& file) {
    struct stat info {};
    if (::stat(file.c_str(), &info) != 0) return {};
    return Stamp{info.st_dev, info.st_ino, info.st_size, Nanoseconds(info.st_mtim),
                 Nanoseconds(info.st_ctim)};
}

bool IsSettled(const Stamp& stamp) {
    timespec now{};
    ::clock_gettime(CLOCK_REALTIME, &now);
    return Nanoseconds(now) - std::max(stamp.modified, stamp.changed) > StampGranularity;
}

/// The profile as it stands on disk now; null when it is missing or can't be read.
const ProfileText* Profile(std::string_view file) {
    static std::map<std::string, KeptProfile, std::less<>> kept;
    const std::string name(file);
    const std::optional<Stamp> stamp = StampOf(name);
    if (!stamp) return nullptr;
    if (const auto found = kept.find(name);
        found != kept.end() && found->second.settled && found->second.stamp == *stamp) {
        return &found->second.text;
    }
    if (kept.size() >= MostKept) kept.clear();
    try {
        KeptProfile profile{*stamp, IsSettled(*stamp),
                            ProfileText(ReadWholeFile(name, LargestProfile))};
        return &kept.insert_or_assign(name, std::move(profile)).first->second.text;
    } catch (const RuntimeError&) {
        return nullptr;  // reads as empty, like a missing file; a write to it tells the error
    }
}

/// Reads the file, lets `change` work on it and writes it back when that made a difference.
void Change(std::string_view file, const std::function<void(ProfileText&)>& change) {
    std::string bytes;
    if (StampOf(std::string(file))) bytes = ReadWholeFile(file, LargestProfile);
    ProfileText text(bytes);
    const std::string before = text.Bytes();
    change(text);
    const std::string after = text.Bytes();
    if (after != before) ReplaceFile(file, after);
}

}  // namespace

std::string ReadProfileString(std::string_view file, std::string_view section, std::string_view key,
                              std::string_view defaultValue) {
    const ProfileText* profile = Profile(file);
    const std::string* value = profile ? profile->Find(section, key) : nullptr;
    return value ? *value : std::string(defaultValue);
}

void WriteProfileString(std::string_view file, std::string_view section, std::string_view key,
                        std::string_view value) {
    Change(file, [&](ProfileText& text) { text.Set(section, key, value); });
}

void WriteProfileSection(std::string_view file, std::string_view section,
                         const std::vector<std::pair<std::string, std::string>>& values) {
    Change(file, [&](ProfileText& text) {
        for (const auto& [key, value] : values)
            text.Set(section, key, value);
    });
}

void DeleteProfileKey(std::string_view file, std::string_view section, std::string_view key) {
    Change(file, [&](ProfileText& text) { text.Remove(section, key); });
}

std::vector<std::string> ProfileKeys(std::string_view file, std::string_view section) {
    std::vector<std::string> keys;
    const ProfileText* profile = Profile(file);
    if (!profile) return keys;
    for (auto& [key, value] : profile->Section(section))
        keys.push_back(std::move(key));
    return keys;
}

std::vector<std::pair<std::string, std::string>> ParseProfileSection(std::string_view bytes,
                                                                     std::string_view section) {
    return ProfileText(bytes).Section(section);
}

}  // namespace tendo
