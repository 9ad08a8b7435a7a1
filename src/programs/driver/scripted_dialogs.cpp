#include "programs/driver/scripted_dialogs.h"

#include <QPageRanges>
#include <QPrinter>
#include <algorithm>

#include "platform/text/text.h"

namespace tendo::driver {
namespace {

using Kind = QueuedAnswer::Kind;

const char* ButtonsText(Buttons buttons) {
    switch (buttons) {
        case Buttons::OkCancel:
            return "ok cancel";
        case Buttons::YesNo:
            return "yes no";
        case Buttons::YesNoCancel:
            return "yes no cancel";
        default:
            return "ok";
    }
}

const char* IconText(MessageIcon icon) {
    switch (icon) {
        case MessageIcon::Information:
            return "information";
        case MessageIcon::Question:
            return "question";
        case MessageIcon::Warning:
            return "warning";
        case MessageIcon::Critical:
            return "critical";
        default:
            return "none";
    }
}

const struct {
    const char* name;
    void (*put)(QPrinter& printer, const QString& value);
} printerSettings[] = {
    {"file", [](QPrinter& printer, const QString& value) { printer.setOutputFileName(value); }},
    {"pages",
     [](QPrinter& printer, const QString& value) {
         printer.setPrintRange(value == "current" ? QPrinter::CurrentPage : QPrinter::PageRange);
         printer.setPageRanges(QPageRanges::fromString(value));
     }},
    {"copies",
     [](QPrinter& printer, const QString& value) { printer.setCopyCount(value.toInt()); }},
    {"collate",
     [](QPrinter& printer, const QString& value) { printer.setCollateCopies(value == "true"); }},
    {"order",
     [](QPrinter& printer, const QString& value) {
         printer.setPageOrder(value == "reverse" ? QPrinter::LastPageFirst
                                                 : QPrinter::FirstPageFirst);
     }},
    {"paper",
     [](QPrinter& printer, const QString& value) {
         printer.setPageSize(QPageSize(value == "A4" ? QPageSize::A4 : QPageSize::Letter));
     }},
};

/// False for a setting that no printer has.
bool SetUpPrinter(QPrinter& printer, const std::string& name, const QString& value) {
    for (const auto& setting : printerSettings) {
        if (name != setting.name) continue;
        setting.put(printer, value);
        return true;
    }
    return false;
}

}  // namespace

std::optional<std::string> ScriptedDialogs::Take(Json dialog, std::initializer_list<Kind> fitting) {
    const std::string name = dialog.value("title", "") + ": " + dialog.value("text", "");
    std::optional<std::string> taken;
    if (answers.empty()) {
        faults.push_back("a dialog with no answer queued: " + name);
        dialog["answer"] = "cancel";
    } else {
        const QueuedAnswer answer = answers.front();
        answers.pop_front();
        if (answer.kind == Kind::Cancel) {
            dialog["answer"] = "cancel";
        } else if (std::find(fitting.begin(), fitting.end(), answer.kind) == fitting.end()) {
            faults.push_back("the queued answer \"" + answer.value + "\" does not fit the dialog " +
                             name);
            dialog["answer"] = "cancel";
        } else {
            dialog["answer"] = answer.value;
            taken = answer.value;
        }
    }
    shown.push_back(std::move(dialog));
    return taken;
}

Answer ScriptedDialogs::Message(const MessageDialog& dialog) {
    const std::string buttons = ButtonsText(dialog.buttons);
    const auto answer = Take({{"kind", "message"},
                              {"title", dialog.title},
                              {"text", dialog.text},
                              {"buttons", buttons},
                              {"icon", IconText(dialog.icon)}},
                             {Kind::Button});
    if (!answer)
        return dialog.buttons == Buttons::Ok      ? Answer::Ok
               : dialog.buttons == Buttons::YesNo ? Answer::No
                                                  : Answer::Cancel;
    const auto offered = Split(buttons, ' ');
    if (std::find(offered.begin(), offered.end(), *answer) == offered.end())
        faults.push_back("the dialog has no button \"" + *answer + "\": " + dialog.title + ": " +
                         dialog.text);
    if (*answer == "yes") return Answer::Yes;
    if (*answer == "no") return Answer::No;
    return *answer == "ok" ? Answer::Ok : Answer::Cancel;
}

std::optional<std::string> ScriptedDialogs::Input(const InputDialog& dialog) {
    return Take({{"kind", "input"},
                 {"title", dialog.title},
                 {"text", dialog.prompt},
                 {"value", dialog.text}},
                {Kind::Text});
}

std::optional<std::string> ScriptedDialogs::File(const FileDialog& dialog) {
    return Take({{"kind", dialog.kind == FileDialog::Kind::Open ? "open" : "save"},
                 {"title", dialog.title},
                 {"text", ""},
                 {"filter", dialog.filter},
                 {"file", dialog.fileName},
                 {"folder", dialog.folder}},
                {Kind::File});
}

std::optional<std::uint32_t> ScriptedDialogs::Color(const ColorDialog& dialog) {
    const auto answer =
        Take({{"kind", "color"}, {"title", dialog.title}, {"text", ""}}, {Kind::Color});
    if (!answer) return std::nullopt;
    return static_cast<std::uint32_t>(std::stoul(answer->substr(1), nullptr, 16));
}

std::optional<FontChoice> ScriptedDialogs::Font(const std::string& title, const FontChoice& font) {
    const auto answer =
        Take({{"kind", "font"}, {"title", title}, {"text", ""}}, {Kind::Text, Kind::Button});
    if (!answer) return std::nullopt;
    FontChoice chosen = font;
    if (*answer != "ok") chosen.family = *answer;
    return chosen;
}

bool ScriptedDialogs::HasPrinter() {
    if (answers.empty() || answers.front().kind != Kind::NoPrinter) return true;
    answers.pop_front();
    return false;
}

bool ScriptedDialogs::Print(const PrintDialog& dialog, QPrinter& printer) {
    const auto settings =
        answers.empty() ? std::map<std::string, std::string>{} : answers.front().settings;
    const auto answer = Take({{"kind", "print"},
                              {"title", dialog.title},
                              {"text", printer.docName().toStdString()},
                              {"pages", dialog.pages}},
                             {Kind::Button, Kind::Print});
    if (!answer || (*answer != "ok" && *answer != "print")) return false;
    printer.setOutputFormat(QPrinter::PdfFormat);
    printer.setOutputFileName(QString::fromStdString(printFile));
    for (const auto& [name, value] : settings)
        if (!SetUpPrinter(printer, name, QString::fromStdString(value)))
            faults.push_back("a printer has no setting \"" + name + "\"");
    return true;
}

}  // namespace tendo::driver
