#include "run_program.h"

#include <fcntl.h>
#include <spawn.h>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <stdexcept>

#include "measure.h"

extern char** environ;

namespace tendo::bench {

namespace {

double SecondsOf(const timeval& time) {
    return static_cast<double>(time.tv_sec) + static_cast<double>(time.tv_usec) / 1e6;
}

}  // namespace

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
        if (posix_spawnp(&child, argv[0], &actions, nullptr, argv.data(), environ) != 0)
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
    run.processor = SecondsOf(usage.ru_utime) + SecondsOf(usage.ru_stime);
    run.peak = static_cast<double>(usage.ru_maxrss) * 1024;
    return run;
}

double Median(std::vector<double> values) {
    std::nth_element(values.begin(), values.begin() + static_cast<long>(values.size() / 2),
                     values.end());
    return values[values.size() / 2];
}

}  // namespace tendo::bench
