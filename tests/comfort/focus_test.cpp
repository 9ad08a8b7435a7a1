#include <gtest/gtest.h>

#include <QAbstractItemView>
#include <QAbstractSpinBox>
#include <QComboBox>
#include <QImage>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QScrollArea>
#include <QSet>
#include <QTabBar>
#include <QWheelEvent>
#include <algorithm>

#include "screens.h"

namespace tendo {
namespace {

/// Above it, or left of it on one line.
bool MeetsEyeBefore(const QRect& one, const QRect& other) {
    const bool oneLine = one.top() <= other.bottom() && other.top() <= one.bottom();
    return oneLine ? one.left() < other.left() : one.top() < other.top();
}

/// The controls in the order in which Tab leads through them.
QList<QWidget*> TabOrder(Form& form) {
    const QList<QWidget*> controls = ControlsOf(form);
    QList<QWidget*> order;
    QWidget* widget = &form;
    do {
        if (controls.contains(widget) && (widget->focusPolicy() & Qt::TabFocus) &&
            widget->isEnabled())
            order << widget;
        widget = widget->nextInFocusChain();
    } while (widget != &form);
    // Tab goes round; the round is read from the control that the eye meets first.
    auto first = order.begin();
    for (auto other = order.begin(); other != order.end(); ++other)
        if (MeetsEyeBefore(PlaceOn(*other, &form), PlaceOn(*first, &form))) first = other;
    std::rotate(order.begin(), first, order.end());
    return order;
}

/// The child of `around` that holds the control.
QWidget* BranchOf(QWidget* control, const QWidget* around) {
    while (control->parentWidget() != around)
        control = control->parentWidget();
    return control;
}

QWidget* CommonParent(const QWidget* first, const QWidget* second) {
    QWidget* around = first->parentWidget();
    while (!around->isAncestorOf(second))
        around = around->parentWidget();
    return around;
}

/// Below, or right of it on one line.
bool ComesAfter(const QRect& next, const QRect& before) {
    if (next.center().y() >= before.bottom()) return true;
    const bool oneLine = next.top() <= before.bottom() && before.top() <= next.bottom();
    return oneLine && next.left() >= before.left();
}

/// The top of another column, right of all that was gone through before.
bool BeginsColumn(const QRect& next, const QList<QRect>& before) {
    for (const QRect& rect : before)
        if (next.left() < rect.right()) return false;
    return true;
}

TEST_F(Screens, TabFollowsTheEye) {
    ForEachScreen([](Form& form) {
        ForEachPage(form, [&] {
            const QList<QWidget*> order = TabOrder(form);
            QMap<QWidget*, QList<QRect>> seen;  // of each box, the places gone through
            for (int i = 1; i < order.size(); ++i) {
                QWidget* around = CommonParent(order[i - 1], order[i]);
                const QRect before = BranchOf(order[i - 1], around)->geometry();
                const QRect next = BranchOf(order[i], around)->geometry();
                seen[around] << before;
                EXPECT_TRUE(ComesAfter(next, before) || BeginsColumn(next, seen[around]))
                    << Told(order[i]) << " comes after " << Told(order[i - 1]);
            }
        });
    });
}

/// Once left, a box is not come back to.
TEST_F(Screens, TabGoesThroughABoxInOneGo) {
    ForEachScreen([](Form& form) {
        ForEachPage(form, [&] {
            const QList<QWidget*> order = TabOrder(form);
            QSet<QWidget*> left;
            for (int i = 0; i < order.size(); ++i) {
                for (QWidget* box = order[i]->parentWidget(); box != &form;
                     box = box->parentWidget()) {
                    EXPECT_FALSE(left.contains(box))
                        << Told(order[i]) << " comes back to " << Told(box);
                    if (i + 1 < order.size() && !box->isAncestorOf(order[i + 1])) left << box;
                }
            }
        });
    });
}

TEST_F(Screens, TabReachesEveryField) {
    ForEachScreen([](Form& form) {
        for (QWidget* control : ControlsOf(form)) {
            const auto* line = qobject_cast<QLineEdit*>(control);
            const bool computed = line && line->isReadOnly();
            const bool field = (line && !computed) || qobject_cast<QComboBox*>(control) ||
                               qobject_cast<QPlainTextEdit*>(control) ||
                               qobject_cast<QAbstractItemView*>(control);
            if (!field || control->objectName() == "txtSearchCommands") continue;
            EXPECT_TRUE(control->focusPolicy() & Qt::TabFocus) << Told(control);
        }
    });
}

/// The control as it looks; of a text, whose caret and selection show the focus as well, the frame.
QImage LookOf(QWidget* control) {
    constexpr int frame = 3;
    QImage image = control->grab().toImage().convertToFormat(QImage::Format_RGB32);
    if (!qobject_cast<QLineEdit*>(control) && !qobject_cast<QPlainTextEdit*>(control)) return image;
    const int edge = static_cast<int>(frame * image.devicePixelRatio());
    for (int y = edge; y < image.height() - edge; ++y)
        for (int x = edge; x < image.width() - edge; ++x)
            image.setPixel(x, y, 0);
    return image;
}

int DifferentPixels(const QImage& first, const QImage& second) {
    if (first.size() != second.size()) return first.width() * first.height();
    int count = 0;
    for (int y = 0; y < first.height(); ++y)
        for (int x = 0; x < first.width(); ++x)
            count += first.pixel(x, y) != second.pixel(x, y);
    return count;
}

TEST_F(Screens, TheFocusShows) {
    static constexpr int atLeast = 12;  // pixels
    ForEachScreen([](Form& form) {
        form.window()->activateWindow();
        ForEachPage(form, [&] {
            for (QWidget* control : TabOrder(form)) {
                control->setFocus(Qt::TabFocusReason);
                QApplication::processEvents();
                if (!control->hasFocus()) continue;  // it leads on to another field
                const QImage focused = LookOf(control);
                control->clearFocus();
                QApplication::processEvents();
                EXPECT_GE(DifferentPixels(focused, LookOf(control)), atLeast) << Told(control);
            }
        });
    });
}

void Turn(QWidget* control, int angle) {
    QWheelEvent event({5, 5}, control->mapToGlobal(QPointF(5, 5)), {}, {0, angle}, Qt::NoButton,
                      Qt::NoModifier, Qt::NoScrollPhase, false);
    QApplication::sendEvent(control, &event);
}

QString ValueOf(const QWidget* control) {
    if (const auto* line = qobject_cast<const QLineEdit*>(control)) return line->text();
    if (const auto* spin = qobject_cast<const QAbstractSpinBox*>(control)) return spin->text();
    if (const auto* combo = qobject_cast<const QComboBox*>(control)) return combo->currentText();
    if (const auto* memo = qobject_cast<const QPlainTextEdit*>(control)) return memo->toPlainText();
    if (const auto* tabs = qobject_cast<const QTabBar*>(control))
        return tabs->tabText(tabs->currentIndex());
    if (const auto* view = qobject_cast<const QAbstractItemView*>(control))
        return QString::number(view->currentIndex().row());
    return {};
}

TEST_F(Screens, TheWheelChangesNothingThatIsNotInFocus) {
    ForEachScreen([](Form& form) {
        for (QWidget* control : ControlsOf(form)) {
            if (QWidget* focus = QApplication::focusWidget()) focus->clearFocus();
            const QString before = ValueOf(control);
            for (const int angle : {-120, 120, 120, -120, -120})
                Turn(control, angle);
            EXPECT_EQ(ValueOf(control), before) << Told(control);
        }
    });
}

}  // namespace
}  // namespace tendo
