#include "app/active_bar.h"

#include "app/command_table.h"
#include "project/project_lifecycle.h"

namespace tendo {

ActiveBar::ActiveBar() {
    for (const Command& command : Commands()) {
        Tool tool;
        tool.caption = command.caption;
        tool.visible = RecentFileNumber(command.tool) == 0;
        tools_[command.tool] = tool;
    }
}

template <class Change>
void ActiveBar::Update(std::string_view tool, Change change) {
    const auto found = tools_.find(tool);
    if (found == tools_.end()) return;
    change(found->second);
    if (Changed) Changed(found->first, found->second);
}

void ActiveBar::SetProjectTools(bool enabled) {
    for (const Command& command : Commands())
        if (command.needsProject) SetEnabled(command.tool, enabled);
}

void ActiveBar::SetEnabled(std::string_view tool, bool enabled) {
    Update(tool, [&](Tool& state) { state.enabled = enabled; });
}

void ActiveBar::SetAvailable(std::string_view tool, bool available) {
    Update(tool, [&](Tool& state) { state.available = available; });
}

void ActiveBar::SetChecked(std::string_view tool, bool checked) {
    Update(tool, [&](Tool& state) { state.checked = checked; });
}

void ActiveBar::SetRecentFile(int number, std::string_view name) {
    Update("RecentFile" + std::to_string(number), [&](Tool& state) {
        state.visible = !name.empty();
        if (state.visible) state.caption = RecentFileCaption(number - 1, std::string(name));
    });
}

const ActiveBar::Tool* ActiveBar::Find(std::string_view tool) const {
    const auto found = tools_.find(tool);
    return found == tools_.end() ? nullptr : &found->second;
}

bool ActiveBar::CanUse(std::string_view tool) const {
    const Tool* state = Find(tool);
    return state && state->enabled && state->available && state->visible;
}

}  // namespace tendo
