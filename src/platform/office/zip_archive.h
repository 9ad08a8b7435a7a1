#pragma once

#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <string_view>

namespace tendo {

/// A zip archive in memory, read within limits: its stated sizes are not believed, an entry is
/// unpacked piece by piece until it is whole or passes a limit. Bytes and name must outlive it.
/// Errors: 3343.
class ZipArchive {
  public:
    ZipArchive(std::string_view bytes, std::string_view name);

    static bool IsOne(std::string_view bytes) { return bytes.starts_with("PK\3\4"); }

    /// The unpacked bytes of an entry; nothing when there is none of that name.
    std::optional<std::string> Entry(const std::string& entryName);

  private:
    struct Closer {
        void operator()(void* archive) const;
    };

    std::string_view name_;
    std::size_t unpacked_ = 0;
    std::size_t packedSize_ = 0;
    std::unique_ptr<void, Closer> archive_;
};

}  // namespace tendo
