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

std::string VelmoProfileString(const std::string& key) {
    return ReadProfileString(State().WinIniFile, "Velmo Software", key, "");
}

}  // namespace tendo
