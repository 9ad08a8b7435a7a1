#pragma once

#include <span>

#include "project/project_records.h"

namespace tendo {

/// Cost and price of some lines, in dollars; in double precision, so that a thousand lines stay
/// exact to the cent.
struct LineSum {
    double cost = 0, sale = 0;
};

/// What a takeoff adds up to. Accessories enter no total of the project, and a taxable row counts
/// whatever its quantity.
struct TakeoffSums {
    LineSum taxable, nonTaxable;
    LineSum accessories;  // those with a quantity
};
TakeoffSums SumTakeoff(std::span<const MaterialRow> rows);

/// Commits the selections: the project's rows become the catalogue's rows with a quantity of 1 or
/// more, in order, the first 1000 of them. A row's category isn't kept.
void CatalogueToProjectMaterials();

/// Sums the catalogue into the costs, overrides and sale prices of the project's taxable and other
/// materials, in dollars. RuntimeError 6 beyond the range of a float.
void SumMaterials();

/// Measures the list discounts of both material rows against their sale prices.
void TakeMaterialListBases();

/// What closing the takeoff does to the project's records, before the open screens are refilled:
/// commit, sums, list bases. The project counts as changed when a row or a price changed.
void CommitTakeoff();

/// The same while the takeoff stays open, for a save or a print: does nothing, and gives false, as
/// long as the project's rows are what is selected. So an override that was typed on the price
/// table meanwhile stays.
bool CommitOpenTakeoff();

}  // namespace tendo
