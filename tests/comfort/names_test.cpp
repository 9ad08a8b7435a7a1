#include <gtest/gtest.h>

#include <QAccessible>
#include <QAction>
#include <QCheckBox>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QMainWindow>
#include <QMdiArea>
#include <QMenu>
#include <QMenuBar>
#include <QPushButton>
#include <QRadioButton>
#include <QShortcut>
#include <map>

#include "platform/qt/mnemonics.h"
#include "screens.h"

namespace tendo {
namespace {

/// What a screen reader says of a control.
QString SpokenName(QWidget* control) {
    // The platform's bridge says a combo box's choice first, and its own name as that of its label.
    if (qobject_cast<QComboBox*>(control)) return control->accessibleName();
    QAccessibleInterface* spoken = QAccessible::queryAccessibleInterface(control);
    return spoken ? spoken->text(QAccessible::Name).trimmed() : QString();
}

TEST_F(Screens, EveryControlIsSpokenOfByANameOfItsOwn) {
    ForEachScreen([](Form& form) {
        std::map<QString, QWidget*> names;
        ForEachPage(form, [&] {
            for (QWidget* control : ControlsOf(form)) {
                const QString name = SpokenName(control);
                EXPECT_FALSE(name.isEmpty()) << Told(control) << " has no name";
                const auto [other, added] = names.emplace(name, control);
                EXPECT_TRUE(added || other->second == control)
                    << Told(control) << " and " << Told(other->second) << " are both called '"
                    << name.toStdString() << "'";
            }
        });
    });
}

/// The fields that can be typed in or chosen from.
bool IsField(const QWidget* control) {
    const bool entry = control->inherits("QLineEdit") || control->inherits("QPlainTextEdit") ||
                       control->inherits("QComboBox");
    return entry && (control->focusPolicy() & Qt::TabFocus);
}

QLabel* LabelFor(const Form& form, const QWidget* field) {
    for (auto* label : form.findChildren<QLabel*>())
        if (label->buddy() == field) return label;
    return nullptr;
}

TEST_F(Screens, EveryLabelledFieldIsReachedByALetter) {
    ForEachScreen([](Form& form) {
        ForEachPage(form, [&] {
            for (QWidget* control : ControlsOf(form)) {
                if (!IsField(control)) continue;
                const QLabel* label = LabelFor(form, control);
                if (!label) continue;
                EXPECT_FALSE(MnemonicOf(label->text()).isNull())
                    << "'" << label->text().toStdString() << "' of " << Told(control)
                    << " has no letter";
            }
        });
    });
}

/// The letters of the captions that are seen.
struct Letters {
    std::multimap<QChar, QLabel*> labels;
    std::multimap<QChar, QAbstractButton*> buttons;
};

Letters LettersOf(const Form& form) {
    Letters letters;
    for (auto* label : form.findChildren<QLabel*>())
        if (label->isVisible() && label->buddy())
            if (const QChar letter = MnemonicOf(label->text()); !letter.isNull())
                letters.labels.emplace(letter, label);
    for (auto* button : form.findChildren<QAbstractButton*>())
        if (button->isVisible())
            if (const QChar letter = MnemonicOf(button->text()); !letter.isNull())
                letters.buttons.emplace(letter, button);
    return letters;
}

/// A letter of the caption that nothing else on the page uses.
QChar FreeLetter(const QString& caption, const Letters& letters, const QString& menus) {
    for (const QChar mark : caption.toLower())
        if (mark.unicode() < 128 && mark.isLetterOrNumber() && !menus.contains(mark) &&
            !letters.labels.contains(mark) && !letters.buttons.contains(mark))
            return mark;
    return {};
}

TEST_F(Screens, ALetterLeadsToOneControl) {
    ForEachScreen([](Form& form) {
        if (form.FormPlace() == Form::Place::Main) return;
        const QString menus =
            form.FormPlace() == Form::Place::Child ? MenuBarLetters(Form::Workspace()) : QString();
        ForEachPage(form, [&] {
            const Letters letters = LettersOf(form);
            for (const auto& [letter, button] : letters.buttons) {
                EXPECT_FALSE(menus.contains(letter)) << Told(button) << " takes a menu's letter";
                EXPECT_EQ(letters.buttons.count(letter) + letters.labels.count(letter), 1U)
                    << Told(button) << " shares " << QString(letter).toStdString();
            }
            for (const auto& [letter, label] : letters.labels) {
                EXPECT_FALSE(menus.contains(letter)) << Told(label) << " takes a menu's letter";
                if (letters.labels.count(letter) == 1) continue;
                // There are more fields than letters: Alt leads from one to the next then.
                EXPECT_TRUE(FreeLetter(label->text(), letters, menus).isNull())
                    << "'" << label->text().toStdString() << "' shares its letter though "
                    << QString(FreeLetter(label->text(), letters, menus)).toStdString()
                    << " is free";
            }
        });
    });
}

TEST_F(Screens, AShortcutStandsForOneCommand) {
    std::map<QString, QString> keys;
    auto* window = Form::Find("frmMDI")->findChild<QMainWindow*>();
    ASSERT_NE(window, nullptr);
    const auto enter = [&](const QKeySequence& key, const QString& what) {
        if (key.isEmpty()) return;
        const auto [other, added] = keys.emplace(key.toString(), what);
        EXPECT_TRUE(added) << key.toString().toStdString() << " stands for " << what.toStdString()
                           << " and " << other->second.toStdString();
    };
    for (const auto* action : window->findChildren<QAction*>(Qt::FindDirectChildrenOnly))
        for (const QKeySequence& key : action->shortcuts())
            enter(key, action->objectName());
    for (const auto* shortcut : window->findChildren<QShortcut*>())
        enter(shortcut->key(), shortcut->objectName());
    EXPECT_GT(keys.size(), 10U);
}

TEST_F(Screens, ALetterOfAMenuStandsForOneCommand) {
    const auto* bar = Form::Find("frmMDI")->findChild<QMenuBar*>();
    QList<QWidget*> menus{Form::Find("frmMDI")->findChild<QMenuBar*>()};
    for (auto* menu : bar->findChildren<QMenu*>())
        menus << menu;
    for (const QWidget* menu : menus) {
        std::map<QChar, QString> letters;
        for (const QAction* action : menu->actions()) {
            const QChar letter = MnemonicOf(action->text());
            if (action->isSeparator() || !action->isVisible()) continue;
            EXPECT_FALSE(letter.isNull()) << action->text().toStdString();
            const auto [other, added] = letters.emplace(letter, action->text());
            EXPECT_TRUE(added) << action->text().toStdString() << " and "
                               << other->second.toStdString();
        }
    }
}

TEST(Mnemonics, AFullScreenSharesLettersAmongLabelsOnly) {
    QWidget screen;
    const auto label = [&](const char* text) {
        auto* made = new QLabel(text, &screen);
        made->setBuddy(new QLineEdit(&screen));
        return made;
    };
    QLabel* first = label("Ab");
    QLabel* second = label("&Ba");
    QLabel* third = label("ab");
    auto* button = new QPushButton("ca", &screen);
    AssignMnemonics(&screen, "F");
    EXPECT_EQ(second->text(), "&Ba");
    EXPECT_EQ(button->text(), "&ca");
    EXPECT_EQ(first->text(), "&Ab");
    EXPECT_EQ(third->text(), "&ab");
}

TEST(Mnemonics, ALetterGivesWayToOneThatHasNoOther) {
    QWidget screen;
    auto* wide = new QPushButton("ab", &screen);
    auto* narrow = new QPushButton("a", &screen);
    auto* menus = new QPushButton("&file & more", &screen);
    AssignMnemonics(&screen, "F");
    EXPECT_EQ(wide->text(), "a&b");
    EXPECT_EQ(narrow->text(), "&a");
    EXPECT_EQ(menus->text(), "file && &more") << "the menu bar has the f, the blank keeps its &";
    EXPECT_EQ(OwnCaption(menus), "&file & more");
}

}  // namespace
}  // namespace tendo
