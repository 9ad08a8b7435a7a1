#include "platform/qt/scroll_content.h"

#include <QScrollArea>
#include <QVBoxLayout>

namespace tendo {

void ScrollContent(QWidget* screen, QWidget* content) {
    auto* scroll = new QScrollArea(screen);
    scroll->setWidgetResizable(true);
    scroll->setFrameShape(QFrame::NoFrame);
    scroll->setFocusPolicy(Qt::NoFocus);
    scroll->setWidget(content);
    auto* frame = new QVBoxLayout(screen);
    frame->setContentsMargins(0, 0, 0, 0);
    frame->addWidget(scroll);
}

}  // namespace tendo
