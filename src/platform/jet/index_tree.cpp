#include "platform/jet/index_tree.h"

namespace tendo::jet {
namespace {

constexpr int DeepestTree = 16;
constexpr std::size_t MostFaults = 20;
constexpr std::uint8_t NodePage = 3, LeafPage = 4;
constexpr std::size_t PlaceSize = 4;  // the row's place behind a key, or a child's number
/// Entries without their prefix could claim any amount of bytes; whole ones stay well below this.
constexpr std::size_t MostExpanded = std::size_t{1} << 20;

/// Offsets on index pages.
struct IndexLayout {
    std::size_t previous, next, tail, prefix, bitmap, entries;
    bool shortPrefix;
};
constexpr IndexLayout JetThreeIndex{8, 12, 16, 20, 22, 248, true};
constexpr IndexLayout JetFourIndex{12, 16, 20, 24, 27, 480, false};

const IndexLayout& IndexOffsets(const PageFile& file) {
    return file.Offsets().jet4 ? JetFourIndex : JetThreeIndex;
}

std::uint32_t BigEndian(std::string_view bytes) {
    std::uint32_t value = 0;
    for (const char c : bytes)
        value = value << 8 | static_cast<unsigned char>(c);
    return value;
}

}  // namespace

IndexTree::IndexTree(const PageFile& file, std::uint32_t owner)
    : file_(file), owner_(owner), seen_(file.PageCount()) {}

void IndexTree::Fault(std::uint32_t number, const std::string& what) {
    if (faults_.size() < MostFaults)
        faults_.push_back("index page " + std::to_string(number) + " " + what);
}

std::vector<std::uint32_t> IndexTree::Pages() const {
    std::vector<std::uint32_t> pages;
    for (std::uint32_t i = 0; i < seen_.size(); ++i)
        if (seen_[i]) pages.push_back(i);
    return pages;
}

void IndexTree::Walk(std::uint32_t root, const Visit& visit) {
    WalkPage(root, 0, {}, visit);
    WalkChainEnd(visit);
    CheckChain();
}

std::string_view IndexTree::Enter(std::uint32_t number) {
    const std::string_view page = file_.Page(number);
    if (seen_[number]) Damaged("index page " + std::to_string(number) + " is reached twice");
    seen_[number] = true;
    return page;
}

/// Calls with each entry, its prefix put back. The bitmap tells where entries end.
std::size_t IndexTree::ForEachEntry(std::uint32_t number, const Visit& visit) {
    const IndexLayout& at = IndexOffsets(file_);
    const std::string_view page = file_.Page(number);
    const std::size_t prefix = at.shortPrefix ? Byte(page, at.prefix) : Word(page, at.prefix);
    const std::string_view entries = page.substr(at.entries);
    std::string entry;
    std::size_t start = 0, expanded = 0;
    for (std::size_t bit = 0; bit < (at.entries - at.bitmap) * 8; ++bit) {
        if (!(static_cast<unsigned char>(page[at.bitmap + bit / 8]) >> (bit % 8) & 1)) continue;
        if (bit <= start || bit > entries.size() || (start == 0 && prefix > bit))
            Damaged("index page " + std::to_string(number) + " has an entry that ends nowhere");
        entry.resize(start == 0 ? 0 : prefix);
        entry += entries.substr(start, bit - start);
        expanded += entry.size();
        if (expanded > MostExpanded)
            Damaged("index page " + std::to_string(number) + " claims too long entries");
        visit(entry);
        start = bit;
    }
    return start;
}

void IndexTree::CheckHead(std::uint32_t number, std::size_t entryBytes) {
    const std::string_view page = file_.Page(number);
    if (Dword(page, 4) != owner_) Fault(number, "names another owner");
    const std::size_t room = file_.Offsets().page - IndexOffsets(file_).entries;
    if (Word(page, 2) + entryBytes != room)
        Fault(number, "tells of " + std::to_string(Word(page, 2)) + " free bytes and has " +
                          std::to_string(room - entryBytes));
}

void IndexTree::WalkPage(std::uint32_t number, int depth, Bounds bounds, const Visit& visit) {
    if (depth >= DeepestTree) Damaged("an index tree is too deep");
    const auto type = static_cast<std::uint8_t>(Enter(number)[0]);
    if (type == LeafPage)
        ReadLeaf(number, bounds, visit);
    else if (type == NodePage)
        WalkNode(number, depth, bounds, visit);
    else
        Damaged("page " + std::to_string(number) + " is no index page");
}

void IndexTree::ReadLeaf(std::uint32_t number, Bounds bounds, const Visit& visit) {
    const IndexLayout& at = IndexOffsets(file_);
    const std::string_view page = file_.Page(number);
    leaves_.push_back({number, Dword(page, at.previous), Dword(page, at.next)});
    const std::size_t end = ForEachEntry(number, [&](std::string_view entry) {
        if (entry.size() < PlaceSize) Damaged("an index entry is cut short");
        if (bounds.above && entry > *bounds.above) Fault(number, "has an entry above its node's");
        if (bounds.below && entry <= *bounds.below)
            Fault(number, "has an entry of the page before");
        visit(entry);
    });
    CheckHead(number, end);
}

/// Each child's entry is an upper bound for it; the last child, the tail, has none of its own.
void IndexTree::WalkNode(std::uint32_t number, int depth, Bounds bounds, const Visit& visit) {
    std::vector<std::pair<std::string, std::uint32_t>> children;
    const std::size_t end = ForEachEntry(number, [&](std::string_view entry) {
        if (entry.size() < 2 * PlaceSize) Damaged("an index entry is cut short");
        const std::string_view key = entry.substr(0, entry.size() - PlaceSize);
        children.emplace_back(key, BigEndian(entry.substr(key.size())));
    });
    CheckHead(number, end);
    Bounds child = bounds;
    for (const auto& [key, page] : children) {
        child.above = &key;
        WalkPage(page, depth + 1, child, visit);
        child.below = &key;
    }
    const std::uint32_t tail = Dword(file_.Page(number), IndexOffsets(file_).tail);
    if (tail == 0) return Fault(number, "has no last child");
    child.above = bounds.above;
    WalkPage(tail, depth + 1, child, visit);
}

/// Leaves added last may hang on the chain of leaves alone.
void IndexTree::WalkChainEnd(const Visit& visit) {
    while (!leaves_.empty() && leaves_.back().next != 0) {
        const std::uint32_t next = leaves_.back().next;
        if (next < seen_.size() && seen_[next]) return Fault(next, "is led back to by a leaf");
        if (static_cast<std::uint8_t>(Enter(next)[0]) != LeafPage)
            Damaged("page " + std::to_string(next) + " in a chain of leaves is none");
        ReadLeaf(next, {}, visit);
    }
}

void IndexTree::CheckChain() {
    for (std::size_t i = 0; i < leaves_.size(); ++i) {
        const std::uint32_t previous = i > 0 ? leaves_[i - 1].number : 0;
        const std::uint32_t next = i + 1 < leaves_.size() ? leaves_[i + 1].number : 0;
        if (leaves_[i].previous != previous || leaves_[i].next != next)
            Fault(leaves_[i].number, "names the wrong neighbours");
    }
}

}  // namespace tendo::jet
