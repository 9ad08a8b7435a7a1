#include "materials/takeoff.h"
#include "platform/text/text.h"

namespace tendo {

bool Takeoff::GoToCategory(const std::string& category) {
    for (int position = 0; position < Count(); ++position) {
        if (Trimmed(Row(position).Category.WithoutPadding()) != category) continue;
        GoTo(position);
        return true;
    }
    return false;
}

bool Takeoff::FindNext(const std::string& text) {
    return Find(text, Position() + 1);
}

bool Takeoff::FindFirst(const std::string& text) {
    return Find(text, 0);
}

bool Takeoff::Find(const std::string& text, int from) {
    const std::string wanted = LowerCase(text);
    for (int position = from; position < Count(); ++position) {
        if (!Contains(LowerCase(Row(position).Description.WithoutPadding()), wanted)) continue;
        GoTo(position);
        return true;
    }
    return false;
}

bool Takeoff::JumpTo(const std::string& text) {
    const std::string wanted = LowerCase(Trimmed(text));
    if (wanted.empty()) return false;
    for (int position = 0; position < Count(); ++position) {
        const std::string description = LowerCase(Row(position).Description.Trimmed());
        if (!StartsWith(description, wanted)) continue;
        GoTo(position);
        return true;
    }
    return FindFirst(std::string(Trimmed(text)));
}

}  // namespace tendo
