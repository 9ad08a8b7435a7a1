#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace tendo {

/// Throws RuntimeError 3343: which file, where in it, what is wrong ("\"Prices.xls\" is damaged at
/// byte 512: the sectors run in a circle.").
[[noreturn]] void ThrowDamage(std::string_view file, std::string_view place, std::string_view what);

/// Throws RuntimeError 3343 for a file that is whole but can't be read ("\"Prices.xls\" cannot be
/// read: it is protected with a password.").
[[noreturn]] void ThrowNotReadable(std::string_view file, std::string_view why);

/// "byte 512".
std::string ByteText(std::size_t at);

}  // namespace tendo
