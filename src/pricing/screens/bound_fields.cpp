#include "pricing/screens/bound_fields.h"

#include <QEvent>
#include <QScopedValueRollback>

namespace tendo {
namespace {

constexpr const char* moneyRange = "0.00 to 9,999,999.99";
constexpr const char* percentRange = "-999.9 to 999.9";

/// How an entry line of a table field stands, and what the status bar tells of it.
struct EntryStyle {
    EntryKind kind;
    const char* range;
    const char* unit;
};

EntryStyle StyleOf(TableField field) {
    if (TakesNoInput(field)) return {EntryKind::Figure, "", "dollars"};
    switch (Describe(field).kind) {
        case FieldKind::GrossMargin:
        case FieldKind::PriceMarkup:
        case FieldKind::ListDiscount:
        case FieldKind::TotalGrossMargin:
            return {EntryKind::Percent, percentRange, "percent"};
        case FieldKind::TaxPercentage:
            return {EntryKind::Money, "0.00 to 100.00", "percent"};
        case FieldKind::ModelQty:
            return {EntryKind::Count, "0 to 32,767", "units"};
        case FieldKind::ModelDB:
        case FieldKind::ModelNum:
        case FieldKind::ModelText:
            return {EntryKind::Text, "", ""};
        default:
            return {EntryKind::Money, moneyRange, "dollars"};
    }
}

}  // namespace

BoundFields::BoundFields(PriceTable& table, QObject* parent) : QObject(parent), table_(table) {
    table_.TextChanged = [this](TableField field) { TableChanged(field); };
}

TextField* BoundFields::Add(TableField field, const QString& spoken, QWidget* parent) {
    const EntryStyle style = StyleOf(field);
    const QByteArray name = spoken.toUtf8();
    auto* line = new TextField(FieldSpec{.name = Describe(field).name,
                                         .label = "",
                                         .kind = style.kind,
                                         .range = style.range,
                                         .unit = style.unit,
                                         .accessibleName = name.constData()},
                               parent);
    fields_[static_cast<std::size_t>(field)] = line;
    line->KeyFilter = [field](QChar key, const QString& rest) {
        return KeyAllowed(field, key.unicode(), rest.toStdString());
    };
    connect(line, &QLineEdit::textChanged, this,
            [this, field](const QString& text) { table_.SetText(field, text.toStdString()); });
    connect(line, &TextField::Committed, this, [this, field] { Commit(field); });
    connect(line, &TextField::HelpWanted, this,
            [this, field] { Q_EMIT HelpWanted(static_cast<int>(field)); });
    return line;
}

TextField* BoundFields::At(TableField field) const {
    return fields_[static_cast<std::size_t>(field)];
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
    QString taken;
    for (const QChar key : text)
        if (KeyAllowed(field, key.unicode(), taken.toStdString())) taken += key;
    TextField* line = At(field);
    line->setFocus();  // first, for leaving another field recalculates
    line->ShowText(taken);
    line->Commit();
}

void FitText(TextField* field, const QString& text) {
    constexpr int edges = 24;  // borders, padding and the caret
    field->setMinimumWidth(field->fontMetrics().horizontalAdvance(text) + edges);
}

}  // namespace tendo
