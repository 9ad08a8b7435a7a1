#pragma once

namespace tendo {

/// The command "Convert Materials from Excel": asks for a workbook, shows what its import would do,
/// and brings its rows into the current price book. Until the last step nothing on disk changes.
void ImportMaterialsFromExcel();

}  // namespace tendo
