#pragma once

#include <QStringList>
#include <functional>

#include "platform/qt/form.h"

namespace tendo {

/// Screens by their names ("frmGPD"). The rooms' screens are entered in wiring.cpp; a command whose
/// screen isn't entered is disabled.
void RegisterScreen(const QString& name, std::function<Form*()> make);
bool ScreenExists(const QString& name);
/// The names of all screens that are entered, in alphabetical order.
QStringList ScreenNames();
/// The loaded screen, or a new one that isn't shown yet; nullptr when there is none of that name.
Form* LoadScreen(const QString& name);
/// Loads the screen when it isn't loaded and brings it forward.
void ShowScreen(const QString& name);

}  // namespace tendo
