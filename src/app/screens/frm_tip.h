#pragma once

#include <string>
#include <vector>

#include "platform/qt/form.h"

class QCheckBox;
class QLabel;
class QPushButton;

namespace tendo {

/// The tip of the day, from TIPOFDAY.TXT in the program's directory, one tip a line. Begins with
/// any of them, and goes on in their order.
class frmTip : public Form {
    Q_OBJECT
  public:
    frmTip();

  private:
    void LoadTips();
    void DisplayCurrentTip();
    void cmdNextTip_Click();
    void chkLoadTipsAtStartup_Click();

    std::vector<std::string> tips_;
    std::size_t current_ = 0;
    QLabel* lblTipText_;
    QPushButton* cmdNextTip_;
    QCheckBox* chkLoadTipsAtStartup_;
};

}  // namespace tendo
