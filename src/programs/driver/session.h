#pragma once

#include <functional>
#include <istream>
#include <map>
#include <stdexcept>
#include <string>
#include <vector>

#include "programs/driver/compare.h"
#include "programs/driver/scripted_dialogs.h"

namespace tendo {
class Form;
}

namespace tendo::driver {

using Words = std::vector<std::string>;

/// A command that can't be done, or an expectation that isn't met.
class CommandFault : public std::runtime_error {
  public:
    using std::runtime_error::runtime_error;
    CommandFault(const std::string& text, std::string expected, Json got)
        : std::runtime_error(text),
          expected_(std::move(expected)),
          got_(std::move(got)),
          compared_(true) {}
    bool Compared() const { return compared_; }
    const std::string& Expected() const { return expected_; }
    const Json& Got() const { return got_; }

  private:
    std::string expected_;
    Json got_;
    bool compared_ = false;
};

/// Commands for a modal form that is still to come.
struct FormAnswer {
    std::string form;
    std::vector<std::string> commands;
};

/// One run of the program under a script.
class Session {
  public:
    struct Options {
        std::string home, winIni, today, args;
        bool start = true;
    };

    explicit Session(Options options);
    ~Session();
    Session(const Session&) = delete;
    Session& operator=(const Session&) = delete;

    /// Runs all lines of a script; writes one line of JSON a command.
    void RunScript(const std::vector<std::string>& lines);
    /// The same line by line as they come; for use by hand or by another program.
    void RunStream(std::istream& input);
    /// True when every command so far was ok.
    bool AllOk() const { return allOk_; }
    /// Quits as the user would when the script didn't; tells of form answers that were never used.
    void Finish();

    /// One command; throws CommandFault or what the program throws. Used by `expect fails` too.
    Json Run(const Words& words);

    /// A file named in a script: as it stands when absolute, else in the program directory.
    std::string FileInHome(const std::string& name) const;
    /// The same, but a file that is not there and is in the folder of the driver's start is taken
    /// from there.
    std::string FileToRead(const std::string& name) const;

    void StartProgram();
    void MarkQuit() { started_ = false; }

    ScriptedDialogs& Dialogs_() { return *dialogs_; }
    std::vector<FormAnswer>& FormAnswers() { return formAnswers_; }
    /// What the program asked of the desktop, in order: "open TARGET", "activate TITLE", "start
    /// PROGRAM", "run PROGRAM ARGUMENTS". Nothing of it is done.
    std::vector<std::string> shellCalls;
    std::size_t shellCallsLooked = 0;  // calls before this one were looked at by `expect shell`
    /// Programs that are not installed, as the script says.
    std::vector<std::string> missingPrograms;
    /// The document and call log searches of `expect surface`.
    std::size_t surfaceAt = 0;

  private:
    void RunLine(int number, const std::string& line);
    /// Starts the program before the first line that is no answer.
    void StartBefore(int number, const std::string& line);
    Json RunGuarded(const Words& words);
    void AnswerModalForm(Form& form);
    void RecordShellCalls();

    Options options_;
    ScriptedDialogs* dialogs_ = nullptr;  // owned by the dialog seam
    std::vector<FormAnswer> formAnswers_;
    bool started_ = false;
    bool allOk_ = true;
};

using Command = std::function<Json(Session&, const Words&)>;
/// All commands by their first word.
const std::map<std::string, Command>& Commands();

/// The groups that make up the table.
void AddControlCommands(std::map<std::string, Command>& commands);
void AddExpectations(std::map<std::string, Command>& commands);
void AddStateCommands(std::map<std::string, Command>& commands);
void AddReportCommands(std::map<std::string, Command>& commands);

/// Throws when a command has fewer words than it needs (the command's own word counts).
void MustHave(const Words& words, std::size_t count, const char* usage);

/// A Qt-free procedure by its name.
Json CallProcedure(const Words& nameAndArguments);
/// A project record or a row of the material catalogue by its path.
Json RecordValue(const std::string& path);
/// Program state by name.
Json StateValue(const std::string& name);
void SetStateValue(const std::string& name, const std::string& text);
Json AllState();

}  // namespace tendo::driver
