#include "footnotes/screens/footnote_commands.h"

#include <QListWidget>
#include <QPushButton>
#include <algorithm>

#include "platform/qt/dialogs.h"
#include "platform/qt/form.h"
#include "platform/text/runtime_error.h"
#include "platform/text/text.h"

namespace tendo {

bool RunFootnoteCommand(const std::function<void()>& command) {
    try {
        command();
        return true;
    } catch (const RuntimeError& error) {
        ShowMessage("TENDO", error.Description(), MessageIcon::Warning);
        return false;
    }
}

std::string AskFootnoteName() {
    std::string name =
        Dialogs()
            .Input({"Footnote Name", "Please enter a new name for the footnote.", ""})
            .value_or("");
    while (name.find('\'') != std::string::npos)
        name = Dialogs()
                   .Input({"Please choose another Footnote Name",
                           "Footnote Names cannot have the character ' in them.  Please choose "
                           "another name.",
                           ""})
                   .value_or("");
    return std::string(Trimmed(name));
}

void FillFootnoteList(QListWidget* list, const std::vector<std::string>& names) {
    const int row = list->currentRow();
    const QSignalBlocker quiet(list);
    list->clear();
    for (const std::string& name : names)
        list->addItem(QString::fromStdString(name));
    list->setCurrentRow(std::min(row, list->count() - 1));
}

std::vector<std::string> NamesOf(FootnoteList list) {
    std::vector<std::string> names;
    for (std::size_t row = 0; row < list.Size(); ++row)
        names.emplace_back(list.rows[row].Name.Trimmed());
    return names;
}

std::string ChosenName(const QListWidget* list) {
    return list->currentItem() ? list->currentItem()->text().toStdString() : "";
}

QListWidget* MakeFootnoteList(const QString& name, const QString& accessibleName, QWidget* parent) {
    auto* list = new QListWidget(parent);
    list->setObjectName(name);
    list->setAccessibleName(accessibleName);
    list->setProperty("roomy", true);
    list->setUniformItemSizes(true);
    list->setMinimumHeight(90);
    return list;
}

QPushButton* MakeFootnoteButton(const QString& name, const QString& text, QWidget* parent,
                                std::function<void()> run) {
    auto* button = new QPushButton(text, parent);
    button->setObjectName(name);
    button->setAutoDefault(false);
    QObject::connect(button, &QPushButton::clicked, parent, std::move(run));
    return button;
}

void ShowMessages(const std::vector<std::string>& messages) {
    for (const std::string& message : messages)
        ShowMessage("TENDO", message);
}

}  // namespace tendo
