#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>

#include "platform/qt/progress_window.h"
#include "reports/screens/export_document.h"
#include "reports/screens/report_desk.h"
#include "reports/screens/send_proposal.h"
#include "running_program.h"

namespace tendo {
namespace {

class PreviewOutput : public RunningProgram {
  protected:
    void SetUp() override {
        RunningProgram::SetUp();
        ASSERT_TRUE(StartProgram());
        document.title = "Kestrel Row";
        document.pages.resize(4);
        run_ = DeskOfReports().Run;
        showProgress_ = WindowOfProgress().Show;
    }
    void TearDown() override {
        DeskOfReports().Run = run_;
        WindowOfProgress().Show = showProgress_;
        RunningProgram::TearDown();
    }
    bool IsThere(const std::string& name) const {
        return std::filesystem::exists(directory + name);
    }

    Document document;

  private:
    decltype(ReportDesk::Run) run_;
    decltype(ProgressWindow::Show) showProgress_;
};

TEST_F(PreviewOutput, PicturesOfAllPagesCanBeStoppedAndSayHowFarTheyCame) {
    WindowOfProgress().Show = [](const std::string&, int done, int) { return done < 2; };
    dialogs->files = {directory + "page.png"};
    EXPECT_EQ(ExportPng(document, {-1, 30}),
              "Saved as " + directory + "page-1.png to page-2.png, then stopped");
    EXPECT_TRUE(IsThere("page-2.png"));
    EXPECT_FALSE(IsThere("page-3.png"));
}

TEST_F(PreviewOutput, APageOfADocumentOfOnePageHasNoNumber) {
    document.pages.resize(1);
    dialogs->files = {directory + "page.png"};
    EXPECT_EQ(ExportPng(document, {-1, 30}), "Saved as " + directory + "page.png");
    EXPECT_TRUE(IsThere("page.png"));
    EXPECT_FALSE(IsThere("page-1.png"));
}

TEST_F(PreviewOutput, AProjectWithoutAFileGivesItsProposalAName) {
    dialogs->files = {};
    ExportPdf(document);
    ASSERT_EQ(dialogs->fileDialogs.size(), 1U);
    EXPECT_EQ(dialogs->fileDialogs[0].fileName, "Proposal.pdf");
}

TEST_F(PreviewOutput, AFullDiskIsCalledAFullDisk) {
    if (!std::filesystem::exists("/dev/full")) GTEST_SKIP() << "no /dev/full here";
    dialogs->files = {"/dev/full"};
    EXPECT_EQ(ExportPdf(document), "");
    EXPECT_TRUE(Saw("/dev/full"));
    EXPECT_TRUE(Saw("the disk is full"));
}

TEST_F(PreviewOutput, TheAttachmentOutlivesTheMailProgramsStart) {
    std::vector<std::string> arguments;
    DeskOfReports().Run = [&](const std::string&, const std::vector<std::string>& given,
                              const std::function<void(int)>& ended) {
        arguments = given;
        ended(0);
        return true;
    };
    EXPECT_FALSE(SendProposal(document).empty());
    ASSERT_GE(arguments.size(), 5U);
    EXPECT_EQ(arguments[2], "Proposal: Kestrel Row");
    EXPECT_EQ(arguments[4], directory + "Mail/Proposal.pdf");
    EXPECT_TRUE(IsThere("Mail/Proposal.pdf"));
    EXPECT_TRUE(dialogs->messages.empty());
}

TEST_F(PreviewOutput, AMailProgramThatTookNothingIsToldOfAndTheFileIsKept) {
    DeskOfReports().Run = [&](const std::string&, const std::vector<std::string>&,
                              const std::function<void(int)>& ended) {
        ended(3);
        return true;
    };
    SendProposal(document);
    EXPECT_TRUE(Saw("No mail program took the proposal."));
    EXPECT_TRUE(Saw(directory + "Mail/Proposal.pdf"));
    EXPECT_TRUE(IsThere("Mail/Proposal.pdf"));
}

/// A file stands where the folder should be.
TEST_F(PreviewOutput, AFolderThatCannotBeMadeIsTold) {
    std::ofstream(directory + "Mail") << "in the way";
    EXPECT_EQ(SendProposal(document), "");
    ASSERT_EQ(dialogs->messages.size(), 1U);
    EXPECT_EQ(dialogs->messages[0].title, "Send by E-mail");
    EXPECT_TRUE(Saw("Mail"));
}

}  // namespace
}  // namespace tendo
