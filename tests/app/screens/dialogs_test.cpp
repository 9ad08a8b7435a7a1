#include "platform/qt/dialogs.h"

#include <QAbstractButton>
#include <QDir>
#include <QFileDialog>
#include <QLineEdit>
#include <QMessageBox>
#include <QTimer>

#include "app/screens/pointer.h"
#include "running_program.h"

namespace tendo {
namespace {

/// The dialogs that are really shown, answered by a hand that waits for them.
class RealDialogs : public RunningProgram {
  protected:
    /// Lets `look` see the dialog that comes up; what it doesn't close is closed after it.
    template <class Dialog, class Look>
    void WhenShown(Look look) {
        QTimer::singleShot(0, qApp, [this, look] {
            auto* dialog = qobject_cast<Dialog*>(QApplication::activeModalWidget());
            came = dialog != nullptr;
            if (dialog) look(dialog);
            if (QWidget* left = QApplication::activeModalWidget()) left->close();
        });
    }
    void TearDown() override {
        EXPECT_TRUE(came);
        RunningProgram::TearDown();
    }

    std::unique_ptr<DialogService> service = MakeScreenDialogs();
    bool came = false;
};

TEST_F(RealDialogs, EachButtonIsItsAnswer) {
    struct Row {
        Buttons buttons;
        QMessageBox::StandardButton pressed;
        Answer answer;
    };
    const Row rows[] = {{Buttons::Ok, QMessageBox::Ok, Answer::Ok},
                        {Buttons::OkCancel, QMessageBox::Cancel, Answer::Cancel},
                        {Buttons::OkCancel, QMessageBox::Ok, Answer::Ok},
                        {Buttons::YesNo, QMessageBox::Yes, Answer::Yes},
                        {Buttons::YesNo, QMessageBox::No, Answer::No},
                        {Buttons::YesNoCancel, QMessageBox::Yes, Answer::Yes},
                        {Buttons::YesNoCancel, QMessageBox::No, Answer::No},
                        {Buttons::YesNoCancel, QMessageBox::Cancel, Answer::Cancel}};
    for (const Row& row : rows) {
        WhenShown<QMessageBox>([row](QMessageBox* box) { box->button(row.pressed)->click(); });
        EXPECT_EQ(service->Message({"Title", "Text", row.buttons, MessageIcon::Question}),
                  row.answer);
    }
}

TEST_F(RealDialogs, AClosedQuestionIsCancelledOrNo) {
    WhenShown<QMessageBox>([](QMessageBox* box) { box->reject(); });
    EXPECT_EQ(service->Message({"Title", "Text", Buttons::YesNoCancel, MessageIcon::None}),
              Answer::Cancel);
    WhenShown<QMessageBox>([](QMessageBox* box) { box->done(0); });
    EXPECT_EQ(service->Message({"Title", "Text", Buttons::YesNo, MessageIcon::None}), Answer::No);
}

TEST_F(RealDialogs, AMessageStandsAsItIsWithTheNormalPointer) {
    HourglassPointer();
    WhenShown<QMessageBox>([](QMessageBox* box) {
        EXPECT_EQ(box->windowTitle(), "R&D <b>");
        EXPECT_EQ(box->text(), "Save \"A & B\"?  <i>Really</i>\nYes.");
        EXPECT_EQ(box->textFormat(), Qt::PlainText);
        EXPECT_FALSE(PointerIsHourglass());
    });
    service->Message(
        {"R&D <b>", "Save \"A & B\"?  <i>Really</i>\nYes.", Buttons::Ok, MessageIcon::Critical});
    EXPECT_TRUE(PointerIsHourglass());
    NormalPointer();
}

TEST_F(RealDialogs, AFileDialogBeginsInItsFolderWithItsFilter) {
    Write("Projects/Job.tdw", "x");
    WhenShown<QFileDialog>([this](QFileDialog* box) {
        EXPECT_EQ(box->directory().absolutePath().toStdString() + "/", directory + "Projects/");
        EXPECT_TRUE(box->nameFilters().first().startsWith("TENDO File (*.TDW *.tdw"));
        EXPECT_EQ(box->acceptMode(), QFileDialog::AcceptOpen);
        box->selectFile("Job.tdw");
        static_cast<QDialog*>(box)->done(QDialog::Accepted);
    });
    const auto chosen = service->File({.kind = FileDialog::Kind::Open,
                                       .title = "Open",
                                       .filter = "TENDO File (*.TDW)|*.TDW",
                                       .fileName = "*.TDW",
                                       .folder = directory + "Projects/",
                                       .defaultExtension = ""});
    EXPECT_EQ(chosen, Place("Job.tdw"));
}

TEST_F(RealDialogs, ATypedNameWithoutAPointGetsTheExtension) {
    Write("Projects/Job.tdw", "x");
    WhenShown<QFileDialog>([](QFileDialog* box) {
        box->findChild<QLineEdit*>("fileNameEdit")->setText("Job");
        QMetaObject::invokeMethod(box, "accept");
    });
    EXPECT_EQ(service->File({.kind = FileDialog::Kind::Open,
                             .title = "Open",
                             .filter = "TENDO File (*.TDW)|*.TDW",
                             .fileName = "*.TDW",
                             .folder = directory + "Projects/",
                             .defaultExtension = "tdw"}),
              Place("Job.tdw"));
}

TEST_F(RealDialogs, ADriveThatIsUnknownHereLeavesTheFolderToTheUser) {
    WhenShown<QFileDialog>([](QFileDialog* box) {
        EXPECT_EQ(box->directory().absolutePath(), QDir::homePath());
        EXPECT_EQ(box->findChild<QLineEdit*>("fileNameEdit")->text(), "tendo.bkt");
        box->reject();
    });
    EXPECT_EQ(service->File({.kind = FileDialog::Kind::Save,
                             .title = "Export",
                             .filter = "TENDO Backup Database (*.bkt)|*.bkt",
                             .fileName = "a:\\tendo.bkt",
                             .folder = "a:\\",
                             .defaultExtension = ""}),
              std::nullopt);
}

}  // namespace
}  // namespace tendo
