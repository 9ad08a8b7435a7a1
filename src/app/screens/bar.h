#pragma once

#include <QString>

#include "app/active_bar.h"

namespace tendo {

/// The tools of the main window.
ActiveBar& MainBar();

/// The second panel of the status bar.
void ShowAutosavePanel(const QString& text);

}  // namespace tendo
