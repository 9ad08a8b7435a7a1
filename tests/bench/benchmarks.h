#pragma once

#include <string>

namespace tendo::bench {

/// Each measures one thing against its peer and returns whether its limit holds. `folder` is for
/// files made on the way.
bool ModelDatabaseRead(const std::string& folder);
bool ProjectSave(const std::string& folder);
bool PriceCommit();
/// `share`: the folder of the built sample data.
bool ReportPdf(const std::string& folder, const std::string& share);

/// The model selection on a database of 40,000 air conditioners. Needs the QApplication.
bool ModelSelectionScreen(const std::string& folder);

}  // namespace tendo::bench
