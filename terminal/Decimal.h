#ifndef TERMINAL_DECIMAL_H
#define TERMINAL_DECIMAL_H

#include <cstdint>
#include <optional>
#include <string_view>

namespace terminal {

/// digits × 10^exponent
struct Decimal
{
    std::int64_t digits = 0;
    int exponent = 0;
};

/// The shortest decimal number that makes this finite float; at most nine digits. The float was written as 0.01, not as
/// 0.00999999977648258.
Decimal shortest(float number);

/// A decimal number of any length, as the parts of the text that it is written in.
struct Written_number
{
    bool negative = false;     ///< never for zero
    std::string_view whole;    ///< digits before the point, without leading zeros
    std::string_view fraction; ///< digits behind it, without trailing zeros
};

/// Reads digits with a point or comma among, before or behind them, after a sign or none, and with blanks around it
/// all.
std::optional<Written_number> read_number(std::string_view text);

/// Less than, equal to or greater than 0, as `a` is to `b`.
int compare(const Written_number& a, const Written_number& b);

/// `number` ÷ `step`, rounded to a whole number, halves away from zero. The step is not 0 and has at most nine digits.
/// What is beyond ±2^40 comes out as any number beyond it.
std::int64_t count_steps(const Written_number& number, const Decimal& step);

} // namespace terminal

#endif
