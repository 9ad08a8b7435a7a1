#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

#include "project/project_records.h"

namespace tendo {

/// The fields of the price table's screen. Rows Model, TaxMat, NonTax and Labor have the same six
/// columns.
enum class TableField : std::uint8_t {
    ModelDealerCost,
    ModelDealerOverride,
    ModelGrossMargin,
    ModelPriceMarkup,
    ModelListDiscount,
    ModelSalePrice,
    TaxMatDealerCost,
    TaxMatDealerOverride,
    TaxMatGrossMargin,
    TaxMatPriceMarkup,
    TaxMatListDiscount,
    TaxMatSalePrice,
    NonTaxDealerCost,
    NonTaxDealerOverride,
    NonTaxGrossMargin,
    NonTaxPriceMarkup,
    NonTaxListDiscount,
    NonTaxSalePrice,
    LaborDealerCost,
    LaborDealerOverride,
    LaborGrossMargin,
    LaborPriceMarkup,
    LaborListDiscount,
    LaborSalePrice,
    TaxDealerCost,
    TaxDealerOverride,
    TaxSalePrice,
    TotalDealerCost,
    TotalDealerOverride,
    TotalGrossMargin,
    TotalSalePrice,
    SubTotalSalePrice,
    TaxableAmount,
    TaxPercentage,
    Profit,
    SuperProfit,
    CLGDB,
    CLGModelNum,
    CLGModelQty,
    CLGModelDesc,
    CLGModelType,
    CLGCap,
    CLGEFF,
    HTGDatabase,
    HTGModelNum,
    HTGModelQty,
    HTGModelDesc,
    HTGModelType,
    HTGCap,
    HTGEFF
};
inline constexpr int TableFieldCount = 50;

/// What a field is; decides its change event, its commit and its keys.
enum class FieldKind : std::uint8_t {
    DealerCost,
    DealerOverride,
    GrossMargin,
    PriceMarkup,
    ListDiscount,
    SalePrice,  // rows 1 to 4
    TaxDealerCost,
    TaxDealerOverride,
    TaxSalePrice,
    TotalDealerCost,
    TotalDealerOverride,
    TotalGrossMargin,
    TotalSalePrice,
    SubTotalSalePrice,
    TaxableAmount,
    TaxPercentage,
    Profit,
    SuperProfit,
    ModelDB,
    ModelNum,
    ModelQty,
    ModelText  // the lower half
};

struct FieldDescription {
    const char* name;  // the control's name, "txtModelDealerCost"
    FieldKind kind;
    int row;                            // PriceRow 1 to 5; 0 outside the grid
    float SystemTendosRecord::*column;  // null when the field is not read back
};

const FieldDescription& Describe(TableField field);

/// The field of a control's name ("txtLaborSalesPrice"); nothing for an unknown one.
std::optional<TableField> TableFieldByName(std::string_view name);

/// What a field is called where it stands alone: "Gross margin of labor", "Cooling quantity".
std::string FieldTitle(TableField field);

/// What a row (1 to 4) is called within a sentence: "taxable materials".
const char* RowTitle(int priceRow);

/// The field of a row (1 to 4) by its column, DealerCost to SalePrice.
TableField RowField(int priceRow, FieldKind column);

/// Whether a field takes a key at all, given its text without what is selected. Percentages take
/// digits, one point and one minus sign, prices no minus sign, quantities digits only. Backspace
/// always passes; fields that take no input let no key pass.
bool KeyAllowed(TableField field, char32_t key, std::string_view textWithoutSelection);

/// True for the fields that are filled by calculation only.
bool TakesNoInput(TableField field);

}  // namespace tendo
