#include "reports/preview_entries.h"

#include <algorithm>
#include <charconv>
#include <cmath>

#include "platform/text/text.h"

namespace tendo {
namespace {

template <class Number>
std::optional<Number> WholeTextAs(std::string_view text) {
    Number number{};
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), number);
    if (error != std::errc() || end != text.data() + text.size()) return std::nullopt;
    return number;
}

}  // namespace

std::optional<int> PageOfEntry(std::string_view entry, int pages) {
    const std::optional<int> page = WholeTextAs<int>(Trimmed(entry));
    return page && *page >= 1 && *page <= pages ? page : std::nullopt;
}

std::optional<int> ZoomOfEntry(std::string_view entry) {
    std::string_view text = Trimmed(entry);
    if (EndsWith(text, "%")) text = TrimmedRight(text.substr(0, text.size() - 1));
    const std::optional<double> percent = WholeTextAs<double>(text);
    if (!percent || !(*percent > 0)) return std::nullopt;
    const double bounded = std::clamp<double>(*percent, SmallestZoom, LargestZoom);
    return static_cast<int>(std::lround(bounded));
}

}  // namespace tendo
