#include "programs/cli/messages.h"

#include <cstdio>

#include "platform/text/text.h"

namespace tendo::cli {

void TellLine(const std::string& text) {
    std::string line = Replaced(text, "\r", "");
    line = Replaced(line, "\n", " ");
    std::fprintf(stderr, "tendo-cli: %s\n", line.c_str());
}

}  // namespace tendo::cli
