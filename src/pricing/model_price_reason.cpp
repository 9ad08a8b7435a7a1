#include "pricing/model_price_reason.h"

#include <cstddef>
#include <utility>

#include "platform/text/number_text.h"
#include "platform/text/runtime_error.h"
#include "pricing/price_formulas.h"
#include "pricing/price_reason_details.h"
#include "pricing/relations.h"

namespace tendo {

namespace {

using Origin = PriceOrigin;

constexpr const char* Columns[] = {"Dealer cost",  "Override",      "Gross margin",
                                   "Price markup", "List discount", "Sale price"};
constexpr const char* savedPrice = "saved, or the list price of the chosen model";

const std::string& TextOf(const ModelPriceFacts& facts, FieldKind column) {
    return facts.texts.at(static_cast<std::size_t>(column));
}

float CostOf(const ModelPriceFacts& facts) {
    return EffectiveCost(facts.model.dealerCost, facts.dealerOverride);
}

/// "2 × $750.00 = $1,500.00".
std::string TimesQuantity(const ModelPriceFacts& facts, float price) {
    return std::to_string(facts.model.quantity) + " × " + MoneyText(price) + " = " +
           MoneyText(static_cast<double>(price) * facts.model.quantity);
}

/// The sale price follows from this percentage, and the field still shows it.
bool IsCause(const ModelPriceFacts& facts, FieldKind column) {
    return facts.trace.origin == CauseOf(column) &&
           !IsPercentEdit(ValueOfText(TextOf(facts, column)), facts.trace.percent);
}

std::vector<PriceReason::Part> PartsOf(const ModelPriceFacts& facts) {
    const auto part = [&](FieldKind column, std::string source) {
        return PriceReason::Part{Columns[static_cast<std::size_t>(column)], TextOf(facts, column),
                                 std::move(source)};
    };
    const auto percentage = [&](FieldKind column, const char* follows) {
        return part(column, IsCause(facts, column) ? "entered" : follows);
    };
    const bool overridden = !SameAsCost(facts.model.dealerCost, facts.dealerOverride);
    return {part(FieldKind::DealerCost, facts.model.database + ", times the quantity"),
            part(FieldKind::DealerOverride,
                 overridden ? "entered, times the quantity" : "the same as the dealer cost"),
            percentage(FieldKind::GrossMargin, "follows from cost and sale price"),
            percentage(FieldKind::PriceMarkup, "follows from cost and sale price"),
            percentage(FieldKind::ListDiscount, "follows from list price and sale price"),
            part(FieldKind::SalePrice, PriceSourceOf(facts.trace.origin, savedPrice)),
            {"List price", MoneyText(facts.listPrice),
             facts.listPrice == 0
                 ? "none"
                 : facts.model.database + ", or told from sale price and discount on opening"}};
}

WorkedFormula PriceFormula(const PriceTrace& trace) {
    if (trace.origin == Origin::FromMarkup) return SaleFromMarkupFormula(trace.base, trace.percent);
    if (trace.origin == Origin::FromDiscount)
        return SaleFromDiscountFormula(trace.base, trace.percent);
    return SaleFromModelMarginFormula(trace.base, trace.percent);
}

WorkedFormula PercentageFormula(const ModelPriceFacts& facts, FieldKind column) {
    const float sale = facts.model.salePrice;
    if (column == FieldKind::PriceMarkup) return MarkupFormula(CostOf(facts), sale);
    if (column == FieldKind::ListDiscount) return ListDiscountFormula(facts.listPrice, sale);
    return GrossMarginFormula(CostOf(facts), sale);
}

void Tell(PriceReason& reason, const std::string& before, const WorkedFormula& formula) {
    reason.rule = before + formula.words;
    reason.worked = formula.figures;
}

void TellPrice(PriceReason& reason, const ModelPriceFacts& facts) {
    const Origin origin = facts.trace.origin;
    if (origin == Origin::Entered) {
        reason.rule = "Entered; margin, markup and discount follow from it";
    } else if (origin == Origin::Filled) {
        reason.rule = "Saved with the project, or the list price of the chosen model";
    } else {
        Tell(reason, "", PriceFormula(facts.trace));
    }
    if (facts.model.quantity != 1) reason.note = "The price of one unit, whatever the quantity.";
}

void TellPercentage(PriceReason& reason, const ModelPriceFacts& facts, FieldKind column) {
    if (IsCause(facts, column)) {
        Tell(reason, "Entered; the sale price follows from it: ", PriceFormula(facts.trace));
    } else {
        Tell(reason, "", PercentageFormula(facts, column));
    }
}

void TellColumn(PriceReason& reason, const ModelPriceFacts& facts, FieldKind column) {
    switch (column) {
        case FieldKind::DealerCost:
            reason.rule = "Quantity × dealer cost of one unit";
            reason.worked = TimesQuantity(facts, facts.model.dealerCost);
            return;
        case FieldKind::DealerOverride:
            reason.rule = "Quantity × override of one unit; the margin is calculated with it";
            reason.worked = TimesQuantity(facts, facts.dealerOverride);
            return;
        case FieldKind::SalePrice:
            return TellPrice(reason, facts);
        default:
            return TellPercentage(reason, facts, column);
    }
}

}  // namespace

PriceReason WhyModelPrice(const ModelPriceFacts& facts, FieldKind column) {
    PriceReason reason{
        .title = std::string(Columns[static_cast<std::size_t>(column)]) + " · " + facts.model.title,
        .figure = TextOf(facts, column),
        .parts = PartsOf(facts)};
    TellColumn(reason, facts, column);
    return reason;
}

}  // namespace tendo
