#pragma once

#include <QWidget>
#include <array>
#include <vector>

#include "equipment/operating_costs.h"

class QComboBox;
class QGridLayout;

namespace tendo {

class TextField;

/// The operating costs of some sides of a system: the existing one with the list it can be taken
/// from, the proposed one, the savings.
class OperatingCostGrid : public QWidget {
    Q_OBJECT
  public:
    OperatingCostGrid(const std::vector<SelectionMode>& sides, QWidget* parent);

    /// Fills all fields from the records of a system (0 to 4).
    void Show(int system);

  private:
    struct Row {
        SelectionMode side;
        QComboBox* choice = nullptr;
        std::array<TextField*, 3> costs{};  // in the order of OperatingCost
    };

    void AddRow(QGridLayout* grid, int at, Row& row);
    void ShowRow(const Row& row);
    void Commit(const Row& row, OperatingCost cost);
    void Choose(const Row& row, int index);

    std::vector<Row> rows_;
    int system_ = 0;
};

}  // namespace tendo
