#pragma once

#include <optional>
#include <string>

#include "reports/package.h"

namespace tendo::cli {

/// The reports of a list "title,sales"; nothing for an empty optional. Throws UsageError for an
/// unknown one.
std::optional<ReportSelection> SelectionOf(const std::optional<std::string>& list);

/// The reports that the report options mark and this version doesn't write, as a text for the user;
/// empty for none. A report that was asked for by name and isn't to be had is a Failure.
std::string UnwrittenReports(const std::optional<ReportSelection>& selection);

}  // namespace tendo::cli
