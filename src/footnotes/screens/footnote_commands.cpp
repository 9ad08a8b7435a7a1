#include "footnotes/screens/footnote_commands.h"

#include <QListWidget>
#include <QPushButton>
#include <algorithm>

#include "footnotes/footnote_library.h"
#include "platform/qt/dialogs.h"
#include "platform/qt/shown_errors.h"
#include "platform/text/text.h"
#include "project/project_records.h"

namespace tendo {

FootnoteList ListOf(FootnoteMode mode) {
    return mode == FootnoteMode::AccRpt ? AccessoryFootnotes(Project())
                                        : ProposalFootnotes(Project());
}

bool AddFromLibrary(FootnoteMode mode, const std::string& name) {
    return RunShowingErrors([&] {
        const std::string text = LibraryFootnoteText(name);
        ChangeFootnotes(mode, [&] { AddFootnote(ListOf(mode), name, text); });
    });
}

std::string AskFootnoteName(const std::string& before) {
    std::string name =
        Dialogs()
            .Input({"Footnote Name", "Please enter a new name for the footnote.", before})
            .value_or("");
    while (name.find('\'') != std::string::npos)
        name = Dialogs()
                   .Input({"Please choose another Footnote Name",
                           "Footnote Names cannot have the character ' in them.  Please choose "
                           "another name.",
                           name})
                   .value_or("");
    return std::string(Trimmed(name));
}

/// Rows that stay are left in place: the list may be in the middle of a click.
void FillFootnoteList(QListWidget* list, const std::vector<std::string>& names) {
    const int rows = static_cast<int>(names.size()), row = list->currentRow();
    const QSignalBlocker quiet(list);
    while (list->count() > rows)
        delete list->takeItem(list->count() - 1);
    while (list->count() < rows) {
        auto* item = new QListWidgetItem(list);
        item->setFlags(item->flags() & ~Qt::ItemIsDropEnabled);  // between rows, not on one
    }
    for (int i = 0; i < rows; ++i)
        list->item(i)->setText(QString::fromStdString(names[static_cast<std::size_t>(i)]));
    list->setCurrentRow(std::min(row, rows - 1));
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

void PrepareFootnoteList(QListWidget* list, const QString& name, const QString& accessibleName) {
    list->setObjectName(name);
    list->setAccessibleName(accessibleName);
    list->setProperty("roomy", true);
    list->setUniformItemSizes(true);
    list->setMinimumHeight(90);
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
