#pragma once

class QBoxLayout;
class QSize;
class QVBoxLayout;
class QWidget;

namespace tendo {

/// Gives a screen one column in which its parts stand, with scroll bars where they have no room.
/// The column's widget is the parent of what is laid out in it.
QVBoxLayout* MakeScrollColumn(QWidget* screen);

/// The size at which a screen with such a column shows all of it.
QSize ScreenSize(const QVBoxLayout* column);

/// Sets the parts of a row one below the other where a screen of this width has no room for them
/// beside each other.
void StackWhenNarrow(QBoxLayout* row, int screenWidth);

}  // namespace tendo
