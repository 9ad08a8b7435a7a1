#include "footnotes/screens/frm_footnotes.h"

#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QListWidget>
#include <QPushButton>
#include <QSplitter>

#include "footnotes/footnote_library.h"
#include "footnotes/screens/footnote_commands.h"
#include "footnotes/screens/footnote_text.h"
#include "footnotes/screens/frm_footnote_new.h"
#include "footnotes/screens/project_footnote_list.h"
#include "platform/qt/dialogs.h"
#include "platform/qt/fields.h"
#include "platform/qt/rich_editor.h"
#include "platform/qt/shown_errors.h"
#include "project/project_records.h"

namespace tendo {
namespace {

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
    auto* side = new QWidget(splitter);
    AddEditor(MakeSide(side));
    QVBoxLayout* left = MakeSide(lists);
    AddLibrary(left);
    AddSelected(left);
    splitter->setStretchFactor(1, 1);
    setMinimumSize(760, 480);
    RefreshLibrary();
    library_->setFocus();
    library_->setCurrentRow(0);
    ShowSource();
}

void frmFootnotes::AddLibrary(QVBoxLayout* column) {
    library_ = new QListWidget(this);
    PrepareFootnoteList(library_, "DBLFootNoteName", "Footnotes of the library");
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
    connect(library_, &QListWidget::currentRowChanged, this, [this] { DBLFootNoteName_Click(); });
    connect(library_, &QListWidget::itemClicked, this, [this](const QListWidgetItem* item) {
        const bool shown = text_->LibraryName() == item->text().toStdString();
        if (item == library_->currentItem() && !shown) DBLFootNoteName_Click();
    });
    connect(library_, &QListWidget::itemDoubleClicked, this, [this] { btnAddToList_Click(); });
}

void frmFootnotes::AddSelected(QVBoxLayout* column) {
    selected_ = new ProjectFootnoteList(FootnoteMode::Selected, text_, this);
    PrepareFootnoteList(selected_, "lstSelectedFootnotes", "Footnotes of this proposal");
    column->addWidget(
        MakeLabel("Footnotes of this &proposal, in the order of printing", selected_, this));
    column->addWidget(selected_, 1);
    auto* buttons = new QHBoxLayout;
    buttons->addWidget(MakeFootnoteButton("btnSelectedMoveUp", "Move &up", this,
                                          [this] { selected_->Move(true); }));
    buttons->addWidget(MakeFootnoteButton("btnSelectedMoveDown", "Move do&wn", this,
                                          [this] { selected_->Move(false); }));
    buttons->addWidget(
        MakeFootnoteButton("btnSelectedRename", "Rena&me…", this, [this] { selected_->Rename(); }));
    buttons->addWidget(
        MakeFootnoteButton("btnSelectedDelete", "Remo&ve", this, [this] { selected_->Remove(); }));
    Control("btnSelectedRename")->setAccessibleName("Rename the proposal's footnote");
    Control("btnSelectedDelete")->setAccessibleName("Remove from the proposal");
    buttons->addStretch(1);
    column->addLayout(buttons);
    connect(selected_, &ProjectFootnoteList::Chosen, this, &frmFootnotes::ShowSource);
}

void frmFootnotes::AddEditor(QVBoxLayout* column) {
    text_ = new FootnoteText({"rtxtFootnoteText", "EditBand", "Text of the footnote", {}}, this);
    shown_ = MakeLabel("", text_->Editor(), this);
    shown_->setObjectName("lblFootnoteText");
    shown_->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);  // names may be long
    column->addWidget(shown_);
    column->addWidget(text_, 1);
}

void frmFootnotes::RefreshLibrary() {
    RunShowingErrors([this] { FillFootnoteList(library_, LibraryFootnoteNames()); });
}

/// The label above the editor tells which text stands in it.
void frmFootnotes::ShowSource() {
    EnableButtons();
    std::string source;
    if (text_->LibraryName())
        source = "&Text in the library: " + *text_->LibraryName();
    else if (const auto row = text_->ProjectRow())
        source = "&Text on this proposal: " +
                 std::string(ProposalFootnotes(Project()).rows[*row].Name.Trimmed());
    else
        source = "Choose a footnote to read and change its &text.";
    const std::size_t name = source.find(':');
    QString text = QString::fromStdString(source);
    if (name != std::string::npos) {
        const auto start = static_cast<qsizetype>(name);
        text = text.left(start) + text.mid(start).replace("&", "&&");
    }
    shown_->setText(text);
}

