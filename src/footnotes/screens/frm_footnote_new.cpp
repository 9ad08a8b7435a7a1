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
#include "platform/qt/shown_errors.h"
#include "project/project_records.h"

namespace tendo {
namespace {

constexpr std::array ModeNames = {"Database", "Selected", "AccRpt"};
constexpr FieldSpec NameField = {.name = "txtNewFootNoteName", .label = "&Name", .maxLength = 255};

}  // namespace

frmFootnoteNew::frmFootnoteNew(FootnoteMode mode, std::optional<std::string>& stored)
    : Form("frmFootnoteNew", "New FootNote", Place::Dialog, "frmFootnoteNew"),
      mode_(mode),
      stored_(stored) {
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
    row->addWidget(MakeFootnoteButton("btnCancel", "&Cancel", this, [this] { Cancel(); }));
    column->addLayout(row);
}

void frmFootnoteNew::AddDraft() {
    RunShowingErrors([this] {
        const StoredFootnoteName draft = AddLibraryFootnote("New Footnote", "");
        draft_ = draft.name;
        ShowMessages(draft.messages);
        name_->ShowText(QString::fromStdString(draft_));
        name_->selectAll();
    });
}

void frmFootnoteNew::Cancel() {
    cancelled_ = true;
    Unload();
}

bool frmFootnoteNew::QueryUnload() {
    if (cancelled_) return MayDiscard();
    return mode_ == FootnoteMode::Database ? StoreInLibrary() : StoreInProject();
}

void frmFootnoteNew::FormUnload() {
    if (cancelled_ && !draft_.empty()) RunShowingErrors([this] { DeleteLibraryFootnote(draft_); });
}

bool frmFootnoteNew::MayDiscard() {
    const bool written = editor_->IsEdited() && !editor_->document()->isEmpty();
    cancelled_ = !written || Ask("TENDO", "Do you want to discard this footnote?",
                                 Buttons::YesNo) == Answer::Yes;
    return cancelled_;
}

/// When there was no place for a draft, the library may be there by now.
bool frmFootnoteNew::StoreInLibrary() {
    const std::string name = name_->text().toStdString(), text = editor_->Text();
    StoredFootnoteName stored;
    if (!RunShowingErrors([&] {
            stored = draft_.empty() ? AddLibraryFootnote(name, text)
                                    : FinishLibraryFootnote(draft_, name, text);
        }))
        return false;
    ShowMessages(stored.messages);
    stored_ = stored.name;
    return true;
}

bool frmFootnoteNew::StoreInProject() {
    if (name_->text().contains('\'')) {
        ShowMessage("TENDO",
                    "Foot Note Names cannot have the character ' in them.  Please choose another "
                    "name.");
        name_->setFocus();
        return false;
    }
    const StoredFootnoteName permitted = PermittedFootnoteName(name_->text().toStdString());
    const std::string text = editor_->Text();
    if (!RunShowingErrors([&] {
            ChangeFootnotes(mode_, [&] { AddFootnote(ListOf(mode_), permitted.name, text); });
        }))
        return false;
    stored_ = permitted.name;
    ShowMessages(permitted.messages);
    OfferToLibrary(permitted.name, text);
    return true;
}

void frmFootnoteNew::OfferToLibrary(const std::string& name, const std::string& text) {
    if (Ask("TENDO", "Do you want to add this footnote to the database?", Buttons::YesNo) ==
        Answer::Yes)
        RunShowingErrors([&] { ShowMessages(AddLibraryFootnote(name, text).messages); });
}

void frmFootnoteNew::keyPressEvent(QKeyEvent* event) {
    if (event->key() == Qt::Key_Escape)
        Cancel();
    else
        Form::keyPressEvent(event);
}

std::optional<std::string> ShowFootnoteNew(FootnoteMode mode) {
    std::optional<std::string> stored;
    (new frmFootnoteNew(mode, stored))->ShowModal();
    return stored;
}

}  // namespace tendo
