#include <utility>

#include "pricing/price_reason_details.h"
#include "pricing/relations.h"

namespace tendo {

namespace {

using Field = TableField;
using Part = PriceReason::Part;

/// "$1,000.00 + $100.00", of figures as they are shown.
std::string SumOf(const std::vector<Part>& parts) {
    std::string sum;
    for (const Part& part : parts)
        sum += (sum.empty() ? "" : " + ") + part.value;
    return sum;
}

std::vector<Part> RowParts(const PriceTable& table, FieldKind column, const char* source) {
    std::vector<Part> parts;
    for (int row = price_row::Model; row <= price_row::Labor; ++row)
        parts.push_back(TablePart(table, RowField(row, column), source));
    return parts;
}

/// What the total is measured by: sub-total and tax.
std::vector<Part> TaxedSubTotal(const PriceTable& table) {
    return {TablePart(table, Field::SubTotalSalePrice, "models, materials and labor"),
            TablePart(table, Field::TaxSalePrice, "the tax percentage of the taxable amount")};
}

void AddUp(PriceReason& reason, const std::string& figure) {
    reason.worked = SumOf(reason.parts) + " = " + figure;
}

/// One figure of the totals, told by its own function.
using Tell = void (*)(PriceReason&, const PriceTable&, const ProjectRecords&);

void TellTax(PriceReason& reason, const PriceTable& table, const ProjectRecords& records) {
    const float tax = records.SystemTendos.TaxDealerCost;
    reason.rule = "Tax percentage ÷ 100 × taxable amount, rounded to cents";
    reason.worked = table.Text(Field::TaxPercentage) + " ÷ 100 × " +
                    table.Text(Field::TaxableAmount) + " = " + MoneyText(tax);
    reason.parts = {TablePart(table, Field::TaxPercentage, "entered, or saved with the project"),
                    TablePart(table, Field::TaxableAmount, "")};
}

void TellTaxCost(PriceReason& reason, const PriceTable& table, const ProjectRecords& records) {
    TellTax(reason, table, records);
    reason.note = "Kept unrounded as " + ExactPercentText(records.SystemTendos.TaxDealerCost) +
                  ". The tax is neither cost nor profit; the total dealer cost leaves it out.";
}

void TellTaxOverride(PriceReason& reason, const PriceTable&, const ProjectRecords&) {
    reason.rule = "Kept with the project; no price is calculated with it";
}

void TellTaxPercentage(PriceReason& reason, const PriceTable&, const ProjectRecords&) {
    reason.rule = "Entered, or saved with the project";
    reason.note = "A new project begins with 8.25 percent.";
}

void TellTaxableAmount(PriceReason& reason, const PriceTable& table,
                       const ProjectRecords& records) {
    const bool laborToo = records.GPDProjectFormat.TaxLabor;
    reason.rule = laborToo ? "Models + taxable materials + labor" : "Models + taxable materials";
    reason.parts = {TablePart(table, Field::ModelSalePrice, "taxed"),
                    TablePart(table, Field::TaxMatSalePrice, "taxed")};
    if (laborToo) reason.parts.push_back(TablePart(table, Field::LaborSalePrice, "taxed"));
    AddUp(reason, reason.figure);
    reason.parts.push_back(TablePart(table, Field::NonTaxSalePrice, "never taxed"));
    if (!laborToo)
        reason.parts.push_back(
            TablePart(table, Field::LaborSalePrice, "not taxed, by the general project data"));
}

void TellSubTotal(PriceReason& reason, const PriceTable& table, const ProjectRecords&) {
    reason.rule = "The sale prices of the four rows, added up";
    reason.parts = RowParts(table, FieldKind::SalePrice, "");
    AddUp(reason, reason.figure);
}

void TellTotalCost(PriceReason& reason, const PriceTable& table, const ProjectRecords&) {
    reason.rule = "The dealer costs of the four rows, added up";
    reason.parts = RowParts(table, FieldKind::DealerCost, "");
    AddUp(reason, reason.figure);
}

void TellTotalOverride(PriceReason& reason, const PriceTable& table, const ProjectRecords&) {
    reason.rule = "Each row's override, or its dealer cost where it has none, added up";
    for (int row = price_row::Model; row <= price_row::Labor; ++row) {
        const bool none = table.Value(RowField(row, FieldKind::DealerOverride)) == 0;
        const Field field = RowField(row, none ? FieldKind::DealerCost : FieldKind::DealerOverride);
        reason.parts.push_back(TablePart(table, field, none ? "no override" : "in its place"));
    }
    AddUp(reason, reason.figure);
}

void TellProfit(PriceReason& reason, const PriceTable& table, const ProjectRecords&) {
    const bool overrides = table.Value(Field::TotalDealerOverride) != 0;
    const Field cost = overrides ? Field::TotalDealerOverride : Field::TotalDealerCost;
    reason.rule = "Sub-total − all costs";
    reason.worked =
        table.Text(Field::SubTotalSalePrice) + " − " + table.Text(cost) + " = " + reason.figure;
    reason.parts = {TablePart(table, Field::SubTotalSalePrice, "models, materials and labor"),
                    TablePart(table, cost, "overrides counted where there are some")};
}

void TellExtraProfit(PriceReason& reason, const PriceTable& table, const ProjectRecords&) {
    reason.rule = "Total − sub-total − tax";
    reason.worked = table.Text(Field::TotalSalePrice) + " − " +
                    table.Text(Field::SubTotalSalePrice) + " − " + table.Text(Field::TaxSalePrice) +
                    " = " + reason.figure;
    reason.parts = TaxedSubTotal(table);
    reason.parts.push_back(TablePart(table, Field::TotalSalePrice, "what the customer pays"));
}

void TellTotal(PriceReason& reason, const PriceTable& table, const ProjectRecords&) {
    const PriceTrace& trace = table.TraceOf(price_row::Total);
    reason.parts = TaxedSubTotal(table);
    const std::string untouched =
        MoneyText(static_cast<double>(table.Value(Field::SubTotalSalePrice)) +
                  table.Value(Field::TaxSalePrice));
    const std::string sum = SumOf(reason.parts) + " = " + untouched;
    switch (trace.origin) {
        case PriceOrigin::FromRows:
            reason.rule = "Sub-total + tax";
            reason.worked = sum;
            return;
        case PriceOrigin::FromSubTotal:
            reason.rule = "A total of zero was filled in from the sub-total";
            break;
        case PriceOrigin::FromMargin: {
            const WorkedFormula formula =
                SaleFromMarginFormula(trace.base, trace.percent, "(sub-total + tax)");
            reason.rule = "From the total gross margin: " + formula.words;
            reason.worked = formula.figures;
            break;
        }
        case PriceOrigin::Entered:
            reason.rule = "Entered; it stands until a price of a row is edited";
            break;
        default:
            reason.rule = "As saved with the project; it stands until a price of a row is edited";
    }
    if (untouched != reason.figure) reason.note = "Sub-total and tax make " + untouched + ".";
}

/// The two ways to a total margin: the tax taken off the total first, or left in it.
void TellTotalMargin(PriceReason& reason, const PriceTable& table, const ProjectRecords&) {
    reason.parts = TaxedSubTotal(table);
    reason.parts.push_back(TablePart(table, Field::TotalSalePrice, "what the customer pays"));
    const PriceTrace& trace = table.TraceOf(price_row::Total);
    if (trace.origin == PriceOrigin::FromMargin &&
        !IsPercentEdit(table.Value(Field::TotalGrossMargin), trace.percent)) {
        const WorkedFormula formula =
            SaleFromMarginFormula(trace.base, trace.percent, "(sub-total + tax)");
        reason.rule = "Entered; the total follows from it: " + formula.words;
        reason.worked = formula.figures;
        return;
    }
    const float subTotal = table.Value(Field::SubTotalSalePrice);
    const float total = table.Value(Field::TotalSalePrice);
    const float untaxed =
        static_cast<float>(static_cast<double>(total) - table.Value(Field::TaxSalePrice));
    if (ShowsPercent(table, Field::TotalGrossMargin, GrossMarginFromSale(subTotal, untaxed))) {
        reason.rule = "(total without tax − sub-total) ÷ total without tax × 100";
        reason.worked = GrossMarginFormula(subTotal, untaxed).figures;
        return;
    }
    reason.rule = "(total − sub-total) ÷ total × 100, the tax left in the total";
    reason.worked = GrossMarginFormula(subTotal, total).figures;
    if (!ShowsPercent(table, Field::TotalGrossMargin, GrossMarginFromSale(subTotal, total)))
        reason.note = "Calculated before the total followed the last edit of a row.";
}

struct TotalTeller {
    Field field;
    Tell tell;
};
constexpr TotalTeller Tellers[] = {
    {Field::TaxDealerCost, TellTaxCost},
    {Field::TaxDealerOverride, TellTaxOverride},
    {Field::TaxSalePrice, TellTax},
    {Field::TotalDealerCost, TellTotalCost},
    {Field::TotalDealerOverride, TellTotalOverride},
    {Field::TotalGrossMargin, TellTotalMargin},
    {Field::TotalSalePrice, TellTotal},
    {Field::SubTotalSalePrice, TellSubTotal},
    {Field::TaxableAmount, TellTaxableAmount},
    {Field::TaxPercentage, TellTaxPercentage},
    {Field::Profit, TellProfit},
    {Field::SuperProfit, TellExtraProfit},
};

}  // namespace

Part TablePart(const PriceTable& table, TableField field, std::string source) {
    return {FieldTitle(field), table.Text(field), std::move(source)};
}

bool ShowsPercent(const PriceTable& table, TableField field, float percent) {
    return PercentText(table.Value(field)) == PercentText(percent);
}

PriceReason WhyTotal(const PriceTable& table, const ProjectRecords& records, TableField field) {
    PriceReason reason{.title = FieldTitle(field), .figure = table.Text(field)};
    for (const TotalTeller& teller : Tellers)
        if (teller.field == field) teller.tell(reason, table, records);
    return reason;
}

}  // namespace tendo
