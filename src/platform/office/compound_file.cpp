#include "platform/office/compound_file.h"

#include <algorithm>

#include "platform/office/little_endian.h"
#include "platform/office/office_error.h"
#include "platform/text/code_page.h"
#include "platform/text/text.h"

namespace tendo {

namespace {

constexpr std::string_view Signature = "\xD0\xCF\x11\xE0\xA1\xB1\x1A\xE1";
constexpr std::uint32_t LastSector = 0xFFFFFFFA;  // from here on the numbers are marks
constexpr std::uint32_t NoEntry = 0xFFFFFFFF;
constexpr std::uint64_t SmallStreamLimit = 4096;
constexpr std::size_t HeaderSize = 512;
constexpr std::size_t TableSectorsAt = 76;  // the first 109 sectors of the table
constexpr std::size_t TableSectorsInHeader = 109;
constexpr std::size_t EntrySize = 128;

namespace entry_type {
constexpr std::uint8_t Stream = 2;
constexpr std::uint8_t Root = 5;
}  // namespace entry_type

}  // namespace

bool CompoundFile::IsOne(std::string_view bytes) {
    return bytes.starts_with(Signature);
}

CompoundFile::CompoundFile(std::string_view bytes, std::string_view name)
    : bytes_(bytes), name_(name) {
    ReadHeader();
    ReadTable();
    ReadDirectory();
}

std::uint16_t CompoundFile::U16(std::size_t at) const {
    return little_endian::U16(bytes_, at);
}

std::uint32_t CompoundFile::U32(std::size_t at) const {
    return little_endian::U32(bytes_, at);
}

void CompoundFile::ReadHeader() {
    if (bytes_.size() < HeaderSize) ThrowDamage(name_, ByteText(bytes_.size()), "it ends early");
    const unsigned sectorShift = U16(30);
    const unsigned smallShift = U16(32);
    if ((sectorShift != 9 && sectorShift != 12) || smallShift != 6)
        ThrowDamage(name_, ByteText(30), "its sectors have no known size");
    sectorSize_ = std::size_t{1} << sectorShift;
    smallSize_ = std::size_t{1} << smallShift;
    if (bytes_.size() > sectorSize_)
        sectorCount_ = (bytes_.size() - 1) / sectorSize_;  // without the header's
}

std::size_t CompoundFile::PlaceOf(std::uint32_t sector) const {
    if (sector >= sectorCount_)
        ThrowDamage(name_, "sector " + std::to_string(sector), "the file ends before it");
    return (sector + std::size_t{1}) * sectorSize_;
}

std::string_view CompoundFile::Sector(std::uint32_t sector) const {
    return bytes_.substr(PlaceOf(sector), sectorSize_);
}

void CompoundFile::AddTableSector(std::uint32_t sector) {
    if (sector >= LastSector || table_.size() >= sectorCount_) return;
    const std::string_view bytes = Sector(sector);
    for (std::size_t at = 0; at + 4 <= bytes.size(); at += 4)
        table_.push_back(little_endian::U32(bytes, at));
}

void CompoundFile::ReadTable() {
    for (std::size_t i = 0; i < TableSectorsInHeader; ++i)
        AddTableSector(U32(TableSectorsAt + 4 * i));
    std::uint32_t list = U32(68);
    for (std::size_t steps = 0; list < LastSector && table_.size() < sectorCount_; ++steps) {
        if (steps > sectorCount_)
            ThrowDamage(name_, "sector " + std::to_string(list), "the sectors run in a circle");
        const std::string_view bytes = Sector(list);
        if (bytes.size() < sectorSize_)
            ThrowDamage(name_, ByteText(bytes_.size()), "it ends early");
        for (std::size_t at = 0; at + 8 <= sectorSize_; at += 4)
            AddTableSector(little_endian::U32(bytes, at));
        list = little_endian::U32(bytes, sectorSize_ - 4);
    }
}

std::string CompoundFile::Chain(std::uint32_t start, std::uint64_t size) const {
    std::string result;
    std::uint32_t sector = start;
    for (std::size_t steps = 0; sector < LastSector && result.size() < size; ++steps) {
        if (steps >= sectorCount_)
            ThrowDamage(name_, "sector " + std::to_string(sector), "the sectors run in a circle");
        result += Sector(sector);
        if (sector >= table_.size())
            ThrowDamage(name_, "sector " + std::to_string(sector), "its table has no place for it");
        sector = table_[sector];
    }
    if (result.size() > size) result.resize(static_cast<std::size_t>(size));
    return result;
}

std::string CompoundFile::SmallChain(std::uint32_t start, std::uint64_t size) const {
    std::string result;
    std::uint32_t sector = start;
    while (sector < LastSector && result.size() < size) {
        const std::size_t at = std::size_t{sector} * smallSize_;
        const std::size_t tableAt = std::size_t{sector} * 4;
        // Longer than all small sectors together: it must come back to one.
        if (at >= smallSectors_.size() || result.size() > smallSectors_.size() ||
            tableAt + 4 > smallTable_.size())
            ThrowDamage(name_, "small sector " + std::to_string(sector), "its chain is broken");
        result += std::string_view(smallSectors_).substr(at, smallSize_);
        sector = little_endian::U32(smallTable_, tableAt);
    }
    if (result.size() > size) result.resize(static_cast<std::size_t>(size));
    return result;
}

CompoundFile::Entry CompoundFile::EntryAt(std::string_view directory, std::size_t at) const {
    const std::string_view bytes = directory.substr(at, EntrySize);
    const std::size_t nameLength = std::min<std::size_t>(little_endian::U16(bytes, 64), 64);
    Entry entry;
    entry.name = FromUtf16(bytes.substr(0, nameLength < 2 ? 0 : nameLength - 2));
    entry.type = static_cast<std::uint8_t>(bytes[66]);
    entry.left = little_endian::U32(bytes, 68);
    entry.right = little_endian::U32(bytes, 72);
    entry.child = little_endian::U32(bytes, 76);
    entry.start = little_endian::U32(bytes, 116);
    entry.size = little_endian::U32(bytes, 120);
    return entry;
}

void CompoundFile::ReadDirectory() {
    const std::string directory = Chain(U32(48), bytes_.size());
    for (std::size_t at = 0; at + EntrySize <= directory.size(); at += EntrySize)
        entries_.push_back(EntryAt(directory, at));
    if (entries_.empty() || entries_.front().type != entry_type::Root)
        ThrowDamage(name_, "sector " + std::to_string(U32(48)), "its list of streams is missing");
    smallSectors_ = Chain(entries_.front().start, entries_.front().size);
    smallTable_ = Chain(U32(60), bytes_.size());
}

const CompoundFile::Entry* CompoundFile::Find(std::string_view streamName) const {
    std::vector<bool> seen(entries_.size());
    std::vector<std::uint32_t> open{entries_.front().child};
    while (!open.empty()) {
        const std::uint32_t at = open.back();
        open.pop_back();
        if (at == NoEntry || at >= entries_.size() || seen[at]) continue;
        seen[at] = true;
        const Entry& entry = entries_[at];
        if (entry.type == entry_type::Stream && EqualsNoCase(entry.name, streamName)) return &entry;
        open.insert(open.end(), {entry.left, entry.right});
    }
    return nullptr;
}

std::optional<std::string> CompoundFile::Stream(std::string_view streamName) const {
    const Entry* entry = Find(streamName);
    if (entry == nullptr) return std::nullopt;
    std::string stream = entry->size < SmallStreamLimit ? SmallChain(entry->start, entry->size)
                                                        : Chain(entry->start, entry->size);
    if (stream.size() < entry->size)
        ThrowDamage(name_, "stream " + entry->name, "it ends before its stated length");
    return stream;
}

}  // namespace tendo
