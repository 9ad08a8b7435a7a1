#pragma once

#include <QTimer>
#include <vector>

#include "platform/qt/form.h"
#include "reports/report_options.h"

class QCheckBox;
class QComboBox;
class QTabWidget;
class QVBoxLayout;

namespace tendo {

class FootnotePage;
class PictureChoice;
class PreviewPane;
class StylePage;
class TextField;

/// What the reports print: every option, the footnotes of both lists, the proposal formats, and a
/// live preview beside them.
class frmReportOptions : public Form {
    Q_OBJECT
  public:
    frmReportOptions();
    QSize sizeHint() const override { return {1290, 780}; }

  protected:
    void CommitEdits() override;
    void FormUnload() override { Save(); }
    void keyPressEvent(QKeyEvent* event) override;

  private:
    QWidget* MakeFormats();
    QWidget* MakePages();
    QWidget* MakePage(const std::vector<OptionFrame>& frames, QVBoxLayout*& column);
    void AddHead(QVBoxLayout* column, OptionFrame frame);
    QCheckBox* MakeBox(std::size_t option);
    void AddFrame(QVBoxLayout* column, OptionFrame frame);
    void AddNumbers(QVBoxLayout* column);
    void AddPictures(QVBoxLayout* column);
    PreviewPane* MakePreview();

    /// Shows the options in all controls.
    void ShowOptions();
    void ShowPictures();
    void MarkFrame(OptionFrame frame, bool marked);
    /// An option changed: the preview follows when it is to.
    void OptionChanged();
    bool Save();
    void StoreNumbers();

    std::string ChosenFormat() const;
    void FillProposalFormats(const std::string& chosen);
    void SaveFormat(const std::string& name);
    /// True, after a message, for the name that no format can have.
    static bool IsCustomFormat(const std::string& name);
    void cmbProposalFormats_Change();
    void btnSaveFormat_Click();
    void btnSaveNewFormat_Click();
    void btnDeleteFormat_Click();

    ReportOptionValues values_;
    std::vector<QCheckBox*> boxes_;  // in the order of the options' table
    QComboBox* cmbProposalFormats_ = nullptr;
    QTabWidget* tabs_ = nullptr;
    TextField* txtStartingPageNo_ = nullptr;
    TextField* txtLineSpacing_ = nullptr;
    std::vector<PictureChoice*> pictures_;  // title page, banner
    StylePage* styles_ = nullptr;
    FootnotePage* footnotes_ = nullptr;
    FootnotePage* accessoryFootnotes_ = nullptr;
    PreviewPane* preview_ = nullptr;
    QTimer refresh_;  // gathers changes that come in one go
    bool showing_ = false;
};

}  // namespace tendo
