#include "programs/cli/project_reading.h"

#include "platform/files/safe_file.h"
#include "platform/jet/jet_reader.h"
#include "platform/text/runtime_error.h"
#include "programs/cli/arguments.h"
#include "programs/cli/scratch_folder.h"
#include "project/project_file.h"

namespace tendo::cli {
ProjectRecords ReadProject(const std::string& file) {
    try {
        // Opened first under its own name, so that messages name the user's file.
        const jet::Reader reader = jet::Reader::OpenFile(file);
        if (!reader.HasTable("GPDProjectFormat"))
            throw Failure(file +
                          " is a database, but no project file: it has no table GPDProjectFormat");
        // A copy, since loading may add a column to an older file.
        const ScratchFolder folder;
        const std::string copy = folder.File("project.tdw");
        CopyFileOver(file, copy);
        ProjectRecords records;
        ResetProjectData(records);
        LoadProjectData(copy, records);
        return records;
    } catch (const RuntimeError& error) {
        std::string text = error.Description();
        if (text.find(file) == std::string::npos) text = file + ": " + text;
        throw Failure(text + " (error " + std::to_string(error.Number()) +
                      "). Nothing was changed");
    }
}

}  // namespace tendo::cli
