#pragma once

#include "equipment/screens/model_field_lines.h"
#include "equipment/screens/system_form.h"

class QLabel;

namespace tendo {

class ModelPriceGrid;
class OperatingCostGrid;

/// Detailed Model Data: the models of the current system, each with its own price line, and their
/// operating costs. Closing it rebuilds the project's Model row.
class frmDetailModelData : public SystemForm {
    Q_OBJECT
  public:
    frmDetailModelData();
    void Refill() override;

  protected:
    void FormUnload() override;

  private:
    QWidget* MakeButtons();

    ModelFieldLines fields_{this};
    ModelPriceGrid* prices_ = nullptr;
    OperatingCostGrid* costs_ = nullptr;
};

/// Miscellaneous Model Data: what else describes the current system's cooling and heating model.
class frmMisModelData : public SystemForm {
    Q_OBJECT
  public:
    frmMisModelData();
    void Refill() override { SetMiscModelData(); }

  protected:
    void StoreFields() override { GetMiscModelData(); }
    void FormUnload() override { GetMiscModelData(); }

  private:
    /// Records to screen.
    void SetMiscModelData();
    /// Screen to records: what is being typed; all else went there when its field was left.
    void GetMiscModelData();

    ModelFieldLines fields_{this};
    QLabel* system_ = nullptr;
};

/// Opens the screen on the current system, or brings it forward.
void ShowMisModelData();

}  // namespace tendo
