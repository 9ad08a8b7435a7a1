#include "materials/screens/frm_labor_list.h"

#include <QLabel>
#include <QPushButton>

#include "materials/labor_lists.h"
#include "materials/screens/list_screens.h"
#include "platform/qt/dialogs.h"
#include "platform/qt/enhanced_input.h"
#include "platform/qt/fields.h"
#include "platform/text/text.h"
#include "project/program_state.h"

namespace tendo {
namespace {

constexpr int longestName = 255;
constexpr int nameWidth = 30;  // characters

}  // namespace

frmLaborList::frmLaborList(const std::string& name, bool isNew)
    : LaborScreen("frmLaborList", "Labor List for All Systems", LaborListEdit()), changed_(isNew) {
    AddName(name);
    AddLines();
    nameInput_->ReturnControl = nameInput_->DownControl = focusProxy();
    QPushButton* copy = AddButton("btnCopyProjectLabor", "Copy the &project's labor",
                                  [this] { btnCopyProjectLabor_Click(); });
    copy->setEnabled(State().ProjectIsOpen);
    AddButton("btnSaveList", "&Save list", [this] {
        btnSaveList_Click();
    })->setProperty("primary", true);
    Page().ShowListRows();
}

void frmLaborList::AddName(const std::string& name) {
    const FieldSpec spec{
        .name = "txtListName", .label = "List &name", .width = nameWidth, .maxLength = longestName};
    txtListName_ = new TextField(spec, Content());
    txtListName_->ShowText(QString::fromStdString(name));
    auto validator = std::make_shared<InputValidator>();
    validator->MaxTextLength = longestName;
    nameInput_ = new EnhancedInput(txtListName_, validator);
    connect(txtListName_, &QLineEdit::textEdited, this, [this] { Edited(); });
    AddToTop(MakeLabel(spec.label, txtListName_, Content()));
    AddToTop(txtListName_);
}

void frmLaborList::ReadList(const std::string& name) {
    LoadLaborListForEdit(name);
}

bool frmLaborList::Save() {
    const std::string name(Trimmed(txtListName_->text().toStdString()));
    if (name.empty()) {
        ShowMessage("TENDO", "Please specify a List name.");
        return false;
    }
    Page().StoreRows();
    if (!SaveLaborList(name)) return false;
    changed_ = false;
    Q_EMIT NewsOfLists().Changed(ListKind::Labor);
    return true;
}

void frmLaborList::btnSaveList_Click() {
    Save();
}

void frmLaborList::btnCopyProjectLabor_Click() {
    TransferLaborRecords();
    Page().ShowRows();
    Edited();
}

bool frmLaborList::QueryUnload() {
    if (!changed_) return true;
    const Answer answer = Ask("TENDO", "Do you want to save this Labor List?", Buttons::YesNo);
    return answer == Answer::Yes ? Save() : answer == Answer::No;
}

void frmLaborList::FormUnload() {
    Q_EMIT NewsOfLists().EditorClosed(ListKind::Labor);
}

Form* MakeLaborListEditor(const std::string& name, bool isNew) {
    if (isNew)
        ClearLaborListEdit();
    else if (!LoadLaborListForEdit(name) && LaborListEdit().front().QtyHrs == 0)
        return nullptr;  // one that is merely too long opens with the lines that there is room for
    return new frmLaborList(name, isNew);
}

}  // namespace tendo
