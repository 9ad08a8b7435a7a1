#include "reports/banner.h"

#include <array>

#include "platform/files/ini_file_handler.h"
#include "platform/files/paths.h"
#include "platform/text/text.h"
#include "reports/banner_options.h"
#include "reports/preview_code.h"

namespace tendo {

namespace {

constexpr const char* DefaultBannerMark = "frmBanner";

void PrintCustomBanner(PrintSurface& surface, const std::string& file) {
    SetBox(surface, 23, 45, 778, 175);
    surface.Picture(file);
    for (int i = 0; i < 4; ++i)
        surface.Paragraph("");
    surface.FontSize(6);
    surface.Paragraph("");
}

void PrintOwnerLines(PrintSurface& surface, const BannerOptions& options) {
    const OwnerRecord& owner = Owner();
    if (options.PrintCompanyName == 1) {
        surface.FontSize(2);
        surface.Paragraph("");
        surface.FontSize(16);
        surface.Paragraph(owner.OwnerName);
    }
    if (options.PrintDescription == 1) {
        surface.FontSize(12);
        surface.FontItalic(true);
        surface.Paragraph(options.Description);
    }
    surface.FontSize(10);
    surface.FontBold(false);
    surface.FontItalic(false);
    if (options.PrintCompanyAddress == 1)
        surface.Paragraph(owner.OwnerAddress + " " + owner.OwnerCity);
    if (options.PrintCityStateZip == 1) surface.Paragraph(owner.OwnerState);
    if (options.PrintCompanyPhone == 1) surface.Paragraph("Phone: " + owner.OwnerPhone);
    if (options.PrintCompanyFax == 1) surface.Paragraph("Fax: " + options.CompanyFax);
}

struct BannerPicture {
    std::int16_t BannerOptions::*mark;
    std::string BannerOptions::*file;
    int left, right;  // hundredths
};
constexpr std::array BannerPictures = {
    BannerPicture{&BannerOptions::PrintLeftPicture, &BannerOptions::LeftPicture, 40, 150},
    BannerPicture{&BannerOptions::PrintRightPicture, &BannerOptions::RightPicture, 661, 771}};

void PrintBannerPictures(PrintSurface& surface, const BannerOptions& options) {
    for (const BannerPicture& picture : BannerPictures) {
        const std::string& file = options.*picture.file;
        if (options.*picture.mark != 1 || !FileExists(file)) continue;
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

std::string CustomBannerFile() {
    if (!ReportOptionIsOn("chkUseCustomBanner")) return {};
    const std::string file(
        Trimmed(Ini().MyGetAppProfileString("ReportOptions", "txtBannerFile", "")));
    return file != DefaultBannerMark && FileExists(file) ? file : std::string();
}

void PrintBanner(PrintSurface& surface) {
    SetBannerStyle(surface);
    surface.DrawLine(ToTwips(23), ToTwips(175), ToTwips(778), ToTwips(175));
    if (const std::string file = CustomBannerFile(); !file.empty()) {
        PrintCustomBanner(surface, file);
    } else {
        const BannerOptions options = LoadBannerOptions();
        PrintOwnerLines(surface, options);
        PrintBannerPictures(surface, options);
    }
    surface.HdrFontSize(8);
    surface.HdrFont("Arial");
    surface.HdrFontBold(false);
    surface.Footer(DateFooter());
}

}  // namespace tendo
