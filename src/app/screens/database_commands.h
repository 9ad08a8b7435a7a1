#pragma once

namespace tendo {

/// Repair and floppy copies of the material database.
void mnuRepairTendoDatabase_Click();
void mnuExportTendoDatabaseToDisk_Click();
void mnuImportTendoDatabaseFromDisk_Click();

}  // namespace tendo
