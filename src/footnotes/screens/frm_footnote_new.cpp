#include "footnotes/screens/frm_footnote_new.h"

#include <QGridLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QPushButton>
#include <array>

#include "footnotes/footnote_library.h"
#include "footnotes/screens/edit_bar.h"
#include "footnotes/screens/footnote_commands.h"
#include "platform/qt/dialogs.h"
#include "platform/qt/fields.h"
#include "platform/qt/rich_editor.h"
#include "project/program_state.h"

namespace tendo {
namespace {

constexpr std::array ModeNames = {"Database", "Selected", "AccRpt"};
constexpr FieldSpec NameField = {.name = "txtNewFootNoteName", .label = "&Name", .maxLength = 255};

}  // namespace

frmFootnoteNew::frmFootnoteNew(FootnoteMode mode)
    : Form("frmFootnoteNew", "New FootNote", Place::Dialog, "frmFootnoteNew"), mode_(mode) {
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(16, 16, 16, 16);
    column->setSpacing(8);
    auto* dispatcher = new QLabel(ModeNames[static_cast<std::size_t>(mode)], this);
    dispatcher->setObjectName("lblCommandDispatcher");
    dispatcher->hide();
    auto* grid = new QGridLayout;
    name_ = AddFieldRow(grid, 0, NameField, this);
    column->addLayout(grid);
    editor_ = new RichEditor;
    editor_->setObjectName("rtxtFootnoteText");
    editor_->setAccessibleName("Text of the new footnote");
    column->addWidget(MakeLabel("&Text", editor_, this));
    column->addWidget(new EditBar(editor_, this));
    column->addWidget(editor_, 1);
    AddButtons(column);
    if (mode_ == FootnoteMode::Database) AddDraft();
    name_->setFocus();
}

void frmFootnoteNew::AddButtons(QVBoxLayout* column) {
    auto* row = new QHBoxLayout;
    row->addStretch(1);
    QPushButton* ok = MakeFootnoteButton("btnOk", "&OK", this, [this] { Unload(); });
    ok->setProperty("primary", true);
    row->addWidget(ok);
    row->addWidget(MakeFootnoteButton("btnCancel", "&Cancel", this, [this] {
        cancelled_ = true;
        Unload();
    }));
    column->addLayout(row);
}

void frmFootnoteNew::AddDraft() {
    RunFootnoteCommand([this] {
        const StoredFootnoteName draft = AddLibraryFootnote("New Footnote", "");
        draft_ = draft.name;
        ShowMessages(draft.messages);
        name_->ShowText(QString::fromStdString(draft_));
        name_->selectAll();
    });
}

/// A name with an apostrophe keeps the screen open, so that nothing written is lost.
bool frmFootnoteNew::QueryUnload() {
    if (cancelled_ || mode_ == FootnoteMode::Database || !name_->text().contains('\'')) return true;
    ShowMessage("TENDO",
                "Foot Note Names cannot have the character ' in them.  Please choose another "
                "name.");
    name_->setFocus();
    return false;
}

void frmFootnoteNew::FormUnload() {
    if (mode_ != FootnoteMode::Database) {
        if (!cancelled_) StoreInProject();
    } else if (!draft_.empty()) {
        RunFootnoteCommand(
            [this] { cancelled_ ? DeleteLibraryFootnote(draft_) : StoreInLibrary(); });
    }
}

void frmFootnoteNew::StoreInLibrary() {
    ShowMessages(
        FinishLibraryFootnote(draft_, name_->text().toStdString(), editor_->Text()).messages);
}

void frmFootnoteNew::StoreInProject() {
    const std::string name = name_->text().trimmed().toStdString();
    const std::string text = editor_->Text();
    const bool added = RunFootnoteCommand([&] { AddFootnote(ListOf(mode_), name, text); });
    if (!added) return;
    State().ProjectChanged = true;
    if (Ask("TENDO", "Do you want to add this footnote to the database?", Buttons::YesNo) ==
        Answer::Yes)
        RunFootnoteCommand([&] { ShowMessages(AddLibraryFootnote(name, text).messages); });
}

void frmFootnoteNew::keyPressEvent(QKeyEvent* event) {
    if (event->key() != Qt::Key_Escape) return Form::keyPressEvent(event);
    cancelled_ = true;
    Unload();
}

FootnoteList ListOf(FootnoteMode mode) {
    return mode == FootnoteMode::AccRpt ? AccessoryFootnotes(Project())
                                        : ProposalFootnotes(Project());
}

void ShowFootnoteNew(FootnoteMode mode) {
    (new frmFootnoteNew(mode))->ShowModal();
}

}  // namespace tendo
