#include "platform/jet/index_writer.h"

#include <algorithm>

namespace tendo::jet {
namespace {

constexpr std::size_t EntriesAt = 480;
constexpr std::size_t BitmapAt = 27;
constexpr std::size_t Room = FileBuilder::PageSize - EntriesAt;  // 3616 bytes of entries

std::string BigEndian(std::uint32_t value, int bytes) {
    std::string text;
    for (int shift = 8 * (bytes - 1); shift >= 0; shift -= 8)
        text += static_cast<char>(value >> shift & 0xff);
    return text;
}

/// An index page in the making.
struct IndexPage {
    std::uint32_t number = 0;
    std::vector<std::string> entries;
    std::size_t used = 0;
    std::string last;        // key and row of its last entry, leaves' own or its tail's
    std::uint32_t tail = 0;  // the last child of a node

    bool HasRoom(const std::string& entry) const { return used + entry.size() <= Room; }
    void Add(std::string entry) {
        used += entry.size();
        entries.push_back(std::move(entry));
    }
};

std::string PageBytes(const IndexPage& page, std::uint32_t owner, std::uint32_t previous,
                      std::uint32_t next, int level) {
    std::string bytes(FileBuilder::PageSize, '\0');
    bytes[0] = level == 0 ? 4 : 3;
    bytes[1] = 1;
    PutWord(bytes, 2, static_cast<std::uint16_t>(Room - page.used));
    PutDword(bytes, 4, owner);
    PutDword(bytes, 12, previous);
    PutDword(bytes, 16, next);
    PutDword(bytes, 20, page.tail);
    bytes[26] = static_cast<char>(level);
    std::size_t at = 0;
    for (const std::string& entry : page.entries) {
        bytes.replace(EntriesAt + at, entry.size(), entry);
        at += entry.size();
        bytes[BitmapAt + at / 8] = static_cast<char>(bytes[BitmapAt + at / 8] | 1 << at % 8);
    }
    return bytes;
}

std::vector<IndexPage> Leaves(const std::vector<IndexEntry>& entries) {
    std::vector<IndexPage> leaves(1);
    for (const IndexEntry& entry : entries) {
        std::string bytes = entry.key + BigEndian(entry.row, 4);
        if (!leaves.back().HasRoom(bytes)) leaves.emplace_back();
        leaves.back().last = bytes;
        leaves.back().Add(std::move(bytes));
    }
    return leaves;
}

/// The nodes above a level: an entry for each child but the last, which is the tail. No node has a
/// single child.
std::vector<IndexPage> Nodes(const std::vector<IndexPage>& children) {
    std::vector<IndexPage> nodes(1);
    const auto close = [&nodes](const IndexPage& tail) {
        nodes.back().tail = tail.number;
        nodes.back().last = tail.last;
    };
    for (std::size_t i = 0; i + 1 < children.size(); ++i) {
        std::string entry = children[i].last + BigEndian(children[i].number, 4);
        if (nodes.back().HasRoom(entry)) {
            nodes.back().Add(std::move(entry));
            continue;
        }
        if (i + 2 < children.size()) {
            close(children[i]);
            nodes.emplace_back();
            continue;
        }
        // Only the last child is left behind this one and must not stand in a node alone: the
        // node's last entry becomes its tail, and this child begins the next node.
        nodes.back().used -= nodes.back().entries.back().size();
        nodes.back().entries.pop_back();
        close(children[i - 1]);
        nodes.emplace_back();
        nodes.back().Add(std::move(entry));
    }
    close(children.back());
    return nodes;
}

void PutLevel(FileBuilder& file, std::uint32_t owner, std::uint32_t root, int level,
              std::vector<IndexPage>& pages, std::vector<std::uint32_t>& numbers) {
    for (IndexPage& page : pages) {
        page.number = pages.size() == 1 ? root : file.AddPage();
        numbers.push_back(page.number);
    }
    for (std::size_t i = 0; i < pages.size(); ++i) {
        const std::uint32_t previous = i > 0 ? pages[i - 1].number : 0;
        const std::uint32_t next = i + 1 < pages.size() ? pages[i + 1].number : 0;
        file.Put(pages[i].number, 0, PageBytes(pages[i], owner, previous, next, level));
    }
}

}  // namespace

WrittenIndex WriteIndexPages(FileBuilder& file, std::uint32_t owner, std::uint32_t root,
                             std::vector<IndexEntry>& entries) {
    std::sort(entries.begin(), entries.end(), [](const IndexEntry& a, const IndexEntry& b) {
        const int order = a.key.compare(b.key);
        return order != 0 ? order < 0 : a.row < b.row;
    });
    WrittenIndex written;
    for (std::size_t i = 0; i < entries.size(); ++i)
        written.differentKeys += i == 0 || entries[i].key != entries[i - 1].key ? 1U : 0U;
    std::vector<IndexPage> pages = Leaves(entries);
    for (int level = 0;; ++level) {
        PutLevel(file, owner, root, level, pages, written.pages);
        if (pages.size() == 1) return written;
        pages = Nodes(pages);
    }
}

}  // namespace tendo::jet
