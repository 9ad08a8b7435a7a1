#pragma once

#include "reports/preview_code.h"

namespace tendo {

/// The one-page Title Report: project title, client, logo, and who prepared the proposal.
void PrintTitleReport(ReportContext& context);

}  // namespace tendo
