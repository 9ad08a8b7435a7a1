#pragma once

class QWidget;

namespace tendo {

/// Leads Tab through a screen as its layouts stand: rows and columns in their order, boxes one by
/// one, the pages of a tab control after its tabs. Within a grid the order in which its controls
/// were made stays, for that may go down the columns.
void OrderTabsByLayout(QWidget* screen);

}  // namespace tendo
