#pragma once

#include <QObject>

namespace tendo {

/// Where a footnote goes: the library, the proposal's list, the accessories report's list.
enum class FootnoteMode { Database, Selected, AccRpt };

/// Two screens may show the same list of the project at a time; through this object each hears of
/// what the other one does to it.
class FootnoteChanges : public QObject {
    Q_OBJECT
  public:
    static FootnoteChanges& Instance();

  Q_SIGNALS:
    /// The list changes next: texts that are being edited are put into it now.
    void Coming(FootnoteMode mode);
    /// Rows, names or texts of the list are others now.
    void Done(FootnoteMode mode);
};

/// Before and after a change of a list: everyone who shows it is told, and the project is marked as
/// changed.
void FootnotesWillChange(FootnoteMode mode);
void FootnotesHaveChanged(FootnoteMode mode);

/// A change with both.
template <class Change>
void ChangeFootnotes(FootnoteMode mode, const Change& change) {
    FootnotesWillChange(mode);
    change();
    FootnotesHaveChanged(mode);
}

}  // namespace tendo
