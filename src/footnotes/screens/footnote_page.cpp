#include "footnotes/screens/footnote_page.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>

#include "footnotes/screens/footnote_commands.h"
#include "footnotes/screens/footnote_text.h"
#include "footnotes/screens/frm_footnote_new.h"
#include "footnotes/screens/frm_select_footnote.h"
#include "footnotes/screens/project_footnote_list.h"
#include "platform/qt/fields.h"
#include "platform/qt/rich_editor.h"

namespace tendo {
namespace {

constexpr int TypingRest = 600;         // milliseconds
constexpr int LongestLiveText = 50000;  // characters; a longer one waits until the editor is left

}  // namespace

FootnotePage::FootnotePage(FootnoteMode mode, const FootnotePageNames& names, QWidget* parent)
    : QWidget(parent), mode_(mode), names_(names) {
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(0, 16, 0, 0);
    column->setSpacing(8);
    const QString caption = QString(names.caption).remove('&');
    text_ =
        new FootnoteText({names.text, names.bar, "Text of one of the " + caption, caption}, this);
    list_ = new ProjectFootnoteList(mode, text_, this);
    PrepareFootnoteList(list_, names.list, caption);
    column->addWidget(
        MakeLabel(QString(names.caption) + ", in the order of printing", list_, this));
    column->addWidget(list_, 1);
    AddButtons(column);
    column->addWidget(text_, 2);
    connect(list_, &ProjectFootnoteList::Chosen, this, &FootnotePage::EnableButtons);
    connect(list_, &ProjectFootnoteList::Changed, this, [this] {
        if (Changed) Changed();
    });
    WatchTyping();
    list_->setCurrentRow(0);
    EnableButtons();
}

void FootnotePage::WatchTyping() {
    typing_.setParent(this);
    typing_.setObjectName(QString(names_.text) + "_Typing");
    typing_.setSingleShot(true);
    typing_.setInterval(TypingRest);
    connect(&typing_, &QTimer::timeout, this, &FootnotePage::StoreText);
    connect(text_->Editor(), &QTextEdit::textChanged, this, [this] {
        if (text_->Editor()->document()->characterCount() < LongestLiveText) typing_.start();
    });
}

void FootnotePage::AddButtons(QVBoxLayout* column) {
    auto* row = new QHBoxLayout;
    const auto add = [&](const char* name, const char* text, std::function<void()> run) {
        QPushButton* button = MakeFootnoteButton(name, text, this, std::move(run));
        button->setAccessibleName(
            QString("%1: %2").arg(QString(names_.caption).remove('&'), QString(text).remove('&')));
        row->addWidget(button);
    };
    add(names_.addFromDatabase, "Add from &library…", [this] { AddFromDatabase(); });
    add(names_.addNew, "Add &new…", [this] { AddNew(); });
    add(names_.remove, "Re&move", [this] { list_->Remove(); });
    add(names_.up, "&Up", [this] { list_->Move(true); });
    add(names_.down, "D&own", [this] { list_->Move(false); });
    row->addStretch(1);
    column->addLayout(row);
}

void FootnotePage::EnableButtons() {
    const bool chosen = list_->Row().has_value();
    for (const char* name : {names_.remove, names_.up, names_.down})
        findChild<QPushButton*>(name)->setEnabled(chosen);
}

void FootnotePage::StoreText() {
    text_->StoreProjectText();
}

void FootnotePage::AddFromDatabase() {
    const int before = list_->count();
    (new frmSelectFootNoteFromDB(mode_))->ShowModal();
    if (list_->count() > before) list_->ChooseLast();
}

void FootnotePage::AddNew() {
    if (ShowFootnoteNew(mode_)) list_->ChooseLast();
}

}  // namespace tendo
