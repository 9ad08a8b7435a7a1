#pragma once

#include "pricing/price_reason.h"
#include "pricing/price_table.h"

namespace tendo {

/// Why a field of the price table (txtModelDealerCost to txtSuperProfit) shows what it shows; a
/// title and a figure only for a field of the lower half. The table must be open.
PriceReason WhyPrice(const PriceTable& table, const ProjectRecords& records, TableField field);

/// The same for the customer's eyes: no costs, and nothing that they follow from.
PriceReason WhyCustomerPrice(const PriceTable& table, const ProjectRecords& records,
                             TableField field);

}  // namespace tendo
