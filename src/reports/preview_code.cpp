#include "reports/preview_code.h"

#include <cmath>
#include <utility>

#include "platform/print/document.h"
#include "platform/print/page_count.h"
#include "platform/text/date_text.h"
#include "platform/text/number_text.h"
#include "platform/text/text.h"

namespace tendo {

namespace {

constexpr int BarHeight = 22;
constexpr int IconTwips = 480;  // 32 screen pixels
constexpr std::int32_t BandColor = 0xE0E0E0;
constexpr int BandLeft = 22, BandTop = 2, BandRight = 778, BandBottom = 50;

void FillBar(PrintSurface& surface, std::int32_t color, int x1, int y1, int x2, int y2) {
    surface.BrushColor(color);
    surface.BrushStyle(0);
    surface.PenWidth(0);
    surface.PenColor(0);
    SetBox(surface, x1, y1, x2, y2);
    surface.Draw(2);
    surface.BrushColor(WindowColor);
}

std::string HeaderText(const ReportContext& context) {
    const ReportSettings& settings = CurrentReportSettings();
    std::string text = "{TENDO - HVAC Estimating and Sales Proposal Program\\line " +
                       Owner().OwnerName + "\\line " + Owner().OwnerPhone + "}||{" +
                       "Velmo Software Development, Inc.\\line " +
                       context.project.GPDProjectFormat.Title.Trimmed() + "\\line";
    const int before = settings.txtStartingPageNo - 1;
    if (settings.chkPageNumbers == 1)
        text += " Page " + std::to_string(context.surface.CurrentPage() + before);
    if (settings.chkPageNumbers == 1 && settings.chkPageCount == 1)
        text += " of " + PageCountMark(before);
    return text + "}";
}

void DrawBandIcon(PrintSurface& surface) {
    const int left = ToTwips((BandLeft + BandRight) / 2.0) - IconTwips / 2;
    const int top = ToTwips((BandTop + BandBottom) / 2.0) - IconTwips / 2;
    surface.X1(left);
    surface.X2(left + IconTwips);
    surface.Y1(top);
    surface.Y2(top + IconTwips);
    surface.Picture(ProgramIconPicture);
}

std::string FormatIfModel(float value, std::string_view modelNumber, std::string_view picture) {
    return Trimmed(modelNumber).empty() ? std::string() : FormatNumber(value, picture);
}

}  // namespace

ReportContext::ReportContext(PrintSurface& printSurface, ProjectRecords& records)
    : surface(printSurface), project(records) {
    surface.NewPageEvent = [this] { NewPageOpened(); };
}

ReportContext::~ReportContext() {
    surface.NewPageEvent = nullptr;
}

void ReportContext::NewPageOpened() {
    if (surface.CurrentPage() - 1 > 0 && !SuppressNextPageHeader)
        SetPageHeader(*this);
    else
        SuppressNextPageHeader = false;
}

int ToTwips(double hundredths) {
    return static_cast<int>(std::nearbyint(hundredths / 100 * 1440));
}

int ToHundredths(int twips) {
    return static_cast<int>(std::nearbyint(twips / 1440.0 * 100));
}

std::string FormatMoneyIfModel(float value, std::string_view modelNumber) {
    return FormatIfModel(value, modelNumber, MoneyPicture);
}

std::string FormatQuantityIfModel(float value, std::string_view modelNumber) {
    return FormatIfModel(value, modelNumber, "#,##0.00");
}

void CheckPageRoom(PrintSurface& surface) {
    if (surface.CurrentY() + ToTwips(100) > ToTwips(1000)) surface.NewPage();
}

void DrawSecondaryBar(PrintSurface& surface, int x1, int y1, int x2, int y2) {
    FillBar(surface, CurrentReportSettings().SecondaryHeader.barColor, x1, y1, x2, y2);
}

void DrawMainBar(PrintSurface& surface, int x1, int y1, int x2, int y2) {
    FillBar(surface, CurrentReportSettings().MainHeader.barColor, x1, y1, x2, y2 + 10);
}

void PrintCentered(PrintSurface& surface, double centreX, std::string_view text) {
    surface.Measure(text);
    surface.CurrentX(
        static_cast<int>(std::nearbyint(ToTwips(centreX) - surface.MeasuredWidth() / 2.0)));
    surface.TextAlign(0);
    surface.Text(text);
}

void SetPageHeader(ReportContext& context) {
    PrintSurface& surface = context.surface;
    surface.HdrFontName("Arial");
    surface.HdrFontSize(8);
    surface.HdrFontItalic(false);
    surface.HdrColor(0);
    surface.Header(HeaderText(context));
    surface.HdrFontSize(8);
    surface.HdrFont("Arial");
    surface.HdrFontBold(false);
    surface.Footer(DateFooter());
    surface.BrushStyle(1);
    surface.PenColor(0);
    std::int32_t& barColor = CurrentReportSettings().SecondaryHeader.barColor;
    const std::int32_t kept = std::exchange(barColor, BandColor);
    DrawSecondaryBar(surface, BandLeft, BandTop, BandRight, BandBottom);
    barColor = kept;
    DrawBandIcon(surface);
    surface.Paragraph("");
}

std::string DateFooter() {
    return CurrentReportSettings().chkDate == 1 ? "||" + LongDateText(Now()) : "||";
}

void SetTextStyle(PrintSurface& surface, const ReportTextStyle& style) {
    surface.FontName(style.fontName);
    surface.FontSize(style.fontSize);
    surface.FontBold(style.fontBold);
    surface.FontItalic(style.fontItalic);
    surface.TextColor(style.textColor);
}

void SetPenAndBrush(PrintSurface& surface, std::int32_t brushColor) {
    surface.PageBorder(4);
    surface.PenStyle(0);
    surface.BrushStyle(0);
    surface.PenWidth(2);
    surface.PenColor(0);
    surface.BrushColor(brushColor);
}

void SetBox(PrintSurface& surface, double x1, double y1, double x2, double y2) {
    surface.X1(ToTwips(x1));
    surface.Y1(ToTwips(y1));
    surface.X2(ToTwips(x2));
    surface.Y2(ToTwips(y2));
}

void PrintSectionHeading(PrintSurface& surface, std::string_view heading) {
    const int top = ToHundredths(surface.CurrentY()) - 5;
    DrawSecondaryBar(surface, BarLeft, top, BarRight, top + BarHeight);
    surface.Paragraph(heading);
    SetTextStyle(surface, CurrentReportSettings().Body);
    surface.Paragraph("");
}

}  // namespace tendo
