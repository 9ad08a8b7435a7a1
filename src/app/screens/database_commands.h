#pragma once

namespace tendo {

/// The floppy copies of the material database.
void mnuExportTendoDatabaseToDisk_Click();
void mnuImportTendoDatabaseFromDisk_Click();

}  // namespace tendo