void frmFootnotes::EnableButtons() {
    const auto enable = [this](std::initializer_list<const char*> names, bool on) {
        for (const char* name : names)
            if (QWidget* button = Control(name)) button->setEnabled(on);
    };
    enable({"btnRename", "btnDelete", "btnAddToList"}, library_->currentItem());
    enable({"btnSelectedMoveUp", "btnSelectedMoveDown", "btnSelectedRename", "btnSelectedDelete"},
           selected_->Row().has_value());
}

void frmFootnotes::CommitEdits() {
    text_->StoreProjectText();
}

void frmFootnotes::StoreFields() {
    text_->Store();
}

bool frmFootnotes::QueryUnload() {
    return text_->Store() ||
           Ask("TENDO",
               "The text of this footnote was not stored.  Do you want to close and lose it?",
               Buttons::YesNo, MessageIcon::Warning) == Answer::Yes;
}

void frmFootnotes::DBLFootNoteName_Click() {
    const std::string name = ChosenName(library_);
    if (!name.empty() && text_->Store()) {
        RunShowingErrors([&] { text_->ShowLibraryText(name, LibraryFootnoteText(name)); });
    } else if (!name.empty()) {
        const QSignalBlocker quiet(library_);
        ChooseInLibrary(*text_->LibraryName());  // the editor keeps what it couldn't store
    }
    ShowSource();
}

void frmFootnotes::ChooseInLibrary(const std::string& name) {
    const auto found = library_->findItems(QString::fromStdString(name),
                                           Qt::MatchExactly | Qt::MatchCaseSensitive);
    if (!found.isEmpty()) library_->setCurrentItem(found.first());
}

void frmFootnotes::btnNew_Click() {
    if (!text_->Store()) return;
    const auto name = ShowFootnoteNew(FootnoteMode::Database);
    RefreshLibrary();
    if (name) ChooseInLibrary(*name);
}

void frmFootnotes::btnAddToList_Click() {
    const std::string name = ChosenName(library_);
    if (!name.empty() && text_->Store()) AddFromLibrary(FootnoteMode::Selected, name);
}

void frmFootnotes::btnDelete_Click() {
    const std::string name = ChosenName(library_);
    if (name.empty() || Ask("TENDO", "Are you sure you want to delete this footnote?",
                            Buttons::YesNo) != Answer::Yes)
        return;
    if (!RunShowingErrors([&] { DeleteLibraryFootnote(name); })) return;
    const bool shown = text_->LibraryName().has_value();
    if (text_->LibraryName() == name) text_->ShowNothing();
    RefreshLibrary();
    if (shown)
        DBLFootNoteName_Click();
    else
        ShowSource();
}

void frmFootnotes::btnRename_Click() {
    const std::string name = ChosenName(library_);
    if (name.empty()) return;
    const std::string newName = AskFootnoteName(name);
    if (newName.empty()) return;
    const bool renamed = RunShowingErrors([&] {
        if (LibraryHasFootnote(newName)) {
            ShowMessage("TENDO", "You are already using the name, " + newName +
                                     ".  Please select another name");
            return;
        }
        RenameLibraryFootnote(name, newName);
        if (text_->LibraryName() == name) text_->FollowName(newName);
    });
    if (renamed) RefreshLibrary();
    ShowSource();
}

/// F2 renames and Delete removes in the library's list, too; Return adds to the proposal.
void frmFootnotes::keyPressEvent(QKeyEvent* event) {
    const bool inLibrary = library_->hasFocus();
    if (inLibrary && event->key() == Qt::Key_F2) return btnRename_Click();
    if (inLibrary && event->key() == Qt::Key_Delete) return btnDelete_Click();
    if (inLibrary && event->key() == Qt::Key_Return) return btnAddToList_Click();
    Form::keyPressEvent(event);
}

}  // namespace tendo
