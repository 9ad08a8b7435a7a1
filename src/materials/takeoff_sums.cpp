#include "materials/takeoff_sums.h"

#include <algorithm>

#include "materials/material_catalogue.h"
#include "pricing/list_base.h"
#include "pricing/relations.h"
#include "project/program_state.h"

namespace tendo {
namespace {

/// A project row doesn't take its category from the book.
void StoreProjectRow(const MaterialRow& from, MaterialRow& row) {
    const auto category = row.Category;
    row = from;
    row.Category = category;
}

/// Cost and price of some lines, in double precision: a thousand lines stay exact to the cent.
struct LineSum {
    double cost = 0, sale = 0;

    void Add(const MaterialRow& row) {
        cost += static_cast<double>(row.UnitCst) * row.ItemQty;
        sale += static_cast<double>(row.SalePrice);
    }
};

}  // namespace

void CatalogueToProjectMaterials() {
    std::vector<MaterialRow>& rows = Project().ProjectMaterials;
    for (std::size_t i = 0; i < SavedMaterialRowCount; ++i)
        StoreProjectRow(MaterialRow(), rows[i]);
    std::size_t next = 0;
    for (const MaterialRow& row : MaterialCatalogue())
        if (row.ItemQty >= 1 && next < SavedMaterialRowCount) StoreProjectRow(row, rows[next++]);
}

void SumMaterials() {
    LineSum taxable, others;
    for (const MaterialRow& row : MaterialCatalogue()) {
        if (row.Accessory != 0) continue;
        if (row.Tax == 1)
            taxable.Add(row);
        else if (row.ItemQty > 0)
            others.Add(row);
    }
    SystemTendosRecord& tendos = Project().SystemTendos;
    tendos.TaxMatDealerCost = tendos.TaxMatDealerOverride = StoreSingle(taxable.cost);
    tendos.TaxMatSalePrice = StoreSingle(taxable.sale);
    tendos.NonTaxDealerCost = tendos.NonTaxDealerOverride = StoreSingle(others.cost);
    tendos.NonTaxSalePrice = StoreSingle(others.sale);
}

void TakeMaterialListBases() {
    SystemTendosRecord& tendos = Project().SystemTendos;
    tendos.TaxMatLDPrice = tendos.TaxMatSalePrice;
    tendos.NonTaxLDPrice = tendos.NonTaxSalePrice;
    RebuildTotalListBase(tendos);
}

void CommitTakeoff() {
    const std::vector<MaterialRow> rows = Project().ProjectMaterials;
    const SystemTendosRecord prices = Project().SystemTendos;
    CatalogueToProjectMaterials();
    SumMaterials();
    TakeMaterialListBases();
    if (rows != Project().ProjectMaterials || prices != Project().SystemTendos)
        State().ProjectChanged = true;
}

}  // namespace tendo
