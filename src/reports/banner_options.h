#pragma once

#include <array>
#include <cstdint>
#include <string>

namespace tendo {

/// What the default banner prints: section "BannerOptions" of the profile, each member under the
/// key of its name. A mark of 1 prints its line or picture.
struct BannerOptions {
    std::int16_t PrintCompanyName = 1, PrintDescription = 1, PrintCompanyAddress = 1,
                 PrintCityStateZip = 1, PrintCompanyPhone = 1, PrintCompanyFax = 1,
                 PrintLeftPicture = 1, PrintRightPicture = 1;
    std::string Description, CompanyFax;
    std::string LeftPicture, RightPicture;  // files
    friend bool operator==(const BannerOptions&, const BannerOptions&) = default;
};

struct BannerMark {
    const char* key;
    std::int16_t BannerOptions::*value;
};
inline constexpr std::array BannerMarks = {
    BannerMark{"PrintCompanyName", &BannerOptions::PrintCompanyName},
    BannerMark{"PrintDescription", &BannerOptions::PrintDescription},
    BannerMark{"PrintCompanyAddress", &BannerOptions::PrintCompanyAddress},
    BannerMark{"PrintCityStateZip", &BannerOptions::PrintCityStateZip},
    BannerMark{"PrintCompanyPhone", &BannerOptions::PrintCompanyPhone},
    BannerMark{"PrintCompanyFax", &BannerOptions::PrintCompanyFax},
    BannerMark{"PrintLeftPicture", &BannerOptions::PrintLeftPicture},
    BannerMark{"PrintRightPicture", &BannerOptions::PrintRightPicture}};

struct BannerText {
    const char* key;
    std::string BannerOptions::*value;
};
inline constexpr std::array BannerTexts = {
    BannerText{"Description", &BannerOptions::Description},
    BannerText{"CompanyFax", &BannerOptions::CompanyFax},
    BannerText{"LeftPicture", &BannerOptions::LeftPicture},
    BannerText{"RightPicture", &BannerOptions::RightPicture}};

/// Reads all twelve keys.
BannerOptions LoadBannerOptions();
/// Writes all twelve keys in one write of the file. RuntimeError when it can't be written.
void SaveBannerOptions(const BannerOptions& options);

}  // namespace tendo
