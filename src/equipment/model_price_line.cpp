#include "equipment/model_price_line.h"

#include "platform/text/number_text.h"
#include "platform/text/runtime_error.h"
#include "pricing/model_price_reason.h"
#include "pricing/relations.h"

namespace tendo {
namespace {

constexpr FieldKind PercentageColumns[] = {FieldKind::GrossMargin, FieldKind::PriceMarkup,
                                           FieldKind::ListDiscount};

bool IsPercentage(FieldKind column) {
    return column == FieldKind::GrossMargin || column == FieldKind::PriceMarkup ||
           column == FieldKind::ListDiscount;
}

}  // namespace

/// Cost and override stand times the quantity.
bool ModelPriceLine::ShowsQuantity(FieldKind column) const {
    return column == FieldKind::DealerCost || column == FieldKind::DealerOverride;
}

float& ModelPriceLine::Price(FieldKind column) {
    constexpr float ModelInfoRecord::*ModelPriceColumns::*columns[] = {
        &ModelPriceColumns::dealerCost,   &ModelPriceColumns::dealerOverride,
        &ModelPriceColumns::grossMargin,  &ModelPriceColumns::priceMarkup,
        &ModelPriceColumns::listDiscount, &ModelPriceColumns::salePrice};
    return records_.ModelInfo.at(static_cast<std::size_t>(system_)).*
           (PricesOf(side_).*columns[Index(column)]);
}

float ModelPriceLine::Price(ModelPriceColumn column) const {
    return records_.ModelInfo.at(static_cast<std::size_t>(system_)).*column;
}

float ModelPriceLine::Cost() {
    return EffectiveCost(Price(FieldKind::DealerCost), Price(FieldKind::DealerOverride));
}

void ModelPriceLine::Write(FieldKind column, std::string text) {
    SetText(column, text);
    shown_[Index(column)] = std::move(text);
}

void ModelPriceLine::SetText(FieldKind column, const std::string& text) {
    texts_[Index(column)] = text;
    if (!IsPercentage(column) || text.empty() || text == "-") return;
    const float typed = ValueOfText(text);
    float& exact = exact_[Index(column)];
    if (IsPercentEdit(typed, exact)) exact = typed;
}

void ModelPriceLine::Show(int system) {
    system_ = system;
    exact_.fill(0);
    trace_ = {};
    ShowPrices();
    // Told from the prices, for the percentages of a file may be stale.
    const std::array<float, 3> percentages = ShownPercentages();
    for (std::size_t i = 0; i < std::size(PercentageColumns); ++i)
        Write(PercentageColumns[i], FormatNumber(percentages.at(i), PercentPicture));
}

void ModelPriceLine::ShowPrices() {
    const int quantity = ModelQuantity(records_, side_, system_);
    constexpr std::array shownColumns = {FieldKind::DealerCost, FieldKind::DealerOverride,
                                         FieldKind::SalePrice};
    for (const FieldKind column : shownColumns) {
        const double times = ShowsQuantity(column) ? quantity : 1;
        Write(column, FormatNumber(times * static_cast<double>(Price(column)), MoneyPicture));
    }
}

/// Margin, markup and discount as they follow from cost, list price and sale price.
std::array<float, 3> ModelPriceLine::Percentages() {
    const float sale = Price(FieldKind::SalePrice);
    return {GrossMarginFromSale(Cost(), sale), MarkupFromSale(Cost(), sale),
            ListDiscountFromSale(Price(PricesOf(side_).listPrice), sale)};
}

/// The same, all 0 when one lies beyond the range of a float.
std::array<float, 3> ModelPriceLine::ShownPercentages() {
    try {
        return Percentages();
    } catch (const RuntimeError&) {
        return {};
    }
}

bool ModelPriceLine::Commit(FieldKind column) {
    const std::string& text = texts_[Index(column)];
    if (text.empty() || text == shown_[Index(column)]) return false;
    const ModelInfoRecord before = records_.ModelInfo.at(static_cast<std::size_t>(system_));
    try {
        Calculate(column);
    } catch (const RuntimeError&) {
        records_.ModelInfo.at(static_cast<std::size_t>(system_)) = before;
        Show(system_);
        return false;
    }
    return true;
}

PriceTrace ModelPriceLine::TraceOf(FieldKind edited) {
    const float exact = exact_[Index(edited)];
    switch (edited) {
        case FieldKind::GrossMargin:
            return {PriceOrigin::FromMargin, Cost(), exact};
        case FieldKind::PriceMarkup:
            return {PriceOrigin::FromMarkup, Cost(), exact};
        case FieldKind::ListDiscount:
            return {PriceOrigin::FromDiscount, Price(PricesOf(side_).listPrice), exact};
        case FieldKind::SalePrice:
            return {.origin = PriceOrigin::Entered};
        default:
            return trace_;  // a cost leaves the price
    }
}

PriceReason ModelPriceLine::Why(FieldKind column) const {
    const ModelPriceColumns& prices = PricesOf(side_);
    return WhyModelPrice({.model = PricedModelOf(records_, side_, system_),
                          .dealerOverride = Price(prices.dealerOverride),
                          .listPrice = Price(prices.listPrice),
                          .texts = texts_,
                          .trace = trace_},
                         column);
}

void ModelPriceLine::Calculate(FieldKind column) {
    trace_ = TraceOf(column);
    const float exact = exact_[Index(column)];
    const std::string& text = texts_[Index(column)];
    float& sale = Price(FieldKind::SalePrice);
    if (column == FieldKind::GrossMargin) sale = SaleFromModelGrossMargin(Cost(), exact);
    if (column == FieldKind::PriceMarkup) sale = SaleFromMarkup(Cost(), exact);
    if (column == FieldKind::ListDiscount)
        sale = SaleFromListDiscount(Price(PricesOf(side_).listPrice), exact);
    if (column == FieldKind::SalePrice) sale = ValueOfText(text);
    if (ShowsQuantity(column)) {
        const int quantity = ModelQuantity(records_, side_, system_);
        const double typed = ValueOfText(text);
        Price(column) = StoreSingle(quantity == 0 ? typed : typed / quantity);
    }
    Follow(column);
}

/// The sale price goes on as it is displayed, in cents. A percentage that was typed stays; those
/// that follow are kept exact, for a project's list prices are rebuilt from them.
void ModelPriceLine::Follow(FieldKind edited) {
    float& sale = Price(FieldKind::SalePrice);
    sale = ValueOfText(FormatNumber(sale, MoneyPicture));
    const std::array<float, 3> percentages = Percentages();
    ShowPrices();
    for (std::size_t i = 0; i < percentages.size(); ++i) {
        const FieldKind column = PercentageColumns[i];
        const bool typed = column == edited;
        Price(column) = typed ? exact_[Index(column)] : percentages[i];
        Write(column, typed ? Text(column) : FormatNumber(percentages[i], PercentPicture));
    }
}

}  // namespace tendo
