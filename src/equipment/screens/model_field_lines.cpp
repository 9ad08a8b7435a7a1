#include "equipment/screens/model_field_lines.h"

#include <QGridLayout>
#include <QPlainTextEdit>
#include <QScopedValueRollback>
#include <QToolButton>

#include "platform/qt/dialogs.h"
#include "platform/qt/fields.h"
#include "project/program_state.h"
#include "project/screens/frm_help_info.h"

namespace tendo {
namespace {

constexpr int memoLines = 3;
constexpr const char* pricePrompt = "Please Enter the Model Cost:";  // of cost and price alike

struct Style {
    EntryKind kind;
    const char* range;
    const char* unit;
};

Style StyleOf(const ModelField& field) {
    switch (field.kind) {
        case ModelFieldKind::Number:
            return {EntryKind::Money, "0.00 and up", field.unit};
        case ModelFieldKind::Money:
            return {EntryKind::Money, "0.00 to 9,999,999.99", "dollars"};
        case ModelFieldKind::Quantity:
            return {EntryKind::Count, "0 to 32,767", "units"};
        default:
            return {EntryKind::Text, "", ""};
    }
}

bool HasHelp(const ModelField& field) {
    return !field.choices.empty() || field.kind == ModelFieldKind::Money;
}

/// "Fuel Type" of "Fuel Type:".
QString Spoken(const ModelField& field) {
    return QString(field.label).remove(':');
}

/// What the choices' screen says of a field.
HelpInfo ChoicesOf(const ModelField& field, const std::string& text) {
    HelpInfo info;
    info.title = Spoken(field).toStdString();
    info.text = "Choose what the proposal is to say under \"" + info.title +
                "\". Any other text can be typed into the field itself.";
    for (const char* choice : field.choices) {
        info.options.emplace_back(choice);
        if (text == choice) info.option = static_cast<int>(info.options.size());
    }
    return info;
}

}  // namespace

TextField* ModelFieldLines::At(const QString& name) const {
    for (const Line& line : lines_)
        if (name == QLatin1String(line.field->name)) return line.text;
    return nullptr;
}

void ModelFieldLines::AddColumn(std::span<const ModelField> fields, QGridLayout* grid,
                                QWidget* parent) {
    for (const ModelField& field : fields)
        Add(field, grid, grid->rowCount(), 0, 1, parent);
}

void ModelFieldLines::Add(const ModelField& field, QGridLayout* grid, int row, int column, int span,
                          QWidget* parent) {
    if (field.kind == ModelFieldKind::Memo) {
        QPlainTextEdit* memo = AddMemo(field, parent);
        grid->addWidget(MakeLabel(field.label, memo, parent), row, column, Qt::AlignTop);
        grid->addWidget(memo, row, column + 1, 1, span);
        return;
    }
    TextField* line = AddText(field, parent);
    grid->addWidget(MakeLabel(field.label, line, parent), row, column);
    if (!HasHelp(field)) {
        grid->addWidget(line, row, column + 1, 1, span);
        return;
    }
    const QString about = QString("What can stand under %1?").arg(Spoken(field));
    QToolButton* help = MakeHelpButton(QString(field.name).replace("txt", "btn"), about, parent);
    connect(help, &QToolButton::clicked, this, [this, &field, line] { WantHelp(field, line); });
    auto* both = new QHBoxLayout;
    both->setSpacing(6);
    both->addWidget(line, 1);
    both->addWidget(help);
    grid->addLayout(both, row, column + 1, 1, span);
}

TextField* ModelFieldLines::AddText(const ModelField& field, QWidget* parent) {
    const Style style = StyleOf(field);
    FieldSpec spec{.name = field.name,
                   .label = field.label,
                   .kind = style.kind,
                   .range = style.range,
                   .unit = style.unit};
    if (field.width > 0) spec.maxLength = field.width;
    auto* line = new TextField(spec, parent);
    connect(line, &TextField::Committed, this,
            [this, &field, line] { Commit(field, line->text()); });
    connect(line, &TextField::HelpWanted, this, [this, &field, line] {
        if (HasHelp(field)) WantHelp(field, line);
    });
    lines_.push_back({&field, line});
    return line;
}

QPlainTextEdit* ModelFieldLines::AddMemo(const ModelField& field, QWidget* parent) {
    auto* memo = new QPlainTextEdit(parent);
    memo->setObjectName(field.name);
    memo->setAccessibleName(Spoken(field));
    memo->setTabChangesFocus(true);
    memo->setFixedHeight(memo->fontMetrics().lineSpacing() * memoLines + 20);
    connect(memo, &QPlainTextEdit::textChanged, this,
            [this, &field, memo] { Commit(field, memo->toPlainText()); });
    lines_.push_back({&field, nullptr, memo});
    return memo;
}

void ModelFieldLines::ShowLine(const Line& line) {
    const QString text = QString::fromStdString(line.field->read(Project(), system_));
    const QScopedValueRollback<bool> showing(showing_, true);
    if (line.text)
        line.text->ShowText(text);
    else if (line.memo->toPlainText() != text)
        line.memo->setPlainText(text);
}

void ModelFieldLines::Show(int system) {
    system_ = system;
    for (const Line& line : lines_)
        ShowLine(line);
}

/// A dropped model empties its other fields as well. What stands in a memo stays as it is typed.
void ModelFieldLines::Commit(const ModelField& field, const QString& text) {
    if (showing_) return;
    const bool taken = CommitModelField(field, Project(), system_, text.toStdString());
    if (taken) State().ProjectChanged = true;
    for (const Line& line : lines_)
        if (line.text && (line.field == &field || field.kind == ModelFieldKind::ModelNum))
            ShowLine(line);
        else if (line.memo && field.kind == ModelFieldKind::ModelNum)
            ShowLine(line);
    if (taken) Q_EMIT Taken(&field);
}

void ModelFieldLines::WantHelp(const ModelField& field, TextField* line) {
    const std::string text = line->text().toStdString();
    if (field.kind == ModelFieldKind::Money) {
        const auto typed = Dialogs().Input({Spoken(field).toStdString(), pricePrompt, text});
        if (!typed) return;
        line->ShowText(QString::fromStdString(*typed));
        return line->Commit();
    }
    HelpInfo info = ChoicesOf(field, text);
    if (!ShowHelpInfo(info) || info.option == 0) return;
    line->ShowText(field.choices[static_cast<std::size_t>(info.option - 1)]);
    line->Commit();
}

}  // namespace tendo
