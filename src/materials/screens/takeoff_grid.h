#pragma once

#include <QCheckBox>
#include <QScrollBar>
#include <QWidget>
#include <array>

#include "materials/screens/takeoff_help.h"
#include "materials/takeoff.h"
#include "platform/qt/fields.h"

class QGridLayout;

namespace tendo {

/// The fifteen rows of a takeoff with their scroll bar: shows the lines of the page, hands edits on
/// to them, and moves the page by keys and wheel.
class TakeoffGrid : public QWidget {
    Q_OBJECT
  public:
    TakeoffGrid(Takeoff& takeoff, QWidget* parent);
    ~TakeoffGrid() override;

    /// Puts the focus into the current row's quantity.
    void FocusCurrentRow();
    /// The field that the tab key reaches last.
    QWidget* LastField() { return Row(Rows - 1).fields.back(); }
    /// Part numbers instead of descriptions.
    void ShowPartNumbers(bool shown);

  Q_SIGNALS:
    /// A line was edited, or the page filled anew: sums may be others.
    void Changed();

  protected:
    bool eventFilter(QObject* watched, QEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;

  private:
    static constexpr int Rows = Takeoff::PageRows;
    struct RowWidgets {
        std::array<TextField*, TakeoffFieldCount> fields{};
        QCheckBox* accessory = nullptr;
        QCheckBox* tax = nullptr;
    };

    void AddHeads(QGridLayout* grid);
    void AddRow(QGridLayout* grid, int row);
    TextField* AddField(int row, int plan);
    QCheckBox* AddMark(int row, const char* name);
    void ChainRow(int row);
    void AddScrollBar(QGridLayout* grid);

    RowWidgets& Row(int row) { return rows_.at(static_cast<std::size_t>(row)); }
    int RowOf(const QObject* widget) const;
    void ShowPage();
    void ShowLine(int row);
    void ShowColors(int row);
    void ShowNames(int row);
    void TextTyped(int row, TakeoffField field, const QString& text);
    void FieldLeft(int row, TakeoffField field);
    void AccessoryClicked(int row, bool on);
    void TaxClicked(int row, bool on);
    void WantHelp(int row, TakeoffHelp help);
    bool KeyMoves(QWidget* from, const QKeyEvent& event);
    void MoveFrom(QWidget* from, const std::function<void()>& move);
    void ScrollBarMoved(int top);

    Takeoff& takeoff_;
    std::array<RowWidgets, Rows> rows_;
    QScrollBar* scrollBar_ = nullptr;
    bool filling_ = false;
    bool partNumbers_ = false;
    int wheel_ = 0;  // what is left of a turn, in eighths of a degree
};

}  // namespace tendo
