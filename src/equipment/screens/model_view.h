#pragma once

#include <QTableView>
#include <string>

#include "equipment/model_selection.h"

namespace tendo {

class FindLabel;
class ModelGrid;
class ModelHead;

/// The grid of one tab. It shows the rows that the selection holds, by the column last clicked, and
/// tells what is done with them. A row keeps its number whatever place it is shown at.
class ModelView : public QTableView {
    Q_OBJECT
    Q_PROPERTY(QString sorting READ Sorting)
    Q_PROPERTY(QString typed READ Typed)
  public:
    ModelView(ModelSelection& selection, int tab, QWidget* parent);

    /// The tab's query ran anew; `otherDatabase` makes columns that the user never set fit again.
    void Refill(bool otherDatabase);
    /// Shows the selection's current row as the current one, in the first column.
    void ShowCurrentRow();

    /// "by Price", "by Price, from the highest"; empty in the order of the query.
    QString Sorting() const;
    /// What was typed to find a model; empty after a pause.
    QString Typed() const;

    /// Keeps the widths that the user set in the settings store.
    void KeepWidths() const;

  Q_SIGNALS:
    /// The current row is another one; no choice.
    void RowChanged(int row);
    /// A row was clicked, or marked by the space bar.
    void RowClicked(int row);
    /// Return, or a double click: the row is to be taken.
    void RowChosen(int row);
    void SortingChanged();

  protected:
    void keyPressEvent(QKeyEvent* event) override;
    void keyboardSearch(const QString& text) override;
    QModelIndex moveCursor(CursorAction action, Qt::KeyboardModifiers modifiers) override;
    void focusOutEvent(QFocusEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

  private:
    void PrepareLook();
    void Connect();
    int RowOf(const QModelIndex& index) const;
    void ApplyWidths();
    std::string WidthsName() const;
    void SortBy(int column);
    void ShowSorting();
    void Find(const QString& text);
    void EndFind();

    ModelSelection& selection_;
    int tab_;
    ModelGrid* grid_ = nullptr;
    ModelHead* head_ = nullptr;
    FindLabel* lblFind_ = nullptr;  // made when it is first needed
    bool showing_ = false;          // what changes now is the program's doing
    bool ownWidths_ = false;        // the user's, from now or before
    bool widthsFitted_ = false;
};

}  // namespace tendo
