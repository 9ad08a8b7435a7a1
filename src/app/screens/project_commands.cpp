#include "app/screens/project_commands.h"

#include <QApplication>
#include <QLabel>
#include <functional>
#include <utility>

#include "app/command_table.h"
#include "app/screens/bar.h"
#include "app/screens/pointer.h"
#include "app/screens/screen_table.h"
#include "platform/files/ini_file_handler.h"
#include "platform/files/leftovers.h"
#include "platform/files/paths.h"
#include "platform/files/safe_file.h"
#include "platform/qt/dialogs.h"
#include "platform/qt/form.h"
#include "platform/text/date_text.h"
#include "platform/text/number_text.h"
#include "platform/text/runtime_error.h"
#include "platform/text/text.h"
#include "project/program_state.h"
#include "project/project_lifecycle.h"
#include "project/project_records.h"
#include "project/screens/frm_gpd.h"

namespace tendo {
namespace {

constexpr const char* untitledName = "UNTITLED.HID";

void ShowCaption(const std::string& caption) {
    if (Form* main = Form::Find("frmMDI")) main->setWindowTitle(QString::fromStdString(caption));
}

void ShowNoProject() {
    MainBar().DisableActiveBarTools();
    ShowCaption("Quick Tendo");
}

bool IsUntitled() {
    return UpperCase(LastCharacters(State().ProjectFileName, 12)) == untitledName;
}

/// Gives the open project up for another. False when its user keeps it.
bool LeaveOpenProject() {
    if (State().StartingUp || !State().ProjectIsOpen) return true;
    if (State().ProjectChanged) {
        const SaveQuestion answer = AskToSaveProject();
        if (answer == SaveQuestion::Stop) return false;
        State().SaveCancelled = false;
        if (answer == SaveQuestion::Save) mnuFileSave_Click();
        if (State().SaveCancelled) return false;
    }
    DeleteWorkFile();
    State().ProjectIsOpen = false;
    return true;
}

/// The text behind the first point of a base name is another extension than the project's.
bool HasForeignExtension(const std::string& fileName) {
    const std::string name = BaseName(fileName);
    const std::size_t point = name.find('.');
    return point != std::string::npos && UpperCase(name.substr(point + 1)) != "TDW";
}

/// The name that the project is to have, asked for until it has no foreign extension; empty on
/// cancel.
std::string AskProjectName() {
    const FileDialog dialog{.kind = FileDialog::Kind::Save,
                            .title = "Save As",
                            .filter = "TENDO File (*.tdw)|*.tdw",
                            .fileName = "*.tdw",
                            .folder = State().ProjectsDirectory,
                            .defaultExtension = "tdw",
                            .promptOnOverwrite = true};
    for (;;) {
        const std::optional<std::string> chosen = Dialogs().File(dialog);
        if (!chosen) return {};
        if (!HasForeignExtension(*chosen))
            return *chosen + (Contains(BaseName(*chosen), ".") ? "" : ".tdw");
        // The message names the extension of the DOS release; it stands so.
        ShowMessage("File Save As Error",
                    "It is not necessary to specify the filename's extension.  Although, if you "
                    "specify the filename's extension, it must be \"tdo\".",
                    MessageIcon::Information);
    }
}

/// Writes what is worth no more than a message: a profile that can't be written must not stop an
/// open or a close. The same failure is told once.
void KeepInProfile(const std::function<void()>& write) {
    static std::string told;
    try {
        write();
    } catch (const RuntimeError& error) {
        if (std::exchange(told, error.Description()) != error.Description())
            ShowMessage("TENDO", error.Description(), MessageIcon::Critical);
    }
}

void MakeUntitledProject() {
    State().ProjectFileName = State().ProjectsDirectory + "Untitled.hid";
    MakeFileExtensions();
    CopyAutoloadProject();
    SaveWorkFile();
    CopyFileOver(State().WorkFileName, State().ProjectFileName);
    RememberProjectFile();
}

void SaveUnderName(const std::string& fileName) {
    RemoveLeftovers(DirectoryOf(fileName));
    SaveProjectAs(fileName);
    ShowProjectCaption();
    State().ProjectChanged = false;
}

/// Asks before what another program wrote since is replaced. A No counts as a cancelled save: what
/// was to be closed stays, and the work file keeps the data.
bool MayReplaceProjectFile() {
    if (!ProjectFileWasChanged()) return true;
    const Answer answer = Ask("Project File Changed",
                              BaseName(State().ProjectFileName) +
                                  " was changed by another program since it was opened.  Do you "
                                  "wish to replace it?",
                              Buttons::YesNo);
    if (answer != Answer::Yes) State().SaveCancelled = true;
    return answer == Answer::Yes;
}

}  // namespace

bool CloseProjectWindows() {
    bool closed = true;
    QList<QPointer<Form>> forms;
    for (Form* form : Form::Loaded())
        forms.append(form);
    for (const QPointer<Form>& form : forms) {
        if (!form) continue;
        const QString name = form->Name();
        if (name != "frmMDI" && name != "frmPrint" && name != "frmExplorer")
            closed = form->Unload() && closed;
    }
    return closed;
}

SaveQuestion AskToSaveProject() {
    switch (Ask("Project has changed",
                "The project file has changed.  Do you wish to save this project?",
                Buttons::YesNoCancel)) {
        case Answer::Yes:
            return SaveQuestion::Save;
        case Answer::No:
            return SaveQuestion::Discard;
        default:
            return SaveQuestion::Stop;
    }
}

void CheckSaveOnClose() {
    if (!State().ProjectIsOpen || !State().ProjectChanged) return;
    State().SaveCancelled = false;  // only this question's own answer counts
    switch (AskToSaveProject()) {
        case SaveQuestion::Save:
            mnuFileSave_Click();
            if (!State().SaveCancelled) DeleteWorkFile();
            break;
        case SaveQuestion::Discard:
            DeleteWorkFile();
            State().ProjectIsOpen = false;
            break;
        case SaveQuestion::Stop:
            State().SaveCancelled = true;
    }
}

void ShowProjectCaption() {
    ShowCaption(ProjectCaption());
}

void BuildRecentFilesMenu() {
    const std::vector<std::string> names = RecentFiles();
    for (int i = 0; i < RecentToolCount; ++i) {
        const auto place = static_cast<std::size_t>(i);
        MainBar().SetRecentFile(i + 1, place < names.size() ? names[place] : std::string());
    }
}

void AddRecentFile() {
    KeepInProfile([] { AddToRecentFiles(State().ProjectFileName); });
    BuildRecentFilesMenu();
}

void WriteLastOpened() {
    // Capitals never equal small letters, so the value is always empty: meant, no project opens by
    // itself.
    const bool named = UpperCase(LastCharacters(State().ProjectFileName, 4)) == ".tdw";
    const std::string name = named ? State().ProjectFileName : std::string();
    KeepInProfile([&] { Ini().MyWriteAppProfileString("RecentFiles", "LastOpened", name); });
}

void mnuFileNew_Click() {
    HourglassPointer();
    if (!CloseProjectWindows() || !LeaveOpenProject()) return NormalPointer();
    ImportFileName().clear();
    try {
        MakeUntitledProject();
    } catch (const RuntimeError&) {
        ShowNoProject();  // the old project is closed, the new one couldn't be made
        throw;
    }
    State().ProjectIsOpen = true;
    State().ProjectChanged = false;
    ShowProjectCaption();
    MainBar().EnableActiveBarTools();
    Project().GPDProjectFormat.Date = ShortDateText(Now());
    ShowScreen("frmGPD");
    NormalPointer();
}

void mnuFileClose_Click() {
    CheckSaveOnClose();
    CloseProjectWindows();
    ShowNoProject();
    WriteLastOpened();
}

void mnuFileSave_Click() {
    HourglassPointer();
    Form::StoreAllFields();
    if (IsUntitled()) {
        mnuFileSaveAs_Click();
    } else {
        RemoveLeftovers(DirectoryOf(State().ProjectFileName));
        RestoreWorkFile();
        SaveWorkFile();
        if (!MayReplaceProjectFile()) return NormalPointer();
        CopyFileOver(State().WorkFileName, State().ProjectFileName);
        RememberProjectFile();
    }
    // ProjectChanged stays set: the question comes up on closing all the same.
    AddRecentFile();
    NormalPointer();
}

void mnuFileSaveAs_Click() {
    HourglassPointer();
    Form::StoreAllFields();
    try {
        SaveWorkFile();
        const std::string name = AskProjectName();
        if (!name.empty())
            SaveUnderName(name);
        else if (State().ClosingDown)
            State().SaveCancelled = true;
    } catch (const RuntimeError&) {
        State().SaveCancelled = true;  // what was to be closed after it stays
        ShowMessage("Save Project File Error",
                    "An error occured while trying to save your project.  No file was saved.");
    }
    NormalPointer();
}

void tmrAutoSave_Timer() {
    if (Ini().MyGetAppProfileInteger("Options", "AutoSave", -1) != 1) return;
    const float ticks =
        ValueOfText(Ini().MyGetAppProfileString("Options", "AutoSaveInterval", "5"));
    if (static_cast<float>(State().AutosaveCounter) < ticks - 1) {
        ++State().AutosaveCounter;
        return;
    }
    ShowAutosavePanel("Autosaving...");
    QApplication::processEvents();
    SaveWorkFile();
    QApplication::processEvents();
    State().AutosaveCounter = 0;
    ShowAutosavePanel("");
}

}  // namespace tendo
