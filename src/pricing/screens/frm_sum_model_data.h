#pragma once

#include <vector>

#include "platform/qt/form.h"
#include "pricing/price_table.h"
#include "pricing/screens/bound_fields.h"
#include "pricing/screens/pricing_hooks.h"
#include "project/project_records.h"

class QBoxLayout;
class QGridLayout;
class QFrame;
class QLabel;
class QPushButton;
class QToolButton;
class QVBoxLayout;

namespace tendo {

class SystemCards;

/// Summary Model Data: the price table of the project above, the cooling and heating model of one
/// system below. It shows what PriceTable holds and tells it what is typed.
class frmSumModelData : public Form {
    Q_OBJECT
  public:
    frmSumModelData();
    ~frmSumModelData() override;

    PriceTable& Table() { return table_; }
    /// Records to screen, after another screen changed them.
    void Refill();
    /// The same after the material or labor takeoff set its rows: what was typed there is stored
    /// anew, and the sub-total follows.
    void TakeTotals();
    /// The current system as it stands in the program's state, if another screen moved on.
    void FollowSystem();

    QSize sizeHint() const override;

  protected:
    void StoreFields() override;
    void FormUnload() override;
    void showEvent(QShowEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

  private:
    // The layout (frm_sum_model_layout.cpp).
    QWidget* MakePrices();
    void AddHeadings(QGridLayout* grid, QWidget* parent);
    void AddPriceRows(QGridLayout* grid, QWidget* parent);
    void AddTotals(QGridLayout* grid, QWidget* parent);
    QWidget* MakeTaxLabel(QWidget* parent);
    QWidget* MakeEarnings();
    void AddEarning(QVBoxLayout* column, QLabel* label, QWidget* value, QWidget* help,
                    QWidget* parent);
    /// A help mark that asks for the one of these fields that holds the focus, else for the first.
    QToolButton* MakeHelpMark(const char* name, const char* about, std::vector<TableField> fields,
                              QWidget* parent);
    QWidget* MakeModels();
    QWidget* MakeModelCard(ModelSide side, QWidget* parent);
    QWidget* MakeScreenButtons();
    void PassFocusOn();

    void ShowSurroundings();
    void ShowAfterEdit();
    void WantHelp(TableField field);
    void WantColumnHelp(FieldKind column);
    void WantWhy(TableField field);
    void WantWhyInFocus();
    void Fill();
    void GoToSystem(int system);
    void SystemMoved();
    void SelectModel(ModelSide side);
    void ChooseDatabase(TableField field);
    void OpenScreen(const QString& name);

    void chkHideInfo_Click();
    void btnNextSystem_Click();
    void btnPreviousSystem_Click();

    PriceTable table_{Project()};
    BoundFields fields_{table_, this};
    QVBoxLayout* column_;
    QWidget* content_;
    SystemCards* cards_ = nullptr;
    QBoxLayout* prices_ = nullptr;  // the table, and beside it what it earns
    QBoxLayout* models_ = nullptr;  // the cooling and the heating model
    QLabel* lblLabor_ = nullptr;
    QLabel* lblTax_ = nullptr;     // the tax and its percentage, in what it earns
    TextField* taxSum_ = nullptr;  // its amount
    QLabel* lblTotal_ = nullptr;   // the one total of the screen
    QFrame* fraModelInfo_ = nullptr;
    QLabel* modelHeading_ = nullptr;
    std::vector<std::pair<QPushButton*, QString>> screenButtons_;  // with their screens
    int shownSystem_ = 0;
    bool watchesActivation_ = false;
};

}  // namespace tendo
