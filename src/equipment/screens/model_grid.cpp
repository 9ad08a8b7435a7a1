#include "equipment/screens/model_grid.h"

#include <QFontMetrics>

#include "platform/qt/theme.h"

namespace tendo {
namespace {

constexpr int measuredRows = 40;  // the widths come from these; all rows of a table look alike
constexpr int widestCell = 56;    // letters
constexpr int cellPadding = 26;

}  // namespace

ModelGrid::ModelGrid(const ModelSelection& selection, int tab, QObject* parent)
    : QAbstractTableModel(parent), selection_(selection), tab_(tab) {}

int ModelGrid::rowCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : selection_.RowCount(tab_);
}

int ModelGrid::columnCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : selection_.ColumnCount(tab_);
}

bool ModelGrid::IsNumber(int column) const {
    const CellFormat format = selection_.ColumnFormat(tab_, column);
    return format != CellFormat::Text && format != CellFormat::YesNo && format != CellFormat::Date;
}

QVariant ModelGrid::data(const QModelIndex& index, int role) const {
    const auto text = [&] {
        return QString::fromStdString(selection_.CellText(tab_, index.row(), index.column()));
    };
    const bool yes =
        selection_.ColumnFormat(tab_, index.column()) == CellFormat::YesNo && role != 0;
    switch (role) {
        case Qt::DisplayRole:
            return text();
        case Qt::TextAlignmentRole:
            return QVariant(Qt::AlignVCenter |
                            (IsNumber(index.column()) ? Qt::AlignRight : Qt::AlignLeft));
        case Qt::ForegroundRole:
            return yes && text() == "Yes" ? QVariant(Theme().water) : QVariant();
        case Qt::FontRole: {
            if (!yes || text() != "Yes") return {};
            QFont font = BodyFont();
            font.setWeight(QFont::DemiBold);
            return font;
        }
        default:
            return {};
    }
}

QVariant ModelGrid::headerData(int section, Qt::Orientation orientation, int role) const {
    if (orientation != Qt::Horizontal || section >= columnCount()) return {};
    const std::string_view heading = selection_.ColumnHeading(tab_, section);
    if (role == Qt::DisplayRole)
        return QString::fromUtf8(heading.data(), static_cast<qsizetype>(heading.size()));
    if (role == Qt::TextAlignmentRole)
        return QVariant(Qt::AlignVCenter | (IsNumber(section) ? Qt::AlignRight : Qt::AlignLeft));
    return {};
}

void ModelGrid::Reset(const std::function<void()>& change) {
    beginResetModel();
    change();
    endResetModel();
}

std::vector<int> ModelGrid::FittingWidths(const QFont& font, const QFont& headingFont) const {
    const QFontMetrics cells(font), headings(headingFont);
    std::vector<int> widths;
    for (int column = 0; column < columnCount(); ++column)
        widths.push_back(headings.horizontalAdvance(
            headerData(column, Qt::Horizontal, Qt::DisplayRole).toString()));
    for (int row = 0; row < std::min(rowCount(), measuredRows); ++row)
        for (int column = 0; column < columnCount(); ++column) {
            int& width = widths[static_cast<std::size_t>(column)];
            width = std::max(width, cells.horizontalAdvance(QString::fromStdString(
                                        selection_.CellText(tab_, row, column))));
        }
    for (int& width : widths)
        width = std::min(width, widestCell * cells.averageCharWidth()) + cellPadding;
    return widths;
}

}  // namespace tendo
