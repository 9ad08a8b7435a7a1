#include <QApplication>
#include <QMdiSubWindow>

#include "app/screens/application.h"
#include "platform/files/paths.h"
#include "platform/files/safe_file.h"
#include "platform/qt/form.h"
#include "programs/driver/controls.h"
#include "programs/driver/input.h"
#include "programs/driver/report_access.h"
#include "programs/driver/session.h"

namespace tendo::driver {
namespace {

/// What an expectation found: the value to compare with the script's last word.
struct Finding {
    std::string expected;
    Json got;
};

int NumberOf(const std::string& word) {
    try {
        return std::stoi(word);
    } catch (const std::exception&) {
        throw CommandFault("a number is wanted, not \"" + word + "\"");
    }
}

Finding OfCaption(Session&, const Words& words) {
    MustHave(words, 4, "expect caption FORM VALUE");
    return {words[3], ScreenOf(words[2])->windowTitle().toStdString()};
}

Finding OfRecord(Session&, const Words& words) {
    MustHave(words, 4, "expect record PATH VALUE");
    return {words[3], RecordValue(words[2])};
}

/// The first field of a record that isn't as expected; the last one when all are.
Finding OfFields(Session&, const Words& words) {
    if (words.size() < 5 || words.size() % 2 == 0)
        throw CommandFault("expect fields RECORD NAME VALUE [NAME VALUE ...]");
    Finding finding;
    for (std::size_t at = 3; at < words.size(); at += 2) {
        finding = {words[at + 1], RecordValue(words[2] + "." + words[at])};
        if (!Agrees(finding.expected, finding.got)) break;
    }
    return finding;
}

Finding OfState(Session&, const Words& words) {
    MustHave(words, 4, "expect state NAME VALUE");
    return {words[3], StateValue(words[2])};
}

Finding OfTool(Session&, const Words& words) {
    MustHave(words, 5, "expect tool NAME enabled|visible|checked|caption|band VALUE");
    const auto tool = FindTool(words[2]);
    if (!tool) throw CommandFault("there is no tool " + words[2]);
    const std::pair<const char*, Json> properties[] = {{"enabled", tool->enabled},
                                                       {"visible", tool->visible},
                                                       {"checked", tool->checked},
                                                       {"caption", tool->caption},
                                                       {"band", tool->band}};
    for (const auto& [name, value] : properties)
        if (words[3] == name) return {words[4], value};
    throw CommandFault("a tool has no property " + words[3]);
}

Finding OfForm(Session&, const Words& words) {
    MustHave(words, 5, "expect form FORM loaded|visible|active|modal VALUE");
    Form* form = Form::Find(QString::fromStdString(words[2]));
    if (words[3] == "loaded") return {words[4], form != nullptr};
    if (!form) throw CommandFault("the form " + words[2] + " is not loaded");
    if (words[3] == "visible") return {words[4], form->isVisible()};
    if (words[3] == "active") return {words[4], form->IsActiveForm()};
    if (words[3] == "modal") return {words[4], form->IsModal()};
    throw CommandFault("a form has no property " + words[3]);
}

/// The bytes hold a text as it stands or, as databases keep texts, with two bytes a character.
bool HoldsText(const std::string& bytes, const std::string& text) {
    const QString wide = QString::fromStdString(text);
    const std::string pairs(reinterpret_cast<const char*>(wide.utf16()),
                            2 * static_cast<std::size_t>(wide.size()));
    return bytes.find(text) != std::string::npos || bytes.find(pairs) != std::string::npos;
}

Finding OfFile(Session& session, const Words& words) {
    MustHave(words, 5, "expect file PATH exists true | same-as OTHER | length N");
    const std::string file = session.FileToRead(words[2]);
    if (words[3] == "exists") return {words[4], FileExists(file) || DirectoryExists(file)};
    if (words[3] == "length") return {words[4], FileLength(file)};
    if (words[3] == "holds") return {"true", HoldsText(ReadWholeFile(file), words[4])};
    if (words[3] == "same-as") {
        const bool same = ReadWholeFile(file) == ReadWholeFile(session.FileToRead(words[4]));
        return {"true", same};
    }
    throw CommandFault("a file has no property " + words[3]);
}

/// The dialogs not yet looked at; the oldest one is looked at now.
Finding OfDialog(Session& session, const Words& words) {
    MustHave(words, 3, "expect dialog TEXT");
    ScriptedDialogs& dialogs = session.Dialogs_();
    if (dialogs.looked >= dialogs.shown.size())
        throw CommandFault("no dialog came up", words[2], nullptr);
    const Json& dialog = dialogs.shown[dialogs.looked++];
    const std::string all = dialog.value("title", "") + "\n" + dialog.value("text", "");
    return {words[2].starts_with('~') ? words[2] : "~" + words[2], all};
}

Finding OfDialogField(Session& session, const Words& words) {
    MustHave(words, 3, "expect dialog.FIELD VALUE");
    const ScriptedDialogs& dialogs = session.Dialogs_();
    if (dialogs.looked == 0) throw CommandFault("no dialog was looked at yet");
    const std::string field = words[1].substr(std::string("dialog.").size());
    const Json& dialog = dialogs.shown[dialogs.looked - 1];
    if (!dialog.contains(field)) throw CommandFault("the dialog has no " + field);
    return {words[2], dialog[field]};
}

Finding OfNoDialog(Session& session, const Words&) {
    const ScriptedDialogs& dialogs = session.Dialogs_();
    Json unseen = Json::array();
    for (std::size_t i = dialogs.looked; i < dialogs.shown.size(); ++i)
        unseen.push_back(dialogs.shown[i]);
    return {"[]", unseen.dump()};
}

/// What the program asked of the desktop and nobody looked at yet; the oldest is looked at now.
Finding OfShell(Session& session, const Words& words) {
    MustHave(words, 3, "expect shell TEXT");
    if (session.shellCallsLooked >= session.shellCalls.size())
        throw CommandFault("nothing was asked of the desktop", words[2], nullptr);
    return {words[2], session.shellCalls[session.shellCallsLooked++]};
}

Finding OfCell(Session&, const Words& words) {
    MustHave(words, 6, "expect cell FORM.GRID N M TEXT");
    return {words[5], CellOf(ControlOf(PathOf(words[2])), NumberOf(words[3]), NumberOf(words[4]))};
}

Finding OfHead(Session&, const Words& words) {
    MustHave(words, 5, "expect head FORM.GRID M TEXT");
    return {words[4], HeadOf(ControlOf(PathOf(words[2])), NumberOf(words[3]))};
}

Finding OfFocus(Session&, const Words& words) {
    MustHave(words, 3, "expect focus FORM.CONTROL");
    const QWidget* focus = QApplication::focusWidget();
    const QWidget* wanted = ControlOf(PathOf(words[2]));
    const bool there = focus && (focus == wanted || wanted->isAncestorOf(focus));
    return {words[2],
            there ? Json(words[2]) : Json(focus ? focus->objectName().toStdString() : "")};
}

Finding OfCall(Session&, const Words& words) {
    MustHave(words, 4, "expect call PROCEDURE [ARGS ...] RESULT");
    return {words.back(), CallProcedure({words.begin() + 2, words.end() - 1})};
}

/// The command must not be ok: it throws, or leaves a fault behind.
Finding OfFails(Session& session, const Words& words) {
    MustHave(words, 3, "expect fails COMMAND ...");
    ScriptedDialogs& dialogs = session.Dialogs_();
    try {
        session.Run({words.begin() + 2, words.end()});
        SettleEvents();
    } catch (const std::exception&) {
        dialogs.faults.clear();
        return {"true", true};
    }
    const bool failed = !dialogs.faults.empty();
    dialogs.faults.clear();
    return {"true", failed};
}

Finding OfSurface(Session& session, const Words& words) {
    return {"true", ExpectSurface({words.begin() + 2, words.end()}, session.surfaceAt)};
}

Finding OfNoSurface(Session&, const Words& words) {
    MustHave(words, 3, "expect no-surface OP [KEY VALUE ...]");
    return {"0", CountSurface({words.begin() + 2, words.end()})};
}

Finding OfDocument(Session&, const Words& words) {
    MustHave(words, 4, "expect document pages N | page N TEXT");
    if (words[2] == "pages") return {words[3], DocumentPageCount()};
    MustHave(words, 5, "expect document page N TEXT");
    return {words[4].starts_with('~') ? words[4] : "~" + words[4],
            DocumentPageText(NumberOf(words[3]))};
}

Finding OfControl(Session&, const Words& words) {
    MustHave(words, 3, "expect FORM.CONTROL[.PROPERTY] VALUE");
    const ControlPath path = PathOf(words[1]);
    return {words[2], PropertyOf(ControlOf(path), path.property)};
}

using Expectation = Finding (*)(Session&, const Words&);
const std::map<std::string, Expectation> expectations = {
    {"caption", OfCaption},   {"record", OfRecord},      {"state", OfState},
    {"tool", OfTool},         {"form", OfForm},          {"file", OfFile},
    {"dialog", OfDialog},     {"no-dialog", OfNoDialog}, {"cell", OfCell},
    {"head", OfHead},         {"focus", OfFocus},        {"call", OfCall},
    {"fails", OfFails},       {"surface", OfSurface},    {"no-surface", OfNoSurface},
    {"document", OfDocument}, {"shell", OfShell},        {"fields", OfFields},
};

Finding Find(Session& session, const Words& words) {
    MustHave(words, 2, "expect [not] WHAT ... VALUE");
    const auto named = expectations.find(words[1]);
    if (named != expectations.end()) return named->second(session, words);
    return words[1].starts_with("dialog.") ? OfDialogField(session, words)
                                           : OfControl(session, words);
}

Json Expect(Session& session, const Words& words) {
    Words plain = words;
    const bool turned = words.size() > 1 && words[1] == "not";
    if (turned) plain.erase(plain.begin() + 1);
    const Finding finding = Find(session, plain);
    if (Agrees(finding.expected, finding.got) == turned)
        throw CommandFault(turned ? "unexpectedly so" : "not as expected", finding.expected,
                           finding.got);
    return nullptr;
}

}  // namespace

void AddExpectations(std::map<std::string, Command>& commands) {
    commands["expect"] = Expect;
}

}  // namespace tendo::driver
