#include "platform/qt/progress_window.h"

namespace tendo {

ProgressWindow& WindowOfProgress() {
    static ProgressWindow window;
    return window;
}

bool ShowStep(const std::string& text, int done, int whole) {
    return !WindowOfProgress().Show || WindowOfProgress().Show(text, done, whole);
}

WindowWhileWorking::WindowWhileWorking(const std::string& caption) {
    WindowOfProgress().caption = caption;
}

WindowWhileWorking::~WindowWhileWorking() {
    if (WindowOfProgress().Close) WindowOfProgress().Close();
}

}  // namespace tendo
