#include "app/screens/edit_commands.h"

#include <QApplication>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QTextEdit>

#include "platform/qt/pasted_text.h"

namespace tendo {
namespace {

/// Hands the focused text field to `act`, whichever of the three kinds it is.
template <class Act>
void WithTextField(Act act) {
    QWidget* focus = QApplication::focusWidget();
    if (auto* line = qobject_cast<QLineEdit*>(focus))
        act(line);
    else if (auto* plain = qobject_cast<QPlainTextEdit*>(focus))
        act(plain);
    else if (auto* rich = qobject_cast<QTextEdit*>(focus))
        act(rich);
}

/// Figures that can only be read are copied from, nothing more.
template <class Act>
void WithEditableField(Act act) {
    WithTextField([&act](auto* field) {
        if (!field->isReadOnly()) act(field);
    });
}

void DeleteSelection(QLineEdit* field) {
    if (field->hasSelectedText()) field->del();
}

template <class Edit>
void DeleteSelection(Edit* field) {
    field->textCursor().removeSelectedText();
}

void Paste(QWidget* field) {
    PasteAsTyped(field);
}

/// Rich text comes in with its looks.
void Paste(QTextEdit* field) {
    field->paste();
}

}  // namespace

void mnuEditUndo_Click() {
    WithEditableField([](auto* field) { field->undo(); });
}

void mnuEditCut_Click() {
    WithEditableField([](auto* field) { field->cut(); });
}

void mnuEditCopy_Click() {
    WithTextField([](auto* field) { field->copy(); });
}

void mnuEditPaste_Click() {
    WithEditableField([](auto* field) { Paste(field); });
}

void mnuEditDelete_Click() {
    WithEditableField([](auto* field) { DeleteSelection(field); });
}

void mnuEditSelectAll_Click() {
    WithTextField([](auto* field) { field->selectAll(); });
}

}  // namespace tendo
