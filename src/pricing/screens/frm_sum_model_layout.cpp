#include <QCheckBox>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QToolButton>
#include <QVBoxLayout>
#include <algorithm>

#include "platform/qt/dialogs.h"
#include "platform/qt/enhanced_input.h"
#include "platform/qt/theme.h"
#include "pricing/screens/frm_sum_model_data.h"
#include "pricing/screens/scroll_column.h"
#include "pricing/screens/system_cards.h"

namespace tendo {
namespace {

constexpr int fieldPadding = 9;    // between a field's edge and its text
constexpr int headingMargin = 13;  // puts a heading above the right edge of its figures
constexpr int labelColumn = 0;
constexpr const char* widestMoney = "$9,999,999.99";

struct Column {
    FieldKind kind;
    const char* heading;
    const char* spoken;
    const char* helpButton;
};
constexpr Column columns[] = {
    {FieldKind::DealerCost, "Dealer cost", "Dealer cost", "btnHelpDealerCost"},
    {FieldKind::DealerOverride, "Override", "Override", "btnHelpDealerOverride"},
    {FieldKind::GrossMargin, "Gross margin %", "Gross margin", "btnHelpGrossMargin"},
    {FieldKind::PriceMarkup, "Price markup %", "Price markup", "btnHelpPriceMarkup"},
    {FieldKind::ListDiscount, "List discount %", "List discount", "btnHelpListDiscount"},
    {FieldKind::SalePrice, "Sale price", "Sale price", "btnHelpSalePrice"},
};

/// lblLabor carries its text from the project, without a mnemonic.
struct Row {
    int priceRow;
    const char* labelName;
    const char* label;
};
constexpr Row rows[] = {
    {price_row::Model, "lblModel", "&Models:"},
    {price_row::TaxMat, "lblTaxMat", "Taxa&ble materials:"},
    {price_row::NonTax, "lblNonTax", "&Non-taxable materials:"},
    {price_row::Labor, "lblLabor", "Labor (taxable):"},
};

/// Rows of the grid: the headings, the four rows, then these.
constexpr int subTotalRow = 5, taxRow = 6, totalRow = 7;

struct Single {
    TableField field;
    int row, column;
};
constexpr Single singles[] = {
    {TableField::SubTotalSalePrice, subTotalRow, 6}, {TableField::TaxDealerCost, taxRow, 1},
    {TableField::TaxDealerOverride, taxRow, 2},      {TableField::TaxSalePrice, taxRow, 6},
    {TableField::TotalDealerCost, totalRow, 1},      {TableField::TotalDealerOverride, totalRow, 2},
    {TableField::TotalGrossMargin, totalRow, 3},     {TableField::TotalSalePrice, totalRow, 6},
};

/// A computed figure without a box of its own; still marked when it is fresh. One that outgrows its
/// room is shown smaller.
void MakePlainFigure(TextField* field) {
    FitText(field, widestMoney);
    field->setMaximumWidth(field->minimumWidth());
    SetStyleFlag(field, "plain", true);
    (new EnhancedInput(field))->SetAdjustFontForBigNumbers(true);
}

}  // namespace

frmSumModelData::frmSumModelData()
    : Form("frmSumModelData", "Summary Model Data", Place::Child, "frmSumModelData"),
      column_(MakeScrollColumn(this)),
      content_(column_->parentWidget()) {
    cards_ = new SystemCards(content_);
    connect(cards_, &SystemCards::Chosen, this, &frmSumModelData::GoToSystem);
    column_->addWidget(cards_);
    prices_ = new QHBoxLayout;
    prices_->setSpacing(24);
    prices_->addWidget(MakePrices(), 1);
    prices_->addWidget(MakeEarnings());
    column_->addLayout(prices_);
    column_->addWidget(MakeModels());
    column_->addWidget(MakeScreenButtons());
    column_->addStretch();
    PassFocusOn();
    setFocusProxy(fields_.At(TableField::ModelDealerOverride));
    table_.ShowMessage = [](const std::string& title, const std::string& text) {
        tendo::ShowMessage(title, text, MessageIcon::Warning);
    };
    connect(&fields_, &BoundFields::Recalculated, this, &frmSumModelData::ShowAfterEdit);
    connect(&fields_, &BoundFields::HelpWanted, this,
            [this](int field) { WantHelp(static_cast<TableField>(field)); });
    connect(&fields_, &BoundFields::WhyWanted, this,
            [this](int field) { WantWhy(static_cast<TableField>(field)); });
    table_.Open();
    SystemMoved();
}

QToolButton* frmSumModelData::MakeHelpMark(const char* name, const char* about,
                                           std::vector<TableField> fields, QWidget* parent) {
    QToolButton* help = MakeHelpButton(name, about, parent);
    help->setFocusPolicy(Qt::NoFocus);  // the field in focus is asked about; F1 does the same
    connect(help, &QToolButton::clicked, this, [this, fields = std::move(fields)] {
        const auto focused =
            std::find(fields.begin(), fields.end(), fields_.Focused().value_or(fields.front()));
        WantHelp(focused == fields.end() ? fields.front() : *focused);
    });
    return help;
}

QWidget* frmSumModelData::MakePrices() {
    auto* box = new QWidget(content_);
    auto* column = new QVBoxLayout(box);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(4);
    auto* head = new QHBoxLayout;
    auto* why = new QPushButton("Why this price?", box);
    why->setObjectName("btnWhy");
    why->setProperty("link", true);
    why->setToolTip("Where the figure in focus comes from (Shift+F1)");
    why->setFocusPolicy(Qt::NoFocus);
    connect(why, &QPushButton::clicked, this, &frmSumModelData::WantWhyInFocus);
    head->addWidget(MakeHeading("Price of the project, all systems", box), 0, Qt::AlignTop);
    head->addStretch();
    head->addWidget(why);
    column->addLayout(head);
    auto* grid = new QGridLayout;
    grid->setHorizontalSpacing(8);
    grid->setVerticalSpacing(6);
    const int money = box->fontMetrics().horizontalAdvance(widestMoney) + 2 * fieldPadding + 4;
    for (int i = 1; i <= static_cast<int>(std::size(columns)); ++i) {
        grid->setColumnMinimumWidth(i, money);
        grid->setColumnStretch(i, 1);
    }
    AddHeadings(grid, box);
    AddPriceRows(grid, box);
    AddTotals(grid, box);
    column->addLayout(grid);
    column->addStretch();
    return box;
}

void frmSumModelData::AddHeadings(QGridLayout* grid, QWidget* parent) {
    int at = labelColumn;
    for (const Column& column : columns) {
        auto* heading = new QHBoxLayout;
        heading->setContentsMargins(0, 0, headingMargin, 0);
        heading->setSpacing(5);
        const QString about = QString("What is the %1?").arg(QString(column.spoken).toLower());
        QToolButton* help = MakeHelpButton(column.helpButton, about, parent);
        help->setFocusPolicy(Qt::NoFocus);  // the field in focus tells the row; F1 does the same
        connect(help, &QToolButton::clicked, this,
                [this, kind = column.kind] { WantColumnHelp(kind); });
        heading->addStretch();
        heading->addWidget(help);
        heading->addWidget(MakeHeading(column.heading, parent));
        grid->addLayout(heading, 0, ++at);
    }
}

void frmSumModelData::AddPriceRows(QGridLayout* grid, QWidget* parent) {
    for (const Row& row : rows) {
        auto* label = new QLabel(row.label, parent);
        label->setObjectName(row.labelName);
        grid->addWidget(label, row.priceRow, labelColumn);
        int at = labelColumn;
        for (const Column& column : columns) {
            grid->addWidget(fields_.Add(RowField(row.priceRow, column.kind), parent), row.priceRow,
                            ++at);
        }
        label->setBuddy(fields_.At(RowField(row.priceRow, FieldKind::DealerOverride)));
        if (row.priceRow == price_row::Labor) lblLabor_ = label;
    }
}

QWidget* frmSumModelData::MakeTaxLabel(QWidget* parent) {
    auto* box = new QWidget(parent);
    auto* row = new QHBoxLayout(box);
    row->setContentsMargins(0, 0, 0, 0);
    row->setSpacing(8);
    TextField* percentage = fields_.Add(TableField::TaxPercentage, box);
    FitText(percentage, "100.00");
    percentage->setMaximumWidth(percentage->minimumWidth());
    auto* label = new QLabel("Ta&x:", box);
    label->setBuddy(percentage);
    row->addWidget(label);
    row->addWidget(percentage);
    row->addWidget(new QLabel("%", box));
    row->addWidget(MakeHelpMark("btnHelpTaxPercentage", "What is the tax percentage?",
                                {TableField::TaxPercentage}, box));
    row->addStretch();
    return box;
}

void frmSumModelData::AddTotals(QGridLayout* grid, QWidget* parent) {
    const auto label = [&](QLabel* text, QToolButton* help, int row) {
        auto* cell = new QHBoxLayout;
        cell->setSpacing(8);
        cell->addWidget(text);
        cell->addWidget(help);
        cell->addStretch();
        grid->addLayout(cell, row, labelColumn);
    };
    label(new QLabel("Sub-total:", parent),
          MakeHelpMark("btnHelpSubTotal", "What is the sub-total?", {TableField::SubTotalSalePrice},
                       parent),
          subTotalRow);
    grid->addWidget(MakeTaxLabel(parent), taxRow, labelColumn);
    auto* total = new QLabel("T&otal:", parent);
    total->setStyleSheet("font-weight: bold");
    label(total,
          MakeHelpMark("btnHelpTotal", "What is the total?",
                       {TableField::TotalSalePrice, TableField::TotalGrossMargin,
                        TableField::TotalDealerCost, TableField::TotalDealerOverride},
                       parent),
          totalRow);
    for (const Single& single : singles) {
        TextField* field = fields_.Add(single.field, parent);
        field->setProperty("strong", single.row == totalRow);
        grid->addWidget(field, single.row, single.column);
    }
    total->setBuddy(fields_.At(TableField::TotalGrossMargin));
}

void frmSumModelData::AddEarning(QVBoxLayout* column, QLabel* label, QWidget* value, QWidget* help,
                                 QWidget* parent) {
    auto* row = new QHBoxLayout;
    row->setContentsMargins(0, 0, 0, 0);
    row->setSpacing(8);
    row->addWidget(label);
    row->addWidget(help);
    row->addStretch();
    row->addWidget(value);
    column->addLayout(row);
    column->addWidget(MakeRule(parent));
}

QWidget* frmSumModelData::MakeEarnings() {
    auto* box = new QWidget(content_);
    auto* column = new QVBoxLayout(box);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(3);
    column->addWidget(MakeHeading("What it earns", box));
    column->addSpacing(4);
    const auto figure = [&](TableField field, const char* help, const char* about) {
        TextField* line = fields_.Add(field, box);
        MakePlainFigure(line);
        QLabel* label = MakeLabel(FieldTitle(field).c_str(), nullptr, box);
        AddEarning(column, label, line, MakeHelpMark(help, about, {field}, box), box);
    };
    figure(TableField::TaxableAmount, "btnHelpTaxableAmount", "What is the taxable amount?");
    lblTax_ = MakeLabel("", nullptr, box);
    taxSum_ =
        new TextField(FieldSpec{.name = "", .label = "Tax amount", .kind = EntryKind::Figure}, box);
    MakePlainFigure(taxSum_);
    AddEarning(column, lblTax_, taxSum_,
               MakeHelpMark("btnHelpTax", "What is the tax?", {TableField::TaxSalePrice}, box),
               box);
    figure(TableField::Profit, "btnHelpProfit", "What is the profit?");
    figure(TableField::SuperProfit, "btnHelpSuperProfit", "What is the extra profit?");
    auto* row = new QHBoxLayout;
    auto* caption = new QLabel("Total", box);
    caption->setFont(TotalFont());
    lblTotal_ = new QLabel(box);
    lblTotal_->setObjectName("lblTotal");
    lblTotal_->setFont(TotalFont());
    lblTotal_->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    // As far from the edge as the text of the figures above is from theirs.
    constexpr int figureInset = 6;
    lblTotal_->setContentsMargins(0, 0, figureInset, 0);
    lblTotal_->setMinimumWidth(QFontMetrics(TotalFont()).horizontalAdvance(widestMoney) +
                               figureInset + 4);
    row->addWidget(caption);
    row->addWidget(lblTotal_, 1);
    column->addSpacing(8);
    column->addLayout(row);
    column->addSpacing(8);
    auto* customer = new QCheckBox("C&ustomer's view", box);
    customer->setObjectName("chkHideInfo");
    connect(customer, &QCheckBox::clicked, this, [this, customer] {
        customer->setChecked(false);
        chkHideInfo_Click();
    });
    column->addWidget(customer);
    column->addStretch();
    return box;
}

/// Costs are computed, so the focus goes on to where they can be overridden.
void frmSumModelData::PassFocusOn() {
    for (const Row& row : rows)
        fields_.PassFocus(RowField(row.priceRow, FieldKind::DealerCost),
                          RowField(row.priceRow, FieldKind::DealerOverride));
    fields_.PassFocus(TableField::TotalDealerCost, TableField::TotalDealerOverride);
    fields_.PassFocus(TableField::TaxDealerCost, TableField::TotalDealerOverride);
    fields_.PassFocus(TableField::TotalDealerOverride, TableField::TotalGrossMargin);
}

}  // namespace tendo
