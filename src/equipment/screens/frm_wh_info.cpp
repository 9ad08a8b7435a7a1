#include "equipment/screens/frm_wh_info.h"

#include <QCheckBox>
#include <QGridLayout>
#include <QLabel>
#include <QPushButton>

#include "equipment/model_prices.h"
#include "equipment/screens/frm_model_selection.h"
#include "equipment/screens/operating_cost_grid.h"
#include "platform/qt/fields.h"
#include "project/program_state.h"

namespace tendo {
namespace {

/// Fields in each half of the card; the notes stand below both.
constexpr int halfFields = 8;

}  // namespace

frmWHInfo::frmWHInfo() : SystemForm("frmWHInfo", "", Place::Child, "frmWHInfo") {
    QVBoxLayout* column = MakeColumn();
    column->addWidget(MakeCard());
    column->addWidget(MakeHeading("Operating costs in dollars a year", Content()));
    costs_ = new OperatingCostGrid({SelectionMode::WaterHeater}, Content());
    column->addWidget(costs_);
    column->addWidget(MakeButtons());
    column->addStretch();
    fields_.Chain();
    connect(&fields_, &ModelFieldLines::Taken, this, [this] { ShowMark(); });
    SetWHModelInfo();
}

QWidget* frmWHInfo::MakeCard() {
    auto* card = new QFrame(Content());
    card->setProperty("card", true);
    card->setProperty("side", "water");
    auto* grid = new QGridLayout(card);
    grid->setContentsMargins(14, 10, 14, 12);
    grid->setHorizontalSpacing(8);
    grid->setVerticalSpacing(6);
    int at = 0;
    for (const ModelField& field : WaterHeaterFields()) {
        const int row = at % halfFields;
        const int column = at / halfFields % 2 * 2;
        const bool notes = field.kind == ModelFieldKind::Memo;
        fields_.Add(field, grid, notes ? halfFields : row, column, notes ? 3 : 1, card);
        ++at;
    }
    grid->setColumnStretch(1, 1);
    grid->setColumnStretch(3, 1);
    return card;
}

QWidget* frmWHInfo::MakeButtons() {
    auto* box = new QWidget(Content());
    auto* row = new QHBoxLayout(box);
    row->setContentsMargins(0, 0, 0, 0);
    row->setSpacing(16);
    auto* select = new QPushButton("&Select water heater…", box);
    select->setObjectName("btnSelectWHModel");
    connect(select, &QPushButton::clicked, this, &frmWHInfo::btnSelectWHModel_Click);
    chkWHProvidesHeat_ = new QCheckBox("&Used for both Hot Water and Space Heat", box);
    chkWHProvidesHeat_->setObjectName("chkWHProvidesHeat");
    connect(chkWHProvidesHeat_, &QCheckBox::clicked, this, &frmWHInfo::chkWHProvidesHeat_Click);
    row->addWidget(select);
    row->addWidget(chkWHProvidesHeat_);
    row->addStretch();
    return box;
}

WHModelRecord& frmWHInfo::Heater() const {
    return Project().WHModelData.at(static_cast<std::size_t>(system_));
}

void frmWHInfo::SetWHModelInfo() {
    system_ = State().SystemNumber;
    setWindowTitle("Water Heater Information for System " + QString::number(system_ + 1));
    fields_.Show(system_);
    costs_->Show(system_);
    ShowMark();
    const SystemTendosRecord& tendos = Project().SystemTendos;
    RecalcTax(Project(), tendos.ModelSalePrice, tendos.TaxMatSalePrice, tendos.LaborSalePrice);
}

void frmWHInfo::ShowMark() {
    chkWHProvidesHeat_->setChecked(Heater().WHIsHydroAirComponent == 1);
}

/// The mark changes a line of the proposal and no price.
void frmWHInfo::chkWHProvidesHeat_Click() {
    Heater().WHIsHydroAirComponent = chkWHProvidesHeat_->isChecked() ? 1 : 0;
    State().ProjectChanged = true;
}

void frmWHInfo::btnSelectWHModel_Click() {
    CommitFocusedField();
    ShowModelSelection(SelectionMode::WaterHeater);
    SetWHModelInfo();
}

}  // namespace tendo
