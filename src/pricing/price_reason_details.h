#pragma once

#include "pricing/price_formulas.h"
#include "pricing/price_reason.h"
#include "pricing/price_table.h"

namespace tendo {

/// Why a field of one of the four rows shows what it shows.
PriceReason WhyRowPrice(const PriceTable& table, const ProjectRecords& records, TableField field);

/// Why a field of the tax, the totals or the earnings shows what it shows.
PriceReason WhyTotal(const PriceTable& table, const ProjectRecords& records, TableField field);

/// A figure of the table as a part: its title, its text, its source.
PriceReason::Part TablePart(const PriceTable& table, TableField field, std::string source);

/// How a sale price came about that follows from this percentage.
PriceOrigin CauseOf(FieldKind percentage);

/// What a line's sale price comes from; "otherwise" for one neither entered nor calculated.
const char* PriceSourceOf(PriceOrigin origin, const char* otherwise);

/// True when a percentage field shows this percentage.
bool ShowsPercent(const PriceTable& table, TableField field, float percent);

}  // namespace tendo
