#pragma once

#include <functional>
#include <string>
#include <string_view>
#include <vector>

#include "platform/print/print_surface.h"
#include "project/project_records.h"
#include "reports/report_settings.h"

namespace tendo {

/// What all reports of one document work on. While it lives, the surface's new pages get their
/// running header from it.
class ReportContext {
  public:
    ReportContext(PrintSurface& printSurface, ProjectRecords& records);
    ~ReportContext();
    ReportContext(const ReportContext&) = delete;
    ReportContext& operator=(const ReportContext&) = delete;

    PrintSurface& surface;
    ProjectRecords& project;
    /// Set just ahead of a report that draws a banner or header of its own on its first page.
    bool SuppressNextPageHeader = false;
    /// Whether a report option, by its key, is marked; reads the profile unless a caller chose
    /// itself.
    std::function<bool(const char* key)> isMarked = ReportOptionIsOn;
    /// What the user is to know of reports that ended before their end, a text for each: which
    /// report, why, what is left out, what to do.
    std::vector<std::string> Problems;

  private:
    void NewPageOpened();
};

/// Hundredths of an inch to twips and back, rounded half to even.
int ToTwips(double hundredths);
int ToHundredths(int twips);

/// Empty when the trimmed model number is empty, else the value as "$#,###,##0.00" or "#,##0.00".
std::string FormatMoneyIfModel(float value, std::string_view modelNumber);
std::string FormatQuantityIfModel(float value, std::string_view modelNumber);

/// Opens a new page when a section would start with less than an inch left above the ten-inch line.
void CheckPageRoom(PrintSurface& surface);

/// Filled bars; coordinates in hundredths. The main bar reaches ten hundredths below `y2`.
void DrawSecondaryBar(PrintSurface& surface, int x1, int y1, int x2, int y2);
void DrawMainBar(PrintSurface& surface, int x1, int y1, int x2, int y2);

/// Writes the text centred on a position; the line goes on behind it.
void PrintCentered(PrintSurface& surface, double centreX, std::string_view text);

/// Running header, running footer and grey band of the page.
void SetPageHeader(ReportContext& context);

/// "||" and, when dates are printed, today's date in its long form: the fields of a running footer.
std::string DateFooter();

/// `FontName` to `TextColor` of a style.
void SetTextStyle(PrintSurface& surface, const ReportTextStyle& style);
/// `PageBorder`, pen and brush of a report.
void SetPenAndBrush(PrintSurface& surface, std::int32_t brushColor);
/// A box for the next `Draw` or `Picture`, in hundredths.
void SetBox(PrintSurface& surface, double x1, double y1, double x2, double y2);

/// The heading of a section in the secondary style on its bar, then the body style and an empty
/// line.
void PrintSectionHeading(PrintSurface& surface, std::string_view heading);

/// Writes the footnotes of the Sales Report, in order.
void PrintFootnotes(ReportContext& context);
/// Of the footnotes of the accessories report, the first stands above the table and the others,
/// from the second on, stand beneath it. Nothing where there is none.
void PrintFirstAccessoryFootnote(ReportContext& context);
void PrintAccessoryFootnotes(ReportContext& context);

/// Left and right edge of a bar, in hundredths.
inline constexpr int BarLeft = 25, BarRight = 775;

}  // namespace tendo
