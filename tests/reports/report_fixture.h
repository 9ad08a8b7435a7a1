#pragma once

#include <gtest/gtest.h>

#include <filesystem>
#include <set>
#include <string>
#include <vector>

#include "plain_page.h"
#include "platform/print/fixed_measurer.h"
#include "platform/print/layout_surface.h"
#include "platform/print/recording_surface.h"
#include "project/project_records.h"
#include "reports/preview_code.h"

namespace tendo {

/// A call as the goldens write it: its name and its values; a table with a line for each of its
/// rows.
std::string CallText(const SurfaceCall& call);

/// A project whose figures tell where they come from: system n has the cooling model "CN-n" with a
/// capacity of 30 + n, and so on; see the source.
ProjectRecords SampleProject();
/// Fills the models, prices and operating costs of one system, from 0.
void FillSystem(ProjectRecords& project, int system);

/// Reports on the fixed font, with a profile of their own, a company, and 9 May 1998 as today.
class ReportTest : public testing::Test {
  protected:
    ReportTest();
    ~ReportTest() override;

    /// Sets an option of section "ReportOptions" or "BannerOptions" and reads the cached ones
    /// again.
    void Option(const std::string& key, const std::string& value);
    void BannerOption(const std::string& key, const std::string& value);
    /// Switches off all rows of the comparison table that have an option.
    void SwitchOffAllRows();
    /// A small picture file of a given size in the test's own folder; gives its path.
    std::string MakePicture(const std::string& name, int width, int height);

    /// All calls since the document's start as golden text; the test's folder is written as
    /// "FOLDER".
    std::string CallsText() const { return CallsText(surface); }
    std::string CallsText(const RecordingSurface& log) const;
    /// Compares the calls with tests/reports/goldens/NAME; lines that begin with '#' explain it.
    void ExpectGolden(const std::string& name) const { ExpectGolden(name, surface); }
    void ExpectGolden(const std::string& name, const RecordingSurface& log) const;
    /// Compares the calls with a golden whose lines each begin with an option, or with "-": all
    /// lines but those of the options that are off.
    void ExpectGoldenWithout(const std::string& name, const std::set<std::string>& off) const;
    /// The values of all calls of one name, in order.
    std::vector<std::string> ValuesOf(const std::string& op) const;
    /// The body rows of the last table, each without its semicolon.
    std::vector<std::string> LastTableRows() const;
    const SurfaceCall& LastTable() const;
    int CountOf(const std::string& op) const;

    std::filesystem::path folder;
    ProjectRecords project;
    FixedMeasurer measurer;
    LayoutSurface layout{measurer};
    RecordingSurface surface{layout};
    ReportContext context{surface, project};
    /// The same on pages whose positions don't depend on the layout.
    PlainPage plainPage;
    RecordingSurface plainSurface{plainPage};
    ReportContext plainContext{plainSurface, project};
};

}  // namespace tendo
