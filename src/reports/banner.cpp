#include "reports/banner.h"

#include <array>

#include "platform/files/ini_file_handler.h"
#include "platform/files/paths.h"
#include "platform/text/text.h"
#include "reports/preview_code.h"

namespace tendo {

namespace {

constexpr const char* Section = "BannerOptions";
constexpr const char* DefaultBannerMark = "frmBanner";

bool BannerOptionIsOn(const char* key) {
    return Ini().MyGetAppProfileInteger(Section, key, 1) == 1;
}

std::string BannerText(const char* key) {
    return Ini().MyGetAppProfileString(Section, key, "");
}

/// The user's own banner; empty when the default one is wanted.
std::string CustomBannerFile() {
    if (!ReportOptionIsOn("chkUseCustomBanner")) return {};
    const std::string file(
        Trimmed(Ini().MyGetAppProfileString("ReportOptions", "txtBannerFile", "")));
    return file != DefaultBannerMark && FileExists(file) ? file : std::string();
}

void PrintCustomBanner(PrintSurface& surface, const std::string& file) {
    SetBox(surface, 23, 45, 778, 175);
    surface.Picture(file);
    for (int i = 0; i < 4; ++i)
        surface.Paragraph("");
    surface.FontSize(6);
    surface.Paragraph("");
}

void PrintOwnerLines(PrintSurface& surface) {
    const OwnerRecord& owner = Owner();
    if (BannerOptionIsOn("PrintCompanyName")) {
        surface.FontSize(2);
        surface.Paragraph("");
        surface.FontSize(16);
        surface.Paragraph(owner.OwnerName);
    }
    if (BannerOptionIsOn("PrintDescription")) {
        surface.FontSize(12);
        surface.FontItalic(true);
        surface.Paragraph(BannerText("Description"));
    }
    surface.FontSize(10);
    surface.FontBold(false);
    surface.FontItalic(false);
    if (BannerOptionIsOn("PrintCompanyAddress"))
        surface.Paragraph(owner.OwnerAddress + " " + owner.OwnerCity);
    if (BannerOptionIsOn("PrintCityStateZip")) surface.Paragraph(owner.OwnerState);
    if (BannerOptionIsOn("PrintCompanyPhone")) surface.Paragraph("Phone: " + owner.OwnerPhone);
    if (BannerOptionIsOn("PrintCompanyFax")) surface.Paragraph("Fax: " + BannerText("CompanyFax"));
}

struct BannerPicture {
    const char* option;
    const char* file;
    int left, right;  // hundredths
};
constexpr std::array BannerPictures = {
    BannerPicture{"PrintLeftPicture", "LeftPicture", 40, 150},
    BannerPicture{"PrintRightPicture", "RightPicture", 661, 771}};

void PrintBannerPictures(PrintSurface& surface) {
    for (const BannerPicture& picture : BannerPictures) {
        if (!BannerOptionIsOn(picture.option)) continue;
        const std::string file = BannerText(picture.file);
        if (!FileExists(file)) continue;
        SetBox(surface, picture.left, 55, picture.right, 165);
        surface.Picture(file);
    }
}

void SetBannerStyle(PrintSurface& surface) {
    surface.FontName("Arial");
    surface.FontSize(16);
    surface.FontBold(true);
    surface.FontItalic(false);
    surface.TextAlign(1);
    surface.TableBorder(7);
    SetPenAndBrush(surface, WindowColor);
    surface.Columns(1);
}

}  // namespace

void PrintBanner(PrintSurface& surface) {
    SetBannerStyle(surface);
    surface.DrawLine(ToTwips(23), ToTwips(175), ToTwips(778), ToTwips(175));
    if (const std::string file = CustomBannerFile(); !file.empty()) {
        PrintCustomBanner(surface, file);
    } else {
        PrintOwnerLines(surface);
        PrintBannerPictures(surface);
    }
    surface.HdrFontSize(8);
    surface.HdrFont("Arial");
    surface.HdrFontBold(false);
    surface.Footer(DateFooter());
}

}  // namespace tendo
