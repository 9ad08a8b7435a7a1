#include <cstdint>
#include <cstdlib>
#include <string>
#include <string_view>

#include "platform/print/fixed_measurer.h"
#include "platform/print/layout_surface.h"
#include "platform/print/rich_text.h"
#include "platform/print/rtf_writer.h"
#include "platform/text/text.h"

namespace {

std::string PlainText(const tendo::RichText& text) {
    std::string plain;
    for (const tendo::RichParagraph& paragraph : text.paragraphs) {
        for (const tendo::RichRun& run : paragraph.runs)
            plain += tendo::FromCodePoints(tendo::ToCodePoints(run.text));
        plain += '\n';
    }
    return plain;
}

/// What was read is written so that it reads the same.
void RoundTrip(std::string_view bytes) {
    if (!tendo::IsRichText(bytes)) return;
    const tendo::RichText read = tendo::ReadRichText(bytes, {});
    const tendo::RichText again = tendo::ReadRichText(tendo::WriteRichText(read), {});
    if (PlainText(again) != PlainText(read)) std::abort();
}

}  // namespace

/// Reads any bytes as a footnote, writes them again, and lays them out as text and running header.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    if (size > 1 << 16) return 0;
    const std::string_view bytes(reinterpret_cast<const char*>(data), size);
    RoundTrip(bytes);
    tendo::FixedMeasurer measurer;
    tendo::LayoutSurface surface(measurer);
    surface.Action(3);
    surface.AutoRTF(true);
    surface.Header(bytes);
    surface.Paragraph(bytes);
    surface.Action(6);
    return 0;
}
