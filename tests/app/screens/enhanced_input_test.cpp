#include "platform/qt/enhanced_input.h"

#include <QComboBox>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QScrollArea>
#include <QScrollBar>
#include <QSpinBox>
#include <QWheelEvent>

#include "fields_window.h"
#include "platform/qt/apply_theme.h"
#include "platform/text/runtime_error.h"

namespace tendo {
namespace {

void Press(QWidget* control, int key, Qt::KeyboardModifiers modifiers = Qt::NoModifier,
           const QString& text = {}) {
    QKeyEvent event(QEvent::KeyPress, key, modifiers, text);
    QApplication::sendEvent(control, &event);
    QApplication::processEvents();
}

void Type(QWidget* control, const QString& text) {
    for (const QChar letter : text)
        Press(control, letter.toUpper().unicode(), Qt::NoModifier, letter);
}

/// A move of the mouse, or the left button pressed or released, in the middle of a control.
void Mouse(QWidget* control, QEvent::Type type) {
    const QPointF place = control->rect().center();
    const auto button = type == QEvent::MouseMove ? Qt::NoButton : Qt::LeftButton;
    QMouseEvent event(type, place, control->mapToGlobal(place), button,
                      type == QEvent::MouseButtonPress ? Qt::LeftButton : Qt::NoButton,
                      Qt::NoModifier);
    QApplication::sendEvent(control, &event);
}

void Turn(QWidget* control) {
    QWheelEvent event({5, 5}, control->mapToGlobal(QPointF(5, 5)), {}, {0, -120}, Qt::NoButton,
                      Qt::NoModifier, Qt::NoScrollPhase, false);
    QApplication::sendEvent(control, &event);
}

/// A window of fields: an array of three, a combo box, a memo.
class EnhancedInputTest : public FieldsWindow {
  protected:
    void SetUp() override {
        FieldsWindow::SetUp();
        for (const char* name : {"txtItemQty(0)", "txtItemQty(1)", "txtItemQty(2)"})
            array.push_back(Add(new QLineEdit, name));
        above = Add(new QLineEdit, "txtAbove");
        below = Add(new QLineEdit, "txtBelow");
        ShowWindow();
    }
    void Enter(QWidget* control) {
        control->setFocus();
        QApplication::processEvents();
    }

