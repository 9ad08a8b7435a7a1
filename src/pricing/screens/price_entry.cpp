#include "pricing/screens/price_entry.h"

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

TextField* MakePriceField(TableField field, QWidget* parent) {
    const EntryStyle style = StyleOf(field);
    const std::string title = FieldTitle(field);
    auto* line = new TextField(FieldSpec{.name = Describe(field).name,
                                         .label = "",
                                         .kind = style.kind,
                                         .range = style.range,
                                         .unit = style.unit,
                                         .accessibleName = title.c_str()},
                               parent);
    if (style.kind == EntryKind::Figure)
        line->setToolTip("Why this price? Double-click, or Shift+F1");
    line->KeyFilter = [field](QChar key, const QString& rest) {
        return KeyAllowed(field, key.unicode(), rest.toStdString());
    };
    return line;
}

void EnterText(TextField* line, const QString& text) {
    QString taken;
    for (const QChar key : text)
        if (!line->KeyFilter || line->KeyFilter(key, taken)) taken += key;
    line->setFocus();  // first, for leaving another field recalculates
    line->ShowText(taken);
    line->Commit();
}

}  // namespace tendo
