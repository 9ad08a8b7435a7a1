#include "reports/title_report.h"

#include <array>
#include <cmath>

#include "platform/files/ini_file_handler.h"
#include "platform/files/paths.h"
#include "platform/print/picture_size.h"
#include "platform/text/text.h"
#include "project/program_state.h"

namespace tendo {

namespace {

/// In hundredths of an inch.
struct LogoBox {
    double x1, y1, x2, y2;
};

int RoundedRatio(int numerator, int denominator, int times) {
    if (denominator == 0) return 0;
    return static_cast<int>(std::nearbyint(static_cast<double>(numerator) / denominator * times));
}

/// At most 2 inches high and 6 wide, in its own proportions; a JPEG gets a fixed box.
LogoBox BoxOfLogo(const std::string& file) {
    if (Contains(file, ".jpg")) return {267, 500, 533, 700};
    const PictureSize size = ReadPictureSize(file).value_or(PictureSize{});
    const int width = RoundedRatio(size.width, size.height, 200);
    if (width <= 600) return {400 - width / 2.0, 500, 400 + width / 2.0, 700};
    const int height = RoundedRatio(size.height, size.width, 600);
    return {100, 600 - height / 2.0, 700, 600 + height / 2.0};
}

/// The logo that is to be printed; empty for none.
std::string LogoFile() {
    if (!ReportOptionIsOn("chkPrintLogo")) return {};
    const std::string file =
        Ini().MyGetAppProfileString("ReportOptions", "txtTitlePageLogo", StandardLogo());
    return FileExists(file) ? file : std::string();
}

void SetTitleStyle(PrintSurface& surface) {
    surface.FontName("Arial");
    surface.FontSize(18);
    surface.FontBold(true);
    surface.FontItalic(false);
    surface.TextAlign(1);
    surface.LineSpacing(CurrentReportSettings().txtLineSpacing);
    surface.TableBorder(0);
    SetPenAndBrush(surface, 0);
    surface.Columns(1);
    surface.Header("");
    surface.TextColor(0);
}

void PrintEmptyLines(PrintSurface& surface, int count) {
    for (int i = 0; i < count; ++i)
        surface.Paragraph("");
}

void PrintTitleLines(PrintSurface& surface, const GPDProjectRecord& project) {
    PrintEmptyLines(surface, 2);
    surface.Paragraph(UpperCase(project.Title.Trimmed()));
    surface.Paragraph("TENDO SALES PROPOSAL");
    PrintEmptyLines(surface, 3);
    surface.FontSize(10);
    surface.FontBold(false);
    surface.Paragraph("for");
    surface.Paragraph("");
}

/// A line of text centred at a height in hundredths.
struct CenteredLine {
    int y;
    std::string text;
};

void PrintCenteredLines(PrintSurface& surface, int centre, const auto& lines) {
    for (const CenteredLine& line : lines) {
        surface.CurrentY(ToTwips(line.y));
        PrintCentered(surface, centre, line.text);
    }
}

void PrintClientBox(PrintSurface& surface, int centre, const GPDClientRecord& client) {
    DrawSecondaryBar(surface, centre - 200, 330, centre + 200, 450);
    surface.PenWidth(2);
    surface.PenColor(0);
    surface.BrushStyle(1);
    surface.Draw(2);
    PrintCenteredLines(surface, centre,
                       std::array{CenteredLine{350, client.Name.Trimmed()},
                                  CenteredLine{380, client.Address.Trimmed()},
                                  CenteredLine{400, client.CityStateZip.Trimmed()}});
}

void PrintLogo(PrintSurface& surface) {
    const std::string file = LogoFile();
    if (file.empty()) return;
    const LogoBox box = BoxOfLogo(file);
    SetBox(surface, box.x1, box.y1, box.x2, box.y2);
    surface.Picture(file);
}

}  // namespace

void PrintTitleReport(ReportContext& context) {
    PrintSurface& surface = context.surface;
    const GPDProjectRecord& project = context.project.GPDProjectFormat;
    const GPDCompanyRecord& company = context.project.GPDCompanyFormat;
    SetTitleStyle(surface);
    PrintTitleLines(surface, project);
    const int centre = ToHundredths(surface.PageWidth() / 2);
    PrintClientBox(surface, centre, context.project.GPDClientFormat);
    PrintLogo(surface);
    PrintCenteredLines(
        surface, centre,
        std::array{
            CenteredLine{750, "Prepared By:"}, CenteredLine{780, project.DesignedBy.Trimmed()},
            CenteredLine{800, company.Name.Trimmed()}, CenteredLine{820, company.Address.Trimmed()},
            CenteredLine{840, company.CityStateZip.Trimmed()},
            CenteredLine{860, company.Phone.Trimmed()}, CenteredLine{880, project.Date.Trimmed()}});
}

}  // namespace tendo
