#pragma once

class QWidget;

namespace tendo {

/// Gives a screen its content, with scroll bars where the content has no room. The screen owns the
/// content, and the scroll bars take no focus.
void ScrollContent(QWidget* screen, QWidget* content);

}  // namespace tendo
