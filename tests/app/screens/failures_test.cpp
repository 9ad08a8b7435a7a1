#include <QAbstractButton>
#include <QRadioButton>
#include <cerrno>
#include <fstream>

#include "../../files/ended_process.h"
#include "platform/files/safe_file.h"
#include "platform/files/system_calls.h"
#include "project/project_lifecycle.h"
#include "project/project_records.h"
#include "running_program.h"

namespace tendo {
namespace {

namespace fs = std::filesystem;

/// What can go wrong around a save that is no fault of the program; the data must be safe each
/// time.
class Failures : public RunningProgram {
  protected:
    void SetUp() override {
        RunningProgram::SetUp();
        StartProgram();
        MakeProject("Job.tdw");
        Restart();
        dialogs->files = {Place("Job.tdw")};
        ActiveBarClick("ToolOpen");
        dialogs->messages.clear();
        saved = ReadWholeFile(Place("Job.tdw"));
        ActiveBarClick("ToolCloseAllProjectWindows");  // its fields would be stored over a change
        Change("Changed since");
    }
    void TearDown() override {
        SystemCalls() = SystemCallTable();
        RunningProgram::TearDown();
    }

    static void Change(const char* title) {
        Project().GPDProjectFormat.Title = title;
        State().ProjectChanged = true;
    }
    /// One box, with this in it.
    void ExpectOneBox(const std::string& text) const {
        ASSERT_EQ(dialogs->messages.size(), 1U);
        EXPECT_NE(dialogs->messages[0].text.find(text), std::string::npos)
            << dialogs->messages[0].text;
    }
    void ExpectUserFileAsItWas() const { EXPECT_EQ(ReadWholeFile(Place("Job.tdw")), saved); }
    /// A save that works holds what the work file holds.
    void ExpectTheNextSaveToWork() {
        SystemCalls() = SystemCallTable();
        dialogs->messages.clear();
        ActiveBarClick("ToolSave");
        EXPECT_TRUE(dialogs->messages.empty());
        EXPECT_EQ(ReadWholeFile(Place("Job.tdw")), ReadWholeFile(Place("Job.tmp")));
        EXPECT_NE(ReadWholeFile(Place("Job.tdw")), saved);
    }
    std::size_t FilesInProjects() const {
        return static_cast<std::size_t>(
            std::distance(fs::directory_iterator(directory + "Projects"), {}));
    }

