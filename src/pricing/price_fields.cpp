#include "pricing/price_fields.h"

#include <array>
#include <cstddef>

namespace tendo {

namespace {

using Tendos = SystemTendosRecord;
using Kind = FieldKind;

/// In the order of TableField. The tax cost has no column here: the record holds the tax unrounded,
/// and nothing on the screen may round it.
constexpr std::array<FieldDescription, TableFieldCount> Fields{{
    {"txtModelDealerCost", Kind::DealerCost, 1, &Tendos::ModelDealerCost},
    {"txtModelDealerOverride", Kind::DealerOverride, 1, &Tendos::ModelDealerOverride},
    {"txtModelGrossMargin", Kind::GrossMargin, 1, &Tendos::ModelGrossMargin},
    {"txtModelPriceMarkup", Kind::PriceMarkup, 1, &Tendos::ModelPriceMarkup},
    {"txtModelListDiscount", Kind::ListDiscount, 1, &Tendos::ModelListDiscount},
    {"txtModelSalePrice", Kind::SalePrice, 1, &Tendos::ModelSalePrice},
    {"txtTaxMatDealerCost", Kind::DealerCost, 2, &Tendos::TaxMatDealerCost},
    {"txtTaxMatDealerOverride", Kind::DealerOverride, 2, &Tendos::TaxMatDealerOverride},
    {"txtTaxMatGrossMargin", Kind::GrossMargin, 2, &Tendos::TaxMatGrossMargin},
    {"txtTaxMatPriceMarkup", Kind::PriceMarkup, 2, &Tendos::TaxMatPriceMarkup},
    {"txtTaxMatListDiscount", Kind::ListDiscount, 2, &Tendos::TaxMatListDiscount},
    {"txtTaxMatSalePrice", Kind::SalePrice, 2, &Tendos::TaxMatSalePrice},
    {"txtNonTaxDealerCost", Kind::DealerCost, 3, &Tendos::NonTaxDealerCost},
    {"txtNonTaxDealerOverride", Kind::DealerOverride, 3, &Tendos::NonTaxDealerOverride},
    {"txtNonTaxGrossMargin", Kind::GrossMargin, 3, &Tendos::NonTaxGrossMargin},
    {"txtNonTaxPriceMarkup", Kind::PriceMarkup, 3, &Tendos::NonTaxPriceMarkup},
    {"txtNonTaxListDiscount", Kind::ListDiscount, 3, &Tendos::NonTaxListDiscount},
    {"txtNonTaxSalePrice", Kind::SalePrice, 3, &Tendos::NonTaxSalePrice},
    {"txtLaborDealerCost", Kind::DealerCost, 4, &Tendos::LaborDealerCost},
    {"txtLaborDealerOverride", Kind::DealerOverride, 4, &Tendos::LaborDealerOverride},
    {"txtLaborGrossMargin", Kind::GrossMargin, 4, &Tendos::LaborGrossMargin},
    {"txtLaborPriceMarkup", Kind::PriceMarkup, 4, &Tendos::LaborPriceMarkup},
    {"txtLaborListDiscount", Kind::ListDiscount, 4, &Tendos::LaborListDiscount},
    {"txtLaborSalesPrice", Kind::SalePrice, 4, &Tendos::LaborSalePrice},
    {"txtTaxDealerCost", Kind::TaxDealerCost, 0, nullptr},
    {"txtTaxDealerOverride", Kind::TaxDealerOverride, 0, &Tendos::TaxDealerOverride},
    {"txtTaxSalePrice", Kind::TaxSalePrice, 0, &Tendos::TaxSalePrice},
    {"txtTotalDealerCost", Kind::TotalDealerCost, 5, &Tendos::TotalDealerCost},
    {"txtTotalDealerOverride", Kind::TotalDealerOverride, 5, &Tendos::TotalDealerOverride},
    {"txtTotalGrossMargin", Kind::TotalGrossMargin, 5, &Tendos::TotalGrossMargin},
    {"txtTotalSalePrice", Kind::TotalSalePrice, 5, &Tendos::TotalSalePrice},
    {"txtSubTotalSalePrice", Kind::SubTotalSalePrice, 0, nullptr},
    {"txtTaxableAmount", Kind::TaxableAmount, 0, nullptr},
    {"txtTaxPercentage", Kind::TaxPercentage, 0, &Tendos::TaxPercentage},
    {"txtProfit", Kind::Profit, 0, &Tendos::Profit},
    {"txtSuperProfit", Kind::SuperProfit, 0, nullptr},
    {"txtCLGDB", Kind::ModelDB, 0, nullptr},
    {"txtCLGModelNum", Kind::ModelNum, 0, nullptr},
    {"txtCLGModelQty", Kind::ModelQty, 0, nullptr},
    {"txtCLGModelDesc", Kind::ModelText, 0, nullptr},
    {"txtCLGModelType", Kind::ModelText, 0, nullptr},
    {"txtCLGCap", Kind::ModelText, 0, nullptr},
    {"txtCLGEFF", Kind::ModelText, 0, nullptr},
    {"txtHTGDatabase", Kind::ModelDB, 0, nullptr},
    {"txtHTGModelNum", Kind::ModelNum, 0, nullptr},
    {"txtHTGModelQty", Kind::ModelQty, 0, nullptr},
    {"txtHTGModelDesc", Kind::ModelText, 0, nullptr},
    {"txtHTGModelType", Kind::ModelText, 0, nullptr},
    {"txtHTGCap", Kind::ModelText, 0, nullptr},
    {"txtHTGEFF", Kind::ModelText, 0, nullptr},
}};

constexpr char32_t Backspace = 8;

bool HasPlaceFor(char32_t sign, std::string_view text) {
    return text.find(static_cast<char>(sign)) == std::string_view::npos;
}

}  // namespace

const FieldDescription& Describe(TableField field) {
    return Fields[static_cast<std::size_t>(field)];
}

std::optional<TableField> TableFieldByName(std::string_view name) {
    for (std::size_t i = 0; i < Fields.size(); ++i) {
        if (name == Fields[i].name) return static_cast<TableField>(i);
    }
    return std::nullopt;
}

TableField RowField(int priceRow, FieldKind column) {
    constexpr int Columns = 6;
    return static_cast<TableField>((priceRow - 1) * Columns + static_cast<int>(column));
}

bool TakesNoInput(TableField field) {
    switch (Describe(field).kind) {
        case Kind::DealerCost:
        case Kind::TaxDealerCost:
        case Kind::TaxDealerOverride:
        case Kind::TaxSalePrice:
        case Kind::TotalDealerCost:
        case Kind::TotalDealerOverride:
        case Kind::SubTotalSalePrice:
        case Kind::TaxableAmount:
        case Kind::Profit:
        case Kind::SuperProfit:
            return true;
        default:
            return false;
    }
}

bool KeyAllowed(TableField field, char32_t key, std::string_view textWithoutSelection) {
    if (TakesNoInput(field)) return false;
    const Kind kind = Describe(field).kind;
    const bool isText = kind == Kind::ModelDB || kind == Kind::ModelNum || kind == Kind::ModelText;
    if (isText || key == Backspace || (key >= U'0' && key <= U'9')) return true;
    if (kind == Kind::ModelQty) return false;
    if (key == U'.') return HasPlaceFor(key, textWithoutSelection);
    const bool mayBeNegative = kind == Kind::GrossMargin || kind == Kind::PriceMarkup ||
                               kind == Kind::ListDiscount || kind == Kind::TotalGrossMargin;
    return key == U'-' && mayBeNegative && HasPlaceFor(key, textWithoutSelection);
}

}  // namespace tendo
