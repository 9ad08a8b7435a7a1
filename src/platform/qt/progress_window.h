#pragma once

#include <functional>
#include <string>

namespace tendo {

/// The window that shows how far something long has come; set in one place, app/screens/wiring.cpp.
struct ProgressWindow {
    /// What is done, and how far of the whole (0: unknown). False when the user wants to stop.
    std::function<bool(const std::string& text, int done, int whole)> Show;
    std::function<void()> Close;
    std::string caption;  // of the work under way
};
ProgressWindow& WindowOfProgress();

/// Shows a step in the window. True without a window.
bool ShowStep(const std::string& text, int done, int whole);

/// Names the work that follows. The window, if a step of it was shown, goes when the work ends,
/// however it does.
struct WindowWhileWorking {
    explicit WindowWhileWorking(const std::string& caption);
    ~WindowWhileWorking();
    WindowWhileWorking(const WindowWhileWorking&) = delete;
    WindowWhileWorking& operator=(const WindowWhileWorking&) = delete;
};

}  // namespace tendo
