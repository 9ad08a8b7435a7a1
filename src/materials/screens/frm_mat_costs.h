#pragma once

#include "platform/qt/form.h"

class QComboBox;
class QPushButton;

namespace tendo {

class TakeoffPage;
class TextField;

/// Select Material Costs: the takeoff of the project. What is chosen lives in the catalogue while
/// the screen is open, and in the project's records otherwise.
class frmMatCosts : public Form {
    Q_OBJECT
  public:
    frmMatCosts();

    /// Reads the price book anew and enters the selections into it: another screen has changed the
    /// materials, or the catalogue in memory.
    void TakeUpPriceBook();
    /// The catalogue in memory was loaded anew and holds no selections: enters those that the
    /// project's records hold.
    void CatalogueReplaced();

  protected:
    void StoreFields() override;
    void FormUnload() override;
    void showEvent(QShowEvent* event) override;

  private:
    QWidget* MakeDatabaseBar();
    void AddListChoice();
    void AddNeighbours();
    void DatabaseChanged();
    void FillLists();
    void btnChangeDB_Click();
    void ComboSelectMatList_Click(const QString& name);
    void OpenNeighbour(const QString& screen);

    TakeoffPage* page_ = nullptr;
    TextField* txtDatabase_ = nullptr;
    QComboBox* lists_ = nullptr;
    std::vector<std::pair<QPushButton*, QString>> neighbours_;
    QString chosenList_;
    bool loaded_ = false;     // the catalogue holds the takeoff
    bool committed_ = false;  // closing commits once
};

/// After another screen worked on the catalogue or its file; nothing when the takeoff isn't open.
void RefillMaterialTakeoff();
/// After the catalogue was loaded anew behind an open takeoff, whose fields were stored before.
void ReloadMaterialTakeoff();

}  // namespace tendo