    std::string saved;
};

TEST_F(Failures, AFullDiskIsCalledAFullDiskAndTheUserFileStays) {
    const std::size_t files = FilesInProjects();
    SystemCalls().write = [](int, const void*, size_t) -> ssize_t {
        errno = ENOSPC;
        return -1;
    };
    ActiveBarClick("ToolSave");
    ExpectOneBox("the disk is full");
    ExpectUserFileAsItWas();
    EXPECT_EQ(FilesInProjects(), files);
    EXPECT_TRUE(State().ProjectIsOpen);
    EXPECT_TRUE(State().ProjectChanged);
    ExpectTheNextSaveToWork();
}

TEST_F(Failures, ADiskThatFillsUpAfterTheWorkFileWasSavedKeepsTheDataThere) {
    static int flushes;
    flushes = 0;
    SystemCalls().fsync = [](int file) {
        // The work file's content and folder are the first two.
        if (++flushes <= 2) return ::fsync(file);
        errno = ENOSPC;
        return -1;
    };
    ActiveBarClick("ToolSave");
    ExpectOneBox("the disk is full");
    ExpectUserFileAsItWas();
    EXPECT_NE(ReadWholeFile(Place("Job.tmp")), saved);
    ExpectTheNextSaveToWork();
}

TEST_F(Failures, AReadOnlyFolderIsToldAndNothingIsLost) {
    SystemCalls().open = [](const char* path, int flags, mode_t mode) {
        if ((flags & O_CREAT) == 0) return ::open(path, flags, mode);
        errno = EACCES;
        return -1;
    };
    ActiveBarClick("ToolSave");
    ExpectOneBox("Cannot write");
    ExpectUserFileAsItWas();
    ExpectTheNextSaveToWork();
}

TEST_F(Failures, AReadOnlyFileIsNotReplaced) {
    fs::permissions(Place("Job.tdw"), fs::perms::owner_read);
    ActiveBarClick("ToolSave");
    ExpectOneBox("the file is read-only");
    ExpectUserFileAsItWas();
    EXPECT_NE(ReadWholeFile(Place("Job.tmp")), saved);
    fs::permissions(Place("Job.tdw"), fs::perms::owner_read | fs::perms::owner_write);
    ExpectTheNextSaveToWork();
}

TEST_F(Failures, AFolderThatVanishedIsToldAndSaveAsSavesElsewhere) {
    fs::create_directories(home / "Away");
    dialogs->files = {directory + "Away/Trip.tdw"};
    ActiveBarClick("ToolSaveAs");
    Change("On the way");
    fs::rename(home / "Away", home / "Elsewhere");
    ActiveBarClick("ToolSave");
    ExpectOneBox("Run-time error");
    EXPECT_EQ(Project().GPDProjectFormat.Title.Trimmed(), "On the way");
    dialogs->messages.clear();
    dialogs->files = {Place("Rescued.tdw")};
    ActiveBarClick("ToolSaveAs");
    EXPECT_TRUE(dialogs->messages.empty());
    EXPECT_TRUE(ReadWholeFile(Place("Rescued.tdw")) == ReadWholeFile(Place("Rescued.tmp")));
    Project() = ProjectRecords();
    LoadWorkFile();
    EXPECT_EQ(Project().GPDProjectFormat.Title.Trimmed(), "On the way");
}

TEST_F(Failures, AFolderThatComesBackIsSavedToAgain) {
    fs::rename(home / "Projects", home / "Elsewhere");
    ActiveBarClick("ToolSave");
    ExpectOneBox("there is no such folder");
    fs::rename(home / "Elsewhere", home / "Projects");
    fs::remove(Place("Job.tmp"));
    ExpectTheNextSaveToWork();
}

TEST_F(Failures, AnExitWhoseSaveFailsKeepsTheProgram) {
    SystemCalls().fsync = [](int) {
        errno = EIO;
        return -1;
    };
    dialogs->answers = {Answer::Yes};
    EXPECT_FALSE(QuitTendo());
    EXPECT_NE(Form::Find("frmMDI"), nullptr);
    EXPECT_EQ(Project().GPDProjectFormat.Title.Trimmed(), "Changed since");
    ExpectUserFileAsItWas();
    ExpectTheNextSaveToWork();
}

TEST_F(Failures, AnExitWhoseSaveAsFailsKeepsTheProgram) {
    dialogs->answers = {Answer::No};
    ActiveBarClick("ToolNew");
    ActiveBarClick("ToolCloseAllProjectWindows");
    Change("Never saved");
    dialogs->messages.clear();
    dialogs->answers = {Answer::Yes};
    dialogs->files = {directory + "no/such/folder/Job.tdw"};
    EXPECT_FALSE(QuitTendo());
    EXPECT_TRUE(Saw("No file was saved."));
    EXPECT_TRUE(Exists("Projects/Untitled.tmp"));
    EXPECT_EQ(Project().GPDProjectFormat.Title.Trimmed(), "Never saved");
    EXPECT_EQ(State().ProjectFileName, Place("Untitled.hid"));
}

TEST_F(Failures, ANewWhoseSaveAsFailsKeepsTheOldProject) {
    dialogs->answers = {Answer::No};
    ActiveBarClick("ToolNew");
    ActiveBarClick("ToolCloseAllProjectWindows");
    Change("Never saved");
    dialogs->answers = {Answer::Yes};
    dialogs->files = {directory + "no/such/folder/Job.tdw"};
    ActiveBarClick("ToolNew");
    EXPECT_EQ(Project().GPDProjectFormat.Title.Trimmed(), "Never saved");
    EXPECT_TRUE(Exists("Projects/Untitled.tmp"));
}

TEST_F(Failures, AfterACloseThatSavedTheExitsQuestionCanBeAnsweredWithYesToo) {
    dialogs->answers = {Answer::Yes};
    ActiveBarClick("ToolClose");
    EXPECT_FALSE(Exists("Projects/Job.tmp"));
    const std::string closed = ReadWholeFile(Place("Job.tdw"));
    EXPECT_FALSE(closed == saved);
    dialogs->messages.clear();
    dialogs->answers = {Answer::Yes};
    EXPECT_TRUE(QuitTendo());
    EXPECT_EQ(dialogs->messages.size(), 1U);  // the question alone
    EXPECT_FALSE(Exists("Projects/Job.tmp"));
    EXPECT_TRUE(StartProgram());
    dialogs->files = {Place("Job.tdw")};
    ActiveBarClick("ToolOpen");
    EXPECT_EQ(Project().GPDProjectFormat.Title.Trimmed(), "Changed since");
}

TEST_F(Failures, AFileThatCannotBeReadLeavesTheWorkFileThatLayBesideIt) {
    dialogs->answers = {Answer::No};
    Restart();
    Write("Projects/Job.tdw", "no database");
    Write("Projects/Job.tmp", saved);
    Form::SetModalObserver([](Form& form) {
        form.findChild<QRadioButton*>("optOption2")->setChecked(true);
        form.findChild<QAbstractButton*>("btnOK")->click();
    });
    dialogs->files = {Place("Job.tdw")};
    dialogs->messages.clear();
    ActiveBarClick("ToolOpen");
    ExpectOneBox("The file must not be usable.");
    EXPECT_EQ(Read("Projects/Job.tdw"), "no database");
    EXPECT_TRUE(ReadWholeFile(Place("Job.tmp")) == saved);
}

TEST_F(Failures, AWorkingCopyThatIsOpenedItselfIsRefusedAndStays) {
    dialogs->answers = {Answer::No};
    ActiveBarClick("ToolClose");
    Write("Projects/Copy.tmp", saved);
    fs::create_symlink(Place("Copy.tmp"), Place("Copy.tdw"));
    for (const char* name : {"Copy.tmp", "Copy.tdw"}) {
        SCOPED_TRACE(name);
        dialogs->messages.clear();
        dialogs->files = {Place(name)};
        ActiveBarClick("ToolOpen");
        ExpectOneBox(std::string(name) + " is the working copy of a project.");
        EXPECT_FALSE(State().ProjectIsOpen);
    }
    dialogs->messages.clear();
    DropFiles({Place("Copy.tdw")});
    EXPECT_TRUE(Saw("Copy.tdw is the working copy of a project."));
    EXPECT_TRUE(QuitTendo());
    EXPECT_TRUE(ReadWholeFile(Place("Copy.tmp")) == saved);
}

TEST_F(Failures, WhatAKilledSaveLeftIsRemovedByTheNextStartOpenAndSave) {
    const std::string leftover = ".tendo-" + EndedProcess() + "-7.new";
    fs::create_directories(home / "Away");
    const auto leave = [&] {
        for (const char* folder : {"", "Common/", "Projects/", "Away/"})
            Write(folder + leftover, "half");
    };
    leave();
    ActiveBarClick("ToolSave");
    EXPECT_FALSE(Exists("Projects/" + leftover));
    dialogs->files = {directory + "Away/Trip.tdw"};
    ActiveBarClick("ToolSaveAs");
    EXPECT_FALSE(Exists("Away/" + leftover));
    leave();
    dialogs->answers = {Answer::No, Answer::No};
    dialogs->files = {directory + "Away/Trip.tdw"};
    ActiveBarClick("ToolOpen");
    EXPECT_FALSE(Exists("Away/" + leftover));
    EXPECT_TRUE(Exists(leftover));
    QuitTendo();
    leave();
    StartProgram();
    EXPECT_FALSE(Exists(leftover));
    EXPECT_FALSE(Exists("Common/" + leftover));
    EXPECT_FALSE(Exists("Projects/" + leftover));
}

TEST_F(Failures, AFileThatAnotherProgramChangedIsOnlyReplacedWhenItsUserAgrees) {
    std::ofstream(Place("Job.tdw"), std::ios::app) << "other";
    const std::string others = ReadWholeFile(Place("Job.tdw"));
    dialogs->answers = {Answer::No};
    ActiveBarClick("ToolSave");
    ExpectOneBox(
        "Job.tdw was changed by another program since it was opened.  Do you wish to "
        "replace it?");
    EXPECT_EQ(dialogs->messages[0].buttons, Buttons::YesNo);
    EXPECT_EQ(ReadWholeFile(Place("Job.tdw")), others);
    EXPECT_NE(ReadWholeFile(Place("Job.tmp")), saved);  // the data is in the work file
    dialogs->messages.clear();
    dialogs->answers = {Answer::Yes};
    ActiveBarClick("ToolSave");
    EXPECT_EQ(dialogs->messages.size(), 1U);
    EXPECT_EQ(ReadWholeFile(Place("Job.tdw")), ReadWholeFile(Place("Job.tmp")));
    dialogs->messages.clear();
    ActiveBarClick("ToolSave");  // its own saves are no changes by another program
    EXPECT_TRUE(dialogs->messages.empty());
}

TEST_F(Failures, ClosingKeepsTheWorkFileWhenTheUserLeavesTheOthersFileInPlace) {
    std::ofstream(Place("Job.tdw"), std::ios::app) << "other";
    dialogs->answers = {Answer::Yes, Answer::No};
    ActiveBarClick("ToolClose");
    EXPECT_TRUE(Exists("Projects/Job.tmp"));
    dialogs->answers = {Answer::Yes, Answer::No};
    EXPECT_FALSE(QuitTendo());
    EXPECT_TRUE(Exists("Projects/Job.tmp"));
    dialogs->answers = {Answer::Yes, Answer::No};
    ActiveBarClick("ToolNew");
    EXPECT_TRUE(Exists("Projects/Job.tmp"));
    EXPECT_EQ(Project().GPDProjectFormat.Title.Trimmed(), "Changed since");
}

TEST_F(Failures, AProjectFileThatWasDeletedIsWrittenAnew) {
    fs::remove(Place("Job.tdw"));
    ExpectTheNextSaveToWork();
}

TEST_F(Failures, ASaveThroughASymbolicLinkGoesToItsTarget) {
    fs::create_directories(home / "Store");
    fs::copy_file(Place("Job.tdw"), home / "Store" / "Real.tdw");
    fs::create_symlink(home / "Store" / "Real.tdw", Place("Link.tdw"));
    State().ProjectChanged = false;
    dialogs->files = {Place("Link.tdw")};
    ActiveBarClick("ToolOpen");
    Change("Through the link");
    ActiveBarClick("ToolSave");
    EXPECT_TRUE(dialogs->messages.empty());
    EXPECT_TRUE(fs::is_symlink(Place("Link.tdw")));
    EXPECT_FALSE(fs::is_symlink(home / "Store" / "Real.tdw"));
    EXPECT_EQ(Read("Store/Real.tdw"), ReadWholeFile(Place("Link.tmp")));
    EXPECT_NE(Read("Store/Real.tdw"), saved);
}

TEST_F(Failures, AnAutosaveOnAFullDiskTellsAndTheWorkFileStays) {
    Write("Tendo.ini", "[Options]\nAutoSave=1\nAutoSaveInterval=1\n");
    const std::string before = ReadWholeFile(Place("Job.tmp"));
    SystemCalls().write = [](int, const void*, size_t) -> ssize_t {
        errno = ENOSPC;
        return -1;
    };
    EXPECT_TRUE(TickTimer("tmrAutoSave"));
    ExpectOneBox("the disk is full");
    EXPECT_TRUE(ReadWholeFile(Place("Job.tmp")) == before);
    ExpectTheNextSaveToWork();
}

TEST_F(Failures, ANewProjectThatCannotBeMadeLeavesNoneOpenAndItsToolsDisabled) {
    dialogs->answers = {Answer::No};
    SystemCalls().write = [](int, const void*, size_t) -> ssize_t {
        errno = ENOSPC;
        return -1;
    };
    ActiveBarClick("ToolNew");
    EXPECT_TRUE(Saw("the disk is full"));
    EXPECT_FALSE(State().ProjectIsOpen);
    EXPECT_FALSE(FindTool("ToolSave")->enabled);
    EXPECT_EQ(Caption(), "Quick Tendo");
    ExpectUserFileAsItWas();
    SystemCalls() = SystemCallTable();
    ActiveBarClick("ToolNew");
    EXPECT_EQ(Caption(), "Tendo - (UNTITLED)");
}

TEST_F(Failures, AnOpenInAReadOnlyFolderTellsItsNumberAndLeavesTheFile) {
    dialogs->answers = {Answer::No};
    ActiveBarClick("ToolClose");
    SystemCalls().open = [](const char* path, int flags, mode_t mode) {
        if ((flags & O_CREAT) == 0) return ::open(path, flags, mode);
        errno = EROFS;
        return -1;
    };
    dialogs->files = {Place("Job.tdw")};
    dialogs->messages.clear();
    ActiveBarClick("ToolOpen");
    EXPECT_TRUE(Saw("Project File Open Error 70"));
    EXPECT_TRUE(Saw("Location = 11"));
    EXPECT_FALSE(State().ProjectIsOpen);
    ExpectUserFileAsItWas();
}

TEST_F(Failures, ASaveAsOnAFullDiskSavesNothingAndKeepsTheName) {
    SystemCalls().write = [](int, const void*, size_t) -> ssize_t {
        errno = ENOSPC;
        return -1;
    };
    dialogs->files = {Place("Second.tdw")};
    ActiveBarClick("ToolSaveAs");
    ExpectOneBox("An error occured while trying to save your project.  No file was saved.");
    EXPECT_EQ(State().ProjectFileName, Place("Job.tdw"));
    EXPECT_FALSE(Exists("Projects/Second.tdw"));
    ExpectTheNextSaveToWork();
}

TEST_F(Failures, AnOpenThatFailsLeavesTheOpenProjectWhole) {
    dialogs->answers = {Answer::Cancel};
    Write("Projects/Broken.tdw", "no database");
    DropFiles({Place("Broken.tdw")});
    EXPECT_TRUE(Saw("Project File Open Error"));
    EXPECT_EQ(Read("Projects/Broken.tdw"), "no database");
    EXPECT_FALSE(Exists("Projects/Broken.tmp"));
    EXPECT_EQ(State().ProjectFileName, Place("Job.tdw"));
    EXPECT_EQ(State().WorkFileName, Place("Job.tmp"));
    EXPECT_EQ(Project().GPDProjectFormat.Title.Trimmed(), "Changed since");
    dialogs->answers = {Answer::Yes};
    EXPECT_TRUE(QuitTendo());
    EXPECT_NE(ReadWholeFile(Place("Job.tdw")), saved);
}

}  // namespace
}  // namespace tendo
