#pragma once

#include <string>

#include "equipment/model_tabs.h"
#include "platform/database/database.h"
#include "project/project_records.h"

namespace tendo {

/// A row read from a model table, ready to go into a project: the record of its mode is filled.
struct ChosenModel {
    CLGModelRecord cooling;
    HTGModelRecord heating;
    WHModelRecord waterHeater;
    std::string database;      // goes into `DB`
    std::string manufacturer;  // goes into `Manuf`
    float dealerCost = 0;
    float listPrice = 0;
};

/// Reads the current row of a tab as the mode takes it; null and missing columns give blank and 0,
/// and so do texts in columns of figures. RuntimeError for a row whose prices can't be read: 3265
/// without the column, 13 for a text that is no number, 6 out of range.
ChosenModel ReadChosenModel(SelectionMode mode, int tab, const Recordset& row);

/// Takes the system's old model of the mode out of the price table and puts the new one, its prices
/// and its fields in.
void ApplyChosenModel(SelectionMode mode, const ChosenModel& model, ProjectRecords& records,
                      int system);

}  // namespace tendo
