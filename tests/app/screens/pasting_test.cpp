#include <QClipboard>
#include <QComboBox>
#include <QDropEvent>
#include <QInputMethodEvent>
#include <QMenu>
#include <QMimeData>
#include <QPlainTextEdit>

#include "fields_window.h"
#include "platform/qt/apply_theme.h"
#include "platform/qt/enhanced_input.h"
#include "platform/qt/fields.h"

namespace tendo {
namespace {

void Press(QWidget* control, int key, Qt::KeyboardModifiers modifiers, const QString& text = {}) {
    QKeyEvent event(QEvent::KeyPress, key, modifiers, text);
    QApplication::sendEvent(control, &event);
}

QAction* ActionOf(const QMenu* menu, const char* text) {
    for (QAction* action : menu->actions())
        if (action->text().remove('&').startsWith(text)) return action;
    throw std::runtime_error(std::string("the menu has no ") + text);
}

std::shared_ptr<InputValidator> Number(double least, double most, int places) {
    auto validator = std::make_shared<InputValidator>();
    validator->NumberField = true;
    validator->MinNumberValue = least;
    validator->MaxNumberValue = most;
    validator->NumberOfDecimalPlaces = places;
    return validator;
}

/// Fields in a window of the main window's kind; texts come by the clipboard.
class Pasting : public FieldsWindow {
  protected:
    void SetUp() override {
        FieldsWindow::SetUp();
        ApplyTheme(*qApp, false);
        line = Add(new QLineEdit);
        other = Add(new QLineEdit);
        ShowWindow();
    }
    void Paste(QWidget* field, const QString& text) {
        field->setFocus();
        QApplication::processEvents();
        QApplication::clipboard()->setText(text);
        Press(field, Qt::Key_V, Qt::ControlModifier);
    }

