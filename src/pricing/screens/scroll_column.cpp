#include "pricing/screens/scroll_column.h"

#include <QScrollArea>
#include <QVBoxLayout>

namespace tendo {

QVBoxLayout* MakeScrollColumn(QWidget* screen) {
    auto* frame = new QVBoxLayout(screen);
    frame->setContentsMargins(0, 0, 0, 0);
    auto* scroll = new QScrollArea(screen);
    auto* content = new QWidget;
    auto* column = new QVBoxLayout(content);
    column->setContentsMargins(16, 16, 16, 16);
    column->setSpacing(14);
    scroll->setWidgetResizable(true);
    scroll->setFrameShape(QFrame::NoFrame);
    scroll->setFocusPolicy(Qt::NoFocus);
    scroll->setWidget(content);
    frame->addWidget(scroll);
    screen->setMinimumSize(520, 320);
    return column;
}

}  // namespace tendo
