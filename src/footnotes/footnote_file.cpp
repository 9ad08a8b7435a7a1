#include "footnotes/footnote_file.h"

#include <array>
#include <cstdint>
#include <string_view>

#include "platform/files/safe_file.h"
#include "platform/office/web_table.h"
#include "platform/text/code_page.h"
#include "platform/text/runtime_error.h"
#include "platform/text/text.h"

namespace tendo {

namespace {

constexpr std::uint64_t LongestFile = std::uint64_t{64} << 20;

/// How files begin that are often taken for texts.
struct KnownStart {
    std::string_view start, what;
};
constexpr std::array KnownStarts = {
    KnownStart{"\xD0\xCF\x11\xE0", "a document of Word or another Office program"},
    KnownStart{"PK\x03\x04", "a document of Word, Writer or another Office program"},
    KnownStart{"%PDF", "a PDF document"},
};

[[noreturn]] void Refuse(const std::string& file, std::string_view what) {
    throw RuntimeError(error_number::UnrecognizedFormat,
                       "\"" + file + "\" is " + std::string(what) +
                           ".  Save it as Rich Text Format (.rtf) or as plain text (.txt) in its "
                           "own program and try again.  The footnote was left as it was.");
}

}  // namespace

std::string ReadFootnoteFile(const std::string& file) {
    const std::string bytes = ReadWholeFile(file, LongestFile);
    for (const KnownStart& known : KnownStarts)
        if (StartsWith(bytes, known.start)) Refuse(file, known.what);
    const std::string text = FromTextFileBytes(bytes);
    if (text.find('\0') != std::string::npos) Refuse(file, "no text");
    if (IsWebPage(text)) Refuse(file, "a web page");
    return text;
}

}  // namespace tendo
