#include "footnotes/footnote_file.h"

#include <algorithm>
#include <array>
#include <cctype>
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
    KnownStart{"\xDB\xA5-", "a document of an old release of Word"},
    KnownStart{"\xFFWPC", "a document of WordPerfect"},
    KnownStart{"%PDF", "a PDF document"},
    KnownStart{"\x89PNG", "a picture"},
    KnownStart{"GIF8", "a picture"},
    KnownStart{"\xFF\xD8\xFF", "a picture"},
    KnownStart{"MIME-Version:", "a stored web page or mail"},
};

[[noreturn]] void Refuse(const std::string& file, std::string_view what) {
    throw RuntimeError(error_number::UnrecognizedFormat,
                       "\"" + file + "\" is " + std::string(what) +
                           ".  Save it as Rich Text Format (.rtf) or as plain text (.txt) in its "
                           "own program and try again.  The footnote was left as it was.");
}

/// The text's first characters in lower case, from the first that is no blank.
std::string Beginning(std::string_view text) {
    constexpr std::size_t Looked = 20;
    const std::size_t start = text.find_first_not_of(" \t\r\n");
    return start == std::string_view::npos ? "" : LowerCase(text.substr(start, Looked));
}

/// The number behind "\bin" at the start of a text, and its length; 0 bytes when there is none.
struct RawBytes {
    std::size_t count = 0, length = 0;
};
RawBytes RawBytesAt(std::string_view text) {
    constexpr std::string_view Word = "\\bin";
    RawBytes raw;
    if (!StartsWith(text, Word)) return raw;
    std::size_t at = Word.size();
    for (; at < text.size() && std::isdigit(static_cast<unsigned char>(text[at])); ++at)
        raw.count = std::min<std::size_t>(raw.count * 10 + static_cast<std::size_t>(text[at] - '0'),
                                          LongestFile);
    if (at == Word.size()) return {};
    if (at < text.size() && text[at] == ' ') ++at;
    raw.length = at;
    return raw;
}

/// Rich text as plain ASCII. Letters of a code page that stand in it as bytes get the form that
/// names their bytes, so that the text's own code page is applied to them; raw bytes of pictures,
/// which nobody shows, are left out.
std::string AsciiRichText(std::string_view bytes) {
    constexpr std::string_view Digits = "0123456789abcdef";
    std::string text;
    text.reserve(bytes.size());
    for (std::size_t at = 0; at < bytes.size(); ++at) {
        const auto byte = static_cast<unsigned char>(bytes[at]);
        const RawBytes raw = byte == '\\' ? RawBytesAt(bytes.substr(at, 24)) : RawBytes();
        if (raw.length > 0) {
            at += std::min(raw.length + raw.count, bytes.size() - at) - 1;
        } else if (byte == '\\' && at + 1 < bytes.size() && bytes[at + 1] == '\\') {
            text += "\\\\";
            ++at;
        } else if (byte >= 0x80) {
            text += {'\\', '\'', Digits[byte >> 4], Digits[byte & 15]};
        } else if (byte != 0) {
            text += bytes[at];
        }
    }
    return text;
}

bool IsRichFile(std::string_view bytes) {
    return StartsWith(Beginning(bytes), "{\\rtf");
}

}  // namespace

std::string ReadFootnoteFile(const std::string& file) {
    const std::string bytes = ReadWholeFile(file, LongestFile);
    for (const KnownStart& known : KnownStarts)
        if (StartsWith(bytes, known.start)) Refuse(file, known.what);
    if (IsRichFile(bytes))
        return IsUtf8(bytes) && !Contains(bytes, "\\bin") ? bytes : AsciiRichText(bytes);
    std::string text = FromTextFileBytes(bytes);
    if (text.find('\0') != std::string::npos) Refuse(file, "no text");
    if (IsWebPage(text)) Refuse(file, "a web page");
    if (StartsWith(Beginning(text), "<?xml")) Refuse(file, "an XML document");
    return text;
}

}  // namespace tendo
