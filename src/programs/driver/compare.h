#pragma once

#include <nlohmann/json.hpp>
#include <string>

namespace tendo::driver {

using Json = nlohmann::ordered_json;

/// True when a value is what a script expects: "~TEXT" means "holds TEXT"; numbers compare as
/// numbers, to one unit in the seventh digit; truth values as true and false; texts as they are; a
/// list holds the expected when one of its items does.
bool Agrees(const std::string& expected, const Json& got);

/// A value as text, the way scripts write it.
std::string TextOf(const Json& value);

}  // namespace tendo::driver