    std::vector<QLineEdit*> array;
    QLineEdit* above = nullptr;
    QLineEdit* below = nullptr;
};

TEST_F(EnhancedInputTest, EntrySelectsTheTextAndLeavingDeselectsIt) {
    EnhancedInput input(above);
    int got = 0;
    int lost = 0;
    QObject::connect(&input, &EnhancedInput::GotFocus, [&] { ++got; });
    QObject::connect(&input, &EnhancedInput::LostFocus, [&] { ++lost; });
    above->setText("Miller");
    Enter(below);
    Enter(above);
    EXPECT_EQ(above->selectedText(), "Miller");
    EXPECT_EQ(got, 1);
    Enter(below);
    EXPECT_EQ(above->selectedText(), "");
    EXPECT_EQ(lost, 1);
}

TEST_F(EnhancedInputTest, ShiftWithAnArrowSelectsAndTheFocusStays) {
    EnhancedInput input(above);
    input.LeftControl = below;
    input.RightControl = below;
    input.DownControl = below;
    above->setText("Miller");
    Enter(above);
    above->setCursorPosition(6);
    Press(above, Qt::Key_Left, Qt::ShiftModifier);
    EXPECT_EQ(above->selectedText(), "r");
    above->setCursorPosition(6);
    Press(above, Qt::Key_Right, Qt::ShiftModifier);
    Press(above, Qt::Key_Down, Qt::ControlModifier);
    EXPECT_TRUE(above->hasFocus());
}

TEST_F(EnhancedInputTest, LeftMovesTheCaretInTheMiddleAndTheFocusAtTheStart) {
    EnhancedInput input(above);
    input.LeftControl = below;
    above->setText("Miller");
    Enter(above);
    above->setCursorPosition(1);
    Press(above, Qt::Key_Left);
    EXPECT_TRUE(above->hasFocus());
    EXPECT_EQ(above->cursorPosition(), 0);
    Press(above, Qt::Key_Left);
    EXPECT_TRUE(below->hasFocus());
}

TEST_F(EnhancedInputTest, AnArrayMovesByIndexAndThenOutToTheNamedControl) {
    std::vector<EnhancedInput*> inputs;
    for (QLineEdit* element : array) {
        inputs.push_back(new EnhancedInput(element));
        inputs.back()->UpControl = above;
        inputs.back()->DownControl = below;
    }
    Enter(array[0]);
    Press(array[0], Qt::Key_Down);
    EXPECT_TRUE(array[1]->hasFocus());
    Press(array[1], Qt::Key_Down);
    Press(array[2], Qt::Key_Down);
    EXPECT_TRUE(below->hasFocus());
    Enter(array[0]);
    Press(array[0], Qt::Key_Up);
    EXPECT_TRUE(above->hasFocus());
}

TEST_F(EnhancedInputTest, AnElementThatCannotBeEnteredIsPassedOver) {
    EnhancedInput input(array[0]);
    array[1]->setEnabled(false);
    Enter(array[0]);
    Press(array[0], Qt::Key_Down);
    EXPECT_TRUE(array[2]->hasFocus());
}

TEST_F(EnhancedInputTest, ReturnGoesThroughTheArrayAndFromItsLastElementToItsOwnControl) {
    for (QLineEdit* element : array) {
        auto* input = new EnhancedInput(element);
        input->GoToNextIndexDownOnReturn = true;
        input->ReturnControl = above;
        input->ReturnControlOnMaxIndex = below;
    }
    Enter(array[1]);
    Press(array[1], Qt::Key_Return);
    EXPECT_TRUE(array[2]->hasFocus());
    Press(array[2], Qt::Key_Return);
    EXPECT_TRUE(below->hasFocus());
}

TEST_F(EnhancedInputTest, AHorizontalArrayMovesByLeftAndRight) {
    for (QLineEdit* element : array)
        (new EnhancedInput(element))->HorizontalControlArray = true;
    Enter(array[1]);
    Press(array[1], Qt::Key_Right);
    EXPECT_TRUE(array[2]->hasFocus());
    Press(array[2], Qt::Key_Left);
    EXPECT_TRUE(array[1]->hasFocus());
}

TEST_F(EnhancedInputTest, TypedKeysPassTheValidatorAndCanBeUndoneAndRedone) {
    auto validator = std::make_shared<InputValidator>();
    validator->CaseRestriction = CaseRestriction::Upper;
    validator->MaxTextLength = 3;
    EnhancedInput input(above, validator);
    Enter(above);
    Type(above, "abcd");
    EXPECT_EQ(above->text(), "ABC");
    above->undo();
    EXPECT_EQ(above->text(), "");
    above->redo();
    EXPECT_EQ(above->text(), "ABC");
}

TEST_F(EnhancedInputTest, TheKeyReplacesTheSelectedText) {
    auto validator = std::make_shared<InputValidator>();
    validator->NumberField = true;
    validator->MaxNumberValue = 100;
    EnhancedInput input(above, validator);
    above->setText("100");
    Enter(above);
    Type(above, "42");
    EXPECT_EQ(above->text(), "42");
}

TEST_F(EnhancedInputTest, RangeAndUnitsAreShownOnEntryAndClearedOnExit) {
    std::string range;
    std::string units;
    InputApplication application{[&](const std::string& text) { range = text; },
                                 [&](const std::string& text) { units = text; }};
    auto validator = std::make_shared<InputValidator>();
    validator->NumberField = true;
    validator->MaxNumberValue = 100;
    validator->Units = "dollars";
    validator->OwnerApplication = &application;
    EnhancedInput input(above, validator);
    Enter(below);
    Enter(above);
    EXPECT_EQ(range, "0 to 100");
    EXPECT_EQ(units, "dollars");
    Enter(below);
    EXPECT_EQ(range + units, "");
}

TEST_F(EnhancedInputTest, AltDownOpensTheHelpListAndAChoiceStandsInTheField) {
    auto* list = new QListWidget(window.get());
    list->hide();
    list->addItems({"Furnace", "Boiler"});
    EnhancedInput input(above);
    input.ComboFormListBox = list;
    above->setText("boiler");
    Enter(above);
    Press(above, Qt::Key_Down, Qt::AltModifier);
    ASSERT_TRUE(list->isVisible());
    EXPECT_EQ(list->currentRow(), 1);
    Q_EMIT list->itemActivated(list->item(0));
    EXPECT_FALSE(list->isVisible());
    EXPECT_EQ(above->text(), "Furnace");
    above->undo();
    EXPECT_EQ(above->text(), "boiler");
}

TEST_F(EnhancedInputTest, AListThatItsOwnerFillsIsAskedForFirst) {
    auto* list = new QListWidget(window.get());
    list->hide();
    EnhancedInput input(above);
    input.ComboFormListBox = list;
    input.HelpFormUsesASpecialFillUpList = true;
    QObject::connect(&input, &EnhancedInput::HelpListWanted, [&] { list->addItem("Boiler"); });
    EXPECT_TRUE(input.OpenHelpList());
    EXPECT_EQ(list->count(), 1);
    list->hide();
    EXPECT_FALSE(EnhancedInput(below).OpenHelpList());
}

TEST_F(EnhancedInputTest, ATextThingIsATextBoxOrAnEditableComboBox) {
    QComboBox fixed;
    QComboBox open;
    open.setEditable(true);
    QPushButton button;
    EXPECT_TRUE(EnhancedInput(above).IsATextThing());
    EXPECT_FALSE(EnhancedInput(&fixed).IsATextThing());
    EXPECT_TRUE(EnhancedInput(&open).IsATextThing());
    EXPECT_FALSE(EnhancedInput(&button).IsATextThing());
}

TEST_F(EnhancedInputTest, TheFontShrinksForABigNumberAndComesBack) {
    EnhancedInput input(above);
    above->setFixedWidth(80);
    QApplication::processEvents();
    input.SetAdjustFontForBigNumbers(true);
    const int size = above->font().pointSize();
    above->setText("$123,456,789,012.00");
    EXPECT_LT(above->font().pointSize(), size);
    above->setText("$1");
    EXPECT_EQ(above->font().pointSize(), size);
}

TEST_F(EnhancedInputTest, TheFontOfAnotherKindOfControlIsLeftAlone) {
    QPlainTextEdit memo;
    QLabel caption;
    EnhancedInput(&caption).SetAdjustFontForBigNumbers(true);
    EnhancedInput input(&memo);
    try {
        input.SetAdjustFontForBigNumbers(true);
        FAIL() << "a memo was taken";
    } catch (const RuntimeError& error) {
        EXPECT_EQ(error.Description(), "Wrong kind of control.");
    }
}

TEST_F(EnhancedInputTest, TheHelpButtonsEventsArePassedOn) {
    QPushButton button;
    EnhancedInput input(above);
    input.SetHelpButtonControl(&button);
    int clicks = 0;
    QObject::connect(&input, &EnhancedInput::HelpButtonClick, [&] { ++clicks; });
    button.click();
    EXPECT_EQ(clicks, 1);
    input.SetHelpButtonDisabled(true);
    button.click();
    EXPECT_EQ(clicks, 1);
}

TEST_F(EnhancedInputTest, ChangesAndKeysArePassedOn) {
    EnhancedInput input(above);
    int changes = 0;
    QString pressed;
    int down = 0;
    QObject::connect(&input, &EnhancedInput::Change, [&] { ++changes; });
    QObject::connect(&input, &EnhancedInput::KeyPress, [&](const QString& key) { pressed += key; });
    QObject::connect(&input, &EnhancedInput::KeyDown, [&](int key) { down = key; });
    Enter(above);
    Type(above, "ab");
    EXPECT_EQ(changes, 2);
    EXPECT_EQ(pressed, "ab");
    EXPECT_EQ(down, Qt::Key_B);
    Press(above, Qt::Key_Home);
    EXPECT_EQ(down, Qt::Key_Home);
    EXPECT_EQ(pressed, "ab");  // no character
    above->setText("from code");
    EXPECT_EQ(changes, 3);
}

TEST_F(EnhancedInputTest, TheHelpButtonShowsItsThreePictures) {
    const auto picture = [](const QColor& color) {
        QPixmap pixmap(8, 8);
        pixmap.fill(color);
        return QIcon(pixmap);
    };
    auto* button = Add(new QPushButton, "button");
    EnhancedInput input(above);
    input.HelpButtonUpImageControl = picture(Qt::red);
    input.HelpButtonDownImageControl = picture(Qt::green);
    input.HelpButtonDisabledImageControl = picture(Qt::blue);
    const auto shown = [button] {
        return QColor(button->icon().pixmap(8, 8).toImage().pixel(4, 4));
    };
    input.SetHelpButtonControl(button);
    EXPECT_EQ(shown(), Qt::red);
    Mouse(button, QEvent::MouseButtonPress);
    EXPECT_EQ(shown(), Qt::green);
    Mouse(button, QEvent::MouseButtonRelease);
    EXPECT_EQ(shown(), Qt::red);
    input.SetHelpButtonDisabled(true);
    EXPECT_EQ(shown(), Qt::blue);
    EXPECT_TRUE(input.HelpButtonDisabled());
    input.SetHelpButtonDisabled(false);
    EXPECT_EQ(shown(), Qt::red);
}

TEST_F(EnhancedInputTest, TheMouseOnTheHelpButtonsOfFieldAndGroupIsPassedOn) {
    auto* own = Add(new QPushButton, "own");
    auto* group = Add(new QPushButton, "group");
    EnhancedInput input(above);
    input.SetHelpButtonControl(own);
    input.SetGroupHelpButtonControl(group);
    EXPECT_EQ(input.HelpButtonControl(), own);
    EXPECT_EQ(input.GroupHelpButtonControl(), group);
    QString told;
    const std::pair<void (EnhancedInput::*)(), const char*> events[] = {
        {&EnhancedInput::HelpButtonMouseDown, "down "},
        {&EnhancedInput::HelpButtonMouseMove, "move "},
        {&EnhancedInput::HelpButtonMouseUp, "up "},
        {&EnhancedInput::HelpButtonClick, "click "},
        {&EnhancedInput::GroupHelpButtonMouseDown, "group down "},
        {&EnhancedInput::GroupHelpButtonMouseMove, "group move "},
        {&EnhancedInput::GroupHelpButtonMouseUp, "group up "},
        {&EnhancedInput::GroupHelpButtonClick, "group click "}};
    for (const auto& [event, word] : events)
        QObject::connect(&input, event, [&told, word = word] { told += word; });
    for (QPushButton* button : {own, group}) {
        told.clear();
        Mouse(button, QEvent::MouseMove);
        Mouse(button, QEvent::MouseButtonPress);
        Mouse(button, QEvent::MouseButtonRelease);
        EXPECT_EQ(told, button == own ? "move down up click "
                                      : "group move group down group up group click ");
    }
}

TEST_F(EnhancedInputTest, TheListsFormOfTheFieldComesBeforeThatOfItsGroup) {
    auto* own = new QWidget(window.get());
    auto* group = new QWidget(window.get());
    own->hide();
    group->hide();
    EnhancedInput input(above);
    input.GroupComboHelpForm = group;
    EXPECT_TRUE(input.OpenHelpList());
    EXPECT_TRUE(group->isVisible());
    group->hide();
    input.ComboHelpForm = own;
    Enter(above);
    Press(above, Qt::Key_Down, Qt::AltModifier);
    EXPECT_TRUE(own->isVisible());
    EXPECT_FALSE(group->isVisible());
    own->hide();
}

TEST_F(EnhancedInputTest, OnlyValuesOfTheListMayBeTypedAndTakeItsSpelling) {
    auto* list = new QListWidget(window.get());
    list->hide();
    list->addItems({"Natural Gas", "Natural Gas or Propane", "5 Years"});
    auto validator = std::make_shared<InputValidator>();
    validator->AllowOnlyComboFormListItems = true;
    EnhancedInput input(above, validator);
    input.ComboFormListBox = list;
    Enter(above);
    Type(above, "natxural gas o");
    EXPECT_EQ(above->text(), "Natural Gas o");
    // The numeric rule is passed over too: what counts is the list.
    validator->NumberField = true;
    validator->MaxNumberValue = 1;
    above->selectAll();
    Type(above, "5 y3");
    EXPECT_EQ(above->text(), "5 Y");
}

TEST_F(EnhancedInputTest, AFieldIsScrolledIntoViewOnEntry) {
    auto* area = Add(new QScrollArea, "area");
    auto* content = new QWidget;
    content->setFixedSize(200, 2000);
    auto* far = new QLineEdit(content);
    far->move(0, 1900);
    area->setWidget(content);
    area->setFixedHeight(100);
    area->show();
    EnhancedInput input(far);
    input.ScrollControl = area;
    QApplication::processEvents();
    EXPECT_EQ(area->verticalScrollBar()->value(), 0);
    Enter(far);
    EXPECT_GT(area->verticalScrollBar()->value(), 1700);
}

TEST_F(EnhancedInputTest, ADisabledOrHiddenTargetIsNotEntered) {
    EnhancedInput input(above);
    EXPECT_EQ(input.OwnerControl(), above);
    input.DownControl = below;
    input.ReturnControl = below;
    below->setEnabled(false);
    Enter(above);
    Press(above, Qt::Key_Down);
    Press(above, Qt::Key_Return);
    EXPECT_TRUE(above->hasFocus());
    below->setEnabled(true);
    Press(above, Qt::Key_Return);
    EXPECT_TRUE(below->hasFocus());
}

TEST_F(EnhancedInputTest, EachDirectionLeadsToItsOwnControl) {
    EnhancedInput input(above);
    input.UpControl = array[0];
    input.DownControl = array[1];
    input.LeftControl = array[2];
    input.RightControl = below;
    const std::pair<int, QWidget*> ways[] = {{Qt::Key_Up, array[0]},
                                             {Qt::Key_Down, array[1]},
                                             {Qt::Key_Left, array[2]},
                                             {Qt::Key_Right, below}};
    above->setText("Miller");
    for (const auto& [key, target] : ways) {
        Enter(above);  // the whole text is selected, so it stands at both of its ends
        Press(above, key);
        EXPECT_TRUE(target->hasFocus()) << key;
    }
    for (const auto modifier : {Qt::ShiftModifier, Qt::ControlModifier, Qt::AltModifier}) {
        Enter(above);
        Press(above, Qt::Key_Up, modifier);
        EXPECT_TRUE(above->hasFocus()) << modifier;
    }
}

TEST_F(EnhancedInputTest, TheWheelLeavesAFieldAloneThatIsNotInFocus) {
    GuardFieldsFromWheel();
    auto* combo = Add(new QComboBox, "combo");
    combo->addItems({"one", "two", "three"});
    auto* spin = Add(new QSpinBox, "spin");
    spin->setValue(7);
    combo->show();
    spin->show();
    Enter(above);
    Turn(combo);
    Turn(spin);
    EXPECT_EQ(combo->currentIndex(), 0);
    EXPECT_EQ(spin->value(), 7);
    Enter(combo);
    Turn(combo);
    EXPECT_EQ(combo->currentIndex(), 1);
}

}  // namespace
}  // namespace tendo
