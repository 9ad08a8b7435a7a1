#include "footnotes/screens/footnote_changes.h"

#include "project/program_state.h"

namespace tendo {

FootnoteChanges& FootnoteChanges::Instance() {
    static FootnoteChanges changes;
    return changes;
}

void FootnotesWillChange(FootnoteMode mode) {
    Q_EMIT FootnoteChanges::Instance().Coming(mode);
}

void FootnotesHaveChanged(FootnoteMode mode) {
    State().ProjectChanged = true;
    Q_EMIT FootnoteChanges::Instance().Done(mode);
}

}  // namespace tendo
