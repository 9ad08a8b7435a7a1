#pragma once

#include <QString>

class QWidget;

namespace tendo {

/// Gives every labelled field and every button of a screen a letter that leads to it with Alt.
/// Letters that the captions bring along stay unless they are taken; `taken` holds those of the
/// menu bar. No two buttons share a letter. Labels do only where no letter of theirs is left; Alt
/// with it then leads from one of their fields to the next. The pages of a tab control, of which
/// one is seen at a time, each have letters of their own.
void AssignMnemonics(QWidget* screen, const QString& taken);

/// The letters of the menu bar in a control's window, "FEPR".
QString MenuBarLetters(const QWidget* control);

/// The letter that a caption marks, in lower case; null without one.
QChar MnemonicOf(const QString& caption);

/// A caption without its mark: "&Model && more" is "Model & more".
QString PlainCaption(const QString& caption);

/// The caption of a label or a button as its screen wrote it.
QString OwnCaption(const QWidget* control);

}  // namespace tendo
