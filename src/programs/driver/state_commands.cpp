#include <QApplication>
#include <csignal>

#include "app/screens/application.h"
#include "materials/material_catalogue.h"
#include "platform/files/paths.h"
#include "platform/files/safe_file.h"
#include "platform/text/number_text.h"
#include "platform/text/text.h"
#include "programs/driver/input.h"
#include "programs/driver/script.h"
#include "programs/driver/session.h"
#include "project/program_state.h"
#include "project/record_access.h"

namespace tendo::driver {
namespace {

/// One entry of the program's state: exactly one of the members is set.
struct StateEntry {
    const char* name;
    bool ProgramState::*flag = nullptr;
    int ProgramState::*number = nullptr;
    std::string ProgramState::*text = nullptr;
};
const StateEntry stateEntries[] = {
    {.name = "ProjectIsOpen", .flag = &ProgramState::ProjectIsOpen},
    {.name = "ProjectChanged", .flag = &ProgramState::ProjectChanged},
    {.name = "StartingUp", .flag = &ProgramState::StartingUp},
    {.name = "ClosingDown", .flag = &ProgramState::ClosingDown},
    {.name = "SaveCancelled", .flag = &ProgramState::SaveCancelled},
    {.name = "OpenNamedFile", .flag = &ProgramState::OpenNamedFile},
    {.name = "MaterialDatabaseLoaded", .flag = &ProgramState::MaterialDatabaseLoaded},
    {.name = "MaterialDatabaseHeld", .flag = &ProgramState::MaterialDatabaseHeld},
    {.name = "MaterialListEditorIsOpen", .flag = &ProgramState::MaterialListEditorIsOpen},
    {.name = "SystemNumber", .number = &ProgramState::SystemNumber},
    {.name = "AutosaveCounter", .number = &ProgramState::AutosaveCounter},
    {.name = "ProjectFileName", .text = &ProgramState::ProjectFileName},
    {.name = "WorkFileName", .text = &ProgramState::WorkFileName},
    {.name = "BackupFileName", .text = &ProgramState::BackupFileName},
    {.name = "FileToOpen", .text = &ProgramState::FileToOpen},
    {.name = "MaterialDatabaseName", .text = &ProgramState::MaterialDatabaseName},
    {.name = "ProgramDirectory", .text = &ProgramState::ProgramDirectory},
    {.name = "ProjectsDirectory", .text = &ProgramState::ProjectsDirectory},
    {.name = "CommonDirectory", .text = &ProgramState::CommonDirectory},
    {.name = "PYROSDirectory", .text = &ProgramState::PYROSDirectory},
    {.name = "MELDADirectory", .text = &ProgramState::MELDADirectory},
    {.name = "KORVADirectory", .text = &ProgramState::KORVADirectory},
    {.name = "ProfileFile", .text = &ProgramState::ProfileFile},
    {.name = "ProgramVersionText", .text = &ProgramState::ProgramVersionText},
    {.name = "LogoFileName", .text = &ProgramState::LogoFileName},
};

const StateEntry& EntryOf(const std::string& name) {
    for (const StateEntry& entry : stateEntries)
        if (EqualsNoCase(entry.name, name)) return entry;
    throw CommandFault("there is no state " + name);
}

Json ValueOf(const StateEntry& entry) {
    const ProgramState& state = State();
    if (entry.flag) return state.*entry.flag;
    if (entry.number) return state.*entry.number;
    return state.*entry.text;
}

Json StateCommand(Session&, const Words& words) {
    if (words.size() == 1) return AllState();
    if (words.size() == 2) return StateValue(words[1]);
    SetStateValue(words[1], words[2]);
    return nullptr;
}

/// "pages=2-3", "copies=2", "file=OUT.pdf"; a file stands in the program directory.
std::map<std::string, std::string> PrinterSettings(const Session& session, const Words& words) {
    std::map<std::string, std::string> settings;
    for (std::size_t i = 2; i < words.size(); ++i) {
        const std::size_t equals = words[i].find('=');
        MustHave(words, equals == std::string::npos ? words.size() + 1 : 0,
                 "answer print SETTING=VALUE ...");
        const std::string name = words[i].substr(0, equals), value = words[i].substr(equals + 1);
        settings[name] = name == "file" ? session.FileInHome(value) : value;
    }
    return settings;
}

Json AnswerCommand(Session& session, const Words& words) {
    MustHave(words, 2,
             "answer BUTTON | text T | file PATH | color #rrggbb | print SETTING=VALUE ... | "
             "no-printer | cancel | form FORM COMMANDS");
    using Kind = QueuedAnswer::Kind;
    auto& answers = session.Dialogs_().answers;
    if (words[1] == "form") {
        MustHave(words, 4, "answer form FORM \"COMMANDS; ...\"");
        session.FormAnswers().push_back({words[2], CommandsOf(words[3])});
        return nullptr;
    }
    const std::string value = words.size() > 2 ? words[2] : "";
    if (words[1] == "text")
        answers.push_back({Kind::Text, value, {}});
    else if (words[1] == "file")
        answers.push_back({Kind::File, session.FileInHome(value), {}});
    else if (words[1] == "color")
        answers.push_back({Kind::Color, value, {}});
    else if (words[1] == "print")
        answers.push_back({Kind::Print, "print", PrinterSettings(session, words)});
    else if (words[1] == "no-printer")
        answers.push_back({Kind::NoPrinter, "no-printer", {}});
    else if (EqualsNoCase(words[1], "cancel"))
        answers.push_back({Kind::Cancel, "cancel", {}});
    else
        answers.push_back({Kind::Button, LowerCase(words[1]), {}});
    return nullptr;
}

Json DialogsCommand(Session& session, const Words&) {
    ScriptedDialogs& dialogs = session.Dialogs_();
    Json list = Json::array();
    for (std::size_t i = dialogs.reported; i < dialogs.shown.size(); ++i)
        list.push_back(dialogs.shown[i]);
    dialogs.reported = dialogs.looked = dialogs.shown.size();
    return list;
}

/// The catalogue's rows are no project records; they are read and set in a scratch project's first
/// line.
struct CatalogueRow {
    MaterialRow* row;
    std::string scratchPath;
};
CatalogueRow CatalogueRowOf(const std::string& path) {
    const std::size_t index =
        static_cast<std::size_t>(LeadingLong(path.substr(path.find('[') + 1)));
    const std::size_t end = path.find(']');
    if (end == std::string::npos || index >= MaterialCatalogue().size())
        throw CommandFault("there is no catalogue row " + path);
    return {&MaterialCatalogue()[index], "ProjectMaterials[0]" + path.substr(end + 1)};
}

bool IsCataloguePath(const std::string& path) {
    return StartsWith(path, "MaterialCatalogue[");
}

Json RecordCommand(Session&, const Words& words) {
    MustHave(words, 3, "record PATH VALUE");
    if (!IsCataloguePath(words[1])) {
        SetRecord(words[1], words[2]);
        return nullptr;
    }
    const CatalogueRow target = CatalogueRowOf(words[1]);
    ProjectRecords scratch;
    scratch.ProjectMaterials[0] = *target.row;
    SetRecord(scratch, target.scratchPath, words[2]);
    *target.row = scratch.ProjectMaterials[0];
    return nullptr;
}

Json RecordsCommand(Session&, const Words& words) {
    if (words.size() > 1) return RecordValue(words[1]);
    return Json::parse(RecordsAsJson(Project()).dump());
}

Json CallCommand(Session&, const Words& words) {
    MustHave(words, 2, "call PROCEDURE [ARGS ...]");
    return CallProcedure({words.begin() + 1, words.end()});
}

Json RemoveCommand(Session& session, const Words& words) {
    MustHave(words, 2, "remove PATH");
    DeleteFileIfThere(session.FileInHome(words[1]));
    return nullptr;
}

Json CopyCommand(Session& session, const Words& words) {
    MustHave(words, 3, "copy FROM TO");
    CopyFileOver(session.FileToRead(words[1]), session.FileInHome(words[2]));
    return nullptr;
}

Json QuitCommand(Session& session, const Words&) {
    if (!QuitTendo()) throw CommandFault("closing was cancelled");
    session.MarkQuit();
    return nullptr;
}

Json StartCommand(Session& session, const Words&) {
    session.StartProgram();
    return nullptr;
}

/// A program that the desktop shall not have.
Json MissingCommand(Session& session, const Words& words) {
    MustHave(words, 2, "missing PROGRAM");
    session.missingPrograms.push_back(words[1]);
    return nullptr;
}

Json KillCommand(Session&, const Words&) {
    std::raise(SIGKILL);
    return nullptr;
}

}  // namespace

Json RecordValue(const std::string& path) {
    if (!IsCataloguePath(path)) return Json::parse(RecordAt(path).dump());
    const CatalogueRow target = CatalogueRowOf(path);
    ProjectRecords scratch;
    scratch.ProjectMaterials[0] = *target.row;
    return Json::parse(RecordAt(scratch, target.scratchPath).dump());
}

Json StateValue(const std::string& name) {
    return ValueOf(EntryOf(name));
}

void SetStateValue(const std::string& name, const std::string& text) {
    const StateEntry& entry = EntryOf(name);
    ProgramState& state = State();
    if (entry.flag)
        state.*entry.flag = text == "true" || text == "1";
    else if (entry.number)
        state.*entry.number = LeadingLong(text);
    else
        state.*entry.text = text;
}

Json AllState() {
    Json all = Json::object();
    for (const StateEntry& entry : stateEntries)
        all[entry.name] = ValueOf(entry);
    return all;
}

void AddStateCommands(std::map<std::string, Command>& commands) {
    commands["state"] = StateCommand;
    commands["answer"] = AnswerCommand;
    commands["dialogs"] = DialogsCommand;
    commands["record"] = RecordCommand;
    commands["records"] = RecordsCommand;
    commands["call"] = CallCommand;
    commands["remove"] = RemoveCommand;
    commands["copy"] = CopyCommand;
    commands["quit"] = QuitCommand;
    commands["start"] = StartCommand;
    commands["missing"] = MissingCommand;
    commands["kill"] = KillCommand;
}

}  // namespace tendo::driver
