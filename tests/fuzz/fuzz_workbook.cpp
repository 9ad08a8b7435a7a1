#include <cstdint>
#include <string_view>

#include "platform/office/read_workbook.h"
#include "platform/office/separated_text.h"
#include "platform/office/xls_reader.h"
#include "platform/text/runtime_error.h"

/// Reads any bytes as a workbook, and behind a first byte 0xFF as the records of one, and writes
/// what was read.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const std::string_view bytes(reinterpret_cast<const char*>(data), size);
    try {
        const bool records = bytes.starts_with('\xFF');
        const tendo::Workbook book = records ? tendo::ReadXlsStream(bytes.substr(1), "fuzz.xls")
                                             : tendo::ReadWorkbook(bytes, "fuzz.xls");
        tendo::WriteCsv(book.cells);
    } catch (const tendo::RuntimeError&) {
    }
    return 0;
}
