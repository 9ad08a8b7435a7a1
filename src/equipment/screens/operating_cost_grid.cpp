#include "equipment/screens/operating_cost_grid.h"

#include <QComboBox>
#include <QGridLayout>

#include "platform/qt/fields.h"
#include "project/program_state.h"

namespace tendo {
namespace {

constexpr int headingMargin = 13;
constexpr const char* range = "-9,999,999.99 to 9,999,999.99";
constexpr const char* unit = "dollars a year";

struct SideNames {
    const char* label;
    const char* choice;
    const char* costs[3];
};
constexpr SideNames sides[] = {
    {"Cooling:",
     "cmbCLGOpCostforSystem",
     {"txtCLGOpCostforSystem", "txtCLGProposedOpCost", "txtCLGOpCostSavings"}},
    {"Heating:",
     "cmbHTGOpCostforSystem",
     {"txtHTGOpCostforSystem", "txtHTGProposedOpCost", "txtHTGOpCostSavings"}},
    {"Water heater:",
     "cmbWHOpCostforSystem",
     {"txtWHOpCostforSystem", "txtWHProposedOpCost", "txtWHOpCostSavings"}}};

constexpr const char* headings[] = {"Existing", "Proposed", "Savings"};

}  // namespace

OperatingCostGrid::OperatingCostGrid(const std::vector<SelectionMode>& which, QWidget* parent)
    : QWidget(parent) {
    auto* grid = new QGridLayout(this);
    grid->setContentsMargins(0, 0, 0, 0);
    grid->setHorizontalSpacing(8);
    grid->setVerticalSpacing(6);
    grid->addWidget(MakeHeading("From system", this), 0, 1);
    for (int i = 0; i < 3; ++i) {
        QLabel* heading = MakeHeading(headings[i], this);
        heading->setContentsMargins(0, 0, headingMargin, 0);
        grid->addWidget(heading, 0, i + 2, Qt::AlignRight);
        grid->setColumnStretch(i + 2, 1);
    }
    for (const SelectionMode side : which)
        rows_.push_back({.side = side});
    for (std::size_t i = 0; i < rows_.size(); ++i)
        AddRow(grid, static_cast<int>(i) + 1, rows_[i]);
}

void OperatingCostGrid::AddRow(QGridLayout* grid, int at, Row& row) {
    const SideNames& names = sides[static_cast<std::size_t>(row.side)];
    row.choice = new QComboBox(this);
    row.choice->setObjectName(names.choice);
    row.choice->setAccessibleName(QString("Existing operating cost from system, ") + names.label);
    for (int number = 1; number <= SystemCount; ++number)
        row.choice->addItem(QString::number(number));
    connect(row.choice, &QComboBox::activated, this,
            [this, &row](int index) { Choose(row, index); });
    auto* label = new QLabel(names.label, this);
    label->setBuddy(row.choice);
    grid->addWidget(label, at, 0);
    grid->addWidget(row.choice, at, 1);
    for (int i = 0; i < 3; ++i) {
        const QByteArray spoken =
            QString("%1 operating cost, %2").arg(headings[i], names.label).remove(':').toUtf8();
        // The sign can be typed, for savings may be negative.
        auto* field = new TextField(FieldSpec{.name = names.costs[i],
                                              .label = "",
                                              .kind = EntryKind::Percent,
                                              .width = 9,
                                              .range = range,
                                              .unit = unit,
                                              .accessibleName = spoken.constData()},
                                    this);
        field->setMaximumWidth(QWIDGETSIZE_MAX);
        row.costs[static_cast<std::size_t>(i)] = field;
        connect(field, &TextField::Committed, this,
                [this, &row, cost = static_cast<OperatingCost>(i)] { Commit(row, cost); });
        grid->addWidget(field, at, i + 2);
    }
}

void OperatingCostGrid::Show(int system) {
    system_ = system;
    for (const Row& row : rows_)
        ShowRow(row);
}

void OperatingCostGrid::ShowRow(const Row& row) {
    row.choice->setCurrentIndex(OperatingCostSystem(Project(), row.side, system_));
    for (std::size_t i = 0; i < row.costs.size(); ++i)
        row.costs[i]->ShowText(QString::fromStdString(
            OperatingCostText(Project(), row.side, system_, static_cast<OperatingCost>(i))));
}

void OperatingCostGrid::Commit(const Row& row, OperatingCost cost) {
    const std::string text = row.costs[static_cast<std::size_t>(cost)]->text().toStdString();
    if (CommitOperatingCost(Project(), row.side, system_, cost, text))
        State().ProjectChanged = true;
    ShowRow(row);
}

void OperatingCostGrid::Choose(const Row& row, int index) {
    ChooseOperatingCost(Project(), row.side, system_, index + 1);
    State().ProjectChanged = true;
    ShowRow(row);
}

}  // namespace tendo
