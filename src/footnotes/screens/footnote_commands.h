#pragma once

#include <QString>
#include <functional>
#include <string>
#include <vector>

#include "footnotes/project_footnotes.h"
#include "footnotes/screens/footnote_changes.h"

class QListWidget;
class QPushButton;
class QWidget;

namespace tendo {

/// What the footnote screens have in common.

/// The project's list of a mode.
FootnoteList ListOf(FootnoteMode mode);

/// A copy of the library's footnote becomes the last one of a project's list. False, after a
/// message, when the library can't be read.
bool AddFromLibrary(FootnoteMode mode, const std::string& name);

/// Asks for a footnote's name, with the one it has to start from, until it has no apostrophe; empty
/// when the user gave none.
std::string AskFootnoteName(const std::string& before);

/// A list of names, each in its row, with the row kept current where it still exists.
void FillFootnoteList(QListWidget* list, const std::vector<std::string>& names);
std::vector<std::string> NamesOf(FootnoteList list);

/// The name in the current row of a list; empty without one.
std::string ChosenName(const QListWidget* list);

/// What lists of footnotes have in common.
void PrepareFootnoteList(QListWidget* list, const QString& name, const QString& accessibleName);
QPushButton* MakeFootnoteButton(const QString& name, const QString& text, QWidget* parent,
                                std::function<void()> run);

/// Tells what became of a new footnote's name.
void ShowMessages(const std::vector<std::string>& messages);

}  // namespace tendo
