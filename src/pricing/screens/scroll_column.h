#pragma once

class QVBoxLayout;
class QWidget;

namespace tendo {

/// Gives a screen one column in which its parts stand, with scroll bars where they have no room.
/// The column's widget is the parent of what is laid out in it.
QVBoxLayout* MakeScrollColumn(QWidget* screen);

}  // namespace tendo
