#include <cstddef>
#include <iterator>

#include "pricing/price_fields.h"

namespace tendo {

namespace {

constexpr const char* RowTitles[] = {"models", "taxable materials", "non-taxable materials",
                                     "labor"};

/// In the order of the columns, DealerCost to SalePrice.
constexpr const char* ColumnTitles[] = {"Dealer cost",  "Override",      "Gross margin",
                                        "Price markup", "List discount", "Sale price"};

/// From TaxDealerCost to SuperProfit.
constexpr const char* SingleTitles[] = {"Tax as a cost",
                                        "Override of the tax",
                                        "Tax",
                                        "Total dealer cost",
                                        "Total override",
                                        "Total gross margin",
                                        "Total sale price",
                                        "Sub-total",
                                        "Taxable amount",
                                        "Tax percentage",
                                        "Profit",
                                        "Extra profit"};

constexpr const char* ModelTitles[] = {"database", "model",    "quantity",  "description",
                                       "type",     "capacity", "efficiency"};

constexpr auto FirstSingle = static_cast<std::size_t>(TableField::TaxDealerCost);
constexpr auto FirstModelText = static_cast<std::size_t>(TableField::CLGDB);
static_assert(FirstModelText == FirstSingle + std::size(SingleTitles));
static_assert(TableFieldCount == FirstModelText + 2 * std::size(ModelTitles));

}  // namespace

const char* RowTitle(int priceRow) {
    return RowTitles[priceRow - 1];
}

std::string FieldTitle(TableField field) {
    const auto i = static_cast<std::size_t>(field);
    if (i < FirstSingle) {
        constexpr std::size_t columns = std::size(ColumnTitles);
        return std::string(ColumnTitles[i % columns]) + " of " + RowTitles[i / columns];
    }
    if (i < FirstModelText) return SingleTitles[i - FirstSingle];
    const std::size_t text = i - FirstModelText;
    const char* side = text < std::size(ModelTitles) ? "Cooling " : "Heating ";
    return side + std::string(ModelTitles[text % std::size(ModelTitles)]);
}

}  // namespace tendo
