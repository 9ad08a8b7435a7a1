#include "platform/qt/mnemonics.h"

#include <QAction>
#include <QCheckBox>
#include <QLabel>
#include <QMainWindow>
#include <QMap>
#include <QMenuBar>
#include <QPushButton>
#include <QRadioButton>
#include <QStackedWidget>
#include <vector>

namespace tendo {
namespace {

constexpr const char* ownCaption = "ownCaption";
constexpr const char* markedCaption = "markedCaption";

QLabel* LabelOf(QWidget* control) {
    return qobject_cast<QLabel*>(control);
}

QString CaptionText(const QWidget* control) {
    if (const auto* label = qobject_cast<const QLabel*>(control)) return label->text();
    if (const auto* button = qobject_cast<const QAbstractButton*>(control)) return button->text();
    return {};
}

void WriteCaption(QWidget* control, const QString& text) {
    if (CaptionText(control) == text) return;
    if (QLabel* label = LabelOf(control))
        label->setText(text);
    else
        qobject_cast<QAbstractButton*>(control)->setText(text);
}

/// Return and Escape stand for these.
bool NeedsNoLetter(const QString& caption) {
    return caption == "OK" || caption == "Cancel";
}

bool TakesLetter(QWidget* control) {
    if (const QLabel* label = LabelOf(control))
        return label->buddy() && ((label->buddy()->focusPolicy() & Qt::TabFocus) ||
                                  !MnemonicOf(OwnCaption(label)).isNull());
    const bool captioned = qobject_cast<QPushButton*>(control) ||
                           qobject_cast<QCheckBox*>(control) ||
                           qobject_cast<QRadioButton*>(control);
    return captioned && !CaptionText(control).isEmpty() && !NeedsNoLetter(OwnCaption(control));
}

/// The page of a tab control that holds the control; the screen when none does.
const QWidget* ScopeOf(const QWidget* control, const QWidget* screen) {
    for (const QWidget* widget = control; widget && widget != screen;
         widget = widget->parentWidget())
        if (qobject_cast<const QStackedWidget*>(widget->parentWidget())) return widget;
    return screen;
}

/// Places of letters in the order in which they serve best: first those that begin a word.
std::vector<int> LetterPlaces(const QString& caption) {
    std::vector<int> first;
    std::vector<int> others;
    for (int i = 0; i < caption.size(); ++i) {
        const QChar letter = caption[i];
        if (!letter.isLetterOrNumber() || letter.unicode() > 127) continue;
        const bool begins = i == 0 || !caption[i - 1].isLetterOrNumber();
        (begins ? first : others).push_back(i);
    }
    first.insert(first.end(), others.begin(), others.end());
    return first;
}

/// The "&" at this place marks the letter behind it.
bool IsMark(const QString& caption, int place) {
    return caption[place] == '&' && place + 1 < caption.size() &&
           caption[place + 1].isLetterOrNumber();
}

bool IsPair(const QString& caption, int place) {
    return caption[place] == '&' && place + 1 < caption.size() && caption[place + 1] == '&';
}

struct Entry {
    QWidget* control;
    QString caption;  // without a mark
    QChar wished;     // the letter that its own caption marks
    bool button;
    QChar letter;  // the one it has
};

/// Shares letters out among the captions of one scope.
class Sharing {
  public:
    Sharing(std::vector<Entry>& entries, const QString& taken) : entries_(entries) {
        for (const QChar letter : taken)
            owners_[letter.toLower()] = forbidden;
    }

    void Run() {
        for (std::size_t i = 0; i < entries_.size(); ++i)
            if (!entries_[i].button) GrantOnly(i);
        for (const bool buttons : {true, false})
            for (std::size_t i = 0; i < entries_.size(); ++i)
                if (entries_[i].button == buttons) GrantWish(i);
        for (const bool buttons : {true, false})
            for (std::size_t i = 0; i < entries_.size(); ++i)
                if (entries_[i].button == buttons && entries_[i].letter.isNull()) {
                    if (!Find(i, false) && !Find(i, true) && !buttons) Share(i);
                }
    }

  private:
    static constexpr int forbidden = -1;
    static constexpr int nobody = -2;

    /// A label that has one letter to choose from takes it before a button does, which couldn't
    /// share it.
    void GrantOnly(std::size_t entry) {
        const QString& caption = entries_[entry].caption;
        QString letters;
        for (const int place : LetterPlaces(caption)) {
            const QChar letter = caption[place].toLower();
            if (owners_.value(letter, nobody) != forbidden && !letters.contains(letter))
                letters += letter;
        }
        if (letters.size() == 1 && !owners_.contains(letters[0])) Own(entry, letters[0]);
    }

