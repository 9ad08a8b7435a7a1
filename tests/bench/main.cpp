#include <QApplication>
#include <cstdio>
#include <exception>

#include "benchmarks.h"

/// tendo-bench FOLDER SHARE: prints the ratios; exit 1 when a limit is missed.
int main(int argc, char** argv) {
    if (argc != 3) {
        std::fprintf(stderr, "usage: tendo-bench FOLDER SHARE\n");
        return 2;
    }
    using namespace tendo::bench;
    try {
        std::printf("%-52s %12s %12s\n", "medians, side by side", "tendo", "peer");
        bool all = ModelDatabaseRead(argv[1]);  // before Qt: its children stay small
        all = ProjectSave(argv[1]) && all;
        all = PriceCommit() && all;
        QApplication application(argc, argv);
        all = ReportPdf(argv[1], argv[2]) && all;
        return all ? 0 : 1;
    } catch (const std::exception& error) {
        std::fprintf(stderr, "tendo-bench: %s\n", error.what());
        return 1;
    }
}
