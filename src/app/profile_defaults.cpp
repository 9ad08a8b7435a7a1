#include "app/profile_defaults.h"

#include <utility>

#include "platform/files/profile.h"

namespace tendo {
namespace {

constexpr const char* on = "1";
constexpr const char* isTrue = "1 'True";
constexpr const char* isFalse = "0 'False";
constexpr const char* appWorkspace = "-2147483636";  // system colour 8000000C
constexpr const char* windowGround = "-2147483643";  // system colour 80000005

const ProfileDefault optionDefaults[] = {
    {"Options", "ShowSplashScreen", "-1"},
    {"Options", "OpenLastProject", "0"},
    {"Options", "NewProjectsCopyAutoload", "0"},
    {"Options", "AutoSave", "-1"},
    {"Options", "AutoSaveInterval", "5"},
    {"Options", "DefaultModelGrossMargin", "20"},
    {"Options", "DefaultTaxMatGrossMargin", "20"},
    {"Options", "DefaultNonTaxGrossMargin", "20"},
    {"Options", "DefaultLaborGrossMargin", "20"},
    {"Options", "DefaultTotalGrossMargin", "10"},
    {"Options", "NumberOfPreviousProjectsOnFileMenu", "8"},
    {"Miscellaneous", "WallpaperPictureOrColorOption", "0"},
    {"Miscellaneous", "WallpaperLastCustomColorSelected", appWorkspace},
    {"Miscellaneous", "MostRecentBackgroundColorWhetherCustomOrDefault", appWorkspace},
    {"Miscellaneous", "WallpaperPictureFilename", ""},
    {"Miscellaneous", "WallPaperCenterTileStretchOrFit", "0"},
    {"Colors", "ShowDefaultColors", isTrue},
    {"Colors", "lblDefault", "0"},
    {"Colors", "lblHelpCaptionText", "0"},
    {"Colors", "Frame", "0"},
    {"Colors", "SSCheck", "0"},
    {"Colors", "SSOption", "0"},
    {"Colors", "Check", "0"},
    {"Colors", "Option", "0"},
    {"Colors", "lblHelpCaptionBackground", "12648447"},  // C0FFFF
    {"Colors", "TextColor", "0"},
};

const ProfileDefault reportDefaults[] = {
    {"ReportOptions", "lblMainHeader", "12640511"},  // C0E0FF
    {"ReportOptions", "lblMainHeaderText", "0"},
    {"ReportOptions", "MainHeaderFont", "Arial"},
    {"ReportOptions", "MainHeaderFontSize", "16"},
    {"ReportOptions", "MainHeaderFontBold", isTrue},
    {"ReportOptions", "MainHeaderFontItalic", isFalse},
    {"ReportOptions", "lblSecondaryHeader", "12648447"},  // C0FFFF
    {"ReportOptions", "lblSecondaryHeaderText", "0"},
    {"ReportOptions", "SecondaryHeaderFont", "Arial"},
    {"ReportOptions", "SecondaryHeaderFontSize", "14"},
    {"ReportOptions", "SecondaryHeaderFontBold", isTrue},
    {"ReportOptions", "SecondaryHeaderFontItalic", isFalse},
    {"ReportOptions", "lblBody", windowGround},
    {"ReportOptions", "lblBodyText", "0"},
    {"ReportOptions", "BodyFont", "Arial"},
    {"ReportOptions", "BodyFontSize", "10"},
    {"ReportOptions", "BodyFontBold", isFalse},
    {"ReportOptions", "BodyFontItalic", isFalse},
    {"ReportOptions", "txtStartingPageNo", "1"},
    {"ReportOptions", "txtLineSpacing", "100"},
    {"ReportOptions", "txtBannerFile", ""},
};

/// Report options that are 1 unless their user cleared them.
const char* const reportMarks[] = {
    "PrintTitleReport",
    "chkPrintTitleReport",
    "chkPrintSalesReport",
    "chkPrintOptionalAccessoriesRpt",
    "chkPrintInstallersReport",
    "chkPrintDetailedCostReport",
    "chkShowDealersCost",
    "ClientFax",
    "CompanyRep",
    "CompanyID",
    "CompanyFax",
    "chkCompressWarranty",
    "chkCoilWarranty",
    "chkHeatExchWarr",
    "chkMicroprocWarr",
    "chkPartsWarranty",
    "chkLaborWarranty",
    "chkCapacity",
    "chkEfficiency",
    "chkCondRemoval",
    "chkSelectedOpCost",
    "chkProposedOpCost",
    "chkOpCostSavings",
    "chkHeight",
    "chkLength",
    "chkWidth",
    "chkWeight",
    "chkListPrice",
    "chkTotalPrice",
    "chkSoundLevel",
    "chkCompStartKit",
    "chkCrankcaseHeat",
    "chkPressureSwitch",
    "chkCondSupport",
    "chkElectrical",
    "chkRefrigTubing",
    "chkAirHandler",
    "chkAvailCooling",
    "chkConfiguration",
    "chkHeatExchType",
    "chkIgnitionType",
    "chkExhaustVent",
    "chkCFMRate",
    "chkGraphs",
    "chkColorGraphs",
    "chkPageNumbers",
    "chkDate",
    "chkAutoRefresh",
    "chkPrintLogo",
    "chkUseCustomBanner",
};

const ProfileDefault bannerDefaults[] = {
    {"BannerOptions", "PrintCompanyName", on},
    {"BannerOptions", "PrintDescription", on},
    {"BannerOptions", "Description", ""},
    {"BannerOptions", "PrintCompanyAddress", on},
    {"BannerOptions", "PrintCityStateZip", on},
    {"BannerOptions", "PrintCompanyPhone", on},
    {"BannerOptions", "PrintCompanyFax", on},
    {"BannerOptions", "CompanyFax", ""},
    {"BannerOptions", "PrintLeftPicture", on},
    {"BannerOptions", "LeftPicture", ""},
    {"BannerOptions", "PrintRightPicture", on},
    {"BannerOptions", "RightPicture", ""},
    {"Owner", "OwnerName", ""},
    {"Owner", "OwnerAddress", ""},
    {"Owner", "OwnerCity", ""},
    {"Owner", "OwnerState", ""},
    {"Owner", "OwnerPhone", ""},
};

std::vector<ProfileDefault> MakeDefaults() {
    std::vector<ProfileDefault> all(std::begin(optionDefaults), std::end(optionDefaults));
    all.insert(all.end(), std::begin(reportDefaults), std::end(reportDefaults));
    for (const char* mark : reportMarks)
        all.push_back({"ReportOptions", mark, on});
    all.insert(all.end(), std::begin(bannerDefaults), std::end(bannerDefaults));
    return all;
}

}  // namespace

const std::vector<ProfileDefault>& ProfileDefaults() {
    static const std::vector<ProfileDefault> defaults = MakeDefaults();
    return defaults;
}

void WriteProfileDefaults(const std::string& file) {
    std::string section;
    std::vector<std::pair<std::string, std::string>> values;
    const auto flush = [&] {
        if (!values.empty()) WriteProfileSection(file, section, values);
        values.clear();
    };
    for (const ProfileDefault& item : ProfileDefaults()) {
        if (section != item.section) flush();
        section = item.section;
        values.emplace_back(item.key, item.value);
    }
    flush();
}

}  // namespace tendo
