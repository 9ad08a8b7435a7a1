#pragma once

#include <QString>
#include <optional>
#include <string>

#include "equipment/model_field.h"

class QListWidget;

namespace tendo {

class TextField;

/// "Fuel Type" of "Fuel Type:".
QString SpokenLabel(const ModelField& field);

/// True for a field with choices and for a price.
bool HasHelp(const ModelField& field);

/// A field's help: offers its choices, or tells what a price is and asks for it. Gives what was
/// chosen or typed; nothing when the help was left without.
std::optional<std::string> AskForText(const ModelField& field, const std::string& text);

/// The choices below the field, at Alt+Down. Taking one commits it.
QListWidget* MakeChoiceList(const ModelField& field, TextField* line);

}  // namespace tendo
