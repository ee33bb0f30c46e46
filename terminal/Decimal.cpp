#include "terminal/Decimal.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cstddef>
#include <cstdlib>

namespace terminal {
namespace {

/// Cuts the digits off that `text` begins with.
std::string_view take_digits(std::string_view& text)
{
    const std::string_view digits = text.substr(0, text.find_first_not_of("0123456789"));
    text.remove_prefix(digits.size());
    return digits;
}

int compare_sizes(const Written_number& a, const Written_number& b)
{
    if (a.whole.size() != b.whole.size())
        return a.whole.size() < b.whole.size() ? -1 : 1;
    const int difference = a.whole.compare(b.whole);
    return difference != 0 ? difference : a.fraction.compare(b.fraction);
}

} // namespace

Decimal shortest(float number)
{
    std::array<char, 32> text;
    const auto written = std::to_chars(text.data(), text.data() + text.size(), number, std::chars_format::scientific);
    Decimal result;
    const char* c = text.data();
    const bool negative = *c == '-';
    bool behind_point = false;
    for (c += negative; *c != 'e'; ++c) {
        if (*c == '.') {
            behind_point = true;
            continue;
        }
        result.digits = result.digits * 10 + (*c - '0');
        result.exponent -= behind_point;
    }
    ++c;
    int exponent = 0;
    std::from_chars(c + (*c == '+'), written.ptr, exponent);
    result.exponent += exponent;
    if (negative)
        result.digits = -result.digits;
    return result;
}

std::optional<Written_number> read_number(std::string_view text)
{
    constexpr std::string_view blanks = " \t\r\n";
    text.remove_prefix(std::min(text.find_first_not_of(blanks), text.size()));
    text = text.substr(0, text.find_last_not_of(blanks) + 1);

    Written_number number;
    if (!text.empty() && (text[0] == '-' || text[0] == '+')) {
        number.negative = text[0] == '-';
        text.remove_prefix(1);
    }
    number.whole = take_digits(text);
    if (!text.empty() && (text[0] == '.' || text[0] == ',')) {
        text.remove_prefix(1);
        number.fraction = take_digits(text);
    }
    if (!text.empty() || (number.whole.empty() && number.fraction.empty()))
        return std::nullopt;

    number.whole.remove_prefix(std::min(number.whole.find_first_not_of('0'), number.whole.size()));
    number.fraction = number.fraction.substr(0, number.fraction.find_last_not_of('0') + 1);
    number.negative = number.negative && !(number.whole.empty() && number.fraction.empty());
    return number;
}

int compare(const Written_number& a, const Written_number& b)
{
    if (a.negative != b.negative)
        return a.negative ? -1 : 1;
    return a.negative ? compare_sizes(b, a) : compare_sizes(a, b);
}

std::int64_t count_steps(const Written_number& number, const Decimal& step)
{
    // Long division, with the step's exponent taken as a shift of the point.
    constexpr std::int64_t beyond = std::int64_t{1} << 40;
    const auto whole = static_cast<std::ptrdiff_t>(number.whole.size());
    const auto end = whole + static_cast<std::ptrdiff_t>(number.fraction.size());
    const auto digit = [&](std::ptrdiff_t i) {
        if (i < 0 || i >= end)
            return 0;
        return (i < whole ? number.whole[static_cast<std::size_t>(i)]
                          : number.fraction[static_cast<std::size_t>(i - whole)]) -
               '0';
    };
    const std::ptrdiff_t point = whole - step.exponent;
    const std::int64_t divisor = std::abs(step.digits);
    std::int64_t steps = 0;
    std::int64_t rest = 0;
    for (std::ptrdiff_t i = 0; i < point && steps <= beyond; ++i) {
        rest = rest * 10 + digit(i);
        steps = steps * 10 + rest / divisor;
        rest %= divisor;
    }
    // Of the digits behind the point, the first one decides whether they come to a half.
    steps += 2 * rest + (digit(point) >= 5) >= divisor;
    return number.negative == (step.digits < 0) ? steps : -steps;
}

} // namespace terminal
