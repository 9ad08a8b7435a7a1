#include "materials/screens/list_screens.h"

#include "platform/qt/dialogs.h"
#include "platform/qt/form.h"
#include "project/program_state.h"

namespace tendo {

ListNews& NewsOfLists() {
    static ListNews news;
    return news;
}

bool ListsMayBeWritten(ListKind kind) {
    const bool inCurrentBook =
        kind == ListKind::Material ||
        State().MaterialDatabaseName == State().ProgramDirectory + "tendo.mdb";
    if (!inCurrentBook || !Form::Find("frmEditMaterials")) return true;
    ShowMessage("Database already open elsewhere",
                "The material database is being edited in another screen.  Please close that "
                "screen before you change the lists in the database.");
    return false;
}

}  // namespace tendo
