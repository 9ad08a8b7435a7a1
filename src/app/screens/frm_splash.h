#pragma once

#include <QPointer>
#include <QTimer>
#include <functional>

#include "platform/qt/form.h"

namespace tendo {

/// The logo screen. After a second, at a click or at any key it ends its wait, once, and calls
/// `shown`, which brings up the main window.
class frmSplash : public Form {
    Q_OBJECT
  public:
    explicit frmSplash(std::function<void()> endOfWait);

    /// Shows the logo in the middle of the screen and starts the wait.
    void ShowLogo();
    void EndWait();

  protected:
    void keyPressEvent(QKeyEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

  private:
    std::function<void()> endOfWait_;
    QTimer* tmrLetUserSeeLogo_;
    bool waiting_ = true;
};

}  // namespace tendo
