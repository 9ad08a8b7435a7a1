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

void Add(const MaterialRow& row, LineSum& sum) {
    sum.cost += static_cast<double>(row.UnitCst) * row.ItemQty;
    sum.sale += static_cast<double>(row.SalePrice);
}

}  // namespace

void CatalogueToProjectMaterials() {
    std::vector<MaterialRow>& rows = Project().ProjectMaterials;
    for (std::size_t i = 0; i < SavedMaterialRowCount; ++i)
        StoreProjectRow(MaterialRow(), rows[i]);
    std::size_t next = 0;
    for (const MaterialRow& row : MaterialCatalogue())
        if (row.ItemQty >= 1 && next < SavedMaterialRowCount) StoreProjectRow(row, rows[next++]);
}

TakeoffSums SumTakeoff(std::span<const MaterialRow> rows) {
    TakeoffSums sums;
    for (const MaterialRow& row : rows) {
        if (row.Accessory == 0 && row.Tax == 1)
            Add(row, sums.taxable);
        else if (row.ItemQty > 0)
            Add(row, row.Accessory == 0 ? sums.nonTaxable : sums.accessories);
    }
    return sums;
}

void SumMaterials() {
    const TakeoffSums sums = SumTakeoff(MaterialCatalogue());
    SystemTendosRecord& tendos = Project().SystemTendos;
    tendos.TaxMatDealerCost = tendos.TaxMatDealerOverride = StoreSingle(sums.taxable.cost);
    tendos.TaxMatSalePrice = StoreSingle(sums.taxable.sale);
    tendos.NonTaxDealerCost = tendos.NonTaxDealerOverride = StoreSingle(sums.nonTaxable.cost);
    tendos.NonTaxSalePrice = StoreSingle(sums.nonTaxable.sale);
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

bool CommitOpenTakeoff() {
    const std::vector<MaterialRow> rows = Project().ProjectMaterials;
    CatalogueToProjectMaterials();
    if (rows == Project().ProjectMaterials) return false;
    SumMaterials();
    TakeMaterialListBases();
    return State().ProjectChanged = true;
}

}  // namespace tendo
