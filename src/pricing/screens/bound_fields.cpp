#include "pricing/screens/bound_fields.h"

#include <QEvent>
#include <QScopedValueRollback>

#include "pricing/screens/price_entry.h"

namespace tendo {

BoundFields::BoundFields(PriceTable& table, QObject* parent) : QObject(parent), table_(table) {
    table_.TextChanged = [this](TableField field) { TableChanged(field); };
}

TextField* BoundFields::Add(TableField field, QWidget* parent) {
    TextField* line = MakePriceField(field, parent);
    fields_[static_cast<std::size_t>(field)] = line;
    connect(line, &QLineEdit::textChanged, this,
            [this, field](const QString& text) { table_.SetText(field, text.toStdString()); });
    connect(line, &TextField::Committed, this, [this, field] { Commit(field); });
    connect(line, &TextField::HelpWanted, this,
            [this, field] { Q_EMIT HelpWanted(static_cast<int>(field)); });
    connect(line, &TextField::WhyWanted, this,
            [this, field] { Q_EMIT WhyWanted(static_cast<int>(field)); });
    return line;
}

TextField* BoundFields::At(TableField field) const {
    return fields_[static_cast<std::size_t>(field)];
}

std::optional<TableField> BoundFields::Focused() const {
    for (std::size_t i = 0; i < fields_.size(); ++i)
        if (fields_[i] && fields_[i]->hasFocus()) return static_cast<TableField>(i);
    return std::nullopt;
}

void BoundFields::PassFocus(TableField from, TableField to) {
    At(from)->PassFocusTo(At(to));
    At(from)->installEventFilter(this);
    passing_[At(from)] = from;
}

bool BoundFields::eventFilter(QObject* watched, QEvent* event) {
    const auto passing = passing_.find(watched);
    if (event->type() == QEvent::FocusOut && passing != passing_.end()) Commit(passing->second);
    return QObject::eventFilter(watched, event);
}

void BoundFields::TableChanged(TableField field) {
    TextField* line = At(field);
    if (!line) return;
    if (collecting_) changed_.emplace(line, line->text());
    line->ShowText(QString::fromStdString(table_.Text(field)));
}

void BoundFields::Commit(TableField field) {
    if (!table_.IsOpen()) return;
    Run([this, field] { table_.Commit(field); }, At(field));
    Q_EMIT Recalculated();
}

void BoundFields::Run(const std::function<void()>& step, TextField* edited) {
    if (collecting_) return step();
    {
        const QScopedValueRollback<bool> collecting(collecting_, true);
        changed_.clear();
        step();
    }
    for (const auto& [line, before] : changed_)
        if (line != edited && line->text() != before) line->MarkFresh();
    changed_.clear();
}

void BoundFields::Enter(TableField field, const QString& text) {
    EnterText(At(field), text);
}

void FitText(TextField* field, const QString& text) {
    constexpr int edges = 24;  // borders, padding and the caret
    field->setMinimumWidth(field->fontMetrics().horizontalAdvance(text) + edges);
}

}  // namespace tendo
