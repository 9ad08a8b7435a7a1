#pragma once

#include <QAbstractTableModel>

#include "materials/price_book.h"

namespace tendo {

/// The materials of a price book for a grid; each cell is asked for when it is shown.
class BookGrid : public QAbstractTableModel {
    Q_OBJECT
  public:
    BookGrid(PriceBook& book, QObject* parent);

    int rowCount(const QModelIndex& parent = {}) const override;
    int columnCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    bool setData(const QModelIndex& index, const QVariant& value, int role) override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;
    Qt::ItemFlags flags(const QModelIndex& index) const override;

    /// The rows came, went or changed their order.
    void Reset();
    /// Texts and marks of all rows are asked for anew.
    void ShowAnew();

  Q_SIGNALS:
    /// A text was typed into the current row.
    void Edited();

  private:
    PriceBook& book_;
};

}  // namespace tendo
