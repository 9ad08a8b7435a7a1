#pragma once

#include <QAbstractTableModel>
#include <functional>
#include <vector>

#include "equipment/model_selection.h"

class QHeaderView;

namespace tendo {

/// The rows of one tab for a grid, at the places where it shows them; each cell is asked for when
/// it is shown.
class ModelGrid : public QAbstractTableModel {
    Q_OBJECT
  public:
    ModelGrid(const ModelSelection& selection, int tab, QObject* parent);

    int rowCount(const QModelIndex& parent = {}) const override;
    int columnCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

    /// Other rows, or in another order. `change` makes them so, between the two notices a view
    /// needs.
    void Reset(const std::function<void()>& change);
    /// Widths, in pixels, that each column's heading and its first rows fit in.
    std::vector<int> FittingWidths(const QFont& font, const QHeaderView& head) const;

  private:
    QString Cell(int place, int column) const;
    bool IsNumber(int column) const;

    const ModelSelection& selection_;
    int tab_;
};

}  // namespace tendo
