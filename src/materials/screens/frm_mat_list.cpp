#include "materials/screens/frm_mat_list.h"

#include <QLabel>
#include <QPushButton>
#include <optional>
#include <utility>

#include "materials/material_catalogue.h"
#include "materials/material_lists.h"
#include "materials/screens/list_screens.h"
#include "materials/screens/takeoff_page.h"
#include "platform/qt/dialogs.h"
#include "platform/qt/enhanced_input.h"
#include "platform/qt/fields.h"
#include "platform/text/text.h"
#include "project/program_state.h"

namespace tendo {
namespace {

constexpr const char* caption = "Edit/Add Material List";
constexpr const char* messageTitle = "TENDO";
constexpr std::size_t fewestMaterials = Takeoff::PageRows;
constexpr int longestName = 255;
constexpr int nameWidth = 24;  // characters

/// An open takeoff has its selections in the catalogue.
bool TakeoffIsOpen() {
    return Form::Find("frmMatCosts");
}

/// Without a takeoff nothing stays selected, and the next project loads the price book anew.
void LeaveCatalogue() {
    if (TakeoffIsOpen()) return;
    ResetCatalogueSelections();
    State().MaterialDatabaseLoaded = false;
}

/// The current price book, nothing selected; nothing after a failure, which was told. An open
/// takeoff keeps its selections.
std::optional<std::vector<MaterialRow>> FreshCatalogue() {
    Form::StoreAllFields();
    std::vector<MaterialRow> selections = MaterialCatalogue();
    const bool loaded = LoadMaterialCatalogue();
    ResetCatalogueSelections();
    std::vector<MaterialRow> fresh = MaterialCatalogue();
    if (TakeoffIsOpen()) {
        MaterialCatalogue() = std::move(selections);
        State().MaterialDatabaseLoaded = true;
    }
    if (!loaded) return std::nullopt;
    return fresh;
}

}  // namespace

frmMatList::frmMatList(const std::string& name, bool isNew, std::vector<MaterialRow> catalogue)
    : Form("frmMatList", caption, Place::Child, "frmMatList"),
      catalogue_(std::move(catalogue)),
      saved_(catalogue_),
      savedName_(isNew ? "" : name) {
    State().MaterialListEditorIsOpen = true;
    page_ = TakeoffPage::On(this, catalogue_, caption, true);
    AddName(name);
    AddSave();
    page_->FillCategories();
    page_->ShowCatalogue();
}

void frmMatList::AddName(const std::string& name) {
    const FieldSpec spec{.name = "txtListName",
                         .label = "List &name:",
                         .width = nameWidth,
                         .maxLength = longestName};
    txtListName_ = new TextField(spec, page_);
    txtListName_->ShowText(QString::fromStdString(name));
    auto validator = std::make_shared<InputValidator>();
    validator->MaxTextLength = longestName;
    new EnhancedInput(txtListName_, validator);
    page_->AddToTopBar(MakeLabel(spec.label, txtListName_, page_));
    page_->AddToTopBar(txtListName_);
}

void frmMatList::AddSave() {
    QPushButton* save =
        page_->MakeButton("btnSaveAssembly", "Save and close", "Save the Material List");
    save->setProperty("primary", true);
    connect(save, &QPushButton::clicked, this, &frmMatList::btnSaveAssembly_Click);
    page_->AddToBottomBar(save);
}

std::string frmMatList::ListName() const {
    return std::string(Trimmed(txtListName_->text().toStdString()));
}

bool frmMatList::SaveMaterialList() {
    if (ListName().empty()) {
        ShowMessage(messageTitle, "Please specify a List name.");
        return false;
    }
    page_->Store();
    if (!tendo::SaveMaterialList(ListName(), catalogue_)) return false;
    saved_ = catalogue_;
    savedName_ = ListName();
    Q_EMIT NewsOfLists().Changed(ListKind::Material);
    return true;
}

void frmMatList::btnSaveAssembly_Click() {
    if (SaveMaterialList()) Unload();
}

bool frmMatList::IsUnsaved() {
    page_->Store();
    return savedName_.empty() || savedName_ != ListName() || saved_ != catalogue_;
}

bool frmMatList::QueryUnload() {
    if (!IsUnsaved()) return true;
    const Answer answer =
        Ask(messageTitle, "Do you wish to save this Material List?", Buttons::YesNo);
    return answer == Answer::Yes ? SaveMaterialList() : answer == Answer::No;
}

void frmMatList::FormUnload() {
    LeaveCatalogue();
    State().MaterialListEditorIsOpen = false;
    Q_EMIT NewsOfLists().EditorClosed(ListKind::Material);
}

Form* MakeMaterialListEditor(const std::string& name, bool isNew) {
    const Hourglass hourglass;
    std::optional<std::vector<MaterialRow>> catalogue = FreshCatalogue();
    // The page has fifteen rows.
    const bool enough = catalogue && catalogue->size() >= fewestMaterials;
    if (catalogue && !enough)
        ShowMessage(messageTitle,
                    "You must have at least 15 materials in your material database before you can "
                    "use the Material Lists feature.");
    std::string list = name;
    if (enough && (isNew || ApplyMaterialList(list, *catalogue)))
        return new frmMatList(name, isNew, std::move(*catalogue));
    LeaveCatalogue();
    return nullptr;
}

}  // namespace tendo
