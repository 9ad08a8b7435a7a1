#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace tendo::jet {

/// Numbers put into bytes, little-endian.
void PutWord(std::string& bytes, std::size_t at, std::uint16_t value);
void PutDword(std::string& bytes, std::size_t at, std::uint32_t value);
void AppendWord(std::string& bytes, std::uint16_t value);
void AppendDword(std::string& bytes, std::uint32_t value);

/// The pages of a Jet 4 file in the making.
class FileBuilder {
  public:
    static constexpr std::size_t PageSize = 4096;

    /// A new page at the end, all zero; gives its number.
    std::uint32_t AddPage();
    std::uint32_t PageCount() const { return static_cast<std::uint32_t>(bytes_.size() / PageSize); }
    void Put(std::uint32_t page, std::size_t at, std::string_view bytes);
    std::string Take() { return std::move(bytes_); }

  private:
    std::string bytes_;
};

/// A data page that is filled with rows, from its end downwards.
class DataPage {
  public:
    /// `owner`: the definition page of the table, 0 for maps, or "LVAL" as a number.
    explicit DataPage(std::uint32_t owner) : owner_(owner) {}
    bool HasRoom(std::size_t rowSize) const;
    /// The row's number.
    std::uint8_t Add(std::string_view row);
    bool IsEmpty() const { return rows_.empty(); }
    /// The whole page.
    std::string Bytes() const;

    static constexpr std::size_t Head = 14;
    static constexpr std::size_t MaximumRows = 255;

  private:
    std::uint32_t owner_;
    std::vector<std::string> rows_;
    std::size_t used_ = 0;  // bytes of rows
};

/// The bytes of a usage map of these pages, making map pages where a plain bitmap of 64 bytes
/// doesn't reach.
std::string UsageMapRow(FileBuilder& file, const std::vector<std::uint32_t>& pages);

}  // namespace tendo::jet
