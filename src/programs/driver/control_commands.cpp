#include <QAbstractItemModel>
#include <QAction>
#include <QMdiSubWindow>

#include "app/screens/application.h"
#include "platform/qt/form.h"
#include "programs/driver/controls.h"
#include "programs/driver/input.h"
#include "programs/driver/session.h"

namespace tendo::driver {
namespace {

QString Q(const std::string& text) {
    return QString::fromStdString(text);
}

QWidget* Target(const Words& words) {
    return ControlOf(PathOf(words[1]));
}

int NumberOf(const std::string& word) {
    try {
        return std::stoi(word);
    } catch (const std::exception&) {
        throw CommandFault("a number is wanted, not \"" + word + "\"");
    }
}

Json Forms(Session&, const Words&) {
    Json forms = Json::array();
    const Form* active = Form::Active();
    for (Form* form : Form::Loaded()) {
        forms.push_back({{"name", form->Name().toStdString()},
                         {"caption", form->windowTitle().toStdString()},
                         {"visible", form->isVisible()},
                         {"active", form == active},
                         {"modal", form->IsModal()}});
    }
    return forms;
}

Json ListTools(Session&, const Words&) {
    Json tools = Json::object();
    for (const ToolState& tool : tendo::Tools()) {
        tools[tool.name] = {{"band", tool.band},
                            {"caption", tool.caption},
                            {"enabled", tool.enabled},
                            {"visible", tool.visible},
                            {"checked", tool.checked}};
    }
    return tools;
}

Json Tool(Session&, const Words& words) {
    MustHave(words, 2, "tool NAME");
    for (const ToolState& tool : tendo::Tools()) {
        if (Q(tool.name).compare(Q(words[1]), Qt::CaseInsensitive) != 0) continue;
        if (!tool.enabled) throw CommandFault("the tool " + tool.name + " is disabled");
        if (!ActiveBarClick(tool.name))
            throw CommandFault("the tool " + tool.name + " did not run");
        return nullptr;
    }
    throw CommandFault("there is no tool " + words[1]);
}

Json Get(Session&, const Words& words) {
    MustHave(words, 2, "get FORM.CONTROL[.PROPERTY]");
    const ControlPath path = PathOf(words[1]);
    return PropertyOf(ControlOf(path), path.property);
}

Json CloseForm(Session&, const Words& words) {
    MustHave(words, 2, "close FORM");
    QWidget* screen = ScreenOf(words[1]);
    if (auto* form = qobject_cast<Form*>(screen))
        form->Unload();
    else
        screen->close();
    return nullptr;
}

Json Timer(Session&, const Words& words) {
    MustHave(words, 2, "timer NAME");
    if (TickTimer(words[1])) return nullptr;
    throw CommandFault("there is no timer " + words[1]);
}

Json Drop(Session& session, const Words& words) {
    std::vector<std::string> files;
    for (std::size_t i = 1; i < words.size(); ++i)
        files.push_back(session.FileInHome(words[i]));
    DropFiles(files);
    return nullptr;
}

Json Rows(Session&, const Words& words) {
    MustHave(words, 2, "rows FORM.GRID");
    QWidget* grid = Target(words);
    const QAbstractItemModel* model = ModelOf(grid);
    if (!model) throw CommandFault(words[1] + " is no grid");
    Json rows = Json::array();
    for (int row = 0; row < model->rowCount(); ++row) {
        Json cells = Json::array();
        for (int column = 0; column < model->columnCount(); ++column)
            cells.push_back(CellOf(grid, row, column));
        rows.push_back(cells);
    }
    return rows;
}

Json Screenshot(Session&, const Words& words) {
    MustHave(words, 3, "screenshot FORM|screen PATH");
    SettleEvents();
    QWidget* widget = words[1] == "screen" ? ScreenOf("frmMDI") : ScreenOf(words[1]);
    if (auto* form = qobject_cast<Form*>(widget); form && form->SubWindow())
        widget = form->SubWindow();
    if (!widget->grab().save(Q(words[2]), "PNG")) throw CommandFault("can't write " + words[2]);
    return nullptr;
}

/// Commands of the form WORD FORM.CONTROL [more], as a table.
using ControlAction = void (*)(QWidget*, const Words&);
struct ControlCommand {
    const char* name;
    std::size_t words;
    const char* usage;
    ControlAction run;
};
const ControlCommand controlCommands[] = {
    {"focus", 2, "focus FORM.CONTROL",
     [](QWidget* control, const Words&) { FocusControl(control); }},
    {"type", 3, "type FORM.CONTROL TEXT",
     [](QWidget* control, const Words& words) { TypeText(control, Q(words[2])); }},
    {"keys", 3, "keys FORM.CONTROL SEQUENCE ...",
     [](QWidget* control, const Words& words) {
         PressKeys(control, {words.begin() + 2, words.end()});
     }},
    {"caret", 3, "caret FORM.CONTROL POS [LENGTH]",
     [](QWidget* control, const Words& words) {
         PlaceCaret(control, NumberOf(words[2]), words.size() > 3 ? NumberOf(words[3]) : 0);
     }},
    {"set", 3, "set FORM.CONTROL TEXT",
     [](QWidget* control, const Words& words) { SetControlText(control, Q(words[2])); }},
    {"enter", 3, "enter FORM.CONTROL TEXT",
     [](QWidget* control, const Words& words) {
         TypeText(control, Q(words[2]));
         LeaveField();
     }},
    {"click", 2, "click FORM.CONTROL",
     [](QWidget* control, const Words&) { ClickControl(control, Click::Single); }},
    {"dblclick", 2, "dblclick FORM.CONTROL",
     [](QWidget* control, const Words&) { ClickControl(control, Click::Double); }},
    {"rightclick", 2, "rightclick FORM.CONTROL",
     [](QWidget* control, const Words&) { ClickControl(control, Click::Right); }},
    {"choose", 3, "choose FORM.CONTROL TEXT|#INDEX",
     [](QWidget* control, const Words& words) { ChooseItem(control, Q(words[2])); }},
    {"row", 3, "row FORM.GRID N",
     [](QWidget* control, const Words& words) { ClickRow(control, NumberOf(words[2])); }},
    {"cell", 5, "cell FORM.GRID N M TEXT",
     [](QWidget* control, const Words& words) {
         EditCell(control, NumberOf(words[2]), NumberOf(words[3]), Q(words[4]));
     }},
    {"head", 3, "head FORM.GRID M",
     [](QWidget* control, const Words& words) { ClickHead(control, NumberOf(words[2])); }},
};

/// A tool on a screen's own bar is a control of that screen; a click on it triggers its action.
bool TriggerOwnTool(const Words& words) {
    const ControlPath path = PathOf(words[1]);
    QAction* action = ScreenOf(path.form)->findChild<QAction*>(Q(path.control));
    if (!action) return false;
    if (!action->isEnabled()) throw CommandFault("the tool " + path.control + " is disabled");
    action->trigger();
    return true;
}

}  // namespace

void AddControlCommands(std::map<std::string, Command>& commands) {
    commands["forms"] = Forms;
    commands["tools"] = ListTools;
    commands["tool"] = Tool;
    commands["get"] = Get;
    commands["close"] = CloseForm;
    commands["timer"] = Timer;
    commands["drop"] = Drop;
    commands["rows"] = Rows;
    commands["screenshot"] = Screenshot;
    commands["dump"] = [](Session&, const Words& words) {
        MustHave(words, 2, "dump FORM");
        return DumpForm(ScreenOf(words[1]));
    };
    commands["leave"] = [](Session&, const Words&) -> Json {
        LeaveField();
        return nullptr;
    };
    for (const ControlCommand& command : controlCommands) {
        commands[command.name] = [&command](Session&, const Words& words) -> Json {
            MustHave(words, command.words, command.usage);
            if (words[0] == "click" && TriggerOwnTool(words)) return nullptr;
            command.run(Target(words), words);
            return nullptr;
        };
    }
}

}  // namespace tendo::driver
