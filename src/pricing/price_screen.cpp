#include <iterator>

#include "platform/text/number_text.h"
#include "pricing/price_table.h"
#include "pricing/relations.h"
#include "pricing/system_models.h"
#include "project/program_state.h"

namespace tendo {

namespace {

constexpr const char* Refill = "SetSystemTendo";  // the message names it so
constexpr const char* Same = "same";

constexpr std::size_t ModelTexts = std::size(ModelTextOrder);
constexpr auto FirstModelText = static_cast<std::size_t>(TableField::CLGDB);

/// Override fields may hold the word for "no override of its own"; they then stand for their cost
/// field.
bool MayBeSame(FieldKind kind) {
    return kind == FieldKind::DealerOverride || kind == FieldKind::TotalDealerOverride;
}

TableField CostFieldOf(const FieldDescription& override) {
    return override.row == price_row::Total ? TableField::TotalDealerCost
                                            : RowField(override.row, FieldKind::DealerCost);
}

}  // namespace

void PriceTable::Open() {
    texts_.fill({});
    values_.fill(0);
    modelTextEdited_.fill(false);
    traces_.fill({});
    EditedGrossMargin.fill(0);
    EditedPriceMarkup.fill(0);
    EditedListDiscount.fill(0);
    open_ = true;
    FieldChanged = true;
    SystemTendosRecord& tendos = records_.SystemTendos;
    const float savedTotal = tendos.TotalSalePrice;
    const float savedProfit = tendos.Profit;
    LoadInProgress = false;
    SetSystemTendos();
    Guard("Form_Load", [&] {
        // The refill recomputed both; a saved total that was typed must come back.
        tendos.TotalSalePrice = savedTotal;
        WriteSalePrice(TableField::TotalSalePrice);
        Show(TableField::Profit, savedProfit, MoneyPicture);
    });
    DoAllMiddleItemsAtLoadTime();
    FieldChanged = false;
}

void PriceTable::Close() {
    GetSystemTendos();
    open_ = false;
}

void PriceTable::DoAllMiddleItemsAtLoadTime() {
    for (int row = price_row::Model; row <= price_row::Total; ++row) {
        TendoCalculations(price_field::DealerOverride, row);
    }
}

void PriceTable::SetSystemTendos() {
    if (!open_ || !FieldChanged) return;
    SystemTendosRecord& tendos = records_.SystemTendos;
    for (int row = price_row::Model; row <= price_row::Labor; ++row) {
        const TableField cost = RowField(row, FieldKind::DealerCost);
        Attempt(Refill, [&] { ShowMoney(cost, tendos.*Describe(cost).column); });
    }
    WriteOverrides();
    WriteSalePrice(TableField::ModelSalePrice);
    // As money, not as a percentage: so it stands until a recalculation rewrites it.
    Attempt(Refill, [&] { ShowMoney(TableField::ModelListDiscount, tendos.ModelListDiscount); });
    Exact(TableField::ModelListDiscount) = Value(TableField::ModelListDiscount);
    tendos.ModelLDPrice = Value(TableField::ModelSalePrice);
    WriteSalePrices();
    Attempt(Refill, [&] { ShowModels(); });
    Attempt(Refill, [&] { RecalcSubTotalSalePrice(); });
    TendoCalculations(price_field::Nothing, price_row::None);
}

void PriceTable::WriteOverrides() {
    const SystemTendosRecord& tendos = records_.SystemTendos;
    for (int row = price_row::Model; row <= price_row::Labor; ++row) {
        const TableField field = RowField(row, FieldKind::DealerOverride);
        const float cost = tendos.*Describe(RowField(row, FieldKind::DealerCost)).column;
        const float override = tendos.*Describe(field).column;
        Attempt(Refill, [&] {
            Write(field, SameAsCost(cost, override) ? Same : FormatNumber(override, MoneyPicture));
        });
    }
    Attempt(Refill, [&] { ShowMoney(TableField::TaxDealerOverride, tendos.TaxDealerOverride); });
    Attempt(Refill,
            [&] { WriteSame(TableField::TotalDealerCost, TableField::TotalDealerOverride); });
}

/// A price that stands as it was keeps its origin.
void PriceTable::WriteSalePrice(TableField field) {
    const FieldDescription& description = Describe(field);
    const float before = Value(field);
    Attempt(Refill, [&] { ShowMoney(field, records_.SystemTendos.*description.column); });
    if (description.row != price_row::None && Value(field) != before) Trace(description.row, {});
}

void PriceTable::WriteSalePrices() {
    const SystemTendosRecord& tendos = records_.SystemTendos;
    for (const TableField field :
         {TableField::TaxMatSalePrice, TableField::NonTaxSalePrice, TableField::LaborSalePrice,
          TableField::TaxSalePrice, TableField::TotalSalePrice}) {
        WriteSalePrice(field);
    }
    Attempt(Refill, [&] { Show(TableField::TaxPercentage, tendos.TaxPercentage, TaxPicture); });
}

void PriceTable::GetSystemTendos() {
    if (!open_) return;  // blank texts must not wipe the records
    for (int i = 0; i < TableFieldCount; ++i) {
        const auto field = static_cast<TableField>(i);
        const FieldDescription& description = Describe(field);
        if (description.column == nullptr) continue;
        const bool same = MayBeSame(description.kind) && Text(field) == Same;
        const float value = Value(same ? CostFieldOf(description) : field);
        float& column = records_.SystemTendos.*description.column;
        if (column != value) State().ProjectChanged = true;
        column = value;
    }
    StoreModelTexts();
}

void PriceTable::FollowModels() {
    const bool changed = FieldChanged;
    Attempt(Refill, [&] { ShowModels(); });
    FieldChanged = changed;
}

void PriceTable::ShowModels() {
    const SystemModelTexts sides[] = {CoolingTexts(records_, State().SystemNumber),
                                      HeatingTexts(records_, State().SystemNumber)};
    for (std::size_t i = 0; i < std::size(sides) * ModelTexts; ++i) {
        const auto field = static_cast<TableField>(FirstModelText + i);
        modelTextEdited_[FirstModelText + i] = false;
        Write(field, sides[i / ModelTexts].*ModelTextOrder[i % ModelTexts]);
    }
}

/// Only what was typed goes back: a capacity shown with one decimal must not lose its others.
void PriceTable::StoreModelTexts() {
    const int system = State().SystemNumber;
    for (std::size_t i = 0; i < 2 * ModelTexts; ++i) {
        const auto field = static_cast<TableField>(FirstModelText + i);
        if (!modelTextEdited_[FirstModelText + i]) continue;
        modelTextEdited_[FirstModelText + i] = false;
        const int place = static_cast<int>(i % ModelTexts);
        Guard("GetSystemTendos", [&] {
            if (i < ModelTexts) {
                StoreCoolingText(records_, system, place, Text(field));
            } else {
                StoreHeatingText(records_, system, place, Text(field));
            }
        });
        State().ProjectChanged = true;
    }
}

void PriceTable::NextSystem() {
    MoveSystem(1);
}

void PriceTable::PreviousSystem() {
    MoveSystem(SystemCount - 1);
}

void PriceTable::MoveSystem(int step) {
    GetSystemTendos();
    State().SystemNumber = (State().SystemNumber + step) % SystemCount;
    FieldChanged = true;
    SetSystemTendos();
}

}  // namespace tendo
