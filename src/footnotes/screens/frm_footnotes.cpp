#include "footnotes/screens/frm_footnotes.h"

#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QListWidget>
#include <QPushButton>
#include <QSplitter>

#include "footnotes/footnote_library.h"
#include "footnotes/screens/edit_bar.h"
#include "footnotes/screens/footnote_commands.h"
#include "footnotes/screens/frm_footnote_new.h"
#include "platform/qt/dialogs.h"
#include "platform/qt/fields.h"
#include "platform/qt/rich_editor.h"
#include "project/program_state.h"
#include "project/project_records.h"

namespace tendo {
namespace {

FootnoteList List() {
    return ProposalFootnotes(Project());
}

QVBoxLayout* MakeSide(QWidget* side) {
    auto* column = new QVBoxLayout(side);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(8);
    return column;
}

}  // namespace

frmFootnotes::frmFootnotes() : Form("frmFootnotes", "Footnotes", Place::Child, "frmFootnotes") {
    auto* row = new QHBoxLayout(this);
    row->setContentsMargins(16, 16, 16, 16);
    auto* splitter = new QSplitter(Qt::Horizontal, this);
    splitter->setChildrenCollapsible(false);
    splitter->setHandleWidth(16);
    row->addWidget(splitter);
    auto* lists = new QWidget(splitter);
    QVBoxLayout* left = MakeSide(lists);
    AddLibrary(left);
    AddSelected(left);
    auto* text = new QWidget(splitter);
    AddEditor(MakeSide(text));
    splitter->setStretchFactor(1, 1);
    RefreshLibrary();
    RefreshSelected();
    ShowNothing();
    library_->setFocus();
    setMinimumSize(760, 480);
}

void frmFootnotes::AddLibrary(QVBoxLayout* column) {
    library_ = MakeFootnoteList("DBLFootNoteName", "Footnotes of the library", this);
    column->addWidget(MakeLabel("Footnotes of the &library", library_, this));
    column->addWidget(library_, 1);
    auto* buttons = new QHBoxLayout;
    buttons->addWidget(MakeFootnoteButton("btnNew", "&New…", this, [this] { btnNew_Click(); }));
    buttons->addWidget(
        MakeFootnoteButton("btnRename", "&Rename…", this, [this] { btnRename_Click(); }));
    buttons->addWidget(
        MakeFootnoteButton("btnDelete", "&Delete", this, [this] { btnDelete_Click(); }));
    Control("btnRename")->setAccessibleName("Rename the library's footnote");
    Control("btnDelete")->setAccessibleName("Delete from the library");
    buttons->addStretch(1);
    column->addLayout(buttons);
    QPushButton* add = MakeFootnoteButton("btnAddToList", "&Add to this proposal", this,
                                          [this] { btnAddToList_Click(); });
    add->setProperty("primary", true);
    column->addWidget(add);
    column->addSpacing(8);
    connect(library_, &QListWidget::itemClicked, this, [this] { DBLFootNoteName_Click(); });
    connect(library_, &QListWidget::currentRowChanged, this, [this] { DBLFootNoteName_Click(); });
}

void frmFootnotes::AddSelected(QVBoxLayout* column) {
    selected_ = MakeFootnoteList("lstSelectedFootnotes", "Footnotes of this proposal", this);
    column->addWidget(
        MakeLabel("Footnotes of this &proposal, in the order of printing", selected_, this));
    column->addWidget(selected_, 1);
    auto* buttons = new QHBoxLayout;
    buttons->addWidget(
        MakeFootnoteButton("btnSelectedMoveUp", "Move &up", this, [this] { MoveSelected(true); }));
    buttons->addWidget(MakeFootnoteButton("btnSelectedMoveDown", "Move do&wn", this,
                                          [this] { MoveSelected(false); }));
    buttons->addWidget(MakeFootnoteButton("btnSelectedRename", "Rena&me…", this,
                                          [this] { btnSelectedRename_Click(); }));
    buttons->addWidget(MakeFootnoteButton("btnSelectedDelete", "Remo&ve", this,
                                          [this] { btnSelectedDelete_Click(); }));
    Control("btnSelectedRename")->setAccessibleName("Rename the proposal's footnote");
    Control("btnSelectedDelete")->setAccessibleName("Remove from the proposal");
    buttons->addStretch(1);
    column->addLayout(buttons);
    connect(selected_, &QListWidget::itemClicked, this, [this] { lstSelectedFootnotes_Click(); });
    connect(selected_, &QListWidget::currentRowChanged, this,
            [this] { lstSelectedFootnotes_Click(); });
}

void frmFootnotes::AddEditor(QVBoxLayout* column) {
    editor_ = new RichEditor;
    editor_->setObjectName("rtxtFootnoteText");
    editor_->setAccessibleName("Text of the footnote");
    shown_ = MakeLabel("", editor_, this);
    shown_->setObjectName("lblFootnoteText");
    column->addWidget(shown_);
    column->addWidget(new EditBar(editor_, this));
    column->addWidget(editor_, 1);  // behind the bar in the order of Tab
}

void frmFootnotes::RefreshLibrary() {
    RunFootnoteCommand([this] { FillFootnoteList(library_, LibraryFootnoteNames()); });
    EnableButtons();
}

void frmFootnotes::RefreshSelected() {
    FillFootnoteList(selected_, NamesOf(List()));
    EnableButtons();
}

void frmFootnotes::EnableButtons() {
    const auto enable = [this](const char* name, bool on) {
        if (QWidget* button = Control(name)) button->setEnabled(on);
    };
    for (const char* name : {"btnRename", "btnDelete", "btnAddToList"})
        enable(name, library_->currentItem());
    if (!selected_) return;
    for (const char* name :
         {"btnSelectedMoveUp", "btnSelectedMoveDown", "btnSelectedRename", "btnSelectedDelete"})
        enable(name, selected_->currentItem());
}

void frmFootnotes::StoreText() {
    if (!source_ || !editor_->IsEdited()) return;
    const std::string text = editor_->Text();
    const bool stored = RunFootnoteCommand([&] {
        if (!source_->row) {
            StoreLibraryFootnoteText(source_->name, text);
        } else if (*source_->row < List().Size()) {
            List().rows[*source_->row].Description = text;
            State().ProjectChanged = true;
        }
    });
    if (stored) editor_->SetEdited(false);
}

void frmFootnotes::ShowNothing() {
    source_.reset();
    editor_->ShowText("");
    editor_->setReadOnly(true);
    shown_->setText("Choose a footnote to read and change its &text.");
}

void frmFootnotes::DBLFootNoteName_Click() {
    const std::string name = ChosenName(library_);
    EnableButtons();
    if (name.empty()) return;
    StoreText();
    RunFootnoteCommand([&] {
        const std::string text = LibraryFootnoteText(name);
        source_ = Source{name, {}};
        editor_->setReadOnly(false);
        editor_->ShowText(text);
        shown_->setText("&Text in the library: " + QString::fromStdString(name).replace("&", "&&"));
    });
}

void frmFootnotes::lstSelectedFootnotes_Click() {
    EnableButtons();
    const auto row = SelectedRow();
    if (!row) return;
    StoreText();
    const FootNoteRow& footnote = List().rows[*row];
    source_ = Source{"", row};
    editor_->setReadOnly(false);
    editor_->ShowText(footnote.Description);
    shown_->setText(
        "&Text on this proposal: " +
        QString::fromStdString(std::string(footnote.Name.Trimmed())).replace("&", "&&"));
}

std::optional<std::size_t> frmFootnotes::SelectedRow() const {
    const int row = selected_->currentRow();
    if (row < 0 || static_cast<std::size_t>(row) >= List().Size()) return {};
    return static_cast<std::size_t>(row);
}

void frmFootnotes::btnNew_Click() {
    StoreText();
    ShowFootnoteNew(FootnoteMode::Database);
    RefreshLibrary();
}

void frmFootnotes::btnAddToList_Click() {
    const std::string name = ChosenName(library_);
    if (name.empty()) return;
    StoreText();
    RunFootnoteCommand([&] {
        AddFootnote(List(), name, LibraryFootnoteText(name));
        State().ProjectChanged = true;
    });
    RefreshSelected();
}

void frmFootnotes::btnDelete_Click() {
    const std::string name = ChosenName(library_);
    if (name.empty() || Ask("TENDO", "Are you sure you want to delete this footnote?",
                            Buttons::YesNo) != Answer::Yes)
        return;
    if (!RunFootnoteCommand([&] { DeleteLibraryFootnote(name); })) return;
    if (source_ && !source_->row) ShowNothing();
    RefreshLibrary();
}

void frmFootnotes::btnRename_Click() {
    const std::string name = ChosenName(library_);
    if (name.empty()) return;
    const std::string newName = AskFootnoteName();
    if (newName.empty()) return;
    StoreText();
    RunFootnoteCommand([&] {
        if (LibraryHasFootnote(newName)) {
            ShowMessage("TENDO", "You are already using the name, " + newName +
                                     ".  Please select another name");
            return;
        }
        RenameLibraryFootnote(name, newName);
        if (source_ && !source_->row) source_->name = newName;
    });
    RefreshLibrary();
    if (source_ && !source_->row) DBLFootNoteName_Click();
}

void frmFootnotes::btnSelectedRename_Click() {
    const auto row = SelectedRow();
    if (!row) return;
    const std::string name = AskFootnoteName();
    if (name.empty()) return;
    List().rows[*row].Name = name;
    State().ProjectChanged = true;
    RefreshSelected();
    lstSelectedFootnotes_Click();
}

void frmFootnotes::btnSelectedDelete_Click() {
    const auto row = SelectedRow();
    if (!row || Ask("TENDO", "Are you sure you want to remove this footnote?", Buttons::YesNo) !=
                    Answer::Yes)
        return;
    // Rows move up, so the editor's row is another footnote's afterwards.
    if (source_ && source_->row) {
        if (*source_->row != *row) StoreText();
        ShowNothing();
    }
    RemoveFootnote(List(), *row);
    State().ProjectChanged = true;
    RefreshSelected();
    lstSelectedFootnotes_Click();
}

void frmFootnotes::MoveSelected(bool up) {
    const auto row = SelectedRow();
    if (!row) return;
    StoreText();
    if (!(up ? MoveFootnoteUp(List(), *row) : MoveFootnoteDown(List(), *row))) return;
    State().ProjectChanged = true;
    RefreshSelected();
    selected_->setCurrentRow(static_cast<int>(up ? *row - 1 : *row + 1));
}

/// F2 renames and Delete removes in the list that has the focus; Ctrl with an arrow moves.
void frmFootnotes::keyPressEvent(QKeyEvent* event) {
    const bool inLibrary = library_->hasFocus(), inProposal = selected_->hasFocus();
    const bool control = event->modifiers() == Qt::ControlModifier;
    if (event->key() == Qt::Key_F2 && inLibrary) return btnRename_Click();
    if (event->key() == Qt::Key_F2 && inProposal) return btnSelectedRename_Click();
    if (event->key() == Qt::Key_Delete && inLibrary) return btnDelete_Click();
    if (event->key() == Qt::Key_Delete && inProposal) return btnSelectedDelete_Click();
    if (event->key() == Qt::Key_Return && inLibrary) return btnAddToList_Click();
    if (control && inProposal && event->key() == Qt::Key_Up) return MoveSelected(true);
    if (control && inProposal && event->key() == Qt::Key_Down) return MoveSelected(false);
    Form::keyPressEvent(event);
}

}  // namespace tendo
