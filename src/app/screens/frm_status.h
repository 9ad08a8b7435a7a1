#pragma once

#include <string>

#include "platform/qt/form.h"

class QLabel;
class QProgressBar;

namespace tendo {

/// The small window that shows how far a long conversion has come. It stands in front of the
/// program without taking the keys.
class frmStatus : public Form {
    Q_OBJECT
  public:
    frmStatus();

    /// What is being done, and how far of the whole; both are shown at once. A whole of 0: unknown.
    void ShowProgress(const std::string& what, int done, int whole);

  private:
    QLabel* lblStatus_;
    QProgressBar* ProgressBar_;
};

}  // namespace tendo
