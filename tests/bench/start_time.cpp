#include <fcntl.h>
#include <spawn.h>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <sstream>
#include <stdexcept>

#include "benchmarks.h"
#include "measure.h"

extern char** environ;

namespace tendo::bench {
namespace {

struct Run {
    double seconds = 0;  // to the end of its output
    double peak = 0;     // bytes of resident memory
    std::string output;
};

Run RunProgram(const std::vector<std::string>& words) {
    int pipeEnds[2];
    if (pipe(pipeEnds) != 0) throw std::runtime_error("no pipe");
    posix_spawn_file_actions_t actions;
    posix_spawn_file_actions_init(&actions);
    posix_spawn_file_actions_adddup2(&actions, pipeEnds[1], STDOUT_FILENO);
    posix_spawn_file_actions_addopen(&actions, STDERR_FILENO, "/dev/null", O_WRONLY, 0);
    posix_spawn_file_actions_addclose(&actions, pipeEnds[0]);
    std::vector<char*> argv;
    for (const std::string& word : words)
        argv.push_back(const_cast<char*>(word.c_str()));
    argv.push_back(nullptr);
    Run run;
    pid_t child = 0;
    run.seconds = Seconds([&] {
        if (posix_spawn(&child, argv[0], &actions, nullptr, argv.data(), environ) != 0)
            throw std::runtime_error("can't start " + words[0]);
        close(pipeEnds[1]);
        char bytes[4096];
        for (ssize_t count = 0; (count = read(pipeEnds[0], bytes, sizeof bytes)) > 0;)
            run.output.append(bytes, static_cast<std::size_t>(count));
    });
    close(pipeEnds[0]);
    posix_spawn_file_actions_destroy(&actions);
    rusage usage{};
    int status = 0;
    if (wait4(child, &status, 0, &usage) != child || status != 0)
        throw std::runtime_error(words[0] + " failed");
    run.peak = static_cast<double>(usage.ru_maxrss) * 1024;
    return run;
}

double Median(std::vector<double> values) {
    std::nth_element(values.begin(), values.begin() + static_cast<long>(values.size() / 2),
                     values.end());
    return values[values.size() / 2];
}

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
