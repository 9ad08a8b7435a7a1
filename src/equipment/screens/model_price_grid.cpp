#include "equipment/screens/model_price_grid.h"

#include <QGridLayout>
#include <QScopedValueRollback>
#include <QToolButton>
#include <algorithm>

#include "platform/qt/fields.h"
#include "platform/qt/form.h"
#include "pricing/screens/price_entry.h"
#include "pricing/screens/price_help.h"
#include "pricing/screens/why_popup.h"
#include "project/program_state.h"

namespace tendo {
namespace {

constexpr const char* moneyRange = "0.00 to 9,999,999.99";
constexpr const char* percentRange = "-999.9 to 999.9";
constexpr int headingMargin = 13;  // puts a heading above the right edge of its figures

struct Column {
    const char* heading;
    EntryKind kind;
    const char* range;
    const char* unit;
    const char* helpButton;
    PriceHelp help;
};
constexpr Column columns[ModelPriceLine::ColumnCount] = {
    {"Dealer cost",
     EntryKind::Money,
     moneyRange,
     "dollars for all units",
     "btnHelpDealerCost",
     {"Dealer Cost", "What all units of this model cost you together.",
      "Please Enter Dealer Cost:"}},
    {"Override",
     EntryKind::Money,
     moneyRange,
     "dollars for all units",
     "btnHelpDealerOverride",
     {"Dealer Override",
      "A cost that takes the place of the dealer cost, for all units together. Enter 0 to go back "
      "to the dealer cost.",
      "Please Enter Dealer Override:"}},
    {"Gross margin %",
     EntryKind::Percent,
     percentRange,
     "percent",
     "btnHelpGrossMargin",
     {"Gross Margin",
      "The part of the sale price that is left over the cost, in percent of the sale price. The "
      "sale price follows from it.",
      "Please Enter Gross Margin:"}},
    {"Price markup %",
     EntryKind::Percent,
     percentRange,
     "percent",
     "btnHelpPriceMarkup",
     {"Price Markup",
      "What is put on the cost, in percent of the cost. The sale price follows from it.",
      "Please Enter Price Markup:"}},
    {"List discount %",
     EntryKind::Percent,
     percentRange,
     "percent",
     "btnHelpListDiscount",
     {"List Discount",
      "What the customer is let off the model's list price, in percent of it. The sale price "
      "follows from it.",
      "Please Enter List Discount:"}},
    {"Sale price",
     EntryKind::Money,
     moneyRange,
     "dollars for one unit",
     "btnHelpSalePrice",
     {"Sale Price",
      "The price of one unit. Margin, markup and discount follow from it. The project's price "
      "table takes the list prices when this screen is closed.",
      "Please Enter Sale Price:"}}};

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
        auto* heading = new QHBoxLayout;
        heading->setContentsMargins(0, 0, headingMargin, 0);
        heading->setSpacing(5);
        const QString about = QString("What is the %1?").arg(QString(column.help.title).toLower());
        QToolButton* help = MakeHelpButton(column.helpButton, about, this);
        help->setFocusPolicy(Qt::NoFocus);  // the field in focus tells the model; F1 does the same
        connect(help, &QToolButton::clicked, this,
                [this, kind = static_cast<FieldKind>(at)] { WantColumnHelp(kind); });
        heading->addStretch();
        heading->addWidget(help);
        heading->addWidget(MakeHeading(column.heading, this));
        grid->addLayout(heading, 0, ++at);
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
        connect(field, &TextField::HelpWanted, this, [this, &line, kind] { WantHelp(line, kind); });
        connect(field, &TextField::WhyWanted, this, [this, &line, kind] { WantWhy(line, kind); });
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

void ModelPriceGrid::WantHelp(const Line& line, FieldKind column) {
    Form::CommitFocusedField();
    TextField* field = line.fields[static_cast<std::size_t>(column)];
    const auto text = AskWithHelp(columns[static_cast<std::size_t>(column)].help,
                                  line.prices.Why(column), field->text().toStdString());
    if (text) EnterText(field, QString::fromStdString(*text));
}

void ModelPriceGrid::WantWhy(const Line& line, FieldKind column) {
    Form::CommitFocusedField();
    WhyPopup::ShowAt(line.fields[static_cast<std::size_t>(column)], line.prices.Why(column));
}

/// A column's help mark asks for the model whose line holds the focus, without one for cooling.
void ModelPriceGrid::WantColumnHelp(FieldKind column) {
    const auto inFocus = [](const Line& line) {
        return std::any_of(line.fields.begin(), line.fields.end(),
                           [](const TextField* field) { return field->hasFocus(); });
    };
    const auto line = std::find_if(lines_.begin(), lines_.end(), inFocus);
    WantHelp(line == lines_.end() ? lines_.front() : *line, column);
}

}  // namespace tendo
