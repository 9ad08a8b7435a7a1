#pragma once

#include <functional>
#include <string>
#include <vector>

namespace tendo::bench {

/// Wall time of one call in seconds.
double Seconds(const std::function<void()>& work);

/// Medians of calls that take turns, in seconds: side by side, so that what else the machine does
/// meets all alike.
std::vector<double> Medians(const std::vector<std::function<void()>>& works, int rounds);

/// Growth of the peak of resident memory, in bytes, by a call in a child process of its own, above
/// what an empty call of the same child needs.
double PeakGrowth(const std::function<void()>& work);

/// One line of the result: what, our figure against the peer's, the ratio and its limit. `atMost`:
/// the ratio may not be above the limit; otherwise not below. Returns whether it holds.
bool Report(const std::string& what, double ours, double peer, const std::string& unit,
            double limit, bool atMost);

/// One line that says why something was not measured.
void Skip(const std::string& what, const std::string& why);

}  // namespace tendo::bench
