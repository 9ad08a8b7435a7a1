#include "footnotes/screens/frm_select_footnote.h"

#include <QGridLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QListWidget>
#include <QPushButton>

#include "footnotes/footnote_library.h"
#include "footnotes/screens/footnote_commands.h"
#include "platform/qt/fields.h"
#include "platform/qt/rich_editor.h"
#include "platform/qt/shown_errors.h"

namespace tendo {

frmSelectFootNoteFromDB::frmSelectFootNoteFromDB(FootnoteMode mode)
    : Form("frmSelectFootNoteFromDB", "Select a Footnote", Place::Dialog,
           "frmSelectFootNoteFromDB"),
      mode_(mode) {
    auto* grid = new QGridLayout(this);
    grid->setContentsMargins(16, 16, 16, 16);
    grid->setHorizontalSpacing(16);
    grid->setVerticalSpacing(8);
    library_ = new QListWidget(this);
    PrepareFootnoteList(library_, "DBLFootNoteName", "Footnotes of the library");
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
    grid->addLayout(MakeButtons(), 2, 0, 1, 2);
    RunShowingErrors([this] { FillFootnoteList(library_, LibraryFootnoteNames()); });
    connect(library_, &QListWidget::currentRowChanged, this, [this] { DBLFootNoteName_Click(); });
    connect(library_, &QListWidget::itemDoubleClicked, this, [this] { btnSelect_Click(); });
    library_->setCurrentRow(0);
}

QHBoxLayout* frmSelectFootNoteFromDB::MakeButtons() {
    auto* row = new QHBoxLayout;
    row->setSpacing(8);
    QPushButton* select =
        MakeFootnoteButton("btnSelect", "&Select", this, [this] { btnSelect_Click(); });
    select->setProperty("primary", true);
    added_ = new QLabel(this);
    added_->setObjectName("lblAdded");
    added_->setProperty("quiet", true);
    added_->setTextFormat(Qt::PlainText);
    added_->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);  // names may be long
    row->addWidget(select);
    row->addWidget(added_, 1);
    row->addWidget(MakeFootnoteButton("btnOk", "&OK", this, [this] { Unload(); }));
    row->addWidget(MakeFootnoteButton("btnCancel", "&Cancel", this, [this] { Unload(); }));
    return row;
}

void frmSelectFootNoteFromDB::DBLFootNoteName_Click() {
    const std::string name = ChosenName(library_);
    if (!name.empty()) RunShowingErrors([&] { text_->ShowText(LibraryFootnoteText(name)); });
}

void frmSelectFootNoteFromDB::btnSelect_Click() {
    const std::string name = ChosenName(library_);
    if (name.empty() || !AddFromLibrary(mode_, name)) return;
    added_->setText(QString::fromStdString("Added: " + name));
}

void frmSelectFootNoteFromDB::keyPressEvent(QKeyEvent* event) {
    if (event->key() == Qt::Key_Escape)
        Unload();
    else if (event->key() == Qt::Key_Return && library_->hasFocus())
        btnSelect_Click();
    else
        Form::keyPressEvent(event);
}

}  // namespace tendo
