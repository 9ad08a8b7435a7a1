#include "platform/print/font_table.h"

#include <algorithm>

namespace tendo {

int FontTable::Id(const FontSpec& font) {
    const auto found = std::find_if(entries_.begin(), entries_.end(),
                                    [&](const Entry& entry) { return entry.spec == font; });
    if (found != entries_.end()) return static_cast<int>(found - entries_.begin());
    Entry entry;
    entry.spec = font;
    entry.metrics = measurer_.Metrics(font);
    entry.spaceWidth = measurer_.Width(font, " ");
    entries_.push_back(std::move(entry));
    return static_cast<int>(entries_.size()) - 1;
}

std::vector<FontSpec> FontTable::Specs() const {
    std::vector<FontSpec> specs;
    for (const Entry& entry : entries_)
        specs.push_back(entry.spec);
    return specs;
}

double FontTable::WordWidth(int id, std::string_view word) {
    Entry& entry = entries_[static_cast<std::size_t>(id)];
    const auto found = entry.widths.find(word);
    if (found != entry.widths.end()) return found->second;
    const double width = measurer_.Width(entry.spec, word);
    entry.widths.emplace(std::string(word), width);
    return width;
}

double FontTable::TextWidth(int id, std::string_view text) {
    double width = 0;
    while (!text.empty()) {
        const std::size_t blank = std::min(text.find(' '), text.size());
        if (blank > 0) width += WordWidth(id, text.substr(0, blank));
        if (blank < text.size()) width += SpaceWidth(id);
        text.remove_prefix(std::min(blank + 1, text.size()));
    }
    return width;
}

}  // namespace tendo
