#pragma once

#include <gtest/gtest.h>

#include <QStringList>
#include <QTemporaryDir>
#include <optional>
#include <string>
#include <vector>

#include "paper_jobs.h"
#include "platform/print/document.h"
#include "platform/qt/text_measurer_qt.h"

namespace tendo {

/// Lays jobs out with a profile and a company of their own and 9 May 1998 as today.
class PaperTest : public testing::Test {
  protected:
    PaperTest();
    ~PaperTest() override;

    /// Title Report and Sales Report of a job under its own options.
    Document LayOut(const PaperJob& job);
    /// The job's document as a PDF file; its path. Environment variable TENDO_PAPERS names a folder
    /// that keeps the files for looking at.
    std::string PdfOf(const PaperJob& job);
    std::string File(const std::string& name) const;

    QTemporaryDir folder;
    QtTextMeasurer measurer;
};

/// What a tool of the system writes about a file; nothing when the tool isn't there. Warnings of
/// the tool are failures.
std::optional<std::string> AskTool(const char* tool, const QStringList& arguments);

/// The words of a text, in order; the bars between a row's cells part words too.
std::vector<std::string> Words(const std::string& text);

/// The texts of a PDF's pages as pdftotext finds them, in the order of the file ("-raw") or as
/// they stand on the paper ("-layout"); nothing without that tool.
std::optional<std::vector<std::string>> PdfPages(const std::string& path, const char* order);

}  // namespace tendo
