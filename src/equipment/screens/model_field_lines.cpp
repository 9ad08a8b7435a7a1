#include "equipment/screens/model_field_lines.h"

#include <QGridLayout>
#include <QListWidget>
#include <QPlainTextEdit>
#include <QScopedValueRollback>
#include <QToolButton>

#include "equipment/screens/model_field_help.h"
#include "platform/qt/enhanced_input.h"
#include "platform/qt/fields.h"
#include "project/program_state.h"

namespace tendo {
namespace {

constexpr int memoLines = 3;
constexpr int figureWidth = 8;  // characters that a field shows at least
constexpr int shortWidth = 9;   // of two texts side by side
constexpr int textWidth = 20;
constexpr int longTextWidth = 34;  // of descriptions and file names

struct Style {
    EntryKind kind;
    const char* range;
    const char* unit;
    int characters;
};

/// The width of a text that stands alone in its row or shares it.
int TextWidth(const ModelField& field) {
    constexpr int brief = 35;  // characters that such a text has at most
    if (field.choices.size() == 2 || field.beside) return shortWidth;
    return field.width == brief ? textWidth : longTextWidth;
}

Style StyleOf(const ModelField& field) {
    switch (field.kind) {
        case ModelFieldKind::Number:
            return {EntryKind::Money, "0.00 and up", field.unit, figureWidth};
        case ModelFieldKind::Money:
            return {EntryKind::Money, "0.00 to 9,999,999.99", "dollars", figureWidth};
        case ModelFieldKind::Quantity:
            return {EntryKind::Count, "0 to 32,767", "units", figureWidth};
        default:
            return {EntryKind::Text, "", "", TextWidth(field)};
    }
}

/// What goes beyond the width of the record isn't kept, so it isn't shown either.
void KeepWithin(QPlainTextEdit* memo, int width) {
    if (memo->toPlainText().size() <= width) return;
    QTextCursor rest(memo->document());
    rest.setPosition(width);
    rest.movePosition(QTextCursor::End, QTextCursor::KeepAnchor);
    rest.removeSelectedText();
}

}  // namespace

QWidget* ModelFieldLines::Line::Control() const {
    return text ? static_cast<QWidget*>(text) : memo;
}

void ModelFieldLines::AddColumn(std::span<const ModelField> fields, const QString& side,
                                QGridLayout* grid, QWidget* parent) {
    side_ = side;
    int row = grid->rowCount() - 1;
    for (std::size_t i = 0; i < fields.size(); ++i) {
        const bool pair = i + 1 < fields.size() && fields[i + 1].beside;
        if (fields[i].beside)
            Add(fields[i], grid, row, 2, 1, parent);
        else
            Add(fields[i], grid, ++row, 0, pair ? 1 : 3, parent);
    }
}

void ModelFieldLines::Chain() {
    std::vector<EnhancedInput*> inputs;
    for (const Line& line : lines_) {
        auto* input = new EnhancedInput(line.Control());
        if (line.text && !line.field->choices.empty())
            input->ComboFormListBox = MakeChoiceList(*line.field, line.text);
        inputs.push_back(input);
    }
    ChainFields(inputs);
}

QString ModelFieldLines::SpokenName(const ModelField& field) const {
    return side_.isEmpty() ? SpokenLabel(field) : SpokenLabel(field) + ", " + side_;
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
    const QString about = QString("What can stand under %1?").arg(SpokenName(field));
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
    const QByteArray spoken = SpokenName(field).toUtf8();
    FieldSpec spec{.name = field.name,
                   .label = field.label,
                   .kind = style.kind,
                   .range = style.range,
                   .unit = style.unit,
                   .accessibleName = spoken.constData()};
    if (field.width > 0) spec.maxLength = field.width;
    auto* line = new TextField(spec, parent);
    line->setMinimumWidth(line->fontMetrics().averageCharWidth() * style.characters + 24);
    connect(line, &TextField::Committed, this,
            [this, &field, line] { Commit(field, line->text()); });
    if (HasHelp(field))
        connect(line, &TextField::HelpWanted, this,
                [this, &field, line] { WantHelp(field, line); });
    lines_.push_back({&field, line});
    return line;
}

QPlainTextEdit* ModelFieldLines::AddMemo(const ModelField& field, QWidget* parent) {
    auto* memo = new QPlainTextEdit(parent);
    memo->setObjectName(field.name);
    memo->setAccessibleName(SpokenName(field));
    memo->setTabChangesFocus(true);
    memo->setFixedHeight(memo->fontMetrics().lineSpacing() * memoLines + 20);
    connect(memo, &QPlainTextEdit::textChanged, this, [this, &field, memo] {
        KeepWithin(memo, field.width);
        Commit(field, memo->toPlainText());
    });
    lines_.push_back({&field, nullptr, memo});
    return memo;
}

void ModelFieldLines::ShowLine(const Line& line) {
    const QString text = QString::fromStdString(line.field->read(Project(), system_));
    const QScopedValueRollback<bool> showing(showing_, true);
    if (line.text) {
        line.text->ShowText(text);
        // Descriptions and file names are often longer than their field.
        if (line.field->kind == ModelFieldKind::Text) line.text->setToolTip(text);
    }
    if (line.memo && line.memo->toPlainText() != text) line.memo->setPlainText(text);
}

void ModelFieldLines::Show(int system) {
    system_ = system;
    for (const Line& line : lines_)
        ShowLine(line);
}

void ModelFieldLines::Store() {
    for (const Line& line : lines_)
        if (line.text && line.text->isModified()) line.text->Commit();
}

/// A dropped model empties its other fields as well. What stands in a memo stays as it is typed.
void ModelFieldLines::Commit(const ModelField& field, const QString& text) {
    if (showing_) return;
    const bool taken = CommitModelField(field, Project(), system_, text.toStdString());
    if (taken) State().ProjectChanged = true;
    const bool all = field.kind == ModelFieldKind::ModelNum;
    for (const Line& line : lines_)
        if (all || (line.text && line.field == &field)) ShowLine(line);
    if (taken) Q_EMIT Taken(&field);
}

void ModelFieldLines::WantHelp(const ModelField& field, TextField* line) {
    const auto text = AskForText(field, line->text().toStdString());
    if (!text) return;
    line->ShowText(QString::fromStdString(*text));
    line->Commit();
}

}  // namespace tendo
