#include "equipment/screens/model_grid.h"

#include <QFontMetrics>
#include <QHeaderView>

#include "platform/qt/theme.h"

namespace tendo {
namespace {

constexpr int measuredRows = 24;  // the widths come from these; all rows of a table look alike
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

QString ModelGrid::Cell(int place, int column) const {
    return QString::fromStdString(selection_.CellText(tab_, selection_.RowAt(tab_, place), column));
}

QVariant ModelGrid::data(const QModelIndex& index, int role) const {
    const auto text = [&] { return Cell(index.row(), index.column()); };
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

/// Only the longest text of a column is measured: measuring all would take longer than reading
/// them.
std::vector<int> ModelGrid::FittingWidths(const QFont& font, const QHeaderView& head) const {
    const QFontMetrics cells(font);
    const auto count = static_cast<std::size_t>(columnCount());
    std::vector<QString> longest(count);
    for (int row = 0; row < std::min(rowCount(), measuredRows); ++row)
        for (std::size_t column = 0; column < count; ++column) {
            const QString text = Cell(row, static_cast<int>(column));
            if (text.size() > longest[column].size()) longest[column] = text;
        }
    std::vector<int> widths;
    for (std::size_t column = 0; column < count; ++column) {
        const int text = std::min(cells.horizontalAdvance(longest[column]),
                                  widestCell * cells.averageCharWidth());
        widths.push_back(
            std::max(text + cellPadding, head.sectionSizeHint(static_cast<int>(column))));
    }
    return widths;
}

}  // namespace tendo
