#include "reports/mail_message.h"

#include <gtest/gtest.h>

#include <chrono>
#include <ctime>
#include <filesystem>
#include <fstream>

namespace tendo {
namespace {

using Texts = std::vector<std::string>;

TEST(MailAddresses, ArePartedByCommasSemicolonsAndBlanks) {
    EXPECT_EQ(MailAddresses(" dana@example.com; lee@example.com,office@example.com "),
              (Texts{"dana@example.com", "lee@example.com", "office@example.com"}));
}

TEST(MailAddresses, LeaveOutWhatIsNone) {
    EXPECT_EQ(MailAddresses("Dana Marlow @ dana@ @example.com a@b@c"), Texts{});
    EXPECT_EQ(MailAddresses(""), Texts{});
}

TEST(MailAddresses, LeaveOutWhatAProgramMightTakeForAnOption) {
    EXPECT_EQ(MailAddresses("--attach=/etc/passwd@example.com -b@example.com"), Texts{});
}

TEST(MailArguments, CarrySubjectFileAndAddress) {
    EXPECT_EQ(MailArguments("Maple Street 12", "dana@example.com", "/home/kim/Mail/Job.pdf"),
              (Texts{"--utf8", "--subject", "Proposal: Maple Street 12", "--attach",
                     "/home/kim/Mail/Job.pdf", "dana@example.com"}));
}

TEST(MailArguments, DoWithoutTitleAndAddress) {
    EXPECT_EQ(MailArguments("", "", "Job.pdf"),
              (Texts{"--utf8", "--subject", "Proposal", "--attach", "Job.pdf"}));
}

class MailFolder : public testing::Test {
  protected:
    MailFolder() {
        std::filesystem::remove_all(folder);
        std::filesystem::create_directories(folder);
    }
    ~MailFolder() override { std::filesystem::remove_all(folder); }
    void Write(const char* name) { std::ofstream(folder + name) << "pdf"; }

    std::string folder = testing::TempDir() + "mail_folder/";
};

TEST_F(MailFolder, AFileThatAMailMayStillNeedIsNotWrittenOver) {
    EXPECT_EQ(FreeFileName(folder, "Job.pdf"), folder + "Job.pdf");
    Write("Job.pdf");
    EXPECT_EQ(FreeFileName(folder, "Job.pdf"), folder + "Job (2).pdf");
    Write("Job (2).pdf");
    EXPECT_EQ(FreeFileName(folder, "Job.pdf"), folder + "Job (3).pdf");
}

TEST_F(MailFolder, OldProposalsGoAndAllElseStays) {
    Write("old.pdf");
    Write("new.pdf");
    Write("old letter.txt");
    const auto now = std::filesystem::file_time_type::clock::now();
    for (const char* name : {"old.pdf", "old letter.txt"})
        std::filesystem::last_write_time(folder + name, now - std::chrono::hours(31 * 24));
    DeletePdfsBefore(folder, std::time(nullptr) - 30 * 86400);
    EXPECT_FALSE(std::filesystem::exists(folder + "old.pdf"));
    EXPECT_TRUE(std::filesystem::exists(folder + "new.pdf"));
    EXPECT_TRUE(std::filesystem::exists(folder + "old letter.txt"));
}

}  // namespace
}  // namespace tendo
