#pragma once

#include <QApplication>
#include <QMdiSubWindow>
#include <deque>
#include <functional>
#include <optional>
#include <vector>

#include "app/screens/application.h"
#include "platform/qt/dialogs.h"
#include "platform/qt/form.h"
#include "program_home.h"

namespace tendo {

/// Dialogs that a test answers; one without an answer is cancelled. Everything shown is kept.
class AnsweredDialogs : public DialogService {
  public:
    Answer Message(const MessageDialog& dialog) override {
        messages.push_back(dialog);
        if (dialog.buttons == Buttons::Ok) return Answer::Ok;
        if (answers.empty()) return Answer::Cancel;
        const Answer answer = answers.front();
        answers.pop_front();
        return answer;
    }
    std::optional<std::string> Input(const InputDialog&) override { return std::nullopt; }
    std::optional<std::string> File(const FileDialog& dialog) override {
        fileDialogs.push_back(dialog);
        if (files.empty()) return std::nullopt;
        const std::string file = files.front();
        files.pop_front();
        return file;
    }
    std::optional<std::uint32_t> Color(const ColorDialog&) override { return std::nullopt; }
    std::optional<FontChoice> Font(const std::string&, const FontChoice&) override {
        return std::nullopt;
    }
    bool HasPrinter() override { return hasPrinter; }
    bool Print(const PrintDialog& dialog, QPrinter& printer) override {
        printDialogs.push_back(dialog);
        return print && print(printer);
    }

    std::deque<Answer> answers;
    std::deque<std::string> files;
    bool hasPrinter = true;
    std::function<bool(QPrinter&)> print;  // without one, the printer dialog is cancelled
    std::vector<PrintDialog> printDialogs;
    std::vector<MessageDialog> messages;
    std::vector<FileDialog> fileDialogs;
};

/// The whole program on a directory of its own.
class RunningProgram : public ProgramHome {
  protected:
    void SetUp() override {
        ProgramHome::SetUp();
        static int argc = 1;
        static char name[] = "test";
        static char* argv[] = {name, nullptr};
        // Never destroyed: at the end of the process the platform behind it is gone first.
        static auto* application = qApp ? qApp : new QApplication(argc, argv);
        ASSERT_NE(application, nullptr);
        auto service = std::make_unique<AnsweredDialogs>();
        dialogs = service.get();
        SetDialogs(std::move(service));
    }

    void TearDown() override {
        dialogs->answers = {Answer::No, Answer::No, Answer::No};
        QuitTendo();
        Form::SetModalObserver({});
        ProgramHome::TearDown();
    }

    bool StartProgram(const std::vector<std::string>& args = {}) {
        const bool started = StartTendo({.home = directory,
                                         .winIni = "",
                                         .today = "1998-05-04",
                                         .args = args,
                                         .shortLogo = true});
        QApplication::processEvents();
        dialogs->messages.clear();  // what the price book says on an empty directory
        return started;
    }

    std::string Caption() const { return Form::Find("frmMDI")->windowTitle().toStdString(); }
    std::string Place(const std::string& name) const { return directory + "Projects/" + name; }
    bool Saw(const std::string& text) const {
        for (const MessageDialog& message : dialogs->messages)
            if (message.title.find(text) != std::string::npos ||
                message.text.find(text) != std::string::npos)
                return true;
        return false;
    }
    /// A project file under a name, made by the program itself.
    void MakeProject(const std::string& name) {
        ActiveBarClick("ToolNew");
        dialogs->files = {Place(name)};
        ActiveBarClick("ToolSaveAs");
        ActiveBarClick("ToolClose");
        dialogs->messages.clear();
        dialogs->fileDialogs.clear();
    }

    /// A new session: no project is open, and the work files of the last one are gone.
    void Restart() {
        QuitTendo();
        StartProgram();
    }

    AnsweredDialogs* dialogs = nullptr;
};

}  // namespace tendo
