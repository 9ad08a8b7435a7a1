#include "materials/takeoff_line.h"

#include <cmath>
#include <limits>

#include "platform/text/arithmetic.h"
#include "platform/text/number_text.h"
#include "platform/text/runtime_error.h"
#include "platform/text/text.h"
#include "pricing/relations.h"

namespace tendo {
namespace {

constexpr std::string_view QuantityPicture = "##0";
constexpr const char* NoMoney = "$0.00";
constexpr TakeoffField Percentages[] = {TakeoffField::GrossMargin, TakeoffField::PriceMarkup,
                                        TakeoffField::ListDiscount};

bool IsQuantity(const std::string& text) {
    return !Trimmed(text).empty() && Trimmed(text) != "0";
}

}  // namespace

std::int16_t QuantityOfText(std::string_view text) {
    double value = 0;
    // An expression counts only where the text is no number by itself.
    if (!ReadNumber(text, value)) value = EvaluateArithmetic(text).value_or(0);
    const double whole = std::round(value);
    if (whole < std::numeric_limits<std::int16_t>::min() ||
        whole > std::numeric_limits<std::int16_t>::max())
        ThrowError(error_number::Overflow);
    return static_cast<std::int16_t>(whole);
}

void TakeoffLine::Blank() {
    *this = TakeoffLine();
}

void TakeoffLine::Show(const MaterialRow& row) {
    *this = TakeoffLine();
    blank_ = false;
    unitCost_ = row.UnitCst;
    listCost_ = row.ListCst;
    shown_.texts[Index(TakeoffField::ItemDesc)] = row.Description.Trimmed();
    shown_.texts[Index(TakeoffField::PartNum)] = row.PartNumber.Trimmed();
    shown_.texts[Index(TakeoffField::Category)] = row.Category.Trimmed();
    Write(TakeoffField::ItemQty, row.ItemQty, QuantityPicture);
    Write(TakeoffField::UnitCost, row.UnitCst, MoneyPicture);
    Write(TakeoffField::QtyCost, static_cast<double>(row.UnitCst) * row.ItemQty, MoneyPicture);
    Write(TakeoffField::GrossMargin, row.GrossMargin, PercentPicture);
    Write(TakeoffField::PriceMarkup, row.PriceMarkup, PercentPicture);
    Write(TakeoffField::ListDiscount, row.ListDiscount, PercentPicture);
    Write(TakeoffField::SalePrice, row.ItemQty < 1 ? 0 : row.SalePrice, MoneyPicture);
    shown_.accessory = row.Accessory != 0;
    shown_.tax = row.Tax != 0;
    kept_ = shown_;
}

bool TakeoffLine::HasQuantity() const {
    return IsQuantity(Text(TakeoffField::ItemQty));
}

void TakeoffLine::Write(TakeoffField field, double value, std::string_view picture) {
    // A book's value that no float holds leaves its field empty; it must not stop the page.
    const bool holds = std::abs(value) <= static_cast<double>(std::numeric_limits<float>::max());
    shown_.texts[Index(field)] = holds ? FormatNumber(static_cast<float>(value), picture) : "";
}

float TakeoffLine::Value(TakeoffField field) const {
    return ValueOfText(Text(field));
}

float TakeoffLine::LineList() const {
    return StoreSingle(static_cast<double>(listCost_) *
                       QuantityOfText(Text(TakeoffField::ItemQty)));
}

void TakeoffLine::SetText(TakeoffField field, const std::string& text) {
    if (blank_) return;
    shown_.texts[Index(field)] = text;
    typed_[Index(field)] = edited_ = true;
    if (field == TakeoffField::ItemQty && IsQuantity(text) &&
        Text(TakeoffField::SalePrice) == NoMoney)
        shown_.tax = true;
}

bool TakeoffLine::Leave(TakeoffField field) {
    if (blank_ || !typed_[Index(field)]) return false;
    typed_[Index(field)] = false;
    try {
        if (field == TakeoffField::ItemQty)
            LeaveQuantity();
        else if (field == TakeoffField::SalePrice)
            LeaveSalePrice();
        else
            LeavePercentage(field);
    } catch (const RuntimeError&) {
        shown_ = kept_;
        return false;
    }
    kept_ = shown_;
    return true;
}

void TakeoffLine::LeaveQuantity() {
    const std::int16_t quantity = QuantityOfText(Text(TakeoffField::ItemQty));
    const float cost = StoreSingle(static_cast<double>(unitCost_) * quantity);
    Write(TakeoffField::ItemQty, quantity, QuantityPicture);
    if (quantity == 0) return RemoveEntries();
    Write(TakeoffField::QtyCost, cost, MoneyPicture);
}

void TakeoffLine::RemoveEntries() {
    shown_.accessory = shown_.tax = false;
    for (const TakeoffField field : {TakeoffField::QtyCost, TakeoffField::SalePrice})
        shown_.texts[Index(field)] = NoMoney;
    for (const TakeoffField field : Percentages)
        shown_.texts[Index(field)].clear();
}

void TakeoffLine::LeavePercentage(TakeoffField field) {
    // Nothing and a lone minus sign are texts on the way to a number.
    if (Text(field).empty() || Text(field) == "-") ThrowError(error_number::TypeMismatch);
    const float typed = Value(field);
    const float cost = Value(TakeoffField::QtyCost);
    const float sale = field == TakeoffField::GrossMargin ? SaleFromGrossMargin(cost, typed)
                       : field == TakeoffField::PriceMarkup
                           ? SaleFromMarkup(cost, typed)
                           : SaleFromListDiscount(LineList(), typed);
    Write(field, typed, PercentPicture);
    Write(TakeoffField::SalePrice, sale, MoneyPicture);
    ShowPercentagesBut(field);
}

void TakeoffLine::LeaveSalePrice() {
    Write(TakeoffField::SalePrice, Value(TakeoffField::SalePrice), MoneyPicture);
    ShowPercentagesBut(TakeoffField::SalePrice);
}

/// The percentages as they follow from the price in its field; the one that was typed stays.
void TakeoffLine::ShowPercentagesBut(TakeoffField typed) {
    const float cost = Value(TakeoffField::QtyCost);
    const float sale = Value(TakeoffField::SalePrice);
    const float values[] = {GrossMarginFromSale(cost, sale), MarkupFromSale(cost, sale),
                            ListDiscountFromSale(LineList(), sale)};
    for (std::size_t i = 0; i < std::size(Percentages); ++i)
        if (Percentages[i] != typed) Write(Percentages[i], values[i], PercentPicture);
}

void TakeoffLine::SetTax(bool tax) {
    if (blank_ || shown_.tax == tax) return;
    shown_.tax = tax;
    kept_ = shown_;
    edited_ = true;
}

void TakeoffLine::SetAccessory(bool accessory) {
    if (!HasQuantity() || shown_.accessory == accessory) return;
    shown_.accessory = accessory;
    kept_ = shown_;
    edited_ = true;
}

void TakeoffLine::Store(MaterialRow& row) {
    if (!edited_) return;
    edited_ = false;
    try {
        row.ItemQty = QuantityOfText(Text(TakeoffField::ItemQty));
    } catch (const RuntimeError&) {
        // The quantity under way is none; the row keeps its own.
    }
    row.Accessory = shown_.accessory ? 1 : 0;
    row.Tax = shown_.tax ? 1 : 0;
    row.GrossMargin = Value(TakeoffField::GrossMargin);
    row.PriceMarkup = Value(TakeoffField::PriceMarkup);
    row.ListDiscount = Value(TakeoffField::ListDiscount);
    row.SalePrice = Value(TakeoffField::SalePrice);
}

}  // namespace tendo
