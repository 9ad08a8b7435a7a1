#include "benchmarks.h"
#include "measure.h"
#include "pricing/price_table.h"

namespace tendo::bench {
namespace {

constexpr int Edits = 2000;

/// A project with all four rows filled.
ProjectRecords PricedProject() {
    ProjectRecords records;
    ResetProjectData(records);
    SystemTendosRecord& table = records.SystemTendos;
    table.TaxMatDealerCost = table.TaxMatDealerOverride = 1184.35F;
    table.NonTaxDealerCost = table.NonTaxDealerOverride = 212;
    table.LaborDealerCost = table.LaborDealerOverride = 1560;
    table.ModelSalePrice = 10796;
    table.TaxMatSalePrice = 1579.13F;
    table.NonTaxSalePrice = 265;
    table.LaborSalePrice = 2532.5F;
    records.ModelInfo[0].CLGModelDealerCost = 7420;
    records.CLGModelData[0].ModelQty = 1;
    return records;
}

}  // namespace

bool PriceCommit() {
    ProjectRecords records = PricedProject();
    PriceTable table(records);
    table.Open();
    const auto edits = [&] {
        for (int i = 0; i < Edits; ++i) {
            table.SetText(TableField::LaborGrossMargin, i % 2 ? "38.4" : "31.3");
            table.Commit(TableField::LaborGrossMargin);
        }
    };
    const double microseconds = Medians({edits}, 11)[0] * 1e6 / Edits;
    return Report("commit of a price field with its cascades (50 us)", microseconds, 50, "us", 1.0,
                  true);
}

}  // namespace tendo::bench
