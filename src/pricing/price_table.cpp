#include "pricing/price_table.h"

#include <utility>

#include "platform/text/number_text.h"
#include "platform/text/runtime_error.h"
#include "pricing/relations.h"

namespace tendo {

namespace {

constexpr const char* MessageTitle = "Tendo";

std::size_t Index(TableField field) {
    return static_cast<std::size_t>(field);
}

}  // namespace

PriceTable::PriceTable(ProjectRecords& records) : records_(records) {}

const std::string& PriceTable::Text(TableField field) const {
    return texts_[Index(field)];
}

float PriceTable::Value(TableField field) const {
    return values_[Index(field)];
}

const PriceTrace& PriceTable::TraceOf(int priceRow) const {
    return traces_.at(static_cast<std::size_t>(priceRow - 1));
}

void PriceTable::Trace(int priceRow, const PriceTrace& trace) {
    traces_.at(static_cast<std::size_t>(priceRow - 1)) = trace;
}

void PriceTable::SetText(TableField field, const std::string& text) {
    if (text == Text(field)) return;
    modelTextEdited_[Index(field)] = true;
    const FieldKind kind = Describe(field).kind;
    if (kind == FieldKind::SalePrice || kind == FieldKind::TotalSalePrice)
        Trace(Describe(field).row, {.origin = PriceOrigin::Entered});
    Guard(std::string(Describe(field).name) + "_Change", [&] { Write(field, text); });
}

void PriceTable::Write(TableField field, std::string text) {
    std::string& held = texts_[Index(field)];
    if (held == text) return;
    held = std::move(text);
    values_[Index(field)] = ValueOfText(held);
    if (TextChanged) TextChanged(field);
    RunChange(field);
}

void PriceTable::Show(TableField field, float value, std::string_view picture) {
    Write(field, FormatNumber(value, picture));
}

void PriceTable::ShowMoney(TableField field, double value) {
    Show(field, StoreSingle(value), MoneyPicture);
}

void PriceTable::RunChange(TableField field) {
    switch (Describe(field).kind) {
        case FieldKind::DealerCost:
            return RecalcTotalDealerCost();
        case FieldKind::DealerOverride:
        case FieldKind::SalePrice:
            return MarkChanged(field);
        case FieldKind::GrossMargin:
        case FieldKind::PriceMarkup:
        case FieldKind::ListDiscount:
        case FieldKind::TotalGrossMargin:
            MarkChanged(field);
            return KeepExact(field);
        case FieldKind::TotalDealerCost:
            MarkChanged(field);
            return TendoCalculations(price_field::DealerCost, price_row::Total);
        case FieldKind::TotalDealerOverride:
            MarkChanged(field);
            return TendoCalculations(price_field::DealerOverride, price_row::Total);
        case FieldKind::SubTotalSalePrice:
            TendoCalculations(price_field::SalePrice, price_row::Total);
            RecalcTax();
            RecalcTotalSalePrice();
            return RecalcProfit();
        case FieldKind::TaxSalePrice:
            return RecalcProfit();
        case FieldKind::Profit:
            return ProfitChanged();
        case FieldKind::TaxPercentage:
        case FieldKind::TotalSalePrice:
        case FieldKind::ModelQty:
            FieldChanged = true;
            return;
        default:
            return;
    }
}

void PriceTable::MarkChanged(TableField field) {
    FieldChanged = true;
    CurrentPriceRow = Describe(field).row;
}

float& PriceTable::Exact(TableField field) {
    const FieldDescription& description = Describe(field);
    const auto row = static_cast<std::size_t>(description.row - 1);
    if (description.kind == FieldKind::PriceMarkup) return EditedPriceMarkup[row];
    if (description.kind == FieldKind::ListDiscount) return EditedListDiscount[row];
    return EditedGrossMargin[row];
}

void PriceTable::KeepExact(TableField field) {
    const std::string& text = Text(field);
    if (text.empty() || text == "-") return;
    const FieldDescription& description = Describe(field);
    float& exact = Exact(field);
    const bool ofModelRow = description.row == price_row::Model;
    const float reference = ofModelRow ? records_.SystemTendos.*description.column : exact;
    if (IsPercentEdit(Value(field), reference)) {
        exact = Value(field);
    } else if (IsPercentEdit(exact, reference)) {
        // What stands near the stored percentage means that one, also when nothing was edited since
        // opening.
        exact = reference;
    }
}

void PriceTable::ProfitChanged() {
    const float subTotal = Value(TableField::SubTotalSalePrice);
    if (Value(TableField::TotalSalePrice) == 0 && subTotal != 0) {
        Trace(price_row::Total, {.origin = PriceOrigin::FromSubTotal});
        Show(TableField::TotalSalePrice, subTotal, MoneyPicture);
    }
    // Here the tax is taken off the total first; the Total row's own recalculation leaves it in.
    const float untaxed = StoreSingle(static_cast<double>(Value(TableField::TotalSalePrice)) -
                                      Value(TableField::TaxSalePrice));
    Show(TableField::TotalGrossMargin, GrossMarginFromSale(subTotal, untaxed), PercentPicture);
}

void PriceTable::Attempt(const char* sub, const std::function<void()>& statement) {
    try {
        statement();
    } catch (const RuntimeError& error) {
        if (!ShowMessage) return;
        ShowMessage(MessageTitle, "In " + std::string(sub) + ", Error #" +
                                      std::to_string(error.Number()) + " = " + error.Description());
    }
}

void PriceTable::Guard(const std::string& sub, const std::function<void()>& procedure) {
    try {
        procedure();
    } catch (const RuntimeError&) {
        if (ShowMessage)
            ShowMessage(MessageTitle, "TENDO encountered an error while in Sub " + sub);
    }
}

void RecalcClosedPriceTable(ProjectRecords& records) {
    PriceTable table(records);
    table.Open();
    table.RecalcTotalSalePrice();
    table.RecalcProfit();
    table.Close();
}

}  // namespace tendo
