#include "reports/screens/print_document.h"

#include <gmock/gmock.h>

#include <QFile>
#include <QPrinter>

#include "platform/qt/progress_window.h"
#include "running_program.h"

namespace tendo {
namespace {

class PrintingDocuments : public RunningProgram {
  protected:
    void SetUp() override {
        RunningProgram::SetUp();
        ASSERT_TRUE(StartProgram());
        dialogs->print = [this](QPrinter& printer) {
            printer.setOutputFormat(QPrinter::PdfFormat);
            printer.setOutputFileName(File());
            return true;
        };
    }
    QString File() const { return QString::fromStdString(directory) + "print.pdf"; }
    static Document Pages(std::size_t count) {
        Document document;
        document.title = "Kestrel Row";
        document.pages.resize(count);
        return document;
    }
};

TEST_F(PrintingDocuments, ALongJobShowsHowFarItIsAndTheWindowGoesAfterwards) {
    std::vector<std::string> steps;
    const auto show = WindowOfProgress().Show;
    WindowOfProgress().Show = [&](const std::string& text, int done, int whole) {
        steps.push_back(text);
        const bool goOn = show(text, done, whole);
        EXPECT_EQ(Form::Find("frmStatus")->windowTitle(), "Printing...");
        return goOn;
    };
    EXPECT_TRUE(PrintDocument(Pages(24)));
    ASSERT_EQ(steps.size(), 24U);
    EXPECT_EQ(steps.front(), "Printing page 1 of 24...");
    EXPECT_EQ(steps.back(), "Printing page 24 of 24...");
    EXPECT_EQ(Form::Find("frmStatus"), nullptr);
    EXPECT_TRUE(QFile::exists(File()));
}

TEST_F(PrintingDocuments, ALongJobCanBeStopped) {
    WindowOfProgress().Show = [](const std::string&, int done, int) { return done < 5; };
    EXPECT_FALSE(PrintDocument(Pages(24)));
    EXPECT_FALSE(QFile::exists(File()));
    EXPECT_TRUE(dialogs->messages.empty());
    EXPECT_EQ(Form::Find("frmStatus"), nullptr);
}

TEST_F(PrintingDocuments, AShortJobShowsNoWindow) {
    WindowOfProgress().Show = [](const std::string&, int, int) { return false; };
    EXPECT_TRUE(PrintDocument(Pages(2)));
}

TEST_F(PrintingDocuments, TheSetUpHoldsForTheNextJob) {
    dialogs->print = [](QPrinter& printer) {
        printer.setPageSize(QPageSize(QPageSize::A4));
        printer.setCopyCount(3);
        return true;
    };
    SetUpPrinter();
    EXPECT_EQ(dialogs->printDialogs.back().title, "Printer Setup");
    EXPECT_EQ(dialogs->printDialogs.back().pages, 0);
    QPageSize::PageSizeId paper = QPageSize::Custom;
    int copies = 0;
    dialogs->print = [&](QPrinter& printer) {
        paper = printer.pageLayout().pageSize().id();
        copies = printer.copyCount();
        return false;
    };
    EXPECT_FALSE(PrintDocument(Pages(2)));
    EXPECT_EQ(paper, QPageSize::A4);
    EXPECT_EQ(copies, 1) << "copies are a matter of one job";
}

TEST_F(PrintingDocuments, TheDialogKnowsTheDocument) {
    PrintDocument(Pages(7), 3);
    EXPECT_EQ(dialogs->printDialogs.back().pages, 7);
    EXPECT_TRUE(dialogs->printDialogs.back().hasShownPage);
}

}  // namespace
}  // namespace tendo
