#include <cstdio>
#include <filesystem>
#include <sstream>

#include "benchmarks.h"
#include "measure.h"
#include "run_program.h"

namespace tendo::bench {

bool PreviewTime(const std::string& folder, const std::string& programs) {
    const std::string home = std::filesystem::absolute(folder).string() + "/preview-home";
    std::filesystem::remove_all(home);
    constexpr int rounds = 5;
    std::vector<double> first, further, option;
    for (int round = 0; round < rounds; ++round) {
        std::filesystem::remove(home + "/tendo.lock");
        std::istringstream figures(RunProgram({programs + "/tendo-bench-preview", home}).output);
        for (std::vector<double>* list : {&first, &further, &option})
            figures >> list->emplace_back();
    }
    constexpr double wanted = 50;  // milliseconds
    Report("preview command to its first page (50 ms)", Median(first), wanted, "ms", 1.0, true);
    Report("the same for a further preview (50 ms)", Median(further), wanted, "ms", 1.0, true);
    std::printf("%-52s %12.3f %12s %-9s\n", "report option to the page's new paint", Median(option),
                "", "ms");
    return true;  // figures to know, no limits
}

}  // namespace tendo::bench
