#pragma once

#include <QString>

class QWidget;

namespace tendo {

/// Inserts a text at the caret of an entry field as far as its rules let it be typed there, key by
/// key; in a line, line breaks become blanks. One step for undo. Other controls ignore it, and so
/// do fields that can't be typed in.
void InsertAsTyped(QWidget* field, const QString& text);

/// The same with what the clipboard holds.
void PasteAsTyped(QWidget* field);

/// From now on whatever brings text into a field without a key passes the field's rules: the keys
/// for pasting, the field's menu, the middle button, a drop, an input method. Ctrl+Y does again
/// what was undone, as Ctrl+Shift+Z does.
void WatchPasting();

}  // namespace tendo
