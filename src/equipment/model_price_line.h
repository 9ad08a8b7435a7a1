#pragma once

#include <array>
#include <string>

#include "equipment/model_prices.h"
#include "pricing/price_fields.h"
#include "pricing/price_reason.h"
#include "pricing/price_table.h"

namespace tendo {

/// The price line of one model as the screen shows it: the texts of its six fields, DealerCost to
/// SalePrice, and what leaving one does. Cost and override stand for all models of the line, the
/// sale price for one. The prices are kept exact; the texts show them rounded.
class ModelPriceLine {
  public:
    ModelPriceLine(ProjectRecords& records, SelectionMode side) : records_(records), side_(side) {}

    static constexpr int ColumnCount = 6;

    /// Fills the texts from a system's records (0 to 4).
    void Show(int system);
    const std::string& Text(FieldKind column) const { return texts_[Index(column)]; }
    /// What typing does. A percentage within 0.1 of the exact one leaves that in force.
    void SetText(FieldKind column, const std::string& text);
    /// What leaving the field does; nothing when its text is empty or stands as it was filled. True
    /// when a price changed. A result beyond the range of a float changes nothing.
    bool Commit(FieldKind column);
    /// Where the figure of a column comes from.
    PriceReason Why(FieldKind column) const;

  private:
    static std::size_t Index(FieldKind column) { return static_cast<std::size_t>(column); }
    bool ShowsQuantity(FieldKind column) const;
    float& Price(FieldKind column);
    float Price(ModelPriceColumn column) const;
    float Cost();
    PriceTrace TraceOf(FieldKind edited);
    void Write(FieldKind column, std::string text);
    void ShowPrices();
    void Calculate(FieldKind column);
    void Follow(FieldKind edited);
    std::array<float, 3> Percentages();
    std::array<float, 3> ShownPercentages();

    ProjectRecords& records_;
    SelectionMode side_;
    int system_ = 0;
    std::array<std::string, ColumnCount> texts_, shown_;
    std::array<float, ColumnCount> exact_{};  // of the percentages
    PriceTrace trace_;
};

}  // namespace tendo
