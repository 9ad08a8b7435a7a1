#include "app/screens/frm_status.h"

#include <QKeyEvent>
#include <QLineEdit>
#include <QPushButton>
#include <QTimer>

#include "running_program.h"

namespace tendo {
namespace {

class StatusWindow : public RunningProgram {
  protected:
    static frmStatus* Shown(bool canBeCancelled) {
        auto* status = new frmStatus;
        if (canBeCancelled) status->OfferCancel();
        status->ShowForm();
        return status;
    }
};

TEST_F(StatusWindow, ACancelStopsTheConversionAtItsNextStep) {
    frmStatus* status = Shown(true);
    EXPECT_TRUE(status->ShowProgress("Processing records...2", 0, 0));
    auto* cancel = qobject_cast<QPushButton*>(status->Control("btnCancel"));
    ASSERT_NE(cancel, nullptr);
    QTimer::singleShot(0, cancel, &QPushButton::click);
    EXPECT_FALSE(status->ShowProgress("Processing records...252", 0, 0));
    EXPECT_FALSE(status->ShowProgress("Processing records...502", 0, 0));
    EXPECT_TRUE(status->Unload());
}

TEST_F(StatusWindow, ClosingTheWindowWhileItWorksStopsTheConversion) {
    frmStatus* status = Shown(true);
    QTimer::singleShot(0, status, [status] { EXPECT_FALSE(status->Unload()); });
    EXPECT_FALSE(status->ShowProgress("Processing records...2", 0, 0));
    EXPECT_TRUE(status->Unload());
}

TEST_F(StatusWindow, NothingElseCanBeTypedIntoMeanwhile) {
    QLineEdit other;
    other.show();
    frmStatus* status = Shown(true);
    const auto press = [&other] {
        QCoreApplication::postEvent(
            &other, new QKeyEvent(QEvent::KeyPress, Qt::Key_A, Qt::NoModifier, "a"));
    };
    press();
    EXPECT_TRUE(status->ShowProgress("Processing records...2", 0, 0));
    EXPECT_EQ(other.text(), "");
    EXPECT_TRUE(status->Unload());
    press();
    QApplication::processEvents();
    EXPECT_EQ(other.text(), "a");
}

TEST_F(StatusWindow, AConversionThatCantBeStoppedShowsNoButton) {
    frmStatus* status = Shown(false);
    EXPECT_FALSE(status->Control("btnCancel")->isVisible());
    EXPECT_TRUE(status->ShowProgress("Converting...", 1, 2));
    EXPECT_TRUE(status->Unload());
}

}  // namespace
}  // namespace tendo