    QLineEdit* line = nullptr;
    QLineEdit* other = nullptr;
};

TEST_F(Pasting, ANumberIsTakenAsItWouldBeTyped) {
    new EnhancedInput(line, Number(0, 9999, 2));
    Paste(line, "$1,234.567 or so");
    EXPECT_EQ(line->text(), "1234.56") << "signs, letters and a third digit of cents are dropped";
}

TEST_F(Pasting, TheGreatestValueHoldsForPastedTextToo) {
    new EnhancedInput(line, Number(0, 100, 0));
    Paste(line, "1001");
    EXPECT_EQ(line->text(), "100");
}

TEST_F(Pasting, AMinusEntersAtTheStartOnly) {
    new EnhancedInput(line, Number(-50, 50, 0));
    Paste(line, "-1-2");
    EXPECT_EQ(line->text(), "-12");
    line->setCursorPosition(3);
    line->deselect();
    Paste(other, "");
    line->setFocus();
    QApplication::processEvents();
    line->setCursorPosition(3);
    QApplication::clipboard()->setText("-5");
    Press(line, Qt::Key_V, Qt::ControlModifier);
    EXPECT_EQ(line->text(), "-12") << "-125 would be below the least value";
}

TEST_F(Pasting, WhatIsSelectedGivesWay) {
    new EnhancedInput(line, Number(0, 100, 0));
    line->setText("77");
    line->setFocus();
    line->selectAll();
    Paste(line, "42");
    EXPECT_EQ(line->text(), "42");
}

TEST_F(Pasting, ATextThatFitsNowhereLeavesTheFieldAsItIs) {
    new EnhancedInput(line, Number(0, 100, 0));
    line->setText("77");
    Paste(line, "none");
    EXPECT_EQ(line->text(), "77");
}

TEST_F(Pasting, CaseCharactersAndLengthHold) {
    auto validator = std::make_shared<InputValidator>();
    validator->CaseRestriction = CaseRestriction::Upper;
    validator->AllowableCharacters = "ABCDEF";
    validator->MaxTextLength = 4;
    new EnhancedInput(line, validator);
    Paste(line, "a-bxcdef");
    EXPECT_EQ(line->text(), "ABCD");
}

TEST_F(Pasting, OnlyValuesOfTheListComeIn) {
    auto* combo = Add(new QComboBox);
    combo->setEditable(true);
    combo->addItems({"Furnace", "Boiler"});
    combo->show();
    combo->setEditText("");
    combo->setInsertPolicy(QComboBox::NoInsert);
    auto validator = std::make_shared<InputValidator>();
    validator->AllowOnlyComboFormListItems = true;
    new EnhancedInput(combo, validator);
    Paste(combo->lineEdit(), "boxes");
    EXPECT_EQ(combo->currentText(), "Bo") << "no value goes on with an x; e and s come too early";
}

TEST_F(Pasting, AMemoTakesNoMoreThanItsLength) {
    auto* memo = Add(new QPlainTextEdit);
    memo->show();
    auto validator = std::make_shared<InputValidator>();
    validator->MaxTextLength = 5;
    new EnhancedInput(memo, validator);
    Paste(memo, "ab\r\ncdef");
    EXPECT_EQ(memo->toPlainText(), "ab\ncd");
}

TEST_F(Pasting, AMoneyFieldWithoutAValidatorTakesDigitsAndOnePoint) {
    auto* money = Add(
        new TextField({.name = "txtMoney", .label = "", .kind = EntryKind::Money}, window.get()));
    money->show();
    Paste(money, "$1.2.3-");
    EXPECT_EQ(money->text(), "1.23");
}

TEST_F(Pasting, LineBreaksBecomeBlanksInALine) {
    Paste(line, "12 Maple Street\r\nBrindle Falls");
    EXPECT_EQ(line->text(), "12 Maple Street Brindle Falls");
}

TEST_F(Pasting, AComputedFigureTakesNothing) {
    line->setReadOnly(true);
    line->setText("$1.00");
    Paste(line, "5");
    EXPECT_EQ(line->text(), "$1.00");
}

TEST_F(Pasting, OneStepUndoesIt) {
    new EnhancedInput(line, Number(0, 9999, 0));
    line->setFocus();
    QApplication::processEvents();
    line->setText("");
    QApplication::clipboard()->setText("a1b2c3");
    Press(line, Qt::Key_V, Qt::ControlModifier);
    ASSERT_EQ(line->text(), "123");
    Press(line, Qt::Key_Z, Qt::ControlModifier);
    EXPECT_EQ(line->text(), "");
}

TEST_F(Pasting, TheFieldsMenuFiltersToo) {
    new EnhancedInput(line, Number(0, 9999, 0));
    line->setFocus();
    QApplication::processEvents();
    QApplication::clipboard()->setText("a1b2c3");
    QContextMenuEvent event(QContextMenuEvent::Mouse, QPoint(5, 5),
                            line->mapToGlobal(QPoint(5, 5)));
    QApplication::sendEvent(line, &event);
    auto* menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
    ASSERT_NE(menu, nullptr);
    ActionOf(menu, "Paste")->trigger();
    menu->close();
    EXPECT_EQ(line->text(), "123");
}

TEST_F(Pasting, ADroppedTextIsFilteredToo) {
    new EnhancedInput(line, Number(0, 9999, 0));
    QMimeData data;
    data.setText("a1b2c3");
    QDragEnterEvent enter({5, 5}, Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(line, &enter);
    QDropEvent event({5, 5}, Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(line, &event);
    EXPECT_EQ(line->text(), "123");
}

TEST_F(Pasting, AnInputMethodsTextIsFilteredToo) {
    new EnhancedInput(line, Number(0, 9999, 0));
    QInputMethodEvent event;
    event.setCommitString("a1");
    QApplication::sendEvent(line, &event);
    EXPECT_EQ(line->text(), "1");
    QInputMethodEvent digits;
    digits.setCommitString("23");
    QApplication::sendEvent(line, &digits);
    EXPECT_EQ(line->text(), "123");
}

TEST_F(Pasting, TheEditMenuPastesByTheRules) {
    StartProgram();
    ActiveBarClick("ToolNew");
    Form* form = Form::Find("frmGPD");
    ASSERT_NE(form, nullptr);
    auto* rate = qobject_cast<QLineEdit*>(form->Control("txtLaborRate"));
    rate->setFocus();
    QApplication::processEvents();
    QApplication::clipboard()->setText("about 37.505");
    EXPECT_TRUE(ActiveBarClick("ToolPaste"));
    EXPECT_EQ(rate->text().remove('$'), "37.50");
}

/// Undo and redo by each of their keys.
class UndoKeys : public Pasting {
  protected:
    void SetUp() override {
        Pasting::SetUp();
        line->setFocus();
        QApplication::processEvents();
        Press(line, Qt::Key_A, Qt::NoModifier, "a");
        Press(line, Qt::Key_B, Qt::NoModifier, "b");
        Press(line, Qt::Key_Z, Qt::ControlModifier);
    }
};

TEST_F(UndoKeys, CtrlZUndoes) {
    EXPECT_EQ(line->text(), "");
}

TEST_F(UndoKeys, CtrlYDoesItAgain) {
    Press(line, Qt::Key_Y, Qt::ControlModifier);
    EXPECT_EQ(line->text(), "ab");
}

TEST_F(UndoKeys, CtrlShiftZDoesItAgain) {
    Press(line, Qt::Key_Z, Qt::ControlModifier | Qt::ShiftModifier);
    EXPECT_EQ(line->text(), "ab");
}

TEST_F(UndoKeys, AMemoKnowsThemToo) {
    auto* memo = Add(new QPlainTextEdit);
    memo->show();
    memo->setFocus();
    QApplication::processEvents();
    Press(memo, Qt::Key_A, Qt::NoModifier, "a");
    Press(memo, Qt::Key_Z, Qt::ControlModifier);
    EXPECT_EQ(memo->toPlainText(), "");
    Press(memo, Qt::Key_Y, Qt::ControlModifier);
    EXPECT_EQ(memo->toPlainText(), "a");
    Press(memo, Qt::Key_Z, Qt::ControlModifier);
    Press(memo, Qt::Key_Z, Qt::ControlModifier | Qt::ShiftModifier);
    EXPECT_EQ(memo->toPlainText(), "a");
}

TEST_F(UndoKeys, TheFieldsMenuOffersBoth) {
    const auto choose = [this](const char* command) {
        const QPoint place(5, 5);
        QContextMenuEvent event(QContextMenuEvent::Mouse, place, line->mapToGlobal(place));
        QApplication::sendEvent(line, &event);
        auto* menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
        ASSERT_NE(menu, nullptr);
        ActionOf(menu, command)->trigger();
        menu->close();
    };
    choose("Redo");
    EXPECT_EQ(line->text(), "ab");
    choose("Undo");
    EXPECT_EQ(line->text(), "");
}

TEST_F(UndoKeys, TheUndoCommandActsOnTheFieldInFocus) {
    StartProgram();
    ActiveBarClick("ToolNew");
    auto* title = qobject_cast<QLineEdit*>(Form::Find("frmGPD")->Control("txtProjectTitle"));
    ASSERT_NE(title, nullptr);
    title->setFocus();
    QApplication::processEvents();
    Press(title, Qt::Key_X, Qt::NoModifier, "x");
    ASSERT_EQ(title->text(), "x");
    EXPECT_TRUE(ActiveBarClick("ToolUndo"));
    EXPECT_EQ(title->text(), "");
}

}  // namespace
}  // namespace tendo
