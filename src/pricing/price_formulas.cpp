#include "pricing/price_formulas.h"

#include "platform/text/number_text.h"
#include "platform/text/runtime_error.h"
#include "pricing/relations.h"

namespace tendo {

namespace {

/// A figure within a formula; a negative one in parentheses.
std::string InFormula(const std::string& figure) {
    return figure.starts_with('-') ? "(" + figure + ")" : figure;
}

std::string Money(float amount) {
    return InFormula(MoneyText(amount));
}

std::string Percent(float percent) {
    return InFormula(ExactPercentText(percent));
}

/// " = $1,000.00"; a failure is told as the 0 that stands then.
template <class Relation>
std::string Result(const Relation& relation, std::string (*show)(double)) {
    try {
        return " = " + show(relation());
    } catch (const RuntimeError& error) {
        return " has no result (" + error.Description() + "), so " + show(0) + " stands";
    }
}

}  // namespace

std::string MoneyText(double amount) {
    return FormatNumber(amount, MoneyPicture);
}

std::string PercentText(double percent) {
    return FormatNumber(percent, PercentPicture);
}

std::string ExactPercentText(float percent) {
    return PlainNumberText(percent);
}

WorkedFormula GrossMarginFormula(float cost, float sale) {
    if (sale == 0 && cost == 0) return {"Without cost and sale price: 0", ""};
    const std::string result = Result([&] { return GrossMarginFromSale(cost, sale); }, PercentText);
    if (sale == 0) {
        return {"Without a sale price: (0 − cost) × 100, a mark that the price is missing",
                "(0 − " + Money(cost) + ") × 100" + result};
    }
    return {"(sale price − cost) ÷ sale price × 100",
            "(" + Money(sale) + " − " + Money(cost) + ") ÷ " + Money(sale) + " × 100" + result};
}

WorkedFormula MarkupFormula(float cost, float sale) {
    if (cost == 0) return {"Without a cost there is no markup: 0", ""};
    if (sale == 0) return {"Without a sale price: -100", ""};
    return {"(sale price − cost) ÷ cost × 100",
            "(" + Money(sale) + " − " + Money(cost) + ") ÷ " + Money(cost) + " × 100" +
                Result([&] { return MarkupFromSale(cost, sale); }, PercentText)};
}

WorkedFormula ListDiscountFormula(float list, float sale) {
    if (list == 0) return {"Without a list price there is no discount: 0", ""};
    if (sale == 0) return {"Without a sale price: 100", ""};
    return {"(list price − sale price) ÷ list price × 100",
            "(" + Money(list) + " − " + Money(sale) + ") ÷ " + Money(list) + " × 100" +
                Result([&] { return ListDiscountFromSale(list, sale); }, PercentText)};
}

WorkedFormula SaleFromMarginFormula(float cost, float margin, const char* base) {
    return {std::string(base) + " ÷ (1 − margin ÷ 100)",
            Money(cost) + " ÷ (1 − " + Percent(margin) + " ÷ 100)" +
                Result([&] { return SaleFromGrossMargin(cost, margin); }, MoneyText)};
}

WorkedFormula SaleFromModelMarginFormula(float cost, float margin) {
    if (margin != 100.0F) return SaleFromMarginFormula(cost, margin);
    return {"cost ÷ (1 − margin ÷ 100.000001), so that a margin of 100 has a price",
            Money(cost) + " ÷ (1 − 100 ÷ 100.000001)" +
                Result([&] { return SaleFromModelGrossMargin(cost, margin); }, MoneyText)};
}

WorkedFormula SaleFromMarkupFormula(float cost, float markup) {
    return {"cost + markup × cost ÷ 100",
            Money(cost) + " + " + Percent(markup) + " × " + Money(cost) + " ÷ 100" +
                Result([&] { return SaleFromMarkup(cost, markup); }, MoneyText)};
}

WorkedFormula SaleFromDiscountFormula(float list, float discount) {
    return {"list price − discount ÷ 100 × list price",
            Money(list) + " − " + Percent(discount) + " ÷ 100 × " + Money(list) +
                Result([&] { return SaleFromListDiscount(list, discount); }, MoneyText)};
}

}  // namespace tendo
