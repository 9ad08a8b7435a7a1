#pragma once

#include <string>
#include <vector>

namespace tendo::bench {

/// One run of another program.
struct Run {
    double seconds = 0;    // to the end of its output
    double processor = 0;  // seconds of processor time, its own programs' included
    double peak = 0;       // bytes of resident memory
    std::string output;
};

/// Runs a program, found by PATH where it has no folder; throws when it fails.
Run RunProgram(const std::vector<std::string>& words);

double Median(std::vector<double> values);

}  // namespace tendo::bench
