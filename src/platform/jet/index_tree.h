#pragma once

#include <functional>
#include <string>
#include <vector>

#include "platform/jet/page_file.h"

namespace tendo::jet {

/// The tree of one index, walked for a check. Reading tables needs no index.
class IndexTree {
  public:
    /// Called with each leaf entry in order: key and 4 bytes of the row's place, big-endian.
    using Visit = std::function<void(std::string_view entry)>;

    /// `owner`: the definition page that every page of the tree must name.
    IndexTree(const PageFile& file, std::uint32_t owner);
    /// Walks from the root. Throws RuntimeError 3343 where the walk can't go on; smaller faults are
    /// collected.
    void Walk(std::uint32_t root, const Visit& visit);

    /// Pages of the tree, sorted.
    std::vector<std::uint32_t> Pages() const;
    const std::vector<std::string>& Faults() const { return faults_; }

  private:
    struct Leaf {
        std::uint32_t number, previous, next;
    };
    struct Bounds {
        const std::string* above = nullptr;  // no entry may be above it
        const std::string* below = nullptr;  // all must be above it
    };
    void WalkPage(std::uint32_t number, int depth, Bounds bounds, const Visit& visit);
    void WalkNode(std::uint32_t number, int depth, Bounds bounds, const Visit& visit);
    void WalkChainEnd(const Visit& visit);
    std::string_view Enter(std::uint32_t number);
    void ReadLeaf(std::uint32_t number, Bounds bounds, const Visit& visit);
    std::size_t ForEachEntry(std::uint32_t number, const Visit& visit);
    void CheckHead(std::uint32_t number, std::size_t entryBytes);
    void CheckChain();
    void Fault(std::uint32_t number, const std::string& what);

    const PageFile& file_;
    std::uint32_t owner_;
    std::vector<bool> seen_;
    std::vector<Leaf> leaves_;
    std::vector<std::string> faults_;
};

}  // namespace tendo::jet
