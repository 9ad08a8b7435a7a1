#pragma once

#include <optional>
#include <string>
#include <vector>

namespace tendo {

/// What the help screen explains and what may be set on it.
struct HelpInfo {
    std::string title;
    std::string text;
    std::vector<std::string> options = {};  // captions, at most five
    int option = 0;                         // the chosen one from 1; 0: none
    std::string amountCaption = {};         // empty: no amount
    std::string amount = {};
    std::string checkCaption = {};  // empty: no tick box
    bool checked = false;
    std::string notes = {};  // empty: no notes
};

/// Shows the help screen; on OK the choices are in `info` and the result is true.
bool ShowHelpInfo(HelpInfo& info);

}  // namespace tendo
