#pragma once

#include <QStringList>

namespace tendo {

/// Asks which tools stand on the main toolbar; on OK `hidden` holds the names of the others and the
/// result is true.
bool AskHiddenTools(QStringList& hidden);

}  // namespace tendo
