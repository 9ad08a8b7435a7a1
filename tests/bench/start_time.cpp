#include <cstdio>
#include <filesystem>
#include <fstream>
#include <sstream>

#include "benchmarks.h"
#include "measure.h"
#include "run_program.h"

namespace tendo::bench {
namespace {

void TellScreens(const std::string& output) {
    std::istringstream lines(output);
    std::string screen;
    for (double milliseconds = 0; lines >> screen >> milliseconds;)
        std::printf("%-52s %12.3f %12s %-9s\n", ("opening " + screen).c_str(), milliseconds, "",
                    "ms");
}

}  // namespace

bool StartTime(const std::string& folder, const std::string& programs) {
    const std::string home = std::filesystem::absolute(folder).string() + "/home";
    std::filesystem::remove_all(home);
    const std::vector<std::string> ours{programs + "/tendo-bench-start", home};
    const std::vector<std::string> peer{programs + "/tendo-bench-empty-window"};
    RunProgram(ours);  // a first start fills the program directory
    std::vector<double> times[2];
    std::vector<double> peaks[2];
    constexpr int rounds = 21;
    for (int round = 0; round < rounds; ++round)
        for (const int which : {0, 1}) {
            // The measured start ends at its paint; a program that ends well leaves no lock.
            std::filesystem::remove(home + "/tendo.lock");
            const Run run = RunProgram(which == 0 ? ours : peer);
            times[which].push_back(run.seconds);
            peaks[which].push_back(run.peak);
        }
    const bool holds = Report("start to first paint (empty main window)", Median(times[0]) * 1000,
                              Median(times[1]) * 1000, "ms", 3.0, true);
    constexpr double megabyte = 1024 * 1024;
    std::printf("%-52s %12.3f %12.3f %-9s ratio %7.3f\n", "memory at first paint, peak",
                Median(peaks[0]) / megabyte, Median(peaks[1]) / megabyte, "MB",
                Median(peaks[0]) / Median(peaks[1]));
    TellScreens(RunProgram({ours[0], home, "--screens"}).output);
    return holds;
}

}  // namespace tendo::bench
