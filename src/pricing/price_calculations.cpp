#include "platform/files/ini_file_handler.h"
#include "platform/text/number_text.h"
#include "pricing/price_table.h"
#include "pricing/relations.h"

namespace tendo {

namespace {

using Tendos = SystemTendosRecord;

constexpr const char* Calculations = "TendoCalculations";
constexpr float UnsetDefaultMargin = 20;  // percent, when the options name none

/// What belongs to a row besides its six fields.
struct RowData {
    float Tendos::*listBase;
    const char* defaultMarginKey;
};

constexpr RowData Rows[] = {{&Tendos::ModelLDPrice, "DefaultModelGrossMargin"},
                            {&Tendos::TaxMatLDPrice, "DefaultTaxMatGrossMargin"},
                            {&Tendos::NonTaxLDPrice, "DefaultNonTaxGrossMargin"},
                            {&Tendos::LaborLDPrice, "DefaultLaborGrossMargin"}};

constexpr int LastGridRow = price_row::Labor;

}  // namespace

float& PriceTable::ListBase(int row) {
    return records_.SystemTendos.*Rows[row - 1].listBase;
}

float PriceTable::ListBaseOf(int priceRow) const {
    return records_.SystemTendos.*Rows[priceRow - 1].listBase;
}

void PriceTable::TendoCalculations(int priceField, int priceRow) {
    if (LoadInProgress) return;
    if (priceRow >= price_row::Model && priceRow <= LastGridRow) CalculateRow(priceField, priceRow);
    Attempt(Calculations, [&] { RecalcTax(); });
    Attempt(Calculations,
            [&] { ShowMoney(TableField::TaxSalePrice, records_.SystemTendos.TaxSalePrice); });
    if (priceRow == price_row::Total) CalculateTotalRow(priceField);
    Attempt(Calculations, [&] { RecalcProfit(); });
    FieldChanged = false;
}

void PriceTable::CalculateRow(int priceField, int priceRow) {
    const TableField costField = RowField(priceRow, FieldKind::DealerCost);
    if (priceRow == price_row::Model) Attempt(Calculations, [&] { RebuildModelDealerCost(); });
    Attempt(Calculations,
            [&] { ShowMoney(costField, records_.SystemTendos.*Describe(costField).column); });
    const float cost =
        EffectiveCost(Value(costField), Value(RowField(priceRow, FieldKind::DealerOverride)));

    const TableField sale = RowField(priceRow, FieldKind::SalePrice);
    const auto exact = [&](FieldKind kind) { return Exact(RowField(priceRow, kind)); };
    switch (priceField) {
        case price_field::DealerCost:
        case price_field::SalePrice:
            ShowMargin(priceRow, cost);
            ShowMarkup(priceRow, cost);
            return ShowDiscount(priceRow);
        case price_field::DealerOverride:
            CalculateFromOverride(priceRow, cost);
            ShowMarkup(priceRow, cost);
            return ShowDiscount(priceRow);
        case price_field::GrossMargin:
            Trace(priceRow, {PriceOrigin::FromMargin, cost, exact(FieldKind::GrossMargin)});
            ShowResult(sale, MoneyPicture,
                       [&] { return SaleFromGrossMargin(cost, exact(FieldKind::GrossMargin)); });
            ShowMarkup(priceRow, cost);
            return ShowDiscount(priceRow);
        case price_field::PriceMarkup:
            Trace(priceRow, {PriceOrigin::FromMarkup, cost, exact(FieldKind::PriceMarkup)});
            ShowResult(sale, MoneyPicture,
                       [&] { return SaleFromMarkup(cost, exact(FieldKind::PriceMarkup)); });
            // The markup of taxable materials sets the Model row's margin from the Model row's
            // price, on purpose; the row's own margin stays.
            if (priceRow == price_row::TaxMat) {
                ShowMargin(price_row::Model, cost);
            } else {
                ShowMargin(priceRow, cost);
            }
            return ShowDiscount(priceRow);
        case price_field::ListDiscount:
            Trace(priceRow,
                  {PriceOrigin::FromDiscount, ListBase(priceRow), exact(FieldKind::ListDiscount)});
            ShowResult(sale, MoneyPicture, [&] {
                return SaleFromListDiscount(ListBase(priceRow), exact(FieldKind::ListDiscount));
            });
            ShowMargin(priceRow, cost);
            return ShowMarkup(priceRow, cost);
        default:
            return;
    }
}

/// The sum is stored as a float after each system. All five count, in use or not.
void PriceTable::RebuildModelDealerCost() {
    float& sum = records_.SystemTendos.ModelDealerCost;
    sum = 0;
    for (std::size_t i = 0; i < records_.ModelInfo.size(); ++i) {
        const ModelInfoRecord& info = records_.ModelInfo[i];
        sum = StoreSingle(
            static_cast<double>(sum) +
            static_cast<double>(info.CLGModelDealerCost) * records_.CLGModelData[i].ModelQty +
            static_cast<double>(info.HTGModelDealerCost) * records_.HTGModelData[i].ModelQty +
            static_cast<double>(info.WHModelDealerCost) * records_.WHModelData[i].ModelQty);
    }
}

/// A line with a cost but neither price nor margin is new and gets the default margin; any other
/// keeps its price.
void PriceTable::CalculateFromOverride(int row, float cost) {
    const bool isNew = cost != 0 && Value(RowField(row, FieldKind::SalePrice)) == 0 &&
                       Value(RowField(row, FieldKind::GrossMargin)) == 0;
    if (isNew) {
        TakeDefaultMargin(row, cost);
    } else {
        ShowMargin(row, cost);
    }
}

void PriceTable::TakeDefaultMargin(int row, float cost) {
    const TableField marginField = RowField(row, FieldKind::GrossMargin);
    const TableField sale = RowField(row, FieldKind::SalePrice);
    ShowResult(marginField, PercentPicture, [&] {
        return Ini().MyGetAppProfileSingle("Options", Rows[row - 1].defaultMarginKey,
                                           UnsetDefaultMargin);
    });
    const float margin = Value(marginField);  // with the one decimal shown
    Trace(row, {PriceOrigin::FromDefaultMargin, cost, margin});
    ShowResult(sale, MoneyPicture, [&] { return SaleFromGrossMargin(cost, margin); });
    if (row == price_row::Model) ListBase(row) = Value(sale);
    Attempt(Calculations, [&] { RecalcSubTotalSalePrice(); });
}

void PriceTable::CalculateTotalRow(int priceField) {
    const float tax = Value(TableField::TaxSalePrice);
    const auto taxedSubTotal = [&] {
        return StoreSingle(static_cast<double>(Value(TableField::SubTotalSalePrice)) + tax);
    };
    const bool noTotal = Value(TableField::TotalSalePrice) == 0;
    float& margin = Exact(TableField::TotalGrossMargin);
    if (priceField == price_field::GrossMargin) {
        if (noTotal) margin = 0;
        ShowResult(TableField::TotalSalePrice, MoneyPicture, [&] {
            const float base = taxedSubTotal();
            Trace(price_row::Total, {PriceOrigin::FromMargin, base, margin});
            return SaleFromGrossMargin(base, margin);
        });
    } else if (priceField == price_field::SalePrice) {
        if (noTotal) {
            Trace(price_row::Total, {.origin = PriceOrigin::FromRows});
            ShowResult(TableField::TotalSalePrice, MoneyPicture, taxedSubTotal);
        }
        ShowResult(TableField::TotalGrossMargin, PercentPicture, [&] {
            const float untaxed = StoreSingle(static_cast<double>(taxedSubTotal()) - tax);
            return GrossMarginFromSale(untaxed, Value(TableField::TotalSalePrice));
        });
    }
}

void PriceTable::ShowMargin(int row, float cost) {
    ShowResult(RowField(row, FieldKind::GrossMargin), PercentPicture, [&] {
        return GrossMarginFromSale(cost, Value(RowField(row, FieldKind::SalePrice)));
    });
}

void PriceTable::ShowMarkup(int row, float cost) {
    ShowResult(RowField(row, FieldKind::PriceMarkup), PercentPicture,
               [&] { return MarkupFromSale(cost, Value(RowField(row, FieldKind::SalePrice))); });
}

void PriceTable::ShowDiscount(int row) {
    ShowResult(RowField(row, FieldKind::ListDiscount), PercentPicture, [&] {
        return ListDiscountFromSale(ListBase(row), Value(RowField(row, FieldKind::SalePrice)));
    });
}

/// After a failure the message is shown, then what the result held, which is 0.
void PriceTable::ShowResult(TableField field, std::string_view picture, const Result& result) {
    float value = 0;
    Attempt(Calculations, [&] { value = result(); });
    Attempt(Calculations, [&] { Show(field, value, picture); });
}

void PriceTable::RecalcSubTotalSalePrice() {
    double sum = 0;
    for (int row = price_row::Model; row <= LastGridRow; ++row) {
        sum += Value(RowField(row, FieldKind::SalePrice));
    }
    ShowMoney(TableField::SubTotalSalePrice, sum);
}

void PriceTable::RecalcTax() {
    Tendos& tendos = records_.SystemTendos;
    float taxable = StoreSingle(static_cast<double>(Value(TableField::ModelSalePrice)) +
                                Value(TableField::TaxMatSalePrice));
    if (records_.GPDProjectFormat.TaxLabor) {
        taxable = StoreSingle(static_cast<double>(taxable) + Value(TableField::LaborSalePrice));
    }
    Show(TableField::TaxableAmount, taxable, MoneyPicture);
    const double rate = static_cast<double>(Value(TableField::TaxPercentage)) / 100;
    tendos.TaxDealerCost = StoreSingle(rate * taxable);
    Show(TableField::TaxDealerCost, tendos.TaxDealerCost, MoneyPicture);
    // To cents by way of the text, as every other price gets its cents.
    tendos.TaxSalePrice = ValueOfText(FormatNumber(tendos.TaxDealerCost, MoneyPicture));
    Show(TableField::TaxSalePrice, tendos.TaxSalePrice, MoneyPicture);
}

void PriceTable::RecalcTotalDealerCost() {
    double sum = 0;
    for (int row = price_row::Model; row <= LastGridRow; ++row) {
        sum += Value(RowField(row, FieldKind::DealerCost));
    }
    ShowMoney(TableField::TotalDealerCost, sum);
}

void PriceTable::RecalcTotalDealerOverride() {
    double sum = 0;
    for (int row = price_row::Model; row <= LastGridRow; ++row) {
        sum += EffectiveCost(Value(RowField(row, FieldKind::DealerCost)),
                             Value(RowField(row, FieldKind::DealerOverride)));
    }
    ShowMoney(TableField::TotalDealerOverride, sum);
}

void PriceTable::RecalcTotalSalePrice() {
    double sum = Value(TableField::TaxSalePrice);
    for (int row = price_row::Model; row <= LastGridRow; ++row) {
        sum += Value(RowField(row, FieldKind::SalePrice));
    }
    records_.SystemTendos.TotalSalePrice = StoreSingle(sum);
    Trace(price_row::Total, {.origin = PriceOrigin::FromRows});
    Show(TableField::TotalSalePrice, records_.SystemTendos.TotalSalePrice, MoneyPicture);
}

void PriceTable::RecalcProfit() {
    RecalcTotalDealerOverride();
    const double totalCost =
        EffectiveCost(Value(TableField::TotalDealerCost), Value(TableField::TotalDealerOverride));
    const double subTotal = Value(TableField::SubTotalSalePrice);
    ShowMoney(TableField::Profit, subTotal - totalCost);
    ShowMoney(TableField::SuperProfit,
              Value(TableField::TotalSalePrice) - subTotal - Value(TableField::TaxSalePrice));
}

}  // namespace tendo
