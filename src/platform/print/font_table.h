#pragma once

#include <cstddef>
#include <functional>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

#include "platform/print/text_measurer.h"

namespace tendo {

/// The fonts of one document by number, each with a cache of word widths: tables repeat their
/// words, and asking the font again costs more than all the rest of the layout.
class FontTable {
  public:
    explicit FontTable(TextMeasurer& measurer) : measurer_(measurer) {}

    /// The number of a font; the same font has the same number.
    int Id(const FontSpec& font);
    const FontSpec& Spec(int id) const { return At(id).spec; }
    const FontMetrics& Metrics(int id) const { return At(id).metrics; }
    std::vector<FontSpec> Specs() const;

    /// Width of one word in twips, from the cache.
    double WordWidth(int id, std::string_view word);
    /// Width of a text of several words, as the sum of its parts.
    double TextWidth(int id, std::string_view text);
    double SpaceWidth(int id) const { return At(id).spaceWidth; }

  private:
    struct Hash {
        using is_transparent = void;
        std::size_t operator()(std::string_view text) const {
            return std::hash<std::string_view>{}(text);
        }
    };
    struct Entry {
        FontSpec spec;
        FontMetrics metrics;
        double spaceWidth = 0;
        std::unordered_map<std::string, double, Hash, std::equal_to<>> widths;
    };
    const Entry& At(int id) const { return entries_[static_cast<std::size_t>(id)]; }

    TextMeasurer& measurer_;
    std::vector<Entry> entries_;
};

}  // namespace tendo
