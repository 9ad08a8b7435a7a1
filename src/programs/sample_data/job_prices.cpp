#include "programs/sample_data/job_prices.h"

#include <string>

#include "platform/text/runtime_error.h"
#include "pricing/price_table.h"
#include "pricing/relations.h"

namespace tendo {
namespace {

/// What the estimator typed as the margin of all models together.
constexpr const char* ModelMargin = "25";

void SumMaterialRows(ProjectRecords& records) {
    SystemTendosRecord& table = records.SystemTendos;
    for (const MaterialRow& row : records.ProjectMaterials) {
        if (row.ItemQty <= 0 || row.Accessory != 0) continue;
        const float cost = StoreSingle(double{row.UnitCst} * row.ItemQty);
        (row.Tax == 1 ? table.TaxMatDealerCost : table.NonTaxDealerCost) += cost;
        (row.Tax == 1 ? table.TaxMatSalePrice : table.NonTaxSalePrice) += row.SalePrice;
    }
    table.TaxMatDealerOverride = table.TaxMatDealerCost;
    table.NonTaxDealerOverride = table.NonTaxDealerCost;
    table.TaxMatLDPrice = table.TaxMatSalePrice;
    table.NonTaxLDPrice = table.NonTaxSalePrice;
}

void SumLaborRows(ProjectRecords& records) {
    SystemTendosRecord& table = records.SystemTendos;
    for (const LaborRow& row : records.ProjectLabor) {
        table.LaborDealerCost += row.LaborCost;
        table.LaborSalePrice += row.LaborPrice;
    }
    table.LaborDealerOverride = table.LaborDealerCost;
    table.LaborLDPrice = table.LaborDealerOverride;  // the cost on purpose: labor has no list price
}

void SumListPrices(SystemTendosRecord& table) {
    table.TotalLDPrice = table.ModelLDPrice + table.TaxMatLDPrice + table.NonTaxLDPrice +
                         table.LaborLDPrice + table.TaxSalePrice;
}

}  // namespace

void PriceJob(ProjectRecords& records) {
    SumMaterialRows(records);
    SumLaborRows(records);
    SumListPrices(records.SystemTendos);
    PriceTable table(records);
    table.ShowMessage = [](const std::string&, const std::string& text) {
        throw RuntimeError(5, text);
    };
    table.Open();
    table.SetText(TableField::ModelGrossMargin, ModelMargin);
    table.Commit(TableField::ModelGrossMargin);
    table.Close();
    // The last look before handing the job over: it settles the margin of the Total row, which
    // the edit had still worked out from the former total.
    table.Open();
    table.Close();
}

}  // namespace tendo
