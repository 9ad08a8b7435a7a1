#pragma once

#include <string>

namespace tendo {

/// Reads every row of a database file and writes it anew through the safe replace, so that nothing
/// of the old file's pages and indexes is left. Throws and changes nothing when the file can't be
/// read as a whole (3343 and others) or holds things that can't be written back (3027). Of a Jet 3
/// file the original is kept as "NAME (Jet 3).EXT".
void RepairDatabase(const std::string& fileName);

}  // namespace tendo
