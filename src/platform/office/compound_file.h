#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace tendo {

/// A file of streams in sectors, chained through a table. Nothing in it is trusted: every chain is
/// at most as long as the file has sectors. Bytes and name must outlive it. Errors: 3343.
class CompoundFile {
  public:
    CompoundFile(std::string_view bytes, std::string_view name);

    static bool IsOne(std::string_view bytes);

    /// The bytes of a stream of the root folder, its name without case; nothing when there is none.
    std::optional<std::string> Stream(std::string_view streamName) const;

  private:
    struct Entry {
        std::string name;
        std::uint8_t type = 0;
        std::uint32_t left = 0;
        std::uint32_t right = 0;
        std::uint32_t child = 0;
        std::uint32_t start = 0;
        std::uint64_t size = 0;
    };

    std::uint16_t U16(std::size_t at) const;
    std::uint32_t U32(std::size_t at) const;
    std::size_t PlaceOf(std::uint32_t sector) const;
    std::string_view Sector(std::uint32_t sector) const;
    void ReadHeader();
    void ReadTable();
    void AddTableSector(std::uint32_t sector);
    void ReadDirectory();
    Entry EntryAt(std::string_view directory, std::size_t at) const;
    std::string Chain(std::uint32_t start, std::uint64_t size) const;
    std::string SmallChain(std::uint32_t start, std::uint64_t size) const;
    const Entry* Find(std::string_view streamName) const;

    std::string_view bytes_;
    std::string_view name_;
    std::size_t sectorSize_ = 0;
    std::size_t smallSize_ = 0;
    std::size_t sectorCount_ = 0;
    std::vector<std::uint32_t> table_;  // of a sector the one behind it
    std::string smallTable_;
    std::string smallSectors_;
    std::vector<Entry> entries_;
};

}  // namespace tendo
