#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "footnotes/project_footnotes.h"
#include "reports/report_options.h"

namespace tendo {

/// Proposal formats, named sets of all report options with the footnotes of the Sales Report, in
/// the database Proposals.mdb of the program directory. Rows are found by walking, so that any name
/// works. Where the file is missing every operation does nothing. Errors of the database engine are
/// RuntimeErrors.

/// What stands for the current settings; it is no row of the database.
inline constexpr std::string_view CustomFormat = "Custom Format";

/// Makes the database with its two tables; no columns are missing that saving and loading use.
/// Returns the number of columns of the first table as it was designed, which must be 60.
int MakeFormatDB(const std::string& path);

std::string ProposalFormatFile();

/// The names in table order.
std::vector<std::string> ProposalFormatNames();

/// Stores the options and the footnotes under a name; a format of the name is replaced. False
/// without the database.
bool SaveProposalFormat(std::string_view name, ReportOptionValues& values, FootnoteList footnotes);

/// Puts a format into the options and its footnotes into the list. False when there is no format of
/// the name; both are then left as they were, and so they are after an error.
bool LoadProposalFormat(std::string_view name, ReportOptionValues& values, FootnoteList footnotes);

/// Deletes a format with its footnotes. False without the database.
bool DeleteProposalFormat(std::string_view name);

}  // namespace tendo
