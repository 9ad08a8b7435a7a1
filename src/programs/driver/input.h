#pragma once

#include <QString>
#include <string>
#include <vector>

class QWidget;

namespace tendo::driver {

/// What a user's hands do, as real events. All throw when the control is disabled or not to be
/// seen.

/// Brings the control's screen forward and moves the focus there.
void FocusControl(QWidget* control);
/// Takes the focus away from the field.
void LeaveField();
/// Focus, select all, then each character as a key press.
void TypeText(QWidget* control, const QString& text);
/// Key presses as they are: "Return", "Alt+Down", "Shift+Left", "F12", "a".
void PressKeys(QWidget* control, const std::vector<std::string>& sequence);
/// Places the caret or a selection.
void PlaceCaret(QWidget* control, int position, int length);
/// Sets the text from code: the change event runs, no key filter.
void SetControlText(QWidget* control, const QString& text);

enum class Click { Single, Double, Right };
void ClickControl(QWidget* control, Click kind);

/// An item of a combo box, list, tab or tree by its text, "#INDEX", or "A/B/C" in a tree, with its
/// click.
void ChooseItem(QWidget* control, const QString& item);
/// A click on a row of a grid, on a column head, an edit of a cell.
void ClickRow(QWidget* grid, int row, int column = 0);
void ClickHead(QWidget* grid, int column);
void EditCell(QWidget* grid, int row, int column, const QString& text);

/// Lets everything that waits happen.
void SettleEvents();

}  // namespace tendo::driver
