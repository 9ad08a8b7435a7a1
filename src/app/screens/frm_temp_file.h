#pragma once

#include <string>

namespace tendo {

/// Asks what is to be done about a work file that an earlier run left beside a project: 1 open it,
/// 2 open the saved project instead, 3 open nothing. `workFile` names it in the caption.
int AskAboutTempFile(const std::string& workFile);

}  // namespace tendo
