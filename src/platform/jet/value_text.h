#pragma once

#include <string>
#include <string_view>

namespace tendo::jet {

/// "{8-4-4-4-12}" in capitals of 16 bytes, and back; back gives false for a text that is none.
std::string GuidText(std::string_view bytes);
bool GuidBytes(std::string_view text, std::string& bytes);
/// A numeric of 17 bytes as decimal text with `scale` places, and back.
std::string NumericText(std::string_view bytes, int scale);
bool NumericBytes(std::string_view text, int scale, std::string& bytes);

}  // namespace tendo::jet
