#pragma once

#include <functional>
#include <string>

namespace tendo {

/// What the databases tell the rooms above; set once at start-up, each may be empty.
struct DatabaseHooks {
    /// A file of the older generation was written in the newer one; `keptAs` is the copy of the
    /// original.
    std::function<void(const std::string& file, const std::string& keptAs)> JetThreeKept;
};

DatabaseHooks& HooksOfDatabases();

}  // namespace tendo
