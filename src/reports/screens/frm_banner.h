#pragma once

#include <QTimer>
#include <array>

#include "platform/qt/form.h"
#include "reports/banner_options.h"

class QCheckBox;
class QLabel;
class QVBoxLayout;

namespace tendo {

class BannerView;
class PictureBox;
class TextField;

/// The banner that opens the Sales Report: which lines of the installation's own company it prints,
/// and between which pictures.
class frmBanner : public Form {
    Q_OBJECT
  public:
    frmBanner();

  protected:
    void StoreFields() override { Store(); }
    void FormUnload() override { Store(); }

  private:
    void AddLines(QVBoxLayout* column);
    QLayout* MakeOwnerLine(std::size_t line);
    QCheckBox* AddMark(std::size_t mark);
    void AddPictures(QVBoxLayout* column);
    QWidget* MakePicture(std::size_t side);
    void AddPreview(QVBoxLayout* column);
    TextField* AddText(std::size_t text);

    /// Shows the options and the company.
    void ShowOptions();
    void ShowOwner();
    /// What stands on the screen.
    BannerOptions OptionsOnScreen() const;
    /// Keeps what stands on the screen; a failure is told. Nothing is written when nothing changed.
    void Store();
    void Change();
    void Browse(std::size_t side);
    void btnPreviewBanner_Click();
    void btnEditOwner_Click();

    BannerOptions stored_;
    bool showing_ = false;
    std::array<QCheckBox*, BannerMarks.size()> marks_{};
    std::array<TextField*, BannerTexts.size()> texts_{};
    std::array<PictureBox*, 2> pictures_{};
    QLabel* lblCustomBanner_ = nullptr;
    BannerView* vsPreview_ = nullptr;
};

}  // namespace tendo
