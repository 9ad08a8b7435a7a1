#include "platform/qt/spoken_names.h"

#include <QAbstractButton>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QMap>
#include <QPlainTextEdit>
#include <QStackedWidget>
#include <QTabWidget>

#include "platform/qt/mnemonics.h"

namespace tendo {
namespace {

/// What the control is called now; empty when it isn't one that people work with.
QString NameOf(const QWidget* control) {
    if (!control->accessibleName().isEmpty()) return control->accessibleName();
    if (qobject_cast<const QAbstractButton*>(control)) return PlainCaption(OwnCaption(control));
    return {};
}

/// A card is called by its heading, a page by its tab.
QString SectionOf(const QWidget* control) {
    for (const QWidget* box = control->parentWidget(); box; box = box->parentWidget()) {
        if (box->property("card").toBool())
            if (const auto* heading = box->findChild<QLabel*>()) return heading->text();
        const auto* stack = qobject_cast<const QStackedWidget*>(box->parentWidget());
        const auto* tabs = stack ? qobject_cast<const QTabWidget*>(stack->parentWidget()) : nullptr;
        if (tabs) return PlainCaption(tabs->tabText(tabs->indexOf(box)));
    }
    return {};
}

QString NameWithSection(const QWidget* control, const QString& name) {
    const QString section = SectionOf(control);
    if (section.isEmpty() || name.startsWith(section)) return name;
    if (qobject_cast<const QAbstractButton*>(control)) return name + " (" + section.toLower() + ")";
    return section + " " + name.left(1).toLower() + name.mid(1);
}

bool IsCalled(const QWidget* widget) {
    return qobject_cast<const QLineEdit*>(widget) || qobject_cast<const QPlainTextEdit*>(widget) ||
           qobject_cast<const QComboBox*>(widget) || qobject_cast<const QAbstractButton*>(widget);
}

void NameByLabel(const QLabel& label) {
    QWidget* field = label.buddy();
    if (!field || !field->accessibleName().isEmpty() || qobject_cast<QAbstractButton*>(field))
        return;
    QString name = PlainCaption(OwnCaption(&label)).trimmed();
    if (name.endsWith(':')) name.chop(1);
    field->setAccessibleName(name);
}

QMap<QString, QList<QWidget*>> ControlsByName(const QWidget* screen) {
    QMap<QString, QList<QWidget*>> controls;
    for (auto* control : screen->findChildren<QWidget*>())
        if (const QString name = IsCalled(control) ? NameOf(control) : QString(); !name.isEmpty())
            controls[name] << control;
    return controls;
}

}  // namespace

void NameControls(QWidget* screen) {
    for (const auto* label : screen->findChildren<QLabel*>())
        NameByLabel(*label);
    // A name made in the first round may be another control's own one.
    for (int round = 0; round < 2; ++round) {
        const auto controls = ControlsByName(screen);
        for (auto found = controls.cbegin(); found != controls.cend(); ++found) {
            if (found.value().size() == 1) continue;
            for (QWidget* control : found.value())
                control->setAccessibleName(NameWithSection(control, found.key()));
        }
    }
}

}  // namespace tendo
