#include <QApplication>
#include <cstdio>
#include <exception>
#include <filesystem>
#include <functional>
#include <memory>
#include <string>

#include "benchmarks.h"

/// tendo-bench FOLDER SHARE [WORD]: prints the ratios, all of them or one; exit 1 when a limit is
/// missed.
int main(int argc, char** argv) {
    if (argc < 3 || argc > 4) {
        std::fprintf(stderr, "usage: tendo-bench FOLDER SHARE [WORD]\n");
        return 2;
    }
    using namespace tendo::bench;
    const std::string folder = argv[1], share = argv[2], only = argc > 3 ? argv[3] : "";
    struct Measurement {
        std::string word;
        bool needsQt;
        std::function<bool()> run;
    };
    // A child's peak counts what its parent held before: the start comes first, while that is
    // little, and those that need no Qt before the others.
    const std::string programs = std::filesystem::path(argv[0]).parent_path().string();
    const Measurement measurements[] = {
        {"start", false, [&] { return StartTime(folder, programs); }},
        {"preview", false, [&] { return PreviewTime(folder, programs); }},
        {"package", false, [&] { return ReportPackage(folder, programs); }},
        {"read", false, [&] { return ModelDatabaseRead(folder); }},
        {"save", false, [&] { return ProjectSave(folder); }},
        {"price", false, PriceCommit},
        {"takeoff", false, [&] { return TakeoffMerge(folder); }},
        {"import", false, [&] { return WorkbookImportSpeed(folder); }},
        {"pages", true, [&] { return TakeoffPages(folder); }},
        {"pdf", true, [&] { return ReportPdf(folder, share); }},
        {"selection", true, [&] { return ModelSelectionScreen(folder); }}};
    std::unique_ptr<QApplication> application;
    bool all = true;
    try {
        std::printf("%-52s %12s %12s\n", "medians, side by side", "tendo", "peer");
        for (const Measurement& measurement : measurements) {
            if (!only.empty() && measurement.word != only) continue;
            if (measurement.needsQt && !application)
                application = std::make_unique<QApplication>(argc, argv);
            all = measurement.run() && all;
        }
        return all ? 0 : 1;
    } catch (const std::exception& error) {
        std::fprintf(stderr, "tendo-bench: %s\n", error.what());
        return 1;
    }
}
