#include "programs/cli/project_reading.h"

#include <unistd.h>

#include <filesystem>

#include "platform/files/paths.h"
#include "platform/files/safe_file.h"
#include "platform/jet/jet_reader.h"
#include "platform/text/runtime_error.h"
#include "programs/cli/arguments.h"
#include "project/project_file.h"

namespace tendo::cli {
namespace {

/// A copy that goes with the object: loading may add a column to an older file, and the user's
/// stays as it is.
class ScratchCopy {
  public:
    explicit ScratchCopy(const std::string& file) {
        name_ = (std::filesystem::temp_directory_path() /
                 ("tendo-cli-" + std::to_string(getpid()) + ".tdw"))
                    .string();
        CopyFileOver(file, name_);
    }
    ~ScratchCopy() {
        std::error_code ignored;
        std::filesystem::remove(name_, ignored);
    }
    ScratchCopy(const ScratchCopy&) = delete;
    ScratchCopy& operator=(const ScratchCopy&) = delete;
    const std::string& Name() const { return name_; }

  private:
    std::string name_;
};

}  // namespace

ProjectRecords ReadProject(const std::string& file) {
    try {
        // Opened first under its own name, so that messages name the user's file.
        const jet::Reader reader = jet::Reader::OpenFile(file);
        if (!reader.HasTable("GPDProjectFormat"))
            throw Failure(file +
                          " is a database, but no project file: it has no table GPDProjectFormat");
        const ScratchCopy copy(file);
        ProjectRecords records;
        ResetProjectData(records);
        LoadProjectData(copy.Name(), records);
        return records;
    } catch (const RuntimeError& error) {
        std::string text = error.Description();
        if (text.find(file) == std::string::npos) text = file + ": " + text;
        throw Failure(text + " (error " + std::to_string(error.Number()) +
                      "). Nothing was changed");
    }
}

}  // namespace tendo::cli
