#pragma once

#include <QWidget>
#include <array>

#include "equipment/model_price_line.h"

class QGridLayout;

namespace tendo {

class TextField;

/// The price lines of a system's three models, one below the other.
class ModelPriceGrid : public QWidget {
    Q_OBJECT
  public:
    explicit ModelPriceGrid(QWidget* parent);

    /// Fills all lines from the records of a system (0 to 4).
    void Show(int system);

  private:
    static constexpr int SideCount = 3;
    struct Line {
        ModelPriceLine prices;
        std::array<TextField*, ModelPriceLine::ColumnCount> fields{};
    };

    void AddHeadings(QGridLayout* grid);
    void AddLine(QGridLayout* grid, int side);
    void ShowTexts(Line& line, FieldKind edited, bool mark);
    void Commit(Line& line, FieldKind column);
    void WantHelp(const Line& line, FieldKind column);
    void WantWhy(const Line& line, FieldKind column);
    void WantColumnHelp(FieldKind column);

    std::array<Line, SideCount> lines_;
    bool showing_ = false;
};

}  // namespace tendo
