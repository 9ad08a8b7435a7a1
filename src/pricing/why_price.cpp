#include "pricing/why_price.h"

#include "platform/text/runtime_error.h"
#include "pricing/price_reason_details.h"

namespace tendo {

namespace {

bool IsTaxed(const ProjectRecords& records, int priceRow) {
    if (priceRow == price_row::Labor) return records.GPDProjectFormat.TaxLabor;
    return priceRow != price_row::NonTax;
}

PriceReason WhyCustomersRow(const PriceTable& table, const ProjectRecords& records,
                            TableField field) {
    PriceReason reason{.title = FieldTitle(field), .figure = table.Text(field)};
    const int row = Describe(field).row;
    reason.rule = std::string("The price of all ") + RowTitle(row) + ", before tax";
    reason.note = IsTaxed(records, row)
                      ? "Taxed at " + table.Text(TableField::TaxPercentage) + " percent."
                      : "Not taxed.";
    return reason;
}

/// A total that was entered is told without what it earns.
PriceReason WhyCustomersTotal(const PriceTable& table, const ProjectRecords& records) {
    PriceReason reason = WhyTotal(table, records, TableField::TotalSalePrice);
    if (table.TraceOf(price_row::Total).origin == PriceOrigin::FromRows) return reason;
    reason.rule = "The price of the whole job, tax included";
    reason.worked.clear();
    reason.note.clear();
    return reason;
}

}  // namespace

PriceReason WhyPrice(const PriceTable& table, const ProjectRecords& records, TableField field) {
    try {
        if (field <= TableField::LaborSalePrice) return WhyRowPrice(table, records, field);
        return WhyTotal(table, records, field);
    } catch (const RuntimeError& error) {
        return {.title = FieldTitle(field),
                .figure = table.Text(field),
                .rule = "Its calculation has no result: " + error.Description()};
    }
}

PriceReason WhyCustomerPrice(const PriceTable& table, const ProjectRecords& records,
                             TableField field) {
    if (field <= TableField::LaborSalePrice) return WhyCustomersRow(table, records, field);
    if (field == TableField::TotalSalePrice) return WhyCustomersTotal(table, records);
    return WhyPrice(table, records, field);
}

}  // namespace tendo
