#pragma once

#include <functional>
#include <string>

namespace tendo {

/// The window that shows how far a conversion has come; set in one place, app/screens/wiring.cpp.
struct ConversionWindow {
    /// What is done, and how far of the whole (0: unknown). False when the user wants to stop.
    std::function<bool(const std::string& text, int done, int whole)> Show;
    std::function<void()> Close;
};
ConversionWindow& StatusOfConversion();

/// The command "Convert Materials from Excel": asks for a workbook, shows what its import would do,
/// and brings its rows into the current price book. Until the last step nothing on disk changes.
void ImportMaterialsFromExcel();

}  // namespace tendo
