#include "materials/screens/labor_rows.h"

#include <QGridLayout>
#include <QLabel>
#include <QScopedValueRollback>
#include <algorithm>

#include "materials/screens/labor_columns.h"
#include "platform/qt/dialogs.h"
#include "platform/qt/enhanced_input.h"
#include "platform/qt/theme.h"
#include "platform/text/number_text.h"
#include "project/screens/frm_help_info.h"

namespace tendo {
namespace {

constexpr int fieldPadding = 26;   // borders, padding and the caret
constexpr int headingMargin = 11;  // puts a heading above the text of its fields

std::size_t Index(LaborField field) {
    return static_cast<std::size_t>(field);
}

bool IsText(const LaborColumn& column) {
    return column.kind == EntryKind::Text;
}

}  // namespace

LaborRows::LaborRows(LaborPage& page, QWidget* parent) : QWidget(parent), page_(page) {
    auto* grid = new QGridLayout(this);
    grid->setContentsMargins(0, 0, 0, 0);
    grid->setHorizontalSpacing(6);
    grid->setVerticalSpacing(5);
    AddHeadings(grid);
    for (int line = 0; line < LaborLineCount; ++line)
        AddLine(grid, line);
    AddSums(grid);
    ChainLines();
    page_.TextChanged = [this](int line, LaborField field) { TextChanged(line, field); };
    page_.ShowMessage = [](const std::string& title, const std::string& text) {
        tendo::ShowMessage(title, text, MessageIcon::Warning);
    };
    ShowSums();
}

/// The entry lines are about to go.
LaborRows::~LaborRows() {
    page_.TextChanged = {};
}

TextField* LaborRows::At(int line, LaborField field) const {
    return fields_.at(static_cast<std::size_t>(line))[Index(field)];
}

void LaborRows::AddHeadings(QGridLayout* grid) {
    int at = 1;
    for (const LaborColumn& column : LaborColumns()) {
        auto* heading = new QHBoxLayout;
        heading->setContentsMargins(headingMargin, 0, headingMargin, 0);
        heading->setSpacing(5);
        QToolButton* help = MakeHelpButton(
            column.helpButton, QString("About the %1").arg(QString(column.spoken).toLower()), this);
        help->setFocusPolicy(Qt::NoFocus);  // the field in focus tells the line; F1 does the same
        connect(help, &QToolButton::clicked, this, [this, &column] { WantColumnHelp(column); });
        if (!IsText(column)) heading->addStretch();
        heading->addWidget(help);
        heading->addWidget(MakeHeading(column.heading, this));
        if (IsText(column)) heading->addStretch();
        headingWidths_[Index(column.field)] = heading->sizeHint().width();
        grid->addLayout(heading, 0, at);
        grid->setColumnStretch(at++, IsText(column) ? 1 : 0);
    }
}

void LaborRows::AddLine(QGridLayout* grid, int line) {
    int at = 1;
    for (const LaborColumn& column : LaborColumns())
        grid->addWidget(AddField(line, column), line + 1, at++);
    auto* number = MakeLabel(QString::number(line + 1), At(line, LaborField::QtyHrs), this);
    number->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    grid->addWidget(number, line + 1, 0);
}

TextField* LaborRows::AddField(int line, const LaborColumn& column) {
    const QByteArray name = QString("%1(%2)").arg(Describe(column.field).name).arg(line).toUtf8();
    const QByteArray spoken = QString("%1 of line %2").arg(column.spoken).arg(line + 1).toUtf8();
    auto* entry = new TextField(FieldSpec{.name = name.constData(),
                                          .label = "",
                                          .kind = column.kind,
                                          .range = column.range,
                                          .unit = column.unit,
                                          .accessibleName = spoken.constData()},
                                this);
    if (column.field == LaborField::QtyHrs) entry->KeyFilter = {};  // arithmetic has its own keys
    const int width = entry->fontMetrics().horizontalAdvance(column.widest) + fieldPadding;
    entry->setMinimumWidth(std::max(width, headingWidths_[Index(column.field)]));
    if (!IsText(column)) entry->setMaximumWidth(entry->minimumWidth());
    fields_[static_cast<std::size_t>(line)][Index(column.field)] = entry;
    const LaborField field = column.field;
    connect(entry, &QLineEdit::textChanged, this, [this, line, field](const QString& text) {
        page_.SetText(line, field, text.toStdString());
    });
    connect(entry, &QLineEdit::textEdited, this, [this] { Q_EMIT Edited(); });
    connect(entry, &TextField::Committed, this, [this, line, field] { Commit(line, field); });
    connect(entry, &TextField::HelpWanted, this, [this, line, &column] { WantHelp(line, column); });
    return entry;
}

void LaborRows::AddSums(QGridLayout* grid) {
    constexpr int row = LaborLineCount + 1;
    const auto sum = [&](const char* name, LaborField field) {
        auto* label = new QLabel(this);
        label->setObjectName(name);
        label->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
        label->setContentsMargins(0, 4, headingMargin, 0);
        QFont bold = label->font();
        bold.setBold(true);
        label->setFont(bold);
        grid->addWidget(label, row, static_cast<int>(Index(field)) + 1);
        return label;
    };
    lblCostSum_ = sum("lblCostSum", LaborField::LaborCost);
    lblPriceSum_ = sum("lblPriceSum", LaborField::LaborPrice);
    auto* caption = MakeLabel("Sum of all lines", nullptr, this);
    caption->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    caption->setContentsMargins(0, 4, 0, 0);
    grid->addWidget(caption, row, static_cast<int>(Index(LaborField::LaborPerHour)), 1, 2);
}

/// Left, Right and Return lead along the lines; Up and Down within a column.
void LaborRows::ChainLines() {
    std::vector<EnhancedInput*> inputs;
    for (int line = 0; line < LaborLineCount; ++line)
        for (const LaborColumn& column : LaborColumns())
            if (auto validator = ValidatorOf(column))
                inputs.push_back(new EnhancedInput(At(line, column.field), validator));
    ChainFields(inputs);
}

void LaborRows::TextChanged(int line, LaborField field) {
    TextField* entry = At(line, field);
    entry->ShowText(QString::fromStdString(page_.Text(line, field)));
    if (committed_ && committed_ != entry) entry->MarkFresh();
    if (field == LaborField::LaborCost || field == LaborField::LaborPrice) ShowSums();
}

void LaborRows::Commit(int line, LaborField field) {
    const QScopedValueRollback<const TextField*> running(committed_, At(line, field));
    page_.Commit(line, field);
    TextField* entry = At(line, field);
    if (!entry->hasFocus()) entry->setCursorPosition(0);
}

void LaborRows::WantHelp(int line, const LaborColumn& column) {
    HelpInfo info{.title = column.helpTitle, .text = column.helpText};
    if (column.prompt) {
        info.amountCaption = column.prompt;
        info.amount = page_.Text(line, column.field);
    }
    if (!ShowHelpInfo(info) || !column.prompt) return;
    TextField* entry = At(line, column.field);
    if (entry->text().toStdString() == info.amount) return;
    entry->ShowText(QString::fromStdString(info.amount));
    Q_EMIT Edited();
    entry->Commit();
}

/// For the line that holds the focus, without one for the first.
void LaborRows::WantColumnHelp(const LaborColumn& column) {
    int line = 0;
    for (int i = 0; i < LaborLineCount; ++i)
        for (const TextField* entry : fields_[static_cast<std::size_t>(i)])
            if (entry->hasFocus()) line = i;
    WantHelp(line, column);
}

void LaborRows::ShowSums() {
    const auto show = [this](QLabel* label, LaborField field) {
        double sum = 0;
        for (int line = 0; line < LaborLineCount; ++line)
            sum += static_cast<double>(page_.Value(line, field));
        label->setText(QString::fromStdString(FormatNumber(sum, MoneyPicture)));
        SetStyleFlag(label, "negative", sum < 0);
    };
    show(lblCostSum_, LaborField::LaborCost);
    show(lblPriceSum_, LaborField::LaborPrice);
}

}  // namespace tendo
