#include "pricing/screens/scroll_column.h"

#include <QVBoxLayout>
#include <QWidget>

#include "platform/qt/scroll_content.h"

namespace tendo {
namespace {

constexpr int margin = 16;
constexpr int scrollBar = 12;

}  // namespace

QVBoxLayout* MakeScrollColumn(QWidget* screen) {
    auto* content = new QWidget;
    auto* column = new QVBoxLayout(content);
    column->setContentsMargins(margin, margin, margin, margin);
    column->setSpacing(14);
    ScrollContent(screen, content);
    screen->setMinimumSize(520, 320);
    return column;
}

/// Wide enough for every figure; the entry lines' own hints ask for more than any figure takes.
QSize ScreenSize(const QVBoxLayout* column) {
    return {column->minimumSize().width() + 2 * scrollBar, column->sizeHint().height()};
}

void StackWhenNarrow(QBoxLayout* row, int screenWidth) {
    int wanted = row->spacing() * (row->count() - 1);
    for (int i = 0; i < row->count(); ++i)
        wanted += row->itemAt(i)->minimumSize().width();
    const bool fits = wanted <= screenWidth - 2 * margin - scrollBar;
    row->setDirection(fits ? QBoxLayout::LeftToRight : QBoxLayout::TopToBottom);
}

}  // namespace tendo
