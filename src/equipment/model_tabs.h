#pragma once

#include <array>
#include <span>
#include <string>
#include <string_view>

#include "pricing/model_price_columns.h"

namespace tendo {

/// The screen's three modes are the sides of a system.
using SelectionMode = ModelSide;

/// The tabs of the model selection, in their order.
enum ModelTabIndex { TabAC, TabHP, TabGSHP, TabFurnace, TabBoiler, TabWH };
inline constexpr int ModelTabCount = 6;

enum class CellFormat { YesNo, Text, Money, Capacity, Efficiency, Number, Date };

/// One column of a tab's grid.
struct ModelGridColumn {
    std::string_view field;    // the column in the table; '|' parts names of which a table has one
    std::string_view heading;  // empty: the field's (first) name
    CellFormat format = CellFormat::Text;

    std::string_view Heading() const;
};

/// The three literals of a tab's query in one mode; empty where the tab isn't visible.
struct ModelQuery {
    std::string_view first, second, third;
};

/// One tab of the selection. Capacities in MBH; on the WH tab storage volumes in gallons.
struct ModelTab {
    std::string_view name;              // "AC"
    std::string_view table;             // "AC File"
    std::string_view gridName;          // "grdAC"
    std::string_view kindText;          // " AC Models", stands behind the count in the title
    std::string_view kind;              // "air conditioners", as messages name it
    std::string_view allRows;           // source after a change of database
    std::array<ModelQuery, 3> queries;  // by mode
    std::span<const ModelGridColumn> columns;

    bool VisibleIn(SelectionMode mode) const;
};

/// Tab 0 to 5.
const ModelTab& ModelTabAt(int tab);

/// A tab's lower and upper limit of capacity and lower limit of efficiency.
struct ModelLimits {
    float minimumCapacity = 0;
    float maximumCapacity = 999.9F;
    float minimumEfficiency = 0;
};

/// The query of a tab, joined of its literals and the plain texts of its limits.
std::string ModelQueryText(SelectionMode mode, int tab, const ModelLimits& limits);

/// "Selecting Cooling Models" ...; the water heater's differs on opening and after a tab click.
std::string_view SelectionModeText(SelectionMode mode, bool afterTabClick);

}  // namespace tendo
