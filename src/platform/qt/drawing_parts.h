#pragma once

#include <QHash>
#include <QString>
#include <vector>

namespace tendo {

/// Counts the parts of a drawing while it is read, those repeated by reference as often as they
/// will be painted: a few lines can ask for more parts than could ever be painted.
class DrawingParts {
  public:
    DrawingParts() : groups_(1), open_{0} {}
    /// An element begins; `id` and `target`, the id of what it repeats, may be empty.
    void Open(const QString& id, const QString& target);
    void Close() { open_.pop_back(); }
    /// True when all parts are at most `most` and references lead at most `deepest` levels deep.
    bool AreWithin(double most, int deepest);

  private:
    /// An element with an id and those inside it that have none.
    struct Group {
        double own = 0;
        std::vector<std::size_t> inside;
        std::vector<QString> repeated;
        double all = -1;  // unknown yet
    };
    double CountAll(std::size_t index, int levels);

    std::vector<Group> groups_;      // the first one is the whole drawing
    std::vector<std::size_t> open_;  // the groups of the open elements
    QMultiHash<QString, std::size_t> byId_;
};

}  // namespace tendo
