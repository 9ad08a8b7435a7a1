#include "platform/office/office_error.h"

#include "platform/text/runtime_error.h"

namespace tendo {

void ThrowDamage(std::string_view file, std::string_view place, std::string_view what) {
    throw RuntimeError(error_number::UnrecognizedFormat,
                       "\"" + std::string(file) + "\" is damaged at " + std::string(place) + ": " +
                           std::string(what) + ".");
}

void ThrowNotReadable(std::string_view file, std::string_view why) {
    throw RuntimeError(error_number::UnrecognizedFormat,
                       "\"" + std::string(file) + "\" cannot be read: " + std::string(why) + ".");
}

std::string ByteText(std::size_t at) {
    return "byte " + std::to_string(at);
}

}  // namespace tendo
