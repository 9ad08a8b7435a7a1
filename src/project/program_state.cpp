#include "project/program_state.h"

#include "platform/files/profile.h"

namespace tendo {

ProgramState& State() {
    static ProgramState state;
    return state;
}

ProjectHooks& Hooks() {
    static ProjectHooks hooks;
    return hooks;
}

std::optional<FileStamp> StampOf(const std::string& name) {
    std::error_code sizeError, timeError;
    const FileStamp stamp{std::filesystem::file_size(name, sizeError),
                          std::filesystem::last_write_time(name, timeError)};
    if (sizeError || timeError) return std::nullopt;
    return stamp;
}

std::string VelmoProfileString(const std::string& key) {
    return ReadProfileString(State().WinIniFile, "Velmo Software", key, "");
}

}  // namespace tendo
