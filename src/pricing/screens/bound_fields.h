#pragma once

#include <QObject>
#include <array>
#include <functional>
#include <map>
#include <optional>

#include "platform/qt/fields.h"
#include "pricing/price_table.h"

namespace tendo {

/// Entry lines bound to the texts of the price table: what is typed goes into the table, leaving a
/// field commits it there, and what the table changes shows.
class BoundFields : public QObject {
    Q_OBJECT
  public:
    BoundFields(PriceTable& table, QObject* parent);

    /// A new entry line for a field.
    TextField* Add(TableField field, QWidget* parent);
    /// nullptr when the screen has no line for the field.
    TextField* At(TableField field) const;
    /// The field that holds the focus.
    std::optional<TableField> Focused() const;
    /// A focus that lands on the field passes on to the other one, and commits the field.
    void PassFocus(TableField from, TableField to);

    /// Runs a step that recalculates, and marks the figures it changed as fresh, but not `edited`.
    /// A step within a step counts with the outer one.
    void Run(const std::function<void()>& step, TextField* edited = nullptr);
    /// Takes the text as typed, key by key through the field's filter, and commits it.
    void Enter(TableField field, const QString& text);

  Q_SIGNALS:
    /// A field was left, and the table has recalculated.
    void Recalculated();
    void HelpWanted(int field);
    void WhyWanted(int field);

  protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

  private:
    void TableChanged(TableField field);
    void Commit(TableField field);

    PriceTable& table_;
    std::array<TextField*, TableFieldCount> fields_{};
    std::map<const QObject*, TableField> passing_;
    std::map<TextField*, QString> changed_;  // their texts before the running step
    bool collecting_ = false;
};

/// Makes an entry line at least as wide as a text in its font.
void FitText(TextField* field, const QString& text);

}  // namespace tendo
