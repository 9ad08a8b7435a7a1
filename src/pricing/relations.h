#pragma once

namespace tendo {

/// The arithmetic between cost, margin, markup, discount and price of one line. Money in dollars,
/// percentages as whole percent numbers (25 is 25 percent). Each relation computes in double
/// precision and rounds once, to its result. RuntimeError 11 for a division by zero, 6 for a result
/// beyond the range of a float.

/// (sale - cost) / sale in percent. A zero sale price gives minus one hundred times the cost.
float GrossMarginFromSale(float cost, float sale);
/// cost / (1 - margin / 100); no guard: a margin of exactly 100 divides by zero.
float SaleFromGrossMargin(float cost, float margin);
/// The same for the line of a single model: a margin of exactly 100 gives a very large price and no
/// error.
float SaleFromModelGrossMargin(float cost, float margin);
/// (sale - cost) / cost in percent; -100 for a zero sale price, 0 for a zero cost.
float MarkupFromSale(float cost, float sale);
float SaleFromMarkup(float cost, float markup);
/// (list - sale) / list in percent; 100 for a zero sale price, 0 for a zero list price.
float ListDiscountFromSale(float list, float sale);
float SaleFromListDiscount(float list, float discount);
/// 100 * sale / (100 - discount); 0 for a discount of exactly 100.
float ListPriceFromSale(float sale, float discount);

/// True when an override says nothing new: it equals the cost, or is 0.
bool SameAsCost(float cost, float override);
/// The override when it isn't 0, else the dealer cost.
float EffectiveCost(float cost, float override);

/// True when a percentage lies more than 0.1 from the one in force, so that it counts as an edit
/// and not as the display's rounding. Both come from decimal texts: 25.1 and 25 lie 0.1 apart, no
/// more.
bool IsPercentEdit(float typed, float inForce);

/// The one rounding of a result to a float; RuntimeError 6 when it lies beyond the range.
float StoreSingle(double value);

}  // namespace tendo
