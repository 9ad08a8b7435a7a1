#pragma once

#include <string>

namespace tendo {

/// A relation told in plain words and with its figures. Money stands in cents, percentages as plain
/// numbers.
struct WorkedFormula {
    std::string words;    // "(sale price − cost) ÷ sale price × 100"
    std::string figures;  // "($1,000.00 − $750.00) ÷ $1,000.00 × 100 = 25.0"
};

/// An amount as the screens show it: "$1,000.00"; a percentage: "25.0"; one with all it holds:
/// "33.333".
std::string MoneyText(double amount);
std::string PercentText(double percent);
std::string ExactPercentText(float percent);

/// The relations of a priced line as they were told; the cases without a division among them.
WorkedFormula GrossMarginFormula(float cost, float sale);
WorkedFormula MarkupFormula(float cost, float sale);
WorkedFormula ListDiscountFormula(float list, float sale);

/// A sale price from what was typed. `base`: what the margin lies on.
WorkedFormula SaleFromMarginFormula(float cost, float margin, const char* base = "cost");
/// The same for the line of a single model, which takes a margin of exactly 100.
WorkedFormula SaleFromModelMarginFormula(float cost, float margin);
WorkedFormula SaleFromMarkupFormula(float cost, float markup);
WorkedFormula SaleFromDiscountFormula(float list, float discount);

}  // namespace tendo
