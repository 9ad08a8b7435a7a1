#include "platform/qt/drawing_parts.h"

#include <algorithm>
#include <limits>

namespace tendo {

namespace {

constexpr double Endless = std::numeric_limits<double>::infinity();

}  // namespace

void DrawingParts::Open(const QString& id, const QString& target) {
    std::size_t group = open_.back();
    if (!id.isEmpty()) {
        groups_[group].inside.push_back(groups_.size());
        group = groups_.size();
        groups_.emplace_back();
        byId_.insert(id, group);
    }
    groups_[group].own += 1;
    if (!target.isEmpty()) groups_[group].repeated.push_back(target);
    open_.push_back(group);
}

/// A group that repeats itself, or stands too deep, counts endlessly.
double DrawingParts::CountAll(std::size_t index, int levels) {
    Group& group = groups_[index];
    if (group.all >= 0) return group.all;
    if (levels == 0) return Endless;
    group.all = Endless;
    double all = group.own;
    for (const std::size_t inside : group.inside)
        all += CountAll(inside, levels - 1);
    for (const QString& id : group.repeated) {
        double most = 0;
        for (auto at = byId_.constFind(id); at != byId_.constEnd() && at.key() == id; ++at)
            most = std::max(most, CountAll(at.value(), levels - 1));
        all += most;
    }
    group.all = all;
    return all;
}

bool DrawingParts::AreWithin(double most, int deepest) {
    return CountAll(0, deepest) <= most;
}

}  // namespace tendo
