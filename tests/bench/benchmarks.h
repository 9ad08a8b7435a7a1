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

/// A package of about 50 pages with 1,000 materials to PDF, by a program of its own, beside groff
/// and LibreOffice; and its memory.
bool ReportPackage(const std::string& folder, const std::string& programs);

/// From the preview command to the first painted page of the sample job, and from an option's
/// change to its new paint. Tells, and has no limits.
bool PreviewTime(const std::string& folder, const std::string& programs);

/// A takeoff of 1,000 lines in a price book of 30,000 materials: its merge, and the book's load.
bool TakeoffMerge(const std::string& folder);
/// The same takeoff on its page: turning it, and its four views. Needs the QApplication.
bool TakeoffPages(const std::string& folder);

/// A workbook of 10,000 rows into a price book; skipped, and said so, without LibreOffice.
bool WorkbookImportSpeed(const std::string& folder);

/// From the start of the program to the first paint of its main window, beside a program that has
/// nothing but such a window; tells the memory of both, and how long each screen takes to open.
/// `programs`: the folder of the built programs.
bool StartTime(const std::string& folder, const std::string& programs);

/// The model selection on a database of 40,000 air conditioners. Needs the QApplication.
bool ModelSelectionScreen(const std::string& folder);

}  // namespace tendo::bench
