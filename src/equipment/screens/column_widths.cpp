#include "equipment/screens/column_widths.h"

#include <QHeaderView>
#include <QTableView>
#include <algorithm>
#include <vector>

#include "platform/files/settings_store.h"
#include "platform/text/runtime_error.h"

namespace tendo {
namespace {

constexpr const char* section = "frmModelSelection";
constexpr int narrowest = 24;
constexpr int widest = 4000;

// Kept in tenths of a letter, so that they go with the size of the font.
int LetterWidth(const QTableView& grid) {
    return std::max(1, grid.fontMetrics().averageCharWidth());
}

}  // namespace

bool ApplyStoredWidths(QTableView& grid, const std::string& name) {
    const QString stored = QString::fromStdString(Settings().GetSetting(section, name));
    std::vector<int> widths;
    for (const QString& part : stored.split(','))
        widths.push_back(static_cast<int>(part.toLongLong() * LetterWidth(grid) / 10));
    const bool sensible = std::all_of(widths.begin(), widths.end(), [](int width) {
        return width >= narrowest && width <= widest;
    });
    if (!sensible || static_cast<int>(widths.size()) != grid.horizontalHeader()->count())
        return false;
    for (std::size_t column = 0; column < widths.size(); ++column)
        grid.setColumnWidth(static_cast<int>(column), widths[column]);
    return true;
}

void StoreWidths(const QTableView& grid, const std::string& name) {
    const int letter = LetterWidth(grid);
    QStringList parts;
    for (int column = 0; column < grid.horizontalHeader()->count(); ++column)
        parts << QString::number((grid.columnWidth(column) * 10 + letter - 1) / letter);
    try {
        Settings().SaveSetting(section, name, parts.join(',').toStdString());
    } catch (const RuntimeError&) {
        // A store that can't be written costs the widths, which is not worth a message.
    }
}

}  // namespace tendo
