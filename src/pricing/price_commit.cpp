#include "platform/text/number_text.h"
#include "platform/text/text.h"
#include "pricing/model_price_columns.h"
#include "pricing/price_table.h"
#include "pricing/relations.h"
#include "pricing/system_models.h"
#include "project/program_state.h"

namespace tendo {

namespace {

constexpr const char* Same = "same";

/// The code of the edit that a percentage column stands for.
int PriceFieldOf(FieldKind kind) {
    if (kind == FieldKind::PriceMarkup) return price_field::PriceMarkup;
    if (kind == FieldKind::ListDiscount) return price_field::ListDiscount;
    return price_field::GrossMargin;
}

}  // namespace

void PriceTable::Commit(TableField field) {
    Guard(std::string(Describe(field).name) + "_LostFocus", [&] { RunCommit(field); });
}

void PriceTable::RunCommit(TableField field) {
    switch (Describe(field).kind) {
        case FieldKind::DealerCost:
            return WriteSame(field, RowField(Describe(field).row, FieldKind::DealerOverride));
        case FieldKind::DealerOverride:
            return CommitOverride(field);
        case FieldKind::GrossMargin:
        case FieldKind::PriceMarkup:
        case FieldKind::ListDiscount:
            return CommitPercentage(field);
        case FieldKind::SalePrice:
            return CommitSalePrice(field);
        case FieldKind::TotalDealerCost:
        case FieldKind::TotalDealerOverride:
        case FieldKind::TotalGrossMargin:
        case FieldKind::TotalSalePrice:
            return CommitTotal(field);
        case FieldKind::TaxPercentage:
            return CommitTaxPercentage();
        case FieldKind::ModelDB:
        case FieldKind::ModelQty:
            GetSystemTendos();
            return TendoCalculations(price_field::Nothing, price_row::None);
        case FieldKind::ModelNum:
            return CommitModelNumber(field);
        case FieldKind::ModelText:
            return GetSystemTendos();
        default:
            return;
    }
}

void PriceTable::WriteSame(TableField cost, TableField override) {
    if (SameAsCost(Value(cost), Value(override))) Write(override, Same);
}

void PriceTable::WriteSameOrMoney(TableField cost, TableField override) {
    if (SameAsCost(Value(cost), Value(override))) {
        Write(override, Same);
    } else {
        Show(override, Value(override), MoneyPicture);
    }
}

void PriceTable::CommitOverride(TableField field) {
    const int row = Describe(field).row;
    WriteSameOrMoney(RowField(row, FieldKind::DealerCost), field);
    GetSystemTendos();
    if (!FieldChanged) return;
    RecalcTotalDealerOverride();
    TendoCalculations(price_field::DealerOverride, row);
}

void PriceTable::CommitPercentage(TableField field) {
    GetSystemTendos();
    if (!FieldChanged) return;
    TendoCalculations(PriceFieldOf(Describe(field).kind), Describe(field).row);
    RecalcSubTotalSalePrice();
}

/// Here the sub-total comes before the row's own recalculation.
void PriceTable::CommitSalePrice(TableField field) {
    GetSystemTendos();
    Show(field, Value(field), MoneyPicture);
    if (!FieldChanged) return;
    RecalcSubTotalSalePrice();
    TendoCalculations(price_field::SalePrice, Describe(field).row);
}

void PriceTable::CommitTotal(TableField field) {
    switch (Describe(field).kind) {
        case FieldKind::TotalDealerCost:
            return WriteSame(field, TableField::TotalDealerOverride);
        case FieldKind::TotalDealerOverride:
            WriteSameOrMoney(TableField::TotalDealerCost, field);
            GetSystemTendos();
            return TendoCalculations(price_field::DealerOverride, price_row::Total);
        case FieldKind::TotalGrossMargin:
            GetSystemTendos();
            if (FieldChanged) TendoCalculations(price_field::GrossMargin, price_row::Total);
            return;
        default:
            GetSystemTendos();
            Show(field, Value(field), MoneyPicture);
            if (!FieldChanged) return;
            RecalcProfit();
            TendoCalculations(price_field::SalePrice, price_row::Total);
    }
}

void PriceTable::CommitTaxPercentage() {
    GetSystemTendos();
    RecalcTax();
    RecalcTotalSalePrice();
    RecalcProfit();
}

/// An emptied number drops the model. What else stands in the lower half is stored first, so that
/// the refill shows the number typed.
void PriceTable::CommitModelNumber(TableField field) {
    const bool cooling = field == TableField::CLGModelNum;
    const int system = State().SystemNumber;
    const SystemModelTexts held =
        cooling ? CoolingTexts(records_, system) : HeatingTexts(records_, system);
    const std::string_view typed = Trimmed(Text(field));
    if (typed == held.ModelNum) return;
    if (!typed.empty()) {
        if (LoadInProgress) return;
        StoreModelTexts();
        SetSystemTendos();
        return GetSystemTendos();
    }
    DropModel(records_, cooling ? ModelSide::Cooling : ModelSide::Heating, system);
    State().ProjectChanged = true;
    ShowModels();
}

}  // namespace tendo
