#include <cstdio>
#include <cstdlib>
#include <filesystem>

#include "benchmarks.h"
#include "measure.h"
#include "package/package_sources.h"
#include "platform/files/paths.h"
#include "platform/files/safe_file.h"
#include "run_program.h"

namespace tendo::bench {
namespace {

constexpr double Megabyte = 1024 * 1024;
constexpr double MostMemory = 64;  // megabytes

/// A program that sets the package, and how its pages are counted.
struct Setter {
    std::vector<std::string> words;       // the package
    std::vector<std::string> emptyWords;  // a document without a word
    std::string pdf;
};

struct Figures {
    double pages = 0, seconds = 0, start = 0, processor = 0, peak = 0;
};

double PagesOf(const std::string& pdf) {
    const std::string text = RunProgram({"pdfinfo", pdf}).output;
    return std::atof(text.substr(text.find("Pages:") + 6).c_str());
}

/// All programs take turns, each in a process of its own.
std::vector<Figures> Measure(const std::vector<Setter>& setters, int rounds) {
    std::vector<Figures> figures(setters.size());
    std::vector<std::vector<double>> times(setters.size()), starts(setters.size()),
        processors(setters.size()), peaks(setters.size());
    for (int round = 0; round < rounds; ++round)
        for (std::size_t i = 0; i < setters.size(); ++i) {
            const Run run = RunProgram(setters[i].words);
            times[i].push_back(run.seconds);
            processors[i].push_back(run.processor);
            peaks[i].push_back(run.peak);
            starts[i].push_back(RunProgram(setters[i].emptyWords).seconds);
        }
    for (std::size_t i = 0; i < setters.size(); ++i)
        figures[i] = {PagesOf(setters[i].pdf), Median(times[i]), Median(starts[i]),
                      Median(processors[i]), Median(peaks[i])};
    return figures;
}

Setter Ours(const std::string& folder, const std::string& programs) {
    const std::string program = programs + "/tendo-bench-package", pdf = folder + "tendo.pdf";
    return {{program, pdf}, {program, folder + "tendo-empty.pdf", "--empty"}, pdf};
}

Setter Groff(const std::string& folder) {
    const auto words = [&](const std::string& name) {
        return std::vector<std::string>{"sh", "-c",
                                        "groff -t -ms -Tpdf -dpaper=letter -P-pletter '" + folder +
                                            name + ".ms' > '" + folder + name + ".pdf'"};
    };
    ReplaceFile(folder + "groff.ms", GroffSource());
    ReplaceFile(folder + "groff-empty.ms", EmptyGroffSource());
    return {words("groff"), words("groff-empty"), folder + "groff.pdf"};
}

Setter Writer(const std::string& folder) {
    const auto words = [&](const std::string& name) {
        return std::vector<std::string>{
            "soffice",    "-env:UserInstallation=file://" + folder + "office",
            "--headless", "--convert-to",
            "pdf",        "--outdir",
            folder,       folder + name + ".fodt"};
    };
    ReplaceFile(folder + "writer.fodt", WriterSource());
    ReplaceFile(folder + "writer-empty.fodt", EmptyWriterSource());
    return {words("writer"), words("writer-empty"), folder + "writer.pdf"};
}

bool IsInstalled(const std::string& program) {
    return std::system(("command -v " + program + " >/dev/null").c_str()) == 0;
}

bool ReportAgainst(const std::string& name, const Figures& ours, const Figures& peer,
                   double limit) {
    const auto speed = [](const Figures& figures) { return figures.pages / figures.seconds; };
    const auto speedAtWork = [](const Figures& figures) {
        return figures.pages / (figures.seconds - figures.start);
    };
    const bool holds = Report("package to PDF, pages per second (" + name + ")", speed(ours),
                              speed(peer), "pages/s", limit, false);
    std::printf("%-52s %12.3f %12.3f %-9s ratio %7.3f  (%.0f and %.0f pages)\n",
                "  without the programs' start", speedAtWork(ours), speedAtWork(peer), "pages/s",
                speedAtWork(ours) / speedAtWork(peer), ours.pages, peer.pages);
    // Holds on a busy machine, where the shortest program waits longest for its turn.
    const double ourTime = ours.processor / ours.pages, peerTime = peer.processor / peer.pages;
    std::printf("%-52s %12.3f %12.3f %-9s ratio %7.3f\n", "  processor time of a page",
                ourTime * 1000, peerTime * 1000, "ms", peerTime / ourTime);
    return holds;
}

}  // namespace

bool ReportPackage(const std::string& work, const std::string& programs) {
    const std::string folder =
        WithSeparator(std::filesystem::absolute(work).lexically_normal().string()) + "package/";
    std::filesystem::create_directories(folder);
    const auto groff = Measure({Ours(folder, programs), Groff(folder)}, 9);
    bool holds = ReportAgainst("groff", groff[0], groff[1], 2.5);
    if (IsInstalled("soffice")) {
        const Setter writer = Writer(folder);
        RunProgram(writer.emptyWords);  // a first start makes its profile
        const auto office = Measure({Ours(folder, programs), writer}, 5);
        holds = ReportAgainst("LibreOffice", office[0], office[1], 15) && holds;
    } else {
        Skip("package to PDF (LibreOffice)", "LibreOffice is not installed");
    }
    return Report("package to PDF, memory at its peak", groff[0].peak / Megabyte, MostMemory, "MB",
                  1.0, true) &&
           holds;
}

}  // namespace tendo::bench
