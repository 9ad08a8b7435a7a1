#include "footnotes/screens/frm_select_footnote.h"

#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QListWidget>
#include <QPushButton>

#include "footnotes/footnote_library.h"
#include "footnotes/screens/footnote_commands.h"
#include "platform/qt/fields.h"
#include "platform/qt/rich_editor.h"
#include "project/program_state.h"

namespace tendo {

frmSelectFootNoteFromDB::frmSelectFootNoteFromDB(FootnoteList target, std::function<void()> added)
    : Form("frmSelectFootNoteFromDB", "Select a Footnote", Place::Dialog,
           "frmSelectFootNoteFromDB"),
      target_(target),
      added_(std::move(added)) {
    auto* grid = new QGridLayout(this);
    grid->setContentsMargins(16, 16, 16, 16);
    grid->setHorizontalSpacing(16);
    library_ = MakeFootnoteList("DBLFootNoteName", "Footnotes of the library", this);
    text_ = new RichEditor(this);
    text_->setObjectName("rtxtFootnoteText");
    text_->setAccessibleName("Text of the footnote");
    text_->setReadOnly(true);
    grid->addWidget(MakeLabel("Footnotes of the &library", library_, this), 0, 0);
    grid->addWidget(library_, 1, 0);
    grid->addWidget(MakeLabel("&Text", text_, this), 0, 1);
    grid->addWidget(text_, 1, 1);
    grid->setColumnStretch(0, 2);
    grid->setColumnStretch(1, 3);
    auto* buttons = new QHBoxLayout;
    QPushButton* select =
        MakeFootnoteButton("btnSelect", "&Select", this, [this] { btnSelect_Click(); });
    select->setProperty("primary", true);
    buttons->addWidget(select);
    buttons->addStretch(1);
    buttons->addWidget(MakeFootnoteButton("btnOk", "&OK", this, [this] { Unload(); }));
    buttons->addWidget(MakeFootnoteButton("btnCancel", "&Cancel", this, [this] { Unload(); }));
    grid->addLayout(buttons, 2, 0, 1, 2);
    RunFootnoteCommand([this] { FillFootnoteList(library_, LibraryFootnoteNames()); });
    connect(library_, &QListWidget::itemClicked, this, [this] { DBLFootNoteName_Click(); });
    connect(library_, &QListWidget::currentRowChanged, this, [this] { DBLFootNoteName_Click(); });
    connect(library_, &QListWidget::itemDoubleClicked, this, [this] { btnSelect_Click(); });
}

void frmSelectFootNoteFromDB::DBLFootNoteName_Click() {
    const std::string name = ChosenName(library_);
    if (!name.empty()) RunFootnoteCommand([&] { text_->ShowText(LibraryFootnoteText(name)); });
}

void frmSelectFootNoteFromDB::btnSelect_Click() {
    const std::string name = ChosenName(library_);
    if (name.empty()) return;
    RunFootnoteCommand([&] {
        AddFootnote(target_, name, LibraryFootnoteText(name));
        State().ProjectChanged = true;
        if (added_) added_();
    });
}

void frmSelectFootNoteFromDB::keyPressEvent(QKeyEvent* event) {
    if (event->key() == Qt::Key_Escape)
        Unload();
    else
        Form::keyPressEvent(event);
}

}  // namespace tendo
