#include "platform/office/zip_archive.h"

#include <zip.h>

#include <algorithm>
#include <array>

#include "platform/office/office_error.h"

namespace tendo {

namespace {

constexpr std::size_t MostEntries = 10'000;
constexpr std::size_t MostOfEntry = std::size_t{32} << 20;
constexpr std::size_t MostOfAll = std::size_t{64} << 20;
/// How much a file may grow when unpacked; small ones may always grow to the floor.
constexpr std::size_t MostGrowth = 200;
constexpr std::size_t GrowthFloor = std::size_t{4} << 20;

}  // namespace

void ZipArchive::Closer::operator()(void* archive) const {
    zip_discard(static_cast<zip_t*>(archive));
}

ZipArchive::ZipArchive(std::string_view bytes, std::string_view name)
    : name_(name), packedSize_(bytes.size()) {
    zip_error_t error;
    zip_error_init(&error);
    zip_source_t* source = zip_source_buffer_create(bytes.data(), bytes.size(), 0, &error);
    zip_t* archive = source == nullptr ? nullptr : zip_open_from_source(source, ZIP_RDONLY, &error);
    if (archive == nullptr && source != nullptr) zip_source_free(source);
    zip_error_fini(&error);
    if (archive == nullptr)
        ThrowDamage(name_, ByteText(bytes.size()), "the list of its parts is missing or broken");
    archive_.reset(archive);
    if (zip_get_num_entries(archive, 0) > static_cast<zip_int64_t>(MostEntries))
        ThrowNotReadable(name_, "it has too many parts");
}

std::optional<std::string> ZipArchive::Entry(const std::string& entryName) {
    auto* archive = static_cast<zip_t*>(archive_.get());
    const zip_int64_t index = zip_name_locate(archive, entryName.c_str(), ZIP_FL_NOCASE);
    if (index < 0) return std::nullopt;
    const std::unique_ptr<zip_file_t, int (*)(zip_file_t*)> file(
        zip_fopen_index(archive, static_cast<zip_uint64_t>(index), 0), zip_fclose);
    if (!file) ThrowDamage(name_, "part " + entryName, "it cannot be unpacked");
    const std::size_t most = std::min(
        {MostOfEntry, MostOfAll - unpacked_, std::max(GrowthFloor, packedSize_ * MostGrowth)});
    std::string result;
    std::array<char, 65536> piece{};
    for (;;) {
        const zip_int64_t count = zip_fread(file.get(), piece.data(), piece.size());
        if (count < 0) ThrowDamage(name_, "part " + entryName, "it cannot be unpacked");
        if (count == 0) break;
        if (static_cast<std::size_t>(count) > most - result.size())
            ThrowNotReadable(name_, "its part " + entryName + " is too large when unpacked");
        result.append(piece.data(), static_cast<std::size_t>(count));
    }
    unpacked_ += result.size();
    return result;
}

}  // namespace tendo
