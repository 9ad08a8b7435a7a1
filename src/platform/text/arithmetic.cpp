#include "platform/text/arithmetic.h"

#include <string>

#include "platform/text/number_text.h"
#include "platform/text/runtime_error.h"

namespace tendo {
namespace {

constexpr std::size_t LongestText = 200;  // too short for a value that no double holds
constexpr int DeepestNesting = 50;

struct NoExpression {};

/// Reads by the usual descent: sums of products of signed values.
class Expression {
  public:
    explicit Expression(std::string_view text) : text_(text) {}

    double Value() {
        const double value = Sum();
        if (Next() != '\0') throw NoExpression{};
        return value;
    }

  private:
    /// The next character that isn't a blank; 0 at the end.
    char Next() {
        while (at_ < text_.size() && text_[at_] == ' ')
            ++at_;
        return at_ < text_.size() ? text_[at_] : '\0';
    }

    bool Take(char wanted) {
        if (Next() != wanted) return false;
        ++at_;
        return true;
    }

    double Sum() {
        double value = Product();
        while (true) {
            if (Take('+'))
                value += Product();
            else if (Take('-'))
                value -= Product();
            else
                return value;
        }
    }

    double Product() {
        double value = Signed();
        while (true) {
            if (Take('*')) {
                value *= Signed();
            } else if (Take('/')) {
                const double divisor = Signed();
                if (divisor == 0) ThrowError(error_number::DivisionByZero);
                value /= divisor;
            } else {
                return value;
            }
        }
    }

    double Signed() {
        double sign = 1;
        while (Next() == '-' || Next() == '+')
            if (text_[at_++] == '-') sign = -sign;
        return sign * (Take('(') ? Parenthesized() : Number());
    }

    double Parenthesized() {
        if (++depth_ > DeepestNesting) throw NoExpression{};
        const double value = Sum();
        if (!Take(')')) throw NoExpression{};
        --depth_;
        return value;
    }

    double Number() {
        Next();
        const std::size_t start = at_;
        while (at_ < text_.size() &&
               (text_[at_] == '.' || (text_[at_] >= '0' && text_[at_] <= '9')))
            ++at_;
        double value = 0;
        if (!ReadNumber(text_.substr(start, at_ - start), value)) throw NoExpression{};
        return value;
    }

    std::string_view text_;
    std::size_t at_ = 0;
    int depth_ = 0;
};

}  // namespace

std::optional<double> EvaluateArithmetic(std::string_view text) {
    if (text.size() > LongestText) return std::nullopt;
    try {
        return Expression(text).Value();
    } catch (const NoExpression&) {
        return std::nullopt;
    }
}

}  // namespace tendo
