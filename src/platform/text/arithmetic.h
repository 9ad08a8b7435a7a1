#pragma once

#include <optional>
#include <string_view>

namespace tendo {

/// The value of a simple expression as an estimator types it into a quantity ("3*12+4",
/// "(250-18)/2"): numbers with a point, + - * /, parentheses, signs, blanks anywhere. Nothing for
/// what is none, for more than 200 characters or 50 parentheses within each other. RuntimeError 11
/// for a division by zero.
std::optional<double> EvaluateArithmetic(std::string_view text);

}  // namespace tendo
