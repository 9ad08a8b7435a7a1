#include "reports/screens/frm_owner.h"

#include <QGridLayout>
#include <QLabel>
#include <QPushButton>

#include "platform/files/settings_store.h"
#include "platform/qt/fields.h"
#include "platform/qt/theme.h"
#include "reports/report_settings.h"

namespace tendo {
namespace {

constexpr const char* AskedKey = "Company Asked For";
constexpr int LongestText = 255;  // as much as the profile gives back
bool mayAsk = true;

struct OwnerField {
    FieldSpec spec;
    std::string OwnerRecord::*text;
};
const OwnerField ownerFields[] = {
    {{.name = "txtOwnerName", .label = "&Company name", .width = 34, .maxLength = LongestText},
     &OwnerRecord::OwnerName},
    {{.name = "txtOwnerAddress", .label = "&Address", .width = 34, .maxLength = LongestText},
     &OwnerRecord::OwnerAddress},
    {{.name = "txtOwnerCity", .label = "C&ity", .width = 34, .maxLength = LongestText},
     &OwnerRecord::OwnerCity},
    {{.name = "txtOwnerState", .label = "&State and zip", .width = 34, .maxLength = LongestText},
     &OwnerRecord::OwnerState},
    {{.name = "txtOwnerPhone", .label = "&Telephone", .width = 34, .maxLength = LongestText},
     &OwnerRecord::OwnerPhone},
};

}  // namespace

FrmOwner::FrmOwner(const QString& giveUp) : Form("frmOwner", "Your Company", Place::Dialog) {
    auto* grid = new QGridLayout(this);
    grid->setContentsMargins(16, 16, 16, 16);
    grid->setHorizontalSpacing(16);
    grid->setVerticalSpacing(8);
    auto* why = new QLabel(
        "Every proposal names your company at its head. What you enter here is kept with the "
        "program and serves all jobs.",
        this);
    why->setWordWrap(true);
    why->setProperty("quiet", true);
    grid->addWidget(why, 0, 0, 1, 2);
    grid->setRowMinimumHeight(1, 4);
    int row = 2;
    for (std::size_t i = 0; i < fields_.size(); ++i) {
        fields_[i] = AddFieldRow(grid, row++, ownerFields[i].spec, this);
        fields_[i]->setText(QString::fromStdString(Owner().*ownerFields[i].text));
    }
    auto* buttons = new QHBoxLayout;
    buttons->setSpacing(8);
    auto* later = new QPushButton(giveUp, this);
    later->setObjectName("btnLater");
    auto* keep = new QPushButton("&OK", this);
    keep->setObjectName("btnOK");
    keep->setDefault(true);
    keep->setProperty("primary", true);
    buttons->addStretch(1);
    buttons->addWidget(later);
    buttons->addWidget(keep);
    grid->setRowMinimumHeight(row, 8);
    grid->addLayout(buttons, row + 1, 0, 1, 2);
    connect(later, &QPushButton::clicked, this, [this] { Unload(); });
    connect(keep, &QPushButton::clicked, this, [this] {
        Store();
        Unload();
    });
    setMinimumWidth(460);
}

void FrmOwner::Store() {
    OwnerRecord owner;
    for (std::size_t i = 0; i < fields_.size(); ++i)
        owner.*ownerFields[i].text = fields_[i]->text().trimmed().toStdString();
    WriteOwner(owner);
}

void AskForOwnerOnce() {
    if (!mayAsk || !Owner().IsEmpty() || !Settings().GetSetting("Options", AskedKey).empty())
        return;
    Settings().SaveSetting("Options", AskedKey, "1");
    (new FrmOwner("&Later"))->ShowModal();
}

void NeverAskForOwner() {
    mayAsk = false;
}

}  // namespace tendo
