#include "equipment/screens/model_price_grid.h"

#include <QGridLayout>
#include <QScopedValueRollback>

#include "platform/qt/fields.h"
#include "project/program_state.h"

namespace tendo {
namespace {

constexpr int headingMargin = 13;  // puts a heading above the right edge of its figures

struct Column {
    const char* heading;
    EntryKind kind;
    const char* range;
    const char* unit;
};
constexpr Column columns[ModelPriceLine::ColumnCount] = {
    {"Dealer cost", EntryKind::Money, "0.00 to 9,999,999.99", "dollars for all units"},
    {"Override", EntryKind::Money, "0.00 to 9,999,999.99", "dollars for all units"},
    {"Gross margin %", EntryKind::Percent, "-999.9 to 999.9", "percent"},
    {"Price markup %", EntryKind::Percent, "-999.9 to 999.9", "percent"},
    {"List discount %", EntryKind::Percent, "-999.9 to 999.9", "percent"},
    {"Sale price", EntryKind::Money, "0.00 to 9,999,999.99", "dollars for one unit"}};

struct SideNames {
    const char* label;
    const char* fields[ModelPriceLine::ColumnCount];
};
constexpr SideNames sides[] = {{"Cooling model:",
                                {"txtCLGDealerCost", "txtCLGDealerOverride", "txtCLGGrossMargin",
                                 "txtCLGPriceMarkup", "txtCLGListDiscount", "txtCLGSalePrice"}},
                               {"Heating model:",
                                {"txtHTGModelCost", "txtHTGDealerOverride", "txtHTGGrossMargin",
                                 "txtHTGPriceMarkup", "txtHTGListDiscount", "txtHTGSalesPrice"}},
                               {"Water heater:",
                                {"txtWHModelCost", "txtWHDealerOverride", "txtWHGrossMargin",
                                 "txtWHPriceMarkup", "txtWHListDiscount", "txtWHSalesPrice"}}};

}  // namespace

ModelPriceGrid::ModelPriceGrid(QWidget* parent)
    : QWidget(parent),
      lines_{{{ModelPriceLine(Project(), SelectionMode::Cooling)},
              {ModelPriceLine(Project(), SelectionMode::Heating)},
              {ModelPriceLine(Project(), SelectionMode::WaterHeater)}}} {
    auto* grid = new QGridLayout(this);
    grid->setContentsMargins(0, 0, 0, 0);
    grid->setHorizontalSpacing(8);
    grid->setVerticalSpacing(6);
    AddHeadings(grid);
    for (int side = 0; side < SideCount; ++side)
        AddLine(grid, side);
}

void ModelPriceGrid::AddHeadings(QGridLayout* grid) {
    int at = 0;
    for (const Column& column : columns) {
        auto* heading = MakeHeading(column.heading, this);
        heading->setContentsMargins(0, 0, headingMargin, 0);
        grid->addWidget(heading, 0, ++at, Qt::AlignRight);
        grid->setColumnStretch(at, 1);
    }
}

void ModelPriceGrid::AddLine(QGridLayout* grid, int side) {
    const SideNames& names = sides[side];
    Line& line = lines_[static_cast<std::size_t>(side)];
    auto* label = new QLabel(names.label, this);
    grid->addWidget(label, side + 1, 0);
    for (int i = 0; i < ModelPriceLine::ColumnCount; ++i) {
        const auto kind = static_cast<FieldKind>(i);
        const QByteArray spoken =
            QString("%1, %2").arg(columns[i].heading, names.label).remove(':').remove('%').toUtf8();
        auto* field = new TextField(FieldSpec{.name = names.fields[i],
                                              .label = "",
                                              .kind = columns[i].kind,
                                              .width = 9,
                                              .range = columns[i].range,
                                              .unit = columns[i].unit,
                                              .accessibleName = spoken.constData()},
                                    this);
        field->setMaximumWidth(QWIDGETSIZE_MAX);
        line.fields[static_cast<std::size_t>(i)] = field;
        connect(field, &QLineEdit::textChanged, this, [this, &line, kind](const QString& text) {
            if (!showing_) line.prices.SetText(kind, text.toStdString());
        });
        connect(field, &TextField::Committed, this, [this, &line, kind] { Commit(line, kind); });
        grid->addWidget(field, side + 1, i + 1);
    }
    label->setBuddy(line.fields[static_cast<std::size_t>(FieldKind::DealerOverride)]);
}

void ModelPriceGrid::Show(int system) {
    for (Line& line : lines_) {
        line.prices.Show(system);
        ShowTexts(line, FieldKind::DealerCost, false);
    }
}

void ModelPriceGrid::ShowTexts(Line& line, FieldKind edited, bool mark) {
    const QScopedValueRollback<bool> showing(showing_, true);
    for (int i = 0; i < ModelPriceLine::ColumnCount; ++i) {
        TextField* field = line.fields[static_cast<std::size_t>(i)];
        const QString text = QString::fromStdString(line.prices.Text(static_cast<FieldKind>(i)));
        const bool fresh = mark && static_cast<FieldKind>(i) != edited && field->text() != text;
        field->ShowText(text);
        if (fresh) field->MarkFresh();
    }
}

void ModelPriceGrid::Commit(Line& line, FieldKind column) {
    const bool changed = line.prices.Commit(column);
    if (changed) State().ProjectChanged = true;
    ShowTexts(line, column, changed);
}

}  // namespace tendo
