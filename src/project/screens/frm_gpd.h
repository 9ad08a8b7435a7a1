#pragma once

#include <QTimer>
#include <functional>
#include <string>
#include <vector>

#include "platform/qt/form.h"
#include "project/screens/gpd_fields.h"

class QCheckBox;
class QGridLayout;
class QPlainTextEdit;
class QRadioButton;
class QTabWidget;

namespace tendo {

/// General Project Data: the project, the client and the company, and the settings that govern
/// pricing. What is shown goes back to the records when a field commits, at each tick of tmrGPD
/// while the form is in front, and when it closes.
class frmGPD : public Form {
    Q_OBJECT
  public:
    frmGPD();

    /// Shows the project's labor tax, after another screen set it.
    void ShowLaborTax();

  protected:
    bool QueryUnload() override;

  private:
    /// A text as it stands on the screen, whichever kind of control holds it.
    struct Shown {
        const GPDText* text;
        TextField* field = nullptr;
        QPlainTextEdit* memo = nullptr;
        QString Value() const;
        void SetValue(const QString& value) const;
    };

    QWidget* MakePage(GPDTab tab, const char* caption);
    void AddTexts(QGridLayout* grid, GPDTab tab, QWidget* page);
    void AddText(QGridLayout* grid, const GPDText& text, QWidget* page);
    void AddContacts(QGridLayout* grid, QWidget* page);
    void AddPricing(QGridLayout* grid, QWidget* page);
    void AddDatabase(QGridLayout* grid, QWidget* page);
    void AddImport(QGridLayout* grid, QWidget* page);
    /// Two options of which one holds.
    struct PairSpec {
        const char* label;
        QRadioButton** first;
        const char* firstName;
        const char* firstCaption;
        QRadioButton** second;
        const char* secondName;
        const char* secondCaption;
        QWidget* help;
    };
    void AddPair(QGridLayout* grid, const PairSpec& pair, QWidget* page);
    QWidget* HelpButton(const char* name, const char* about, void (frmGPD::*click)(),
                        QWidget* page);
    void WatchField(TextField* field);
    void ControlChanged();

    void ShowRecords();
    void Store();
    void tmrGPD_Timer();
    void txtDefDB_Change();
    void txtLaborRate_LostFocus();
    void btnBrowse_Click();
    void btnImportFile_Click();
    void btnImportData_Click();
    void btnLaborRate_Click();
    void btnProposalType_Click();
    void btnTaxLabor_Click();

    QTabWidget* tabs_;
    std::vector<Shown> shown_;
    std::vector<QCheckBox*> checks_;  // as GPDChecks
    TextField* txtLaborRate_ = nullptr;
    TextField* txtDefDB_ = nullptr;
    TextField* txtImportFile_ = nullptr;
    QCheckBox* chkImportData_ = nullptr;
    QRadioButton* OptTaxYes_ = nullptr;
    QRadioButton* OptTaxNo_ = nullptr;
    QRadioButton* OptSingleProp_ = nullptr;
    QRadioButton* OptMultipleProp_ = nullptr;
    QTimer* tmrGPD_;
    bool loading_ = true;
};

/// The help on taxing labor, with the choice; true when the user agreed to `tax`.
bool AskAboutLaborTax(bool& tax);

/// The file that an import is to read, chosen on this screen; empty when none was.
std::string& ImportFileName();

/// Called when models without a database got the project's default one, for the screens that show
/// it; set in one place, app/screens/wiring.cpp.
std::function<void()>& ModelDatabasesChanged();

}  // namespace tendo
