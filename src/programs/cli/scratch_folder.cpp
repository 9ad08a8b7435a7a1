#include "programs/cli/scratch_folder.h"

#include <cstdlib>
#include <filesystem>

#include "platform/files/paths.h"
#include "programs/cli/arguments.h"

namespace tendo::cli {

ScratchFolder::ScratchFolder() {
    std::error_code failed;
    path_ = (std::filesystem::temp_directory_path(failed) / "tendo-cli-XXXXXX").string();
    if (failed || mkdtemp(path_.data()) == nullptr)
        throw Failure("no folder for temporary files can be made in " + DirectoryOf(path_) +
                      ". Nothing was changed");
}

ScratchFolder::~ScratchFolder() {
    std::error_code ignored;
    std::filesystem::remove_all(path_, ignored);
}

std::string ScratchFolder::File(const std::string& name) const {
    return WithSeparator(path_) + name;
}

}  // namespace tendo::cli
