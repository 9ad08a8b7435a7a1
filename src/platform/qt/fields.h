#pragma once

#include <QLabel>
#include <QLineEdit>
#include <QString>
#include <QTimer>
#include <QToolButton>
#include <functional>

class QGridLayout;

namespace tendo {

/// What may be typed into an entry line and how it stands.
enum class EntryKind {
    Text,     // any text, left
    Money,    // digits and one point, right
    Percent,  // digits, one point, one minus sign, right
    Count,    // digits, right
    Figure,   // computed, read only, right
    Label     // computed text, read only, left
};

/// A description of one field: all fields of a screen stand in tables of these.
struct FieldSpec {
    const char* name;   // control name
    const char* label;  // with its mnemonic; also the accessible name when none is given
    EntryKind kind = EntryKind::Text;
    int width = 0;  // characters; 0: as wide as there is room
    int maxLength = 32767;
    const char* range = "";  // for the status bar: "0.00 to 9,999,999.99"
    const char* unit = "";   // "dollars", "percent"
    const char* accessibleName = "";
};

/// One entry line. Selects its text on entry, commits when the focus leaves it or a command asks
/// for it, filters keys, marks itself as fresh or negative, and tells the status bar what it is.
class TextField : public QLineEdit {
    Q_OBJECT
  public:
    explicit TextField(QWidget* parent = nullptr);
    TextField(const FieldSpec& spec, QWidget* parent);

    /// True when the key may enter; `rest` is the text without the selection. Empty: every key may.
    std::function<bool(QChar key, const QString& rest)> KeyFilter;
    /// What of the text the key filter would let in, if it were typed in place of the selection.
    QString Accepted(const QString& text) const;
    /// A focus that lands here passes on to this field.
    void PassFocusTo(QWidget* next) { setFocusProxyTarget(next); }

    /// Emits Committed when the text changed since the entry or `CommitAlways` is set.
    void Commit();
    /// The commit runs on every leaving, changed or not.
    bool CommitAlways = true;

    /// Text set by the program: no key filter; keeps the caret when nothing changed.
    void ShowText(const QString& text);
    /// Marks the figure as changed by the last edit, for two seconds; the timer that ends it is
    /// called NAME_Fresh.
    void MarkFresh();

    EntryKind Kind() const { return kind_; }
    QString RangeText, UnitText;

    /// Called when a field is entered (status bar) and with nullptr when it is left.
    static void SetEntryObserver(std::function<void(TextField*)> observer);

  Q_SIGNALS:
    void Committed();
    /// F1 was pressed, or the field's help mark.
    void HelpWanted();
    /// Shift+F1 was pressed, or a computed figure double-clicked: where does it come from?
    void WhyWanted();

  protected:
    void keyPressEvent(QKeyEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;

  private:
    void Prepare();
    void ShowSigns();
    QString Rest() const;  // the text without the selection
    void Ask(QKeyEvent* event);
    void setFocusProxyTarget(QWidget* next) { passTo_ = next; }

    EntryKind kind_ = EntryKind::Text;
    QWidget* passTo_ = nullptr;
    QTimer freshTimer_;
    bool committing_ = false;
};

/// The small ring with a question mark beside the label it explains.
QToolButton* MakeHelpButton(const QString& name, const QString& accessibleName, QWidget* parent);

/// A section heading.
QLabel* MakeHeading(const QString& text, QWidget* parent);
/// A label in the secondary colour, with its mnemonic going to `buddy`.
QLabel* MakeLabel(const QString& text, QWidget* buddy, QWidget* parent);
/// A one-pixel line.
QFrame* MakeRule(QWidget* parent);

/// Label and field as the next row of a two-column grid.
TextField* AddFieldRow(QGridLayout* grid, int row, const FieldSpec& spec, QWidget* parent,
                       int column = 0);

}  // namespace tendo
