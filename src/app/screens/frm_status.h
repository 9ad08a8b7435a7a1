#pragma once

#include <string>

#include "platform/qt/form.h"

class QLabel;
class QProgressBar;
class QPushButton;

namespace tendo {

/// The small window that shows how far a long conversion has come. It stands in front of the
/// program without taking the keys.
class frmStatus : public Form {
    Q_OBJECT
  public:
    frmStatus();

    /// Lets the user stop the conversion; without this it can't be stopped.
    void OfferCancel();
    /// What is being done, and how far of the whole; both are shown at once. A whole of 0: unknown.
    /// False when the user has asked to stop.
    bool ShowProgress(const std::string& what, int done, int whole);

  protected:
    bool eventFilter(QObject* watched, QEvent* event) override;
    bool QueryUnload() override;

  private:
    void btnCancel_Click();

    QLabel* lblStatus_;
    QProgressBar* ProgressBar_;
    QPushButton* btnCancel_;
    bool cancelled_ = false;
    bool showing_ = false;
};

}  // namespace tendo
