#include "platform/qt/shown_errors.h"

#include "platform/qt/dialogs.h"
#include "platform/text/runtime_error.h"

namespace tendo {

bool RunShowingErrors(const std::function<void()>& command, const std::string& title) {
    try {
        command();
        return true;
    } catch (const RuntimeError& error) {
        ShowMessage(title, error.Description(), MessageIcon::Warning);
        return false;
    }
}

}  // namespace tendo
