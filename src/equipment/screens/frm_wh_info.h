#pragma once

#include "equipment/screens/model_field_lines.h"
#include "equipment/screens/system_form.h"

class QCheckBox;

namespace tendo {

class OperatingCostGrid;

/// Water Heater Information: everything about the current system's water heater.
class frmWHInfo : public SystemForm {
    Q_OBJECT
  public:
    frmWHInfo();
    void Refill() override { SetWHModelInfo(); }

  private:
    QWidget* MakeCard();
    QWidget* MakeButtons();
    /// Records to screen.
    void SetWHModelInfo();
    void ShowMark();
    WHModelRecord& Heater() const;
    void chkWHProvidesHeat_Click();
    void btnSelectWHModel_Click();

    ModelFieldLines fields_{this};
    OperatingCostGrid* costs_ = nullptr;
    QCheckBox* chkWHProvidesHeat_ = nullptr;
    int system_ = 0;
};

}  // namespace tendo
