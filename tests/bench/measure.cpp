#include "measure.h"

#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <stdexcept>

namespace tendo::bench {

double Seconds(const std::function<void()>& work) {
    const auto start = std::chrono::steady_clock::now();
    work();
    return std::chrono::duration<double>(std::chrono::steady_clock::now() - start).count();
}

std::vector<double> Medians(const std::vector<std::function<void()>>& works, int rounds) {
    std::vector<std::vector<double>> times(works.size());
    for (int round = 0; round < rounds; ++round)
        for (std::size_t i = 0; i < works.size(); ++i)
            times[i].push_back(Seconds(works[i]));
    std::vector<double> medians;
    for (auto& list : times) {
        std::sort(list.begin(), list.end());
        medians.push_back(list[list.size() / 2]);
    }
    return medians;
}

namespace {

/// Peak resident memory in bytes of a child that does the work.
double PeakOfChild(const std::function<void()>& work) {
    const pid_t child = fork();
    if (child < 0) throw std::runtime_error("can't fork");
    if (child == 0) {
        work();
        _exit(0);
    }
    rusage usage{};
    int status = 0;
    if (wait4(child, &status, 0, &usage) != child || status != 0)
        throw std::runtime_error("the child of a measurement failed");
    return static_cast<double>(usage.ru_maxrss) * 1024;
}

}  // namespace

double PeakGrowth(const std::function<void()>& work) {
    return PeakOfChild(work) - PeakOfChild([] {});
}

bool Report(const std::string& what, double ours, double peer, const std::string& unit,
            double limit, bool atMost) {
    const double ratio = ours / peer;
    const bool holds = atMost ? ratio <= limit : ratio >= limit;
    std::printf("%-52s %12.3f %12.3f %-9s ratio %7.3f  (%s %.2f)  %s\n", what.c_str(), ours, peer,
                unit.c_str(), ratio, atMost ? "at most" : "at least", limit,
                holds ? "holds" : "MISSED");
    std::fflush(stdout);
    return holds;
}

void Skip(const std::string& what, const std::string& why) {
    std::printf("%-52s skipped: %s\n", what.c_str(), why.c_str());
    std::fflush(stdout);
}

}  // namespace tendo::bench
