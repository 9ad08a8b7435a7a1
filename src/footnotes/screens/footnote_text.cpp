#include "footnotes/screens/footnote_text.h"

#include <QEvent>
#include <QVBoxLayout>

#include "footnotes/footnote_library.h"
#include "footnotes/screens/edit_bar.h"
#include "footnotes/screens/footnote_commands.h"
#include "platform/qt/dialogs.h"
#include "platform/qt/form.h"
#include "platform/qt/rich_editor.h"
#include "platform/qt/shown_errors.h"

namespace tendo {

FootnoteText::FootnoteText(const Names& names, QWidget* screen) : QWidget(screen) {
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 0);
    editor_ = new RichEditor;
    editor_->setObjectName(names.editor);
    editor_->setAccessibleName(names.spoken);
    editor_->installEventFilter(this);
    bar_ = new EditBar(editor_, screen, names.whose);
    bar_->setObjectName(names.bar);
    column->addWidget(bar_);
    column->addWidget(editor_, 1);  // behind the bar in the order of Tab
    connect(&FootnoteChanges::Instance(), &FootnoteChanges::Coming, this,
            [this](FootnoteMode mode) {
                if (mode == mode_) StoreProjectText();
            });
    ShowNothing();
}

void FootnoteText::Show(const std::string& text) {
    const Hourglass pointer;  // a text of megabytes takes seconds
    editor_->setReadOnly(!name_ && !row_);
    editor_->ShowText(text);
    bar_->ShowState();
}

void FootnoteText::ShowNothing() {
    name_.reset();
    row_.reset();
    Show("");
}

void FootnoteText::ShowLibraryText(const std::string& name, const std::string& text) {
    mode_ = FootnoteMode::Database;
    name_ = name;
    row_.reset();
    Show(text);
}

void FootnoteText::ShowProjectText(FootnoteMode mode, std::size_t row) {
    const std::string& text = ListOf(mode).rows[row].Description;
    const bool here = mode_ == mode && row_ == row && editor_->Text() == text;
    if (here) return;
    mode_ = mode;
    name_.reset();
    row_ = row;
    Show(text);
}

bool FootnoteText::Store() {
    StoreProjectText();
    return !name_ || !editor_->IsEdited() || StoreLibraryText();
}

bool FootnoteText::StoreLibraryText() {
    bool found = false;
    const std::string text = editor_->Text();
    if (!RunShowingErrors([&] { found = StoreLibraryFootnoteText(*name_, text); })) return false;
    if (!found)
        ShowMessage("TENDO",
                    "The footnote \"" + *name_ +
                        "\" is no longer in the library.  Its text was "
                        "not stored.",
                    MessageIcon::Warning);
    else
        editor_->MarkStored();
    return found;
}

void FootnoteText::StoreProjectText() {
    if (!row_ || !editor_->IsEdited()) return;
    const FootnoteList list = ListOf(mode_);
    if (*row_ >= list.Size()) return;
    list.rows[*row_].Description = editor_->Text();
    editor_->MarkStored();
    FootnotesHaveChanged(mode_);
}

/// A text of the project goes into it when the focus leaves the editor, so that whatever is shown
/// next tells what was written.
bool FootnoteText::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() == QEvent::FocusOut) StoreProjectText();
    return QWidget::eventFilter(watched, event);
}

}  // namespace tendo
