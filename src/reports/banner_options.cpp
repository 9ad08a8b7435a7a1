#include "reports/banner_options.h"

#include <utility>
#include <vector>

#include "platform/files/ini_file_handler.h"
#include "platform/files/profile.h"

namespace tendo {

namespace {

constexpr const char* Section = "BannerOptions";

}  // namespace

BannerOptions LoadBannerOptions() {
    BannerOptions options;
    for (const BannerMark& mark : BannerMarks)
        options.*mark.value = Ini().MyGetAppProfileInteger(Section, mark.key, 1);
    for (const BannerText& text : BannerTexts)
        options.*text.value = Ini().MyGetAppProfileString(Section, text.key, "");
    return options;
}

void SaveBannerOptions(const BannerOptions& options) {
    std::vector<std::pair<std::string, std::string>> values;
    values.reserve(BannerMarks.size() + BannerTexts.size());
    for (const BannerMark& mark : BannerMarks)
        values.emplace_back(mark.key, std::to_string(options.*mark.value));
    for (const BannerText& text : BannerTexts)
        values.emplace_back(text.key, options.*text.value);
    WriteProfileSection(Ini().AppProfileFileName, Section, values);
}

}  // namespace tendo
