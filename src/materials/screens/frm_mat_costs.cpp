#include "materials/screens/frm_mat_costs.h"

#include <QComboBox>
#include <QHBoxLayout>
#include <QPushButton>

#include "materials/catalogue_merge.h"
#include "materials/material_catalogue.h"
#include "materials/material_lists.h"
#include "materials/screens/frm_edit_materials.h"
#include "materials/screens/frm_list_add_delete.h"
#include "materials/screens/takeoff_page.h"
#include "materials/takeoff_sums.h"
#include "platform/files/paths.h"
#include "platform/qt/dialogs.h"
#include "platform/qt/fields.h"
#include "platform/text/runtime_error.h"
#include "platform/text/text.h"
#include "pricing/screens/frm_sum_rpt_data.h"
#include "pricing/screens/pricing_hooks.h"
#include "project/program_state.h"

namespace tendo {
namespace {

constexpr const char* caption = "Select Material Costs";
constexpr const char* messageTitle = "TENDO";
constexpr const char* noList = "(None)";

struct Neighbour {
    const char* name;
    const char* caption;
    const char* tip;
    const char* screen;
};
constexpr Neighbour neighbourPlans[] = {
    {"btnEditAddMaterials", "Ed&it/Add Materials…", "Edit the Price Book", "frmEditMaterials"},
    {"btnEditAddAssembly", "Ma&nage lists…", "Add/Edit/Delete Material List", "frmListAddDelete"},
    {"btnEditLaborCosts", "La&bor costs…", "Edit Labor Costs", "frmLaborCosts"},
};

QString Q(const std::string& text) {
    return QString::fromStdString(text);
}

/// What the user should know of lines that the price book doesn't have.
QString NoteOf(const MergeCounts& counts) {
    if (counts.dropped > 0)
        return QString(
                   "%1 of the takeoff's lines aren't in this price book at their cost, or stand "
                   "behind such a line, and are left out.")
            .arg(counts.dropped);
    if (counts.appended > 0)
        return "One line of the takeoff isn't in this price book at its cost; it stands behind the "
               "last material.";
    return {};
}

}  // namespace

frmMatCosts::frmMatCosts() : Form("frmMatCosts", caption, Place::Child, "frmMatCosts") {
    State().MaterialDatabaseHeld = true;
    page_ = TakeoffPage::On(this, MaterialCatalogue(), caption);
    page_->AddBelow(MakeDatabaseBar());
    AddListChoice();
    AddNeighbours();
    connect(page_, &TakeoffPage::Cleared, this, [this] {
        chosenList_ = noList;
        lists_->setCurrentText(noList);
    });
    connect(txtDatabase_, &QLineEdit::textChanged, this, &frmMatCosts::DatabaseChanged);
    connect(&NewsOfLists(), &ListNews::Changed, this, [this](ListKind kind) {
        if (kind == ListKind::Material) FillLists();
    });
    txtDatabase_->setText(Q(State().MaterialDatabaseName));
}

QWidget* frmMatCosts::MakeDatabaseBar() {
    auto* box = new QWidget(page_);
    auto* bar = new QHBoxLayout(box);
    bar->setContentsMargins(0, 0, 0, 0);
    bar->setSpacing(8);
    txtDatabase_ = new TextField(
        FieldSpec{.name = "txtDatabase", .label = "Material database:", .kind = EntryKind::Label},
        box);
    auto* change = page_->MakeButton("btnChangeDB", "Change price boo&k…",
                                     "Select Materials from another Database");
    connect(change, &QPushButton::clicked, this, &frmMatCosts::btnChangeDB_Click);
    bar->addWidget(MakeLabel("Material database:", txtDatabase_, box));
    bar->addWidget(txtDatabase_, 1);
    bar->addWidget(change);
    return box;
}

void frmMatCosts::AddListChoice() {
    lists_ = new QComboBox(page_);
    lists_->setObjectName("ComboSelectMatList");
    lists_->setAccessibleName("Material list to apply");
    lists_->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    lists_->setMinimumContentsLength(14);
    page_->AddToTopBar(MakeLabel("Appl&y list:", lists_, page_));
    page_->AddToTopBar(lists_);
    connect(lists_, &QComboBox::textActivated, this, &frmMatCosts::ComboSelectMatList_Click);
}

void frmMatCosts::AddNeighbours() {
    for (const Neighbour& plan : neighbourPlans) {
        QPushButton* button = page_->MakeButton(plan.name, plan.caption, plan.tip);
        const QString screen = plan.screen;
        connect(button, &QPushButton::clicked, this, [this, screen] { OpenNeighbour(screen); });
        page_->AddToBottomBar(button);
        neighbours_.emplace_back(button, screen);
    }
}

void frmMatCosts::showEvent(QShowEvent* event) {
    Form::showEvent(event);
    const auto& exists = PricingScreens().ScreenExists;
    for (const auto& [button, screen] : neighbours_)
        button->setEnabled(exists && exists(screen));
}

/// The field's text is the current database: a change of it loads the book and enters the takeoff.
void frmMatCosts::DatabaseChanged() {
    const Hourglass hourglass;
    if (loaded_) {
        page_->Store();
        CatalogueToProjectMaterials();  // what was selected goes over into the other book
    }
    State().MaterialDatabaseName = Trimmed(txtDatabase_->text().toStdString());
    loaded_ = LoadMaterialCatalogue();
    MergeCounts counts;
    try {
        if (loaded_) counts = ProjectMaterialsToCatalogue();
    } catch (const RuntimeError& error) {
        ShowMessage(messageTitle, error.Description(), MessageIcon::Warning);
    }
    if (!loaded_) {
        ResetCatalogueSelections();
        ShowMessage(messageTitle,
                    "This database does not contain valid Material records.  Please "
                    "select another database.");
    }
    page_->FillCategories();
    FillLists();
    page_->SetRowsEnabled(loaded_);
    page_->ShowNote(NoteOf(counts));
    page_->ShowCatalogue();
}

void frmMatCosts::TakeUpPriceBook() {
    State().MaterialDatabaseHeld = true;
    const QString database = Q(State().MaterialDatabaseName);
    if (txtDatabase_->text() == database) return DatabaseChanged();
    txtDatabase_->setText(database);
}

void frmMatCosts::CatalogueReplaced() {
    loaded_ = false;  // there is nothing in it to commit
    DatabaseChanged();
}

void frmMatCosts::FillLists() {
    lists_->clear();
    lists_->addItem(noList);
    if (loaded_)
        for (const std::string& name : MaterialListNames())
            lists_->addItem(Q(name));
    chosenList_ = noList;
}

void frmMatCosts::ComboSelectMatList_Click(const QString& name) {
    const Answer answer =
        Ask(messageTitle,
            "Selecting a material list will overwrite all of your current material selections.  "
            "Are you sure you want to do this?",
            Buttons::YesNo);
    if (answer != Answer::Yes) return lists_->setCurrentText(chosenList_);
    chosenList_ = name;
    ResetCatalogueSelections();
    std::string list(Trimmed(name.toStdString()));
    if (!list.empty()) ApplyMaterialList(list);
    page_->Rows().Refill();
}

void frmMatCosts::btnChangeDB_Click() {
    const Answer answer =
        Ask(messageTitle,
            "Selecting a different material database will overwrite all of your current material "
            "selections.  Are you sure you want to do this?",
            Buttons::YesNo);
    if (answer != Answer::Yes) return;
    const auto file =
        AskForDatabase("Select a Material Database", DirectoryOf(State().MaterialDatabaseName));
    if (file && FileExists(*file)) txtDatabase_->setText(Q(*file));
}

void frmMatCosts::OpenNeighbour(const QString& screen) {
    StoreFields();
    if (screen == "frmEditMaterials")
        return ShowEditMaterials("Return to Material Costs", RefillMaterialTakeoff);
    if (screen == "frmListAddDelete") return ShowListAddDelete(ListKind::Material);
    if (PricingScreens().ShowScreen) PricingScreens().ShowScreen(screen);
}

void frmMatCosts::StoreFields() {
    if (!loaded_) return;
    page_->Store();
    if (CommitOpenTakeoff()) RecalculateSystemScreens();
}

/// A takeoff whose price book didn't load stays in the project's records as it was.
void frmMatCosts::FormUnload() {
    if (loaded_ && !committed_) {
        committed_ = true;
        page_->Store();
        try {
            CommitTakeoff();
            RecalculateSystemScreens();
        } catch (const RuntimeError& error) {
            ShowMessage(messageTitle, error.Description(), MessageIcon::Warning);
        }
        ResetCatalogueSelections();
    }
    State().MaterialDatabaseHeld = Form::Find("frmEditMaterials") != nullptr;
}

void RefillMaterialTakeoff() {
    if (auto* screen = qobject_cast<frmMatCosts*>(Form::Find("frmMatCosts")))
        screen->TakeUpPriceBook();
}

void ReloadMaterialTakeoff() {
    if (auto* screen = qobject_cast<frmMatCosts*>(Form::Find("frmMatCosts")))
        screen->CatalogueReplaced();
}

}  // namespace tendo
