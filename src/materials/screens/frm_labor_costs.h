#pragma once

#include "materials/screens/labor_screen.h"

class QRadioButton;

namespace tendo {

/// Labor Costs for All Systems: the project's labor. Its sums reach the price table when it closes.
class frmLaborCosts : public LaborScreen {
    Q_OBJECT
  public:
    frmLaborCosts();

  protected:
    void ReadList(const std::string& name) override;
    void Edited() override;
    void StoreFields() override;
    void FormUnload() override;
    void showEvent(QShowEvent* event) override;

  private:
    void AddTaxChoice();
    void SetTaxLabor(bool tax);
    void ShowTaxLabor();
    void btnTaxLabor_Click();
    /// The lines to the project, and their sums to its prices.
    void TakeLabor();

    QRadioButton* OptTaxYes_ = nullptr;
    QRadioButton* OptTaxNo_ = nullptr;
    bool edited_ = false;  // since the project took the lines
    bool taxChanged_ = false;
    bool watchesActivation_ = false;
};

}  // namespace tendo
