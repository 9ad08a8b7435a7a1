#pragma once

#include <QPointer>
#include <QStyledItemDelegate>
#include <functional>

#include "materials/price_book.h"

namespace tendo {

/// Edits the cells of the price book's grid: a line of text, and for a category a drop-down of the
/// categories in which another name may be typed as well.
class BookCellEditor : public QStyledItemDelegate {
    Q_OBJECT
  public:
    BookCellEditor(const PriceBook& book, QObject* parent);

    QWidget* createEditor(QWidget* parent, const QStyleOptionViewItem& option,
                          const QModelIndex& index) const override;
    void setEditorData(QWidget* editor, const QModelIndex& index) const override;
    void setModelData(QWidget* editor, QAbstractItemModel* model,
                      const QModelIndex& index) const override;
    void updateEditorGeometry(QWidget* editor, const QStyleOptionViewItem& option,
                              const QModelIndex& index) const override;
    void paint(QPainter* painter, const QStyleOptionViewItem& option,
               const QModelIndex& index) const override;

    bool IsEditing() const { return editor_; }
    /// Takes what stands in the open editor, if there is one, and closes it.
    void Finish();

  protected:
    void initStyleOption(QStyleOptionViewItem* option, const QModelIndex& index) const override;
    bool eventFilter(QObject* editor, QEvent* event) override;

  private:
    QWidget* MakeCategoryEditor(QWidget* parent) const;

    const PriceBook& book_;
    mutable QPointer<QWidget> editor_;
    mutable bool closesByKey_ = false;  // Return closes the editor without our help
};

}  // namespace tendo
