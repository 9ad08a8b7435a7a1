#pragma once

#include "project/project_records.h"

namespace tendo {

/// Commits the selections: the project's rows become the catalogue's rows with a quantity of 1 or
/// more, in order, the first 1000 of them. A row's category isn't kept.
void CatalogueToProjectMaterials();

/// Sums the catalogue into the costs, overrides and sale prices of the project's taxable and other
/// materials, in dollars. Accessories count nowhere; a taxable row counts whatever its quantity.
/// RuntimeError 6 beyond the range of a float.
void SumMaterials();

/// Measures the list discounts of both material rows against their sale prices.
void TakeMaterialListBases();

/// What closing the takeoff does to the project's records, before the open screens are refilled:
/// commit, sums, list bases. The project counts as changed when a row or a price changed.
void CommitTakeoff();

}  // namespace tendo
