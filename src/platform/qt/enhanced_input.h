#pragma once

#include <QAbstractButton>
#include <QEvent>
#include <QIcon>
#include <QListWidget>
#include <QPointer>
#include <QScrollArea>
#include <memory>

#include "platform/text/input_rules.h"

class QKeyEvent;
class QLineEdit;
class QPlainTextEdit;

namespace tendo {

/// What every entry field does alike: the focus moves by the arrow keys and Return, keys pass a
/// validator, the text is selected on entry, range and units are shown, and the field is tied to a
/// help button and a help list. Wraps a line of text, a memo, a combo box or any other control, and
/// lives as long as that. Elements of a control array are told by their names ("txtItemQty(3)").
class EnhancedInput : public QObject {
    Q_OBJECT
  public:
    explicit EnhancedInput(QWidget* owner,
                           std::shared_ptr<tendo::InputValidator> validator = nullptr);

    QWidget* OwnerControl() const { return owner_; }
    /// A text box or an editable combo box.
    bool IsATextThing() const;

    /// Empty: every key passes.
    std::shared_ptr<tendo::InputValidator> InputValidator;
    QPointer<QWidget> UpControl, DownControl, LeftControl, RightControl;
    QPointer<QWidget> ReturnControl;
    QPointer<QWidget> ReturnControlOnMaxIndex;  // from the last element of a control array
    bool GoToNextIndexDownOnReturn = false;
    bool HorizontalControlArray = false;
    QPointer<QScrollArea> ScrollControl;  // brings the field into view on entry
    /// The list's form comes up at Alt+Down; the list alone when there is no form around it.
    QPointer<QWidget> ComboHelpForm, GroupComboHelpForm;
    QPointer<QListWidget> ComboFormListBox;
    bool HelpFormUsesASpecialFillUpList = false;
    int HelpTextIDNumber = 0;

    QAbstractButton* HelpButtonControl() const { return help_; }
    QAbstractButton* GroupHelpButtonControl() const { return groupHelp_; }
    void SetHelpButtonControl(QAbstractButton* button);
    void SetGroupHelpButtonControl(QAbstractButton* button);
    /// The pictures of the help button; without them it draws itself.
    QIcon HelpButtonUpImageControl, HelpButtonDownImageControl, HelpButtonDisabledImageControl;
    bool HelpButtonDisabled() const { return helpDisabled_; }
    void SetHelpButtonDisabled(bool disabled);

    bool AdjustFontForBigNumbers() const { return adjustsFont_; }
    /// Throws 5, "Wrong kind of control.", for another owner than a line of text, a caption or a
    /// combo box.
    void SetAdjustFontForBigNumbers(bool adjusts);

    /// What of the text would enter the field at its caret, in place of its selection, if it were
    /// typed there.
    QString Accepted(const QString& text) const;

    /// Opens the help list below the field; false when the field has none.
    bool OpenHelpList();

  Q_SIGNALS:
    void Change();
    void KeyPress(const QString& key);
    void KeyDown(int key, Qt::KeyboardModifiers modifiers);
    void GotFocus();
    void LostFocus();
    /// Before the help list comes up that its owner fills.
    void HelpListWanted();
    void HelpButtonClick();
    void HelpButtonMouseDown();
    void HelpButtonMouseMove();
    void HelpButtonMouseUp();
    void GroupHelpButtonClick();
    void GroupHelpButtonMouseDown();
    void GroupHelpButtonMouseMove();
    void GroupHelpButtonMouseUp();

  protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

  private:
    QLineEdit* Line() const;
    QPlainTextEdit* Memo() const;
    QString Text() const;
    CaretState Caret() const;
    EntryText Entry() const;
    std::optional<char32_t> Filter(const EntryText& entry, char32_t key) const;
    std::vector<std::string> ListItems() const;

    void WatchText();
    void FieldEntered(Qt::FocusReason reason);
    void FieldLeft(Qt::FocusReason reason);
    void ShowRangeAndUnits(bool shown) const;
    bool KeyWasHandled(const QKeyEvent& event);
    bool Move(MoveKey key);
    bool LeavesField(MoveKey key) const;
    QWidget* Target(MoveKey key) const;
    QWidget* NextElement(int step) const;
    bool IsLastElement() const;
    bool FilterTyped(const QString& typed);
    void SelectInList() const;
    void TakeFromList(QListWidgetItem* item);
    void WatchButton(QAbstractButton* button, void (EnhancedInput::*click)());
    void ButtonEvent(const QObject* button, QEvent::Type type);
    void ShowButtonPicture(bool down) const;
    int RoomForText() const;
    void FitFont() const;

    QWidget* owner_;
    QPointer<QAbstractButton> help_, groupHelp_;
    QPointer<QListWidget> watchedList_;
    bool helpDisabled_ = false;
    bool adjustsFont_ = false;
    QFont designFont_;  // while the text fits
};

/// Ties fields into the order of the eye: Up and Down, and Return, lead from one to the next; Left
/// and Right do so from the ends of a text.
void ChainFields(const std::vector<EnhancedInput*>& fields);

/// Keeps the wheel from changing combo boxes and spin boxes that aren't in focus; what scrolls
/// around them scrolls instead.
void GuardFieldsFromWheel();

}  // namespace tendo
