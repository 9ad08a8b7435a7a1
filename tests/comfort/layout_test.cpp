#include <gtest/gtest.h>

#include <QAbstractButton>
#include <QComboBox>
#include <QFontMetrics>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QMdiArea>
#include <QMdiSubWindow>
#include <QPlainTextEdit>
#include <QScrollArea>
#include <QScrollBar>
#include <QTabBar>
#include <QTableView>
#include <QTextDocument>

#include "screens.h"

namespace tendo {
namespace {

std::string Size(const QSize& size) {
    return std::to_string(size.width()) + " x " + std::to_string(size.height());
}

/// The text of a label that runs over lines, or stands on one.
QSize NeededBy(const QLabel& label) {
    if (!label.wordWrap()) return label.sizeHint();
    return {0, label.heightForWidth(label.width())};
}

bool Fits(const QSize& needed, const QSize& given) {
    return needed.width() <= given.width() && needed.height() <= given.height();
}

/// Labels that shorten their text on purpose say so by needing no width.
bool Shortens(const QLabel& label) {
    return label.minimumSizeHint().width() == 0 ||
           label.sizePolicy().horizontalPolicy() == QSizePolicy::Ignored;
}

void CheckLabels(const Form& form) {
    for (const auto* label : form.findChildren<QLabel*>()) {
        if (!label->isVisible() || label->text().isEmpty() || Shortens(*label)) continue;
        EXPECT_TRUE(Fits(NeededBy(*label), label->size()))
            << "the label '" << label->text().toStdString() << "' needs " << Size(NeededBy(*label))
            << " and has " << Size(label->size());
    }
}

/// A button of the program's own kind.
bool DrawsItself(const QWidget& control) {
    return qobject_cast<const QAbstractButton*>(&control) &&
           !QByteArray(control.metaObject()->className()).startsWith('Q');
}

/// What a control needs at least: a button all of its caption, a field the height of its text.
QSize NeededBy(const QWidget& control) {
    if (control.property("help").toBool())  // a ring around a question mark
        return control.fontMetrics().size(Qt::TextSingleLine, "?");
    if (DrawsItself(control)) return control.minimumSizeHint();  // it shortens its texts
    if (qobject_cast<const QAbstractButton*>(&control)) return control.sizeHint();
    if (qobject_cast<const QPlainTextEdit*>(&control))
        return {0, control.fontMetrics().lineSpacing() * 2 + 8};
    if (const auto* combo = qobject_cast<const QComboBox*>(&control))
        return {combo->minimumSizeHint().width(), combo->sizeHint().height()};
    if (qobject_cast<const QLineEdit*>(&control)) return {0, control.sizeHint().height()};
    if (qobject_cast<const QTabBar*>(&control)) return control.sizeHint();
    return control.minimumSizeHint();
}

/// A number's digits must all be seen; a text can be scrolled.
void CheckFigure(const QLineEdit& field) {
    if (!(field.alignment() & Qt::AlignRight)) return;
    constexpr int edges = 14;
    const int needed = field.fontMetrics().horizontalAdvance(field.text()) + edges;
    EXPECT_LE(needed, field.width())
        << "'" << field.text().toStdString() << "' of " << Told(&field);
}

void CheckHeads(const QTableView& view) {
    const QHeaderView* heads = view.horizontalHeader();
    if (!heads->isVisible()) return;
    for (int i = 0; i < heads->count(); ++i) {
        if (heads->isSectionHidden(i)) continue;
        const QString head = view.model()->headerData(i, Qt::Horizontal).toString();
        EXPECT_GE(heads->sectionSize(i), heads->sectionSizeHint(i))
            << "the head '" << head.toStdString() << "' of " << Told(&view);
    }
    EXPECT_GE(heads->height(), heads->sizeHint().height());
}

/// Nothing stands over the edge of what holds it, but for what can be scrolled to.
void CheckEdges(const QWidget& control, const Form& form) {
    for (const QWidget* widget = &control; widget != &form; widget = widget->parentWidget()) {
        const QWidget* around = widget->parentWidget();
        const auto* scroll = qobject_cast<const QScrollArea*>(around->parentWidget());
        if (scroll && scroll->viewport() == around) return;
        EXPECT_TRUE(around->rect().contains(widget->geometry()))
            << Told(widget) << " stands over the edge of " << Told(around);
    }
}

void CheckNothingIsClipped(Form& form) {
    CheckLabels(form);
    for (QWidget* control : ControlsOf(form)) {
        EXPECT_TRUE(Fits(NeededBy(*control), control->size()))
            << Told(control) << " needs " << Size(NeededBy(*control)) << " and has "
            << Size(control->size());
        CheckEdges(*control, form);
        if (const auto* field = qobject_cast<QLineEdit*>(control)) CheckFigure(*field);
        if (const auto* view = qobject_cast<QTableView*>(control)) CheckHeads(*view);
    }
}

TEST_F(Screens, NothingIsClippedOnAFreshScreen) {
    ForEachScreen([](Form& form) { ForEachPage(form, [&] { CheckNothingIsClipped(form); }); });
}

TEST_F(Screens, AFreshScreenNeedsNoScrollingToTheSide) {
    ForEachScreen([](Form& form) {
        for (const auto* scroll : form.findChildren<QScrollArea*>()) {
            if (!scroll->isVisible() || !IsOf(scroll, form)) continue;
            EXPECT_EQ(scroll->horizontalScrollBar()->maximum(), 0)
                << Told(scroll) << " is too narrow";
        }
    });
}

/// The window around a screen.
QWidget* WindowOf(Form& form) {
    return form.SubWindow() ? static_cast<QWidget*>(form.SubWindow()) : &form;
}

QSize SmallestSize(Form& form) {
    return WindowOf(form)->minimumSizeHint().expandedTo(WindowOf(form)->minimumSize());
}

TEST_F(Screens, NothingIsClippedOnTheSmallestScreen) {
    ForEachScreen([](Form& form) {
        WindowOf(form)->resize(SmallestSize(form));
        QApplication::processEvents();
        ForEachPage(form, [&] { CheckNothingIsClipped(form); });
    });
}

/// What a notebook computer of ten years ago has room for.
TEST_F(Screens, TheSmallestScreenFitsASmallDisplay) {
    constexpr QSize display(1280, 720);
    ForEachScreen([&](Form& form) {
        const QSize smallest = SmallestSize(form);
        EXPECT_TRUE(Fits(smallest, display)) << Size(smallest);
        EXPECT_GE(smallest.width(), 150);
        EXPECT_GE(smallest.height(), 60);
    });
}

}  // namespace
}  // namespace tendo
