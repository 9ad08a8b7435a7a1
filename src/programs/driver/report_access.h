#pragma once

#include "programs/driver/session.h"

namespace tendo::driver {

/// The calls the last report made on the print surface, in order.
Json SurfaceCalls();
/// `expect surface` without its first words: start; next OP ...; count N OP ...; OP [KEY VALUE
/// ...]. The search goes on behind `at`, the call matched last, and moves it.
bool ExpectSurface(const Words& words, std::size_t& at);
/// How many calls have this op and these values.
std::size_t CountSurface(const Words& words);

/// The display list of the last report.
Json DocumentAsJson();
std::size_t DocumentPageCount();
/// The text of page `number`, counted from 1, in reading order.
std::string DocumentPageText(int number);

}  // namespace tendo::driver
