#include "programs/driver/session.h"

#include <QApplication>
#include <QMdiSubWindow>
#include <QPointer>
#include <QStandardPaths>
#include <QUrl>
#include <algorithm>
#include <filesystem>
#include <iostream>

#include "app/screens/application.h"
#include "app/screens/shell.h"
#include "platform/files/paths.h"
#include "platform/qt/form.h"
#include "platform/text/runtime_error.h"
#include "programs/driver/input.h"
#include "programs/driver/script.h"

namespace tendo::driver {

Session::Session(Options options) : options_(std::move(options)) {
    options_.home = std::filesystem::absolute(options_.home).string();
    auto dialogs = std::make_unique<ScriptedDialogs>();
    dialogs_ = dialogs.get();
    dialogs_->printFile = FileInHome("printed.pdf");
    SetDialogs(std::move(dialogs));
    Form::SetModalObserver([this](Form& form) { AnswerModalForm(form); });
    RecordShellCalls();
}

/// The desktop's answers without its doing: what is there opens or starts, what isn't fails.
void Session::RecordShellCalls() {
    constexpr int done = 33;
    constexpr int fileNotFound = 2;
    Shell().Open = [this](const std::string& target) {
        shellCalls.push_back("open " + target);
        const bool address = QUrl(QString::fromStdString(target)).scheme().size() > 1;
        return address || FileExists(target) ? done : fileNotFound;
    };
    Shell().Activate = [this](const std::string& title) {
        shellCalls.push_back("activate " + title);
        return false;
    };
    Shell().Start = [this](const std::string& program) {
        shellCalls.push_back("start " + program);
        return !QStandardPaths::findExecutable(QString::fromStdString(program)).isEmpty();
    };
    Shell().Run = [this](const std::string& program, const std::vector<std::string>& arguments,
                         const std::function<void(int)>&) {
        std::string call = "run " + program;
        for (const std::string& argument : arguments)
            call += " " + argument;
        shellCalls.push_back(call);
        return std::find(missingPrograms.begin(), missingPrograms.end(), program) ==
               missingPrograms.end();
    };
}

Session::~Session() {
    Form::SetModalObserver({});
    Shell() = {};
}

void Session::StartProgram() {
    if (started_) throw CommandFault("the program runs already");
    StartOptions start;
    start.home = options_.home;
    start.winIni = options_.winIni;
    start.today = options_.today;
    if (!options_.args.empty()) start.args = {options_.args};
    start.shortLogo = true;
    started_ = StartTendo(start);
    SettleEvents();
    if (!started_) throw CommandFault("the program ended at its start");
}

std::string Session::FileInHome(const std::string& name) const {
    const std::filesystem::path path(name);
    return path.is_absolute() ? name : WithSeparator(options_.home) + name;
}

std::string Session::FileToRead(const std::string& name) const {
    const std::string inHome = FileInHome(name);
    return !FileExists(inHome) && FileExists(name) ? name : inHome;
}

Json Session::RunGuarded(const Words& words) {
    dialogs_->faults.clear();
    Json value = Run(words);
    SettleEvents();
    if (!dialogs_->faults.empty()) throw CommandFault(dialogs_->faults.front());
    return value;
}

Json Session::Run(const Words& words) {
    const auto found = Commands().find(words[0]);
    if (found == Commands().end()) throw CommandFault("no such command: " + words[0]);
    return found->second(*this, words);
}

void Session::RunLine(int number, const std::string& line) {
    Json answer = {{"line", number}};
    try {
        const Words words = WordsOf(line);
        if (words.empty()) return;
        const Json value = RunGuarded(words);
        answer["ok"] = true;
        if (!value.is_null()) answer["value"] = value;
    } catch (const CommandFault& fault) {
        answer["ok"] = false;
        answer["error"] = fault.what();
        if (fault.Compared()) {
            answer["expected"] = fault.Expected();
            answer["got"] = fault.Got();
        }
    } catch (const RuntimeError& error) {
        answer["ok"] = false;
        answer["error"] = "error " + std::to_string(error.Number()) + ": " + error.Description();
    } catch (const std::exception& error) {
        answer["ok"] = false;
        answer["error"] = error.what();
    }
    allOk_ = allOk_ && answer["ok"].get<bool>();
    std::cout << answer.dump(-1, ' ', false, Json::error_handler_t::replace) << std::endl;
}

void Session::StartBefore(int number, const std::string& line) {
    if (started_ || !options_.start) return;
    try {
        const Words words = WordsOf(line);
        // Answers at the head of the script are for dialogs of the start itself.
        if (words.empty() || words[0] == "answer") return;
    } catch (const std::exception&) {
        return;  // the line's own run reports it
    }
    options_.start = false;
    RunLine(number, "start");
}

void Session::RunScript(const std::vector<std::string>& lines) {
    int number = 0;
    for (const std::string& line : lines) {
        ++number;
        StartBefore(number, line);
        RunLine(number, line);
    }
}

void Session::RunStream(std::istream& input) {
    int number = 0;
    for (std::string line; std::getline(input, line);) {
        ++number;
        StartBefore(number, line);
        RunLine(number, line);
    }
}

void Session::AnswerModalForm(Form& form) {
    const std::string name = form.Name().toStdString();
    QPointer<Form> alive(&form);
    if (!formAnswers_.empty() && QString::fromStdString(formAnswers_.front().form)
                                         .compare(form.Name(), Qt::CaseInsensitive) == 0) {
        const FormAnswer answer = formAnswers_.front();
        formAnswers_.erase(formAnswers_.begin());
        for (const std::string& command : answer.commands) {
            try {
                const Words words = WordsOf(command);
                if (!words.empty()) Run(words);
                SettleEvents();
            } catch (const std::exception& fault) {
                dialogs_->faults.push_back("in " + name + ", " + command + ": " + fault.what());
                break;
            }
        }
    } else {
        dialogs_->faults.push_back("the modal form " + name +
                                   " came up with no commands queued for it");
    }
    if (alive && alive->IsModal()) alive->Unload();
}

void Session::Finish() {
    if (started_) RunLine(0, "quit");
    for (const FormAnswer& answer : formAnswers_) {
        allOk_ = false;
        std::cout << Json{{"line", 0},
                          {"ok", false},
                          {"error", "the form " + answer.form + " never came"}}
                         .dump()
                  << std::endl;
    }
}

void MustHave(const Words& words, std::size_t count, const char* usage) {
    if (words.size() < count) throw CommandFault(std::string("usage: ") + usage);
}

const std::map<std::string, Command>& Commands() {
    static const std::map<std::string, Command> commands = [] {
        std::map<std::string, Command> all;
        AddControlCommands(all);
        AddExpectations(all);
        AddStateCommands(all);
        AddReportCommands(all);
        return all;
    }();
    return commands;
}

}  // namespace tendo::driver
