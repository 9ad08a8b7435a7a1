#pragma once

namespace tendo::jet {

/// What can't be kept when this program writes the file back.
struct NotKept {
    bool password = false;
    bool relations = false;
    bool queries = false;
    bool otherObjects = false;  // forms, reports, modules, macros, linked tables
    bool linkedTables = false;
    bool any() const { return password || relations || queries || otherObjects || linkedTables; }
};

}  // namespace tendo::jet
