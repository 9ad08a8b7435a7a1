// Database files: opening, reading and checking any bytes must end soon, without a fault and
// without memory beyond the file's measure.

#include <cstdint>
#include <string>

#include "platform/jet/jet_reader.h"
#include "platform/text/runtime_error.h"

namespace {

void ReadAll(const tendo::jet::Reader& reader) {
    for (const std::string& table : reader.TableNames()) {
        try {
            reader.Table(table);
            std::size_t bytes = 0;
            reader.ReadRows(table, [&](std::span<const tendo::jet::ValueView> row) {
                for (const auto& value : row) {
                    if (const auto* text = std::get_if<std::string_view>(&value)) {
                        for (const char c : *text)
                            bytes += static_cast<unsigned char>(c);
                    }
                }
                return true;
            });
            [[maybe_unused]] volatile std::size_t touched = bytes;
        } catch (const tendo::RuntimeError&) {
            // Damage is told for each table by itself; the next one may be whole.
        }
    }
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    try {
        const auto reader = tendo::jet::Reader::OpenBytes(
            std::string(reinterpret_cast<const char*>(data), size), "fuzz.mdb");
        reader.NotKeptOnWrite();
        ReadAll(reader);
        reader.Check();
    } catch (const tendo::RuntimeError&) {
        // No database, or one whose catalogue is broken.
    }
    return 0;
}
