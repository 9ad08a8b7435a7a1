#include "materials/screens/takeoff_grid.h"

#include <QGridLayout>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QScopedValueRollback>
#include <QWheelEvent>
#include <iterator>

#include "platform/qt/enhanced_input.h"
#include "platform/qt/form.h"
#include "platform/qt/theme.h"

namespace tendo {
namespace {

using Field = TakeoffField;

struct FieldPlan {
    Field field;
    const char* name;
    const char* spoken;
    EntryKind kind;
    int width;
    int column;
    const char* range = "";
    const char* unit = "";
};
constexpr const char* percentRange = "-999.9 to 999.9";
// In the order of the eye, which is the order of the tab key. Accessory and tax stand between.
constexpr FieldPlan plans[] = {
    {Field::ItemQty, "txtItemQty", "Quantity", EntryKind::Text, 5, 0, "0 to 32,767",
     "pieces; arithmetic is understood: 2*7"},
    {Field::ItemDesc, "txtItemDesc", "Description", EntryKind::Label, 17, 1},
    {Field::PartNum, "txtPartNum", "Part number", EntryKind::Label, 17, 1},
    {Field::Category, "txtCategory", "Category", EntryKind::Label, 9, 2},
    {Field::UnitCost, "txtUnitCost", "Unit cost", EntryKind::Figure, 9, 5},
    {Field::QtyCost, "txtQtyCost", "Cost of the line", EntryKind::Figure, 11, 6},
    {Field::GrossMargin, "txtGrossMargin", "Gross margin", EntryKind::Percent, 6, 7, percentRange,
     "percent of the price"},
    {Field::PriceMarkup, "txtPriceMarkup", "Price markup", EntryKind::Percent, 6, 8, percentRange,
     "percent of the cost"},
    {Field::ListDiscount, "txtListDiscount", "List discount", EntryKind::Percent, 6, 9,
     percentRange, "percent of the list price"},
    {Field::SalePrice, "txtSalePrice", "Sale price of the line", EntryKind::Money, 11, 10,
     "0.00 to 9,999,999.99", "dollars for the whole line"},
};
constexpr int accessoryColumn = 3, taxColumn = 4, scrollColumn = 11;
constexpr int accessoryAfter = 3;  // marks are made behind this plan, so that the tab key fits

struct HeadPlan {
    int column;
    const char* text;
    bool right;
    const char* helpName = nullptr;
    TakeoffHelp help = {};
};
constexpr HeadPlan heads[] = {
    {0, "Qty", true, "btnQuantityHelp", TakeoffHelp::Quantity},
    {1, "Description", false},
    {2, "Category", false},
    {accessoryColumn, "Acc.", false, "btnAccessoryHelp", TakeoffHelp::Accessory},
    {taxColumn, "Tax", false, "btnTaxHelp", TakeoffHelp::Tax},
    {5, "Unit cost", true},
    {6, "Cost", true},
    {7, "Margin %", true},
    {8, "Markup %", true},
    {9, "Discount %", true},
    {10, "Sale price", true},
};

QString ElementName(const char* name, int row) {
    return QString("%1(%2)").arg(name).arg(row);
}

/// What may stand in a quantity: a number or a simple expression.
bool QuantityKeyAllowed(QChar key) {
    return key.isDigit() || QStringLiteral("+-*/(). ,").contains(key);
}

std::size_t At(Field field) {
    return static_cast<std::size_t>(field);
}

}  // namespace

TakeoffGrid::TakeoffGrid(Takeoff& takeoff, QWidget* parent) : QWidget(parent), takeoff_(takeoff) {
    auto* grid = new QGridLayout(this);
    grid->setContentsMargins(0, 0, 0, 0);
    grid->setHorizontalSpacing(6);
    grid->setVerticalSpacing(3);
    grid->setColumnStretch(1, 3);
    grid->setColumnStretch(2, 2);
    AddHeads(grid);
    for (int row = 0; row < Rows; ++row)
        AddRow(grid, row);
    AddScrollBar(grid);
    takeoff_.PageFilled = [this] { ShowPage(); };
    ShowPartNumbers(false);
    ShowPage();
}

TakeoffGrid::~TakeoffGrid() {
    takeoff_.PageFilled = {};
}

void TakeoffGrid::AddHeads(QGridLayout* grid) {
    for (const HeadPlan& head : heads) {
        auto* box = new QHBoxLayout;
        box->setSpacing(4);
        auto* label = MakeHeading(head.text, this);
        if (head.column == 1) label->setObjectName("lblText");
        box->addWidget(label);
        if (head.helpName) {
            auto* button = MakeHelpButton(
                head.helpName, QString("Help on %1").arg(QString(head.text).toLower()), this);
            button->setFocusPolicy(Qt::NoFocus);
            connect(button, &QToolButton::clicked, this,
                    [this, help = head.help] { WantHelp(takeoff_.CurrentRow(), help); });
            box->addWidget(button);
        }
        grid->addLayout(box, 0, head.column, head.right ? Qt::AlignRight : Qt::AlignLeft);
    }
}

void TakeoffGrid::AddRow(QGridLayout* grid, int row) {
    RowWidgets& widgets = Row(row);
    for (int i = 0; i < static_cast<int>(std::size(plans)); ++i) {
        widgets.fields[At(plans[i].field)] = AddField(row, i);
        grid->addWidget(widgets.fields[At(plans[i].field)], row + 1, plans[i].column);
        if (i != accessoryAfter) continue;
        widgets.accessory = AddMark(row, "chkAccessory");
        widgets.tax = AddMark(row, "chkTax");
        grid->addWidget(widgets.accessory, row + 1, accessoryColumn, Qt::AlignCenter);
        grid->addWidget(widgets.tax, row + 1, taxColumn, Qt::AlignCenter);
    }
    connect(widgets.accessory, &QCheckBox::clicked, this,
            [this, row](bool on) { AccessoryClicked(row, on); });
    connect(widgets.tax, &QCheckBox::clicked, this, [this, row](bool on) { TaxClicked(row, on); });
    ChainRow(row);
}

TextField* TakeoffGrid::AddField(int row, int number) {
    const FieldPlan& plan = plans[number];
    const QByteArray name = ElementName(plan.name, row).toUtf8();
    auto* field = new TextField(FieldSpec{.name = name.constData(),
                                          .label = "",
                                          .kind = plan.kind,
                                          .width = plan.width,
                                          .range = plan.range,
                                          .unit = plan.unit},
                                this);
    const Field which = plan.field;
    // Room that is left over goes to the texts.
    if (plan.kind != EntryKind::Label) field->setMaximumWidth(field->minimumWidth() * 5 / 4);
    if (which == Field::ItemQty) {
        field->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
        field->KeyFilter = [](QChar key, const QString&) { return QuantityKeyAllowed(key); };
    }
    connect(field, &TextField::textChanged, this,
            [this, row, which](const QString& text) { TextTyped(row, which, text); });
    connect(field, &TextField::Committed, this, [this, row, which] { FieldLeft(row, which); });
    connect(field, &TextField::HelpWanted, this,
            [this, row, which] { WantHelp(row, HelpOf(which)); });
    field->installEventFilter(this);
    return field;
}

QCheckBox* TakeoffGrid::AddMark(int row, const char* name) {
    auto* mark = new QCheckBox(this);
    mark->setObjectName(ElementName(name, row));
    mark->installEventFilter(this);
    return mark;
}

/// Left and Right lead from field to field of a row; the other keys are the page's.
void TakeoffGrid::ChainRow(int row) {
    std::vector<EnhancedInput*> chain;
    for (const FieldPlan& plan : plans) {
        if (plan.kind == EntryKind::Label || plan.kind == EntryKind::Figure) continue;
        chain.push_back(new EnhancedInput(Row(row).fields[At(plan.field)]));
        if (plan.field != Field::ItemQty) continue;
        chain.push_back(new EnhancedInput(Row(row).accessory));
        chain.push_back(new EnhancedInput(Row(row).tax));
    }
    ChainFields(chain);
    // Filters run from the last one: the page's keys come before the chain's.
    for (const EnhancedInput* input : chain) {
        input->OwnerControl()->removeEventFilter(this);
        input->OwnerControl()->installEventFilter(this);
    }
}

void TakeoffGrid::AddScrollBar(QGridLayout* grid) {
    scrollBar_ = new QScrollBar(Qt::Vertical, this);
    scrollBar_->setObjectName("vscPage");
    scrollBar_->setAccessibleName("Rows of the takeoff");
    scrollBar_->setPageStep(Rows);
    scrollBar_->setFocusPolicy(Qt::NoFocus);
    grid->addWidget(scrollBar_, 1, scrollColumn, Rows, 1);
    connect(scrollBar_, &QScrollBar::valueChanged, this, &TakeoffGrid::ScrollBarMoved);
}

int TakeoffGrid::RowOf(const QObject* widget) const {
    for (int row = 0; row < Rows; ++row) {
        const RowWidgets& widgets = rows_.at(static_cast<std::size_t>(row));
        if (widget == widgets.accessory || widget == widgets.tax) return row;
        for (const TextField* field : widgets.fields)
            if (widget == field) return row;
    }
    return -1;
}

void TakeoffGrid::ShowPage() {
    for (int row = 0; row < Rows; ++row) {
        ShowLine(row);
        // What the last edit changed stands elsewhere now, or nowhere.
        for (TextField* field : Row(row).fields)
            SetStyleFlag(field, "fresh", false);
    }
    const QScopedValueRollback filling(filling_, true);
    scrollBar_->setRange(0, takeoff_.ScrollRange());
    scrollBar_->setValue(takeoff_.Top());
    Q_EMIT Changed();
}

void TakeoffGrid::ShowLine(int row) {
    const QScopedValueRollback filling(filling_, true);
    const TakeoffLine& line = takeoff_.Line(row);
    RowWidgets& widgets = Row(row);
    for (int i = 0; i < TakeoffFieldCount; ++i) {
        TextField* field = widgets.fields.at(static_cast<std::size_t>(i));
        field->ShowText(QString::fromStdString(line.Text(static_cast<Field>(i))));
        field->setEnabled(!line.IsBlank());
    }
    widgets.accessory->setChecked(line.Accessory());
    widgets.tax->setChecked(line.Tax());
    widgets.accessory->setVisible(!line.IsBlank());
    widgets.tax->setVisible(!line.IsBlank());
    ShowColors(row);
    ShowNames(row);
}

/// What the fields are called: the status bar tells which material a figure belongs to.
void TakeoffGrid::ShowNames(int row) {
    const QString material = QString::fromStdString(takeoff_.Line(row).Text(Field::ItemDesc));
    const QString place = QString(", row %1: %2").arg(row + 1).arg(material);
    for (const FieldPlan& plan : plans)
        Row(row).fields[At(plan.field)]->setAccessibleName(plan.spoken + place);
    Row(row).accessory->setAccessibleName("Accessory" + place);
    Row(row).tax->setAccessibleName("Taxable" + place);
}

/// A row without a quantity steps back, an accessory stands out.
void TakeoffGrid::ShowColors(int row) {
    const TakeoffLine& line = takeoff_.Line(row);
    for (TextField* field : Row(row).fields) {
        SetStyleFlag(field, "vacant", line.IsBlank());
        SetStyleFlag(field, "idle", !line.IsBlank() && !line.HasQuantity());
        SetStyleFlag(field, "accessory", line.Accessory() && line.HasQuantity());
    }
}

void TakeoffGrid::ShowPartNumbers(bool shown) {
    partNumbers_ = shown;
    findChild<QLabel*>("lblText")->setText(shown ? "Part number" : "Description");
    for (RowWidgets& widgets : rows_) {
        widgets.fields[At(Field::ItemDesc)]->setVisible(!shown);
        widgets.fields[At(Field::PartNum)]->setVisible(shown);
    }
    ShowPage();
}

void TakeoffGrid::TextTyped(int row, Field field, const QString& text) {
    if (filling_) return;
    TakeoffLine& line = takeoff_.Line(row);
    line.SetText(field, text.toStdString());
    const QScopedValueRollback filling(filling_, true);
    Row(row).tax->setChecked(line.Tax());
    ShowColors(row);
}

void TakeoffGrid::FieldLeft(int row, Field field) {
    if (filling_) return;
    std::array<QString, TakeoffFieldCount> before;
    for (std::size_t i = 0; i < before.size(); ++i)
        before[i] = Row(row).fields[i]->text();
    const bool changed = takeoff_.Leave(row, field);
    ShowLine(row);
    if (!changed) return;
    for (std::size_t i = 0; i < before.size(); ++i)
        if (i != At(field) && Row(row).fields[i]->text() != before[i])
            Row(row).fields[i]->MarkFresh();
    Q_EMIT Changed();
}

void TakeoffGrid::AccessoryClicked(int row, bool on) {
    takeoff_.Line(row).SetAccessory(on);
    takeoff_.Store();
    ShowLine(row);  // without a quantity the click has no effect
    Q_EMIT Changed();
}

void TakeoffGrid::TaxClicked(int row, bool on) {
    takeoff_.Line(row).SetTax(on);
    takeoff_.Store();
    ShowLine(row);
    Q_EMIT Changed();
}

void TakeoffGrid::WantHelp(int row, TakeoffHelp help) {
    Form::CommitFocusedField();
    const TakeoffLine& line = takeoff_.Line(row);
    if (line.IsBlank()) return;
    bool accessory = line.Accessory();
    bool tax = line.Tax();
    if (!ShowTakeoffHelp(help, line, accessory, tax)) return;
    AccessoryClicked(row, accessory);
    TaxClicked(row, tax);
}

void TakeoffGrid::FocusCurrentRow() {
    TextField* field = Row(takeoff_.CurrentRow()).fields[At(Field::ItemQty)];
    field->setFocus(Qt::OtherFocusReason);
    field->selectAll();
}

void TakeoffGrid::ScrollBarMoved(int top) {
    if (filling_) return;
    Form::CommitFocusedField();
    takeoff_.ScrollTo(top);
}

bool TakeoffGrid::eventFilter(QObject* watched, QEvent* event) {
    auto* widget = qobject_cast<QWidget*>(watched);
    if (event->type() == QEvent::FocusIn) {
        takeoff_.SetCurrentRow(RowOf(watched));
    } else if (event->type() == QEvent::KeyPress && widget) {
        return KeyMoves(widget, static_cast<QKeyEvent&>(*event));
    }
    return false;
}

bool TakeoffGrid::KeyMoves(QWidget* from, const QKeyEvent& event) {
    const auto modifiers = event.modifiers() & ~Qt::KeypadModifier;
    const auto move = [&](const std::function<void()>& step) {
        MoveFrom(from, step);
        return true;
    };
    if (modifiers == Qt::ControlModifier) {
        if (event.key() == Qt::Key_Home) return move([this] { takeoff_.GoTo(0); });
        if (event.key() == Qt::Key_End)
            return move([this] { takeoff_.GoTo(takeoff_.Count() - 1); });
        return false;
    }
    if (modifiers != Qt::NoModifier) return false;
    switch (event.key()) {
        case Qt::Key_Up:
            return move([this] { takeoff_.Step(-1); });
        case Qt::Key_Down:
        case Qt::Key_Return:
        case Qt::Key_Enter:
            return move([this] { takeoff_.Step(1); });
        case Qt::Key_PageUp:
            return move([this] { takeoff_.TurnPage(-1); });
        case Qt::Key_PageDown:
            return move([this] { takeoff_.TurnPage(1); });
        case Qt::Key_F1: {
            const RowWidgets& widgets = Row(RowOf(from));
            if (from == widgets.accessory)
                WantHelp(RowOf(from), TakeoffHelp::Accessory);
            else if (from == widgets.tax)
                WantHelp(RowOf(from), TakeoffHelp::Tax);
            return from == widgets.accessory || from == widgets.tax;
        }
        default:
            return false;
    }
}

/// Moves through the rows; the focus stays in its column.
void TakeoffGrid::MoveFrom(QWidget* from, const std::function<void()>& move) {
    const QString column = from->objectName().section('(', 0, 0);
    Form::CommitFocusedField();
    move();
    auto* target =
        findChild<QWidget*>(ElementName(column.toUtf8().constData(), takeoff_.CurrentRow()));
    if (!target) return;
    target->setFocus(Qt::OtherFocusReason);
    if (auto* field = qobject_cast<QLineEdit*>(target)) field->selectAll();
}

void TakeoffGrid::wheelEvent(QWheelEvent* event) {
    constexpr int notch = 120, rowsANotch = 3;
    wheel_ += event->angleDelta().y();
    const int notches = wheel_ / notch;
    wheel_ -= notches * notch;
    event->accept();
    if (notches == 0) return;
    Form::CommitFocusedField();
    takeoff_.ScrollTo(takeoff_.Top() - notches * rowsANotch);
}

}  // namespace tendo
