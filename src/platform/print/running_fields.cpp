#include "platform/print/running_fields.h"

#include <algorithm>
#include <array>

#include "platform/print/rich_text.h"

namespace tendo {

namespace {

using namespace page_geometry;

constexpr int HeaderCentre = 374;  // of the grey band above the text, 2 to 50 hundredths
constexpr int FooterTop = Bottom + 60;
constexpr int FieldWidth = 5000;  // keeps clear of the icon in the middle
constexpr int MostHeight = 660;   // of the band, and of the room below the text
constexpr int SmallestSize = 5 * 20;

int HeightOf(const std::vector<TextLine>& lines) {
    int height = 0;
    for (const TextLine& line : lines)
        height += line.height;
    return height;
}

/// How a character changes the depth of braces; one behind a backslash doesn't.
int BraceStep(std::string_view text, std::size_t at) {
    if (at > 0 && text[at - 1] == '\\') return 0;
    return text[at] == '{' ? 1 : text[at] == '}' ? -1 : 0;
}

/// The fields of a running header, parted by the `|` that stand outside of braces; by all of them
/// where the braces don't match.
std::vector<std::string_view> SplitFields(std::string_view text) {
    std::vector<std::string_view> fields, all;
    std::size_t start = 0, startOfAny = 0;
    int depth = 0;
    for (std::size_t i = 0; i < text.size(); ++i) {
        depth += BraceStep(text, i);
        if (text[i] != '|') continue;
        all.push_back(text.substr(startOfAny, i - startOfAny));
        startOfAny = i + 1;
        if (depth > 0) continue;
        fields.push_back(text.substr(start, i - start));
        start = i + 1;
    }
    all.push_back(text.substr(startOfAny));
    fields.push_back(text.substr(start));
    return depth == 0 ? fields : all;
}

std::vector<TextLine> BrokenField(PageFlow& flow, std::string_view field, const RichRun& format) {
    std::vector<TextLine> lines;
    for (const RichParagraph& paragraph : ReadRichOrPlainText(field, format).paragraphs) {
        const std::vector<StyledRun> runs = StyledRuns(flow.Fonts(), paragraph);
        for (TextLine& line : BreakLines(flow.Fonts(), runs, {FieldWidth, 0, 0, {}}))
            lines.push_back(std::move(line));
    }
    return lines;
}

/// The lines of a field in its own size, or as much smaller as its room asks for. What doesn't fit
/// even then is left out.
std::vector<TextLine> FittingLines(PageFlow& flow, std::string_view field, RichRun format) {
    std::vector<TextLine> lines = BrokenField(flow, field, format);
    while (HeightOf(lines) > MostHeight && format.font.sizeTwips > SmallestSize) {
        format.font.sizeTwips -= 20;
        lines = BrokenField(flow, field, format);
    }
    while (lines.size() > 1 && HeightOf(lines) > MostHeight)
        lines.pop_back();
    return lines;
}

enum class Place { Left, Middle, Right };

double LineStart(Place place, double width) {
    constexpr double TextLeft = Left + TextInset, TextRight = Right - TextInset;
    if (place == Place::Right) return TextRight - width;
    return place == Place::Middle ? (TextLeft + TextRight - width) / 2 : TextLeft;
}

void WriteFields(PageFlow& flow, const RichRun& format, std::string_view text, bool header) {
    std::vector<std::string_view> fields = SplitFields(text);
    fields.resize(3);
    for (const Place place : {Place::Left, Place::Middle, Place::Right}) {
        const std::string_view field = fields[static_cast<std::size_t>(place)];
        if (field.empty()) continue;
        const std::vector<TextLine> lines = FittingLines(flow, field, format);
        int top = header ? HeaderCentre - HeightOf(lines) / 2 : FooterTop;
        for (const TextLine& line : lines) {
            flow.AddLine(line, LineStart(place, line.width), top);
            top += line.height;
        }
    }
}

}  // namespace

void WriteRunningHeader(PageFlow& flow, const RichRun& format, std::string_view fields) {
    WriteFields(flow, format, fields, true);
}

void WriteRunningFooter(PageFlow& flow, const RichRun& format, std::string_view fields) {
    WriteFields(flow, format, fields, false);
}

}  // namespace tendo