    void GrantWish(std::size_t entry) {
        const QChar wish = entries_[entry].wished;
        if (wish.isNull() || owners_.contains(wish) || !entries_[entry].letter.isNull()) return;
        Own(entry, wish);
    }

    void Own(std::size_t entry, QChar letter) {
        entries_[entry].letter = letter;
        owners_[letter] = static_cast<int>(entry);
    }

    /// A free letter of the caption, or one whose owner can take another; `force`: even where that
    /// owner had it marked itself.
    bool Find(std::size_t entry, bool force) {
        QString tried;
        return Find(entry, force, tried);
    }

    bool Find(std::size_t entry, bool force, QString& tried) {
        const QString& caption = entries_[entry].caption;
        for (const int place : LetterPlaces(caption)) {
            const QChar letter = caption[place].toLower();
            if (!owners_.contains(letter)) {
                Own(entry, letter);
                return true;
            }
        }
        for (const int place : LetterPlaces(caption)) {
            const QChar letter = caption[place].toLower();
            const int owner = owners_[letter];
            if (owner == forbidden || tried.contains(letter)) continue;
            tried += letter;
            const auto other = static_cast<std::size_t>(owner);
            if ((entries_[other].wished == letter && !force) || !Find(other, force, tried))
                continue;
            Own(entry, letter);
            return true;
        }
        return false;
    }

    /// A label takes the letter of other labels that the fewest share.
    void Share(std::size_t entry) {
        QChar best;
        const QString& caption = entries_[entry].caption;
        for (const int place : LetterPlaces(caption)) {
            const QChar letter = caption[place].toLower();
            const int owner = owners_.value(letter, forbidden);
            if (owner == forbidden || entries_[static_cast<std::size_t>(owner)].button) continue;
            if (best.isNull() || shares_[letter] < shares_[best]) best = letter;
        }
        if (best.isNull()) return;
        entries_[entry].letter = best;
        ++shares_[best];
    }

    std::vector<Entry>& entries_;
    QMap<QChar, int> owners_;
    QMap<QChar, int> shares_;
};

QString Marked(const Entry& entry) {
    if (!entry.letter.isNull() && entry.wished == entry.letter) return OwnCaption(entry.control);
    int marked = -1;
    for (const int place : LetterPlaces(entry.caption))
        if (marked < 0 && entry.caption[place].toLower() == entry.letter) marked = place;
    QString caption = entry.caption;
    for (int i = static_cast<int>(caption.size()) - 1; i >= 0; --i)
        if (i == marked || caption[i] == '&') caption.insert(i, '&');
    return caption;
}

void Mark(const Entry& entry) {
    const QString own = OwnCaption(entry.control);
    const QString marked = Marked(entry);
    entry.control->setProperty(ownCaption, own);
    entry.control->setProperty(markedCaption, marked);
    WriteCaption(entry.control, marked);
}

}  // namespace

void AssignMnemonics(QWidget* screen, const QString& taken) {
    QMap<const QWidget*, std::vector<Entry>> scopes;
    for (auto* control : screen->findChildren<QWidget*>()) {
        if (!TakesLetter(control)) continue;
        const QString own = OwnCaption(control);
        scopes[ScopeOf(control, screen)].push_back(
            {control, PlainCaption(own), MnemonicOf(own), !LabelOf(control), {}});
    }
    QString used = taken;
    Sharing(scopes[screen], used).Run();
    for (const Entry& entry : scopes[screen])
        if (!entry.letter.isNull()) used += entry.letter;
    for (auto scope = scopes.begin(); scope != scopes.end(); ++scope) {
        if (scope.key() != screen) Sharing(scope.value(), used).Run();
        for (const Entry& entry : scope.value())
            Mark(entry);
    }
}

QString MenuBarLetters(const QWidget* control) {
    QString letters;
    const auto* window = control->window()->findChild<QMainWindow*>();
    if (!window) return letters;
    for (const QAction* menu : window->menuBar()->actions())
        letters += MnemonicOf(menu->text());
    return letters;
}

QChar MnemonicOf(const QString& caption) {
    for (int i = 0; i < caption.size(); ++i) {
        if (IsMark(caption, i)) return caption[i + 1].toLower();
        if (IsPair(caption, i)) ++i;
    }
    return {};
}

QString PlainCaption(const QString& caption) {
    QString plain;
    for (int i = 0; i < caption.size(); ++i) {
        if (IsPair(caption, i))
            plain += caption[i++];
        else if (!IsMark(caption, i))
            plain += caption[i];
    }
    return plain;
}

QString OwnCaption(const QWidget* control) {
    const QString text = CaptionText(control);
    const QVariant marked = control->property(markedCaption);
    if (marked.isValid() && marked.toString() == text)
        return control->property(ownCaption).toString();
    return text;
}

}  // namespace tendo
