#include "materials/catalogue_merge.h"

#include <algorithm>
#include <limits>
#include <string_view>
#include <unordered_map>

#include "materials/material_catalogue.h"
#include "platform/text/runtime_error.h"
#include "platform/text/text.h"

namespace tendo {
namespace {

struct Key {
    std::string_view description;  // trimmed; the rows keep the text
    float unitCost = 0;

    friend bool operator==(const Key&, const Key&) = default;
};

struct KeyHash {
    std::size_t operator()(const Key& key) const {
        const std::size_t text = std::hash<std::string_view>()(key.description);
        return text ^ (std::hash<float>()(key.unitCost) * 0x9E3779B97F4A7C15U);
    }
};

Key KeyOf(const MaterialRow& row) {
    return {Trimmed(row.Description.WithoutPadding()), row.UnitCst};
}

bool IsBlankLine(const MaterialRow& line) {
    return KeyOf(line).description.empty();
}

void TrimInPlace(MaterialRow& row) {
    if (StartsWith(row.Description.WithoutPadding(), " "))
        row.Description = row.Description.Trimmed();
}

constexpr std::size_t None = std::numeric_limits<std::size_t>::max();

/// For each key of the lines, the first row behind row 0 that has it. Kept by the lines, for they
/// are few, so that the rows are walked once and nothing is made for them.
class RowPlaces {
  public:
    RowPlaces(const std::vector<MaterialRow>& rows, std::span<const MaterialRow> lines) {
        places_.reserve(lines.size());
        for (const MaterialRow& line : lines)
            places_.emplace(KeyOf(line), None);
        for (std::size_t i = 1; i < rows.size(); ++i) {
            const auto place = places_.find(KeyOf(rows[i]));
            if (place != places_.end() && place->second == None) place->second = i;
        }
    }

    std::size_t Of(const MaterialRow& line) const {
        const auto place = places_.find(KeyOf(line));
        return place == places_.end() ? None
                                      : place->second;  // a cost that is no number isn't held
    }

  private:
    std::unordered_map<Key, std::size_t, KeyHash> places_;
};

void Append(std::vector<MaterialRow>& catalogue, const MaterialRow& line) {
    if (catalogue.size() >= std::numeric_limits<std::int16_t>::max())
        ThrowError(error_number::Overflow);
    catalogue.push_back(line);
    TrimInPlace(catalogue.back());
}

/// The lines still to come that hold something, up to the first blank one.
int LinesLeft(std::span<const MaterialRow> lines) {
    int count = 0;
    while (static_cast<std::size_t>(count) < lines.size() &&
           !IsBlankLine(lines[static_cast<std::size_t>(count)]))
        ++count;
    return count;
}

/// One merge. A line is looked for from the top, so every row up to its match is looked at.
class Merge {
  public:
    Merge(std::vector<MaterialRow>& catalogue, std::span<MaterialRow> lines, TakeFields take)
        : catalogue_(catalogue),
          lines_(lines),
          take_(take),
          rows_(catalogue.size()),
          places_(catalogue, lines) {}

    MergeCounts Run() {
        std::size_t next = 0;
        // A book of one row has none left behind row 0 for a second line.
        while (next < lines_.size() && rows_ > (next == 0 ? 0U : 1U) && Place(next))
            ++next;
        counts_.dropped = LinesLeft(lines_.subspan(next));
        for (std::size_t i = 0; i < rowsSeen_; ++i)
            TrimInPlace(catalogue_[i]);
        for (std::size_t i = 0; i < linesSeen_; ++i)
            TrimInPlace(lines_[i]);
        return counts_;
    }

  private:
    std::size_t PlaceOf(std::size_t number) const {
        const bool first = number == 0 && KeyOf(catalogue_[0]) == KeyOf(lines_[0]);
        return first ? 0 : places_.Of(lines_[number]);
    }

    /// False when the line ends the merge.
    bool Place(std::size_t number) {
        const MaterialRow& line = lines_[number];
        const std::size_t place = PlaceOf(number);
        linesSeen_ = number + 1;
        rowsSeen_ = std::max(rowsSeen_, place == None ? rows_ : place + 1);
        if (place != None) {
            take_(line, catalogue_[place]);
            ++counts_.matched;
            return true;
        }
        if (IsBlankLine(line) || counts_.appended > 0) return false;
        Append(catalogue_, line);
        ++counts_.appended;
        return true;
    }

    std::vector<MaterialRow>& catalogue_;
    std::span<MaterialRow> lines_;
    TakeFields take_;
    std::size_t rows_;  // fixed at the start: an appended row is never looked at
    RowPlaces places_;
    std::size_t rowsSeen_ = 0, linesSeen_ = 0;
    MergeCounts counts_;
};

}  // namespace

void TakeListFields(const MaterialRow& line, MaterialRow& row) {
    row.Accessory = line.Accessory;
    row.ItemQty = line.ItemQty;
    row.Tax = line.Tax;
    row.SalePrice = line.SalePrice;
}

void TakeTakeoffFields(const MaterialRow& line, MaterialRow& row) {
    TakeListFields(line, row);
    row.GrossMargin = line.GrossMargin;
    row.PriceMarkup = line.PriceMarkup;
    row.ListDiscount = line.ListDiscount;
}

MergeCounts MergeIntoCatalogue(std::vector<MaterialRow>& catalogue, std::span<MaterialRow> lines,
                               TakeFields take) {
    return Merge(catalogue, lines, take).Run();
}

MergeCounts ProjectMaterialsToCatalogue() {
    return MergeIntoCatalogue(MaterialCatalogue(), Project().ProjectMaterials, TakeTakeoffFields);
}

}  // namespace tendo
