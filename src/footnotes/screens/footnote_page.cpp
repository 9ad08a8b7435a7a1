#include "footnotes/screens/footnote_page.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QListWidget>
#include <QPushButton>

#include "footnotes/screens/edit_bar.h"
#include "footnotes/screens/footnote_commands.h"
#include "footnotes/screens/frm_select_footnote.h"
#include "platform/qt/dialogs.h"
#include "platform/qt/fields.h"
#include "platform/qt/rich_editor.h"
#include "project/program_state.h"

namespace tendo {

FootnotePage::FootnotePage(FootnoteMode mode, const FootnotePageNames& names, QWidget* parent)
    : QWidget(parent), mode_(mode) {
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(0, 16, 0, 0);
    column->setSpacing(8);
    const QString caption = QString(names.caption).remove('&');
    list_ = MakeFootnoteList(names.list, caption, this);
    column->addWidget(
        MakeLabel(QString(names.caption) + ", in the order of printing", list_, this));
    column->addWidget(list_, 1);
    AddButtons(column, names);
    editor_ = new RichEditor;
    editor_->setObjectName(names.text);
    editor_->setAccessibleName("Text of one of the " + caption);
    auto* bar = new EditBar(editor_, this, caption);
    bar->setObjectName(names.bar);
    column->addWidget(bar);
    column->addWidget(editor_, 2);
    connect(list_, &QListWidget::currentRowChanged, this, [this] { ShowChosen(); });
    Refill();
}

void FootnotePage::AddButtons(QVBoxLayout* column, const FootnotePageNames& names) {
    auto* row = new QHBoxLayout;
    row->addWidget(MakeFootnoteButton(names.addFromDatabase, "Add from &library…", this,
                                      [this] { AddFromDatabase(); }));
    row->addWidget(MakeFootnoteButton(names.addNew, "Add &new…", this, [this] { AddNew(); }));
    row->addWidget(MakeFootnoteButton(names.remove, "Re&move", this, [this] { Remove(); }));
    row->addWidget(MakeFootnoteButton(names.up, "&Up", this, [this] { Move(true); }));
    row->addWidget(MakeFootnoteButton(names.down, "D&own", this, [this] { Move(false); }));
    for (const char* name :
         {names.addFromDatabase, names.addNew, names.remove, names.up, names.down}) {
        auto* button = findChild<QPushButton*>(name);
        button->setAccessibleName(QString("%1: %2").arg(QString(names.caption).remove('&'),
                                                        QString(button->text()).remove('&')));
    }
    row->addStretch(1);
    column->addLayout(row);
}

FootnoteList FootnotePage::List() const {
    return ListOf(mode_);
}

std::optional<std::size_t> FootnotePage::Row() const {
    const int row = list_->currentRow();
    if (row < 0 || static_cast<std::size_t>(row) >= List().Size()) return {};
    return static_cast<std::size_t>(row);
}

void FootnotePage::Refill() {
    shown_.reset();
    FillFootnoteList(list_, NamesOf(List()));
    ShowChosen();
}

void FootnotePage::StoreText() {
    if (!shown_ || !editor_->IsEdited() || *shown_ >= List().Size()) return;
    List().rows[*shown_].Description = editor_->Text();
    editor_->SetEdited(false);
    State().ProjectChanged = true;
}

void FootnotePage::ShowChosen() {
    StoreText();
    shown_ = Row();
    editor_->setReadOnly(!shown_);
    editor_->ShowText(shown_ ? List().rows[*shown_].Description : "");
}

void FootnotePage::ListChanged() {
    State().ProjectChanged = true;
    Refill();
    if (Changed) Changed();
}

void FootnotePage::AddFromDatabase() {
    StoreText();
    (new frmSelectFootNoteFromDB(List(), [this] { ListChanged(); }))->ShowModal();
}

void FootnotePage::AddNew() {
    StoreText();
    const std::size_t before = List().Size();
    ShowFootnoteNew(mode_);
    if (List().Size() == before) return;
    ListChanged();
    list_->setCurrentRow(list_->count() - 1);
}

void FootnotePage::Remove() {
    const auto row = Row();
    if (!row || Ask("TENDO", "Are you sure you want to remove this footnote?", Buttons::YesNo) !=
                    Answer::Yes)
        return;
    shown_.reset();
    RemoveFootnote(List(), *row);
    ListChanged();
}

void FootnotePage::Move(bool up) {
    const auto row = Row();
    if (!row) return;
    StoreText();
    if (!(up ? MoveFootnoteUp(List(), *row) : MoveFootnoteDown(List(), *row))) return;
    ListChanged();
    list_->setCurrentRow(static_cast<int>(up ? *row - 1 : *row + 1));
}

}  // namespace tendo
