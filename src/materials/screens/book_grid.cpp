#include "materials/screens/book_grid.h"

#include "platform/qt/theme.h"

namespace tendo {
namespace {

// The marks beside the rows; each differs in form.
constexpr const char* markedSign = "✓";
constexpr const char* editedSign = "*";
constexpr const char* currentSign = "▸";

constexpr int longText = 18;  // letters that may not fit into a cell

bool IsMoney(int column) {
    return BookColumns.at(static_cast<std::size_t>(column)).money;
}

QVariant AlignmentOf(int column) {
    return QVariant(Qt::AlignVCenter | (IsMoney(column) ? Qt::AlignRight : Qt::AlignLeft));
}

}  // namespace

BookGrid::BookGrid(PriceBook& book, QObject* parent) : QAbstractTableModel(parent), book_(book) {}

int BookGrid::rowCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : book_.Rows().Count();
}

int BookGrid::columnCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : BookColumnCount;
}

QVariant BookGrid::data(const QModelIndex& index, int role) const {
    switch (role) {
        case Qt::DisplayRole:
            return QString::fromStdString(book_.Rows().CellText(index.row(), index.column()));
        case Qt::ToolTipRole: {
            const QString text = data(index, Qt::DisplayRole).toString();
            return text.size() > longText ? QVariant(text) : QVariant();
        }
        case Qt::EditRole:
            return QString::fromStdString(book_.Rows().EditText(index.row(), index.column()));
        case Qt::TextAlignmentRole:
            return AlignmentOf(index.column());
        case Qt::BackgroundRole:
            if (book_.IsMarked(index.row())) return Theme().selection;
            return index.row() == book_.Rows().CurrentRow() ? QVariant(Theme().figure) : QVariant();
        case Qt::ForegroundRole: {
            const bool negative =
                IsMoney(index.column()) && data(index, Qt::DisplayRole).toString().startsWith('-');
            return negative ? QVariant(Theme().negative) : QVariant();
        }
        default:
            return {};
    }
}

bool BookGrid::setData(const QModelIndex& index, const QVariant& value, int role) {
    if (role != Qt::EditRole || index.row() != book_.Rows().CurrentRow()) return false;
    if (!book_.SetCell(index.column(), value.toString().toStdString())) return false;
    Q_EMIT dataChanged(index, index);
    Q_EMIT Edited();
    return true;
}

QVariant BookGrid::headerData(int section, Qt::Orientation orientation, int role) const {
    if (orientation == Qt::Horizontal && section < BookColumnCount) {
        if (role == Qt::DisplayRole)
            return BookColumns.at(static_cast<std::size_t>(section)).heading;
        if (role == Qt::TextAlignmentRole) return AlignmentOf(section);
        return {};
    }
    if (role == Qt::TextAlignmentRole) return QVariant(Qt::AlignCenter);
    if (role != Qt::DisplayRole) return {};
    if (book_.IsMarked(section)) return QString::fromUtf8(markedSign);
    if (section != book_.Rows().CurrentRow()) return QString();
    return QString::fromUtf8(book_.Rows().IsEdited() ? editedSign : currentSign);
}

Qt::ItemFlags BookGrid::flags(const QModelIndex& index) const {
    return QAbstractTableModel::flags(index) | Qt::ItemIsEditable;
}

void BookGrid::Reset() {
    beginResetModel();
    endResetModel();
}

void BookGrid::ShowAnew() {
    if (rowCount() == 0) return;
    Q_EMIT dataChanged(index(0, 0), index(rowCount() - 1, BookColumnCount - 1));
    Q_EMIT headerDataChanged(Qt::Vertical, 0, rowCount() - 1);
}

}  // namespace tendo
