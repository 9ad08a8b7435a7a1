#pragma once

#include <array>
#include <cstdint>
#include <string>

#include "project/project_records.h"

namespace tendo {

/// The texts of one row of the takeoff's page.
enum class TakeoffField : std::uint8_t {
    ItemQty,
    ItemDesc,
    PartNum,
    Category,
    UnitCost,
    QtyCost,
    GrossMargin,
    PriceMarkup,
    ListDiscount,
    SalePrice
};
inline constexpr int TakeoffFieldCount = 10;

/// One row of the takeoff's page as it stands on the screen: its texts, its two marks, and what an
/// edit does to them. The sale price is the price of the whole line, so the relations among the
/// prices take quantity times unit cost and quantity times list cost; values go through the texts
/// and take their rounding with them.
class TakeoffLine {
  public:
    /// Shows a material; a quantity below 1 has a sale price of "$0.00".
    void Show(const MaterialRow& row);
    /// An empty place of the page: no material, all texts empty.
    void Blank();
    bool IsBlank() const { return blank_; }

    const std::string& Text(TakeoffField field) const { return Texts()[Index(field)]; }
    bool Accessory() const { return shown_.accessory; }
    bool Tax() const { return shown_.tax; }
    /// A quantity stands in the row: neither "0" nor nothing.
    bool HasQuantity() const;

    /// What typing does. A first quantity makes the line taxable.
    void SetText(TakeoffField field, const std::string& text);
    /// What leaving a field does, when its text was edited. Quantity 0 removes the row's entries;
    /// another one gives its cost. From a percentage or the price the others follow. Where no
    /// number comes out, or one beyond its range, the row goes back to what it was before the edit.
    /// True when the row changed.
    bool Leave(TakeoffField field);
    void SetTax(bool tax);
    /// No effect without a quantity.
    void SetAccessory(bool accessory);

    /// True when the row was edited since it was shown or stored.
    bool IsEdited() const { return edited_; }
    /// Stores quantity, marks, percentages and price as their texts read. A quantity beyond the
    /// range stays as it was.
    void Store(MaterialRow& row);

  private:
    struct Shown {
        std::array<std::string, TakeoffFieldCount> texts;
        bool accessory = false, tax = false;
    };

    static std::size_t Index(TakeoffField field) { return static_cast<std::size_t>(field); }
    const std::array<std::string, TakeoffFieldCount>& Texts() const { return shown_.texts; }
    void Write(TakeoffField field, double value, std::string_view picture);
    float Value(TakeoffField field) const;
    float LineList() const;
    void LeaveQuantity();
    void RemoveEntries();
    void LeavePercentage(TakeoffField field);
    void LeaveSalePrice();
    void ShowPercentagesBut(TakeoffField typed);

    Shown shown_;
    Shown kept_;  // before the edit that is under way
    std::array<bool, TakeoffFieldCount> typed_{};
    float unitCost_ = 0, listCost_ = 0;
    bool blank_ = true;
    bool edited_ = false;
};

/// The whole number that a quantity's text reads as: a number, a simple expression ("3*12+4"), 0
/// for anything else. Rounds to the nearest, a half away from zero. RuntimeError 6 beyond 16 bits,
/// 11 for an expression that divides by zero.
std::int16_t QuantityOfText(std::string_view text);

}  // namespace tendo
