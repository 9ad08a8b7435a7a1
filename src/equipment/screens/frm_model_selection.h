#pragma once

#include <array>
#include <functional>
#include <vector>

#include "equipment/model_selection.h"
#include "platform/qt/form.h"

class QCheckBox;
class QLabel;
class QPushButton;
class QTabWidget;

namespace tendo {

class ModelView;
class TextField;

/// The selection of a model for the current system from a manufacturer's database. It shows what
/// ModelSelection holds and tells it what is clicked.
class frmModelSelection : public Form {
    Q_OBJECT
  public:
    explicit frmModelSelection(SelectionMode mode);

    QSize sizeHint() const override;

  protected:
    void FormUnload() override;
    void keyPressEvent(QKeyEvent* event) override;

  private:
    // The layout (model_selection_layout.cpp).
    QWidget* MakeDatabaseRow();
    QWidget* MakeLimitRow();
    QWidget* MakeTabs();
    void FillPage(QWidget* page, int tab);
    QWidget* MakeCommandRow();

    void OpenDatabase(OpenedModels models);
    void ChangeDatabase(const std::string& fileName);
    void ShowDatabase();
    void ShowTexts();
    void ShowChoice();
    void ShowCurrentRow(int tab);
    void ShowEPAMark(int tab);
    void ShowCount();
    ModelView& CurrentView() const;
    void SetLimit(ModelLimit limit);
    void ClickRow(int tab, int row);
    void ChooseRow(int tab, int row);
    void AfterSearch();

    void tabModels_Click(int tab);
    void grid_RowChange(int tab, int row);
    void btnChangeDB_Click();
    void btnSearch_Click();
    void btnRepeatSearch_Click();
    void btnSelectModel_Click();

    ModelSelection selection_;
    TextField* txtDatabase_ = nullptr;
    QTabWidget* tabModels_ = nullptr;
    std::array<ModelView*, ModelTabCount> views_{};
    std::array<QPushButton*, 3> limitButtons_{};  // in the order of ModelLimit
    QPushButton* btnSearch_ = nullptr;
    QPushButton* btnRepeatSearch_ = nullptr;
    QCheckBox* chkWHProvidesHeat_ = nullptr;  // on the water heater's selection only
    QLabel* lblCount_ = nullptr;
    QLabel* lblChoice_ = nullptr;
};

/// Lets the user choose a model for the current system; returns when the screen has closed.
void ShowModelSelection(SelectionMode mode);

/// The refills that run, in their order, when the screen has closed; each does nothing when its
/// screen isn't open. Filled in one place, app/screens/wiring.cpp: the summary, the summary
/// report, the detailed model data, the water heater.
std::vector<std::function<void()>>& AfterModelSelection();

}  // namespace tendo
