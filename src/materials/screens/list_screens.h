#pragma once

#include <QObject>

namespace tendo {

enum class ListKind { Material, Labor };

/// What the screens of lists tell each other.
class ListNews : public QObject {
    Q_OBJECT
  Q_SIGNALS:
    /// A list was saved or deleted.
    void Changed(tendo::ListKind kind);
    /// The editor of a list was closed.
    void EditorClosed(tendo::ListKind kind);
};
ListNews& NewsOfLists();

}  // namespace tendo
