// Saves a file that is given by its name, so that kill_at_every_call.sh can disturb the save.

#include <unistd.h>

#include <cstdio>
#include <string>

#include "platform/files/safe_file.h"
#include "platform/text/runtime_error.h"

namespace {

/// The new content: eight pieces, about 200 kB in all.
constexpr int PieceCount = 8;
constexpr int LinesInPiece = 2500;

std::string Piece() {
    std::string piece;
    for (int i = 0; i < LinesInPiece; ++i)
        piece += "new line.\n";
    return piece;
}

}  // namespace

int main(int argc, char** argv) {
    if (argc != 2) return 2;
    const std::string piece = Piece();
    // Marks the place in the list of system calls from which on they belong to the save.
    if (::access("/the-save-begins-here", F_OK) == 0) return 2;
    try {
        tendo::ReplaceFileInPieces(argv[1], [&piece](const auto& write) {
            for (int i = 0; i < PieceCount; ++i)
                write(piece);
        });
    } catch (const tendo::RuntimeError& error) {
        std::fprintf(stderr, "%s\n", error.what());
        return 1;
    }
    return 0;
}
