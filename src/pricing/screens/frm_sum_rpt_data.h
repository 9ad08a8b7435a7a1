#pragma once

#include <map>
#include <optional>

#include "platform/qt/form.h"
#include "pricing/price_fields.h"

class QBoxLayout;
class QGridLayout;
class QLabel;
class QToolButton;
class QVBoxLayout;

namespace tendo {

class SystemCards;
class TextField;

/// The customer's view of the price table: sale prices and the models, no costs. Every edit goes to
/// the working screen, which is loaded behind it, and runs there.
class frmSumRptData : public Form {
    Q_OBJECT
  public:
    frmSumRptData();
    /// Fills the fields from the records.
    void SetSystemTendos();

    QSize sizeHint() const override;

  protected:
    void FormUnload() override;
    void resizeEvent(QResizeEvent* event) override;

  private:
    QWidget* MakePrices();
    QWidget* MakeModels();
    QWidget* MakeModelCard(const char* heading, const char* side, TableField first);
    TextField* Add(TableField field, QWidget* parent);
    QToolButton* MakeHelpMark(TableField field, QWidget* parent);
    void Commit(TableField field);
    void Show(TableField field, const std::string& text);
    void Move(bool next);
    void GoToSystem(int system);
    void WantHelp(TableField field);
    void WantWhy(TableField field);
    void chkHideInfo_Click();

    QVBoxLayout* column_;
    std::map<TableField, TextField*> fields_;
    std::optional<TableField> edited_;  // while what it changes is shown
    SystemCards* cards_ = nullptr;
    QBoxLayout* models_ = nullptr;  // the cooling and the heating model
    QLabel* lblLabor_ = nullptr;
    QLabel* fraModelInfo_ = nullptr;
};

/// Refills both price screens, each if it is loaded, after something else changed the records.
void RefillPriceScreens();

/// What closing the material and the labor takeoff does at its end: the price screens take the rows
/// that were set in the records, and the totals follow, also when no price screen is open. Rows
/// that didn't change leave the totals of a closed price table alone: a total that was typed
/// stands.
void RecalculateSystemScreens(bool rowsChanged = true);

}  // namespace tendo
