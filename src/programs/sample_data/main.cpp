#include <cstdio>
#include <exception>

#include "platform/files/paths.h"
#include "programs/sample_data/job.h"
#include "programs/sample_data/tables.h"

namespace {

void Build(const std::string& source, const std::string& output) {
    tendo::BuildDatabases(source, output);
    tendo::BuildJob(source, output);
}

}  // namespace

/// tendo-sample-data SOURCE_DIR OUTPUT_DIR: makes the databases and the job that come with the
/// program.
int main(int argumentCount, char** arguments) {
    if (argumentCount != 3) {
        std::fputs("usage: tendo-sample-data SOURCE_DIR OUTPUT_DIR\n", stderr);
        return 2;
    }
    try {
        Build(tendo::WithSeparator(arguments[1]), tendo::WithSeparator(arguments[2]));
        return 0;
    } catch (const std::exception& error) {
        std::fprintf(stderr, "tendo-sample-data: %s\n", error.what());
        return 1;
    }
}
