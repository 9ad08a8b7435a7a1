#pragma once

namespace tendo {

/// Runs all marked reports and sends them to a printer.
void mnuFilePrint_Click();
void mnuFilePrintSetup_Click();

}  // namespace tendo
