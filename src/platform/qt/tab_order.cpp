#include "platform/qt/tab_order.h"

#include <QGridLayout>
#include <QLayout>
#include <QMap>
#include <QScrollArea>
#include <QSplitter>
#include <QTabBar>
#include <QTabWidget>
#include <QWidget>
#include <algorithm>

namespace tendo {
namespace {

/// Collects the controls that Tab stops at.
class TabWalk {
  public:
    explicit TabWalk(QWidget* screen) {
        int place = 0;
        for (QWidget* widget = screen->nextInFocusChain(); widget != screen;
             widget = widget->nextInFocusChain())
            made_[widget] = ++place;
        Enter(screen);
    }

    const QList<QWidget*>& Order() const { return order_; }

  private:
    void Enter(QWidget* widget) {
        if (widget->focusPolicy() & Qt::TabFocus) order_ << widget;
        if (auto* scroll = qobject_cast<QScrollArea*>(widget)) {
            if (scroll->widget()) Enter(scroll->widget());
        } else if (auto* tabs = qobject_cast<QTabWidget*>(widget)) {
            order_ << tabs->tabBar();
            for (int page = 0; page < tabs->count(); ++page)
                Enter(tabs->widget(page));
        } else if (auto* splitter = qobject_cast<QSplitter*>(widget)) {
            for (int part = 0; part < splitter->count(); ++part)
                Enter(splitter->widget(part));
        } else if (widget->layout()) {
            Enter(widget->layout());
        }
    }

    void Enter(QLayout* layout) {
        QList<QLayoutItem*> items;
        for (int i = 0; i < layout->count(); ++i)
            items << layout->itemAt(i);
        if (qobject_cast<QGridLayout*>(layout))
            std::stable_sort(items.begin(), items.end(), [this](auto* first, auto* second) {
                return FirstMade(first) < FirstMade(second);
            });
        for (QLayoutItem* item : items) {
            if (item->widget()) Enter(item->widget());
            if (item->layout()) Enter(item->layout());
        }
    }

    int FirstMade(QLayoutItem* item) const {
        int first = static_cast<int>(made_.size()) + 1;
        const auto take = [&](const QWidget* widget) {
            if (widget->focusPolicy() & Qt::TabFocus)
                first = std::min(first, made_.value(widget, first));
        };
        if (const QWidget* widget = item->widget()) {
            take(widget);
            for (const auto* child : widget->findChildren<QWidget*>())
                take(child);
        }
        if (const QLayout* layout = item->layout())
            for (int i = 0; i < layout->count(); ++i)
                first = std::min(first, FirstMade(layout->itemAt(i)));
        return first;
    }

    QMap<const QWidget*, int> made_;
    QList<QWidget*> order_;
};

}  // namespace

void OrderTabsByLayout(QWidget* screen) {
    const QList<QWidget*> order = TabWalk(screen).Order();
    for (int i = 1; i < order.size(); ++i)
        QWidget::setTabOrder(order[i - 1], order[i]);
}

}  // namespace tendo
