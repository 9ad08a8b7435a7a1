#pragma once

#include <functional>
#include <map>
#include <string>
#include <string_view>

namespace tendo {

/// The state of every tool, apart from how it is drawn. A tool can be used when it is enabled and
/// its command exists in this program.
class ActiveBar {
  public:
    struct Tool {
        std::string caption;
        bool enabled = true;
        bool available = true;  // the procedure, and the screen it opens, exist
        bool visible = true;
        bool checked = false;
    };

    ActiveBar();

    void EnableActiveBarTools() { SetProjectTools(true); }
    void DisableActiveBarTools() { SetProjectTools(false); }

    void SetEnabled(std::string_view tool, bool enabled);
    void SetAvailable(std::string_view tool, bool available);
    void SetChecked(std::string_view tool, bool checked);
    /// An empty name hides the tool of this number (from 1), any other shows it as "&1: name".
    void SetRecentFile(int number, std::string_view name);

    /// nullptr for an unknown tool.
    const Tool* Find(std::string_view tool) const;
    /// Enabled, available and visible.
    bool CanUse(std::string_view tool) const;

    /// Told after each change of a tool.
    std::function<void(const std::string& name, const Tool& tool)> Changed;

  private:
    void SetProjectTools(bool enabled);
    template <class Change>
    void Update(std::string_view tool, Change change);

    std::map<std::string, Tool, std::less<>> tools_;
};

}  // namespace tendo
