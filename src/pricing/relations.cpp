#include "pricing/relations.h"

#include <algorithm>
#include <cmath>
#include <limits>

#include "platform/text/runtime_error.h"
#include "project/project_records.h"

namespace tendo {

namespace {

double Quotient(double dividend, double divisor) {
    if (divisor == 0) ThrowError(error_number::DivisionByZero);
    return dividend / divisor;
}

}  // namespace

float StoreSingle(double value) {
    // Written so that what isn't a number counts as out of range too.
    if (!(std::abs(value) <= static_cast<double>(std::numeric_limits<float>::max()))) {
        ThrowError(error_number::Overflow);
    }
    return static_cast<float>(value);
}

float GrossMarginFromSale(float cost, float sale) {
    const double c = cost;
    const double s = sale;
    if (sale != 0) return StoreSingle((s - c) / s * 100);
    // No division: the large negative margin tells the estimator that a price is missing.
    return cost != 0 ? StoreSingle((s - c) * 100) : 0;
}

float SaleFromGrossMargin(float cost, float margin) {
    return StoreSingle(Quotient(cost, 1 - static_cast<double>(margin) / 100));
}

float SaleFromModelGrossMargin(float cost, float margin) {
    if (margin != 100.0F) return SaleFromGrossMargin(cost, margin);
    return StoreSingle(static_cast<double>(cost) / (1 - static_cast<double>(margin) / 100.000001));
}

float MarkupFromSale(float cost, float sale) {
    if (cost == 0) return 0;
    if (sale == 0) return -100;
    const double c = cost;
    return StoreSingle((static_cast<double>(sale) - c) / c * 100);
}

float SaleFromMarkup(float cost, float markup) {
    const double c = cost;
    return StoreSingle(c + (static_cast<double>(markup) * c) / 100);
}

float ListDiscountFromSale(float list, float sale) {
    if (list == 0) return 0;
    if (sale == 0) return 100;
    const double l = list;
    return StoreSingle((l - static_cast<double>(sale)) / l * 100);
}

float SaleFromListDiscount(float list, float discount) {
    const double l = list;
    return StoreSingle(l - (static_cast<double>(discount) / 100) * l);
}

float ListPriceFromSale(float sale, float discount) {
    return ListPriceFromSalePrice(sale, discount);
}

bool SameAsCost(float cost, float override) {
    return override == cost || override == 0;
}

float EffectiveCost(float cost, float override) {
    return override != 0 ? override : cost;
}

bool IsPercentEdit(float typed, float inForce) {
    constexpr double displayRounding = 0.1;
    const double a = typed;
    const double b = inForce;
    // The last binary digit of each may be off its decimal text.
    const double noise =
        2 * std::max(std::abs(a), std::abs(b)) * std::numeric_limits<float>::epsilon();
    return std::abs(a - b) > displayRounding + noise;
}

}  // namespace tendo
