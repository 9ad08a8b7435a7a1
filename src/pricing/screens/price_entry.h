#pragma once

#include "platform/qt/fields.h"
#include "pricing/price_fields.h"

namespace tendo {

/// An entry line for a field of the price table: its control name, its keys, how it stands, and
/// what the status bar tells of it. Both price screens make theirs here.
TextField* MakePriceField(TableField field, QWidget* parent);

/// Takes a text into an entry line as typed, key by key through its filter, and commits it.
void EnterText(TextField* line, const QString& text);

}  // namespace tendo
