#include "equipment/screens/frm_detail_model_data.h"

#include <QGridLayout>
#include <QLabel>
#include <QPushButton>

#include "equipment/model_prices.h"
#include "equipment/screens/model_price_grid.h"
#include "equipment/screens/operating_cost_grid.h"
#include "platform/qt/fields.h"
#include "pricing/screens/frm_sum_rpt_data.h"
#include "project/program_state.h"

namespace tendo {
namespace {

QGridLayout* MakeCardGrid(QFrame* card, const char* heading, const char* side) {
    card->setProperty("card", true);
    card->setProperty("side", side);
    auto* grid = new QGridLayout(card);
    grid->setContentsMargins(14, 10, 14, 12);
    grid->setHorizontalSpacing(8);
    grid->setVerticalSpacing(6);
    grid->setColumnStretch(1, 1);
    grid->setColumnStretch(3, 1);
    auto* title = new QLabel(heading, card);
    title->setStyleSheet("font-weight: bold; border: 0");
    grid->addWidget(title, 0, 0, 1, 4);
    return grid;
}

QWidget* MakeModelCard(ModelFieldLines& lines, const char* heading, const char* side,
                       std::span<const ModelField> fields, QWidget* parent) {
    auto* card = new QFrame(parent);
    QGridLayout* grid = MakeCardGrid(card, heading, side);
    lines.AddColumn(fields, heading, grid, card);
    grid->setRowStretch(grid->rowCount(), 1);
    return card;
}

QHBoxLayout* MakeModelCards(ModelFieldLines& lines, std::span<const ModelField> cooling,
                            std::span<const ModelField> heating, QWidget* parent) {
    auto* cards = new QHBoxLayout;
    cards->setSpacing(12);
    cards->addWidget(MakeModelCard(lines, "Cooling", "cooling", cooling, parent), 1);
    cards->addWidget(MakeModelCard(lines, "Heating", "heating", heating, parent), 1);
    return cards;
}

}  // namespace

frmDetailModelData::frmDetailModelData()
    : SystemForm("frmDetailModelData", "", Place::Child, "frmDetailModelData") {
    QVBoxLayout* column = MakeColumn();
    column->addLayout(
        MakeModelCards(fields_, CoolingDetailFields(), HeatingDetailFields(), Content()));
    column->addWidget(MakeHeading("Prices", Content()));
    prices_ = new ModelPriceGrid(Content());
    column->addWidget(prices_);
    column->addWidget(MakeHeading("Operating costs in dollars a year", Content()));
    costs_ = new OperatingCostGrid({SelectionMode::Cooling, SelectionMode::Heating}, Content());
    column->addWidget(costs_);
    column->addWidget(MakeButtons());
    column->addStretch();
    fields_.Chain();
    connect(&fields_, &ModelFieldLines::Taken, this,
            [this] { prices_->Show(State().SystemNumber); });
    Refill();
}

QWidget* frmDetailModelData::MakeButtons() {
    auto* box = new QWidget(Content());
    auto* row = new QHBoxLayout(box);
    row->setContentsMargins(0, 0, 0, 0);
    auto* button = new QPushButton("Miscella&neous model data…", box);
    button->setObjectName("btnMisModelData");
    connect(button, &QPushButton::clicked, this, [] { ShowMisModelData(); });
    row->addWidget(button);
    row->addStretch();
    return box;
}

void frmDetailModelData::Refill() {
    const int system = State().SystemNumber;
    setWindowTitle("Detailed Model Data for System " + QString::number(system + 1));
    fields_.Show(system);
    prices_->Show(system);
    costs_->Show(system);
}

void frmDetailModelData::FormUnload() {
    const SystemTendosRecord before = Project().SystemTendos;
    RebuildModelRow(Project());
    if (!(Project().SystemTendos == before)) State().ProjectChanged = true;
    RefillPriceScreens();
}

frmMisModelData::frmMisModelData()
    : SystemForm("frmMisModelData", "Miscellaneous Model Data for System Number:", Place::Child,
                 "frmMisModelData") {
    QVBoxLayout* column = MakeColumn();
    system_ = MakeHeading("", Content());
    column->addWidget(system_);
    column->addLayout(MakeModelCards(fields_, CoolingMiscFields(), HeatingMiscFields(), Content()));
    column->addStretch();
    fields_.Chain();
    SetMiscModelData();
}

void frmMisModelData::SetMiscModelData() {
    const int system = State().SystemNumber;
    system_->setText("System " + QString::number(system + 1));
    fields_.Show(system);
}

void frmMisModelData::GetMiscModelData() {
    fields_.Store();
}

void ShowMisModelData() {
    Form* screen = Form::Find("frmMisModelData");
    if (!screen) screen = new frmMisModelData;
    screen->ShowForm();
}

}  // namespace tendo
