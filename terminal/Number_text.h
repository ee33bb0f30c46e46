#ifndef TERMINAL_NUMBER_TEXT_H
#define TERMINAL_NUMBER_TEXT_H

#include "terminal/Object.h"

#include <array>
#include <cstddef>
#include <cstdint>
#include <string_view>

namespace terminal {

/// How a number object shows its value.
struct Number_format
{
    std::int32_t offset = 0;
    float scale = 1;
    int decimals = 0;
    bool exponential = false; ///< one digit before the point, at least two in the exponent: 1.50e+03
    bool truncate = false;    ///< instead of rounding, halves away from zero
    bool leading_zeros = false;
    bool zero_as_blank = false; ///< if it is exactly zero, not if it only rounds to zero
};

/// The format of an input or output number.
Number_format number_format(Object number);

/// The text of a displayed number, (value + offset) × scale, worked out exactly in decimal digits, for which the scale
/// is the shortest() decimal number that makes it. No digit is lost, truncating does not turn 0.29 into 0.28, and there
/// is no negative zero.
class Number_text
{
  public:
    /// `columns` is how far leading zeros fill; more than the text can hold is taken as what it can.
    Number_text(std::uint32_t value, const Number_format& format, int columns);

    std::string_view text() const { return {characters.data(), length}; }

  private:
    void append(char character) { characters[length++] = character; }
    void append(std::string_view more);
    void append_fixed(std::uint64_t digits, int exponent, const Number_format& format);
    void append_exponential(std::uint64_t digits, int exponent, const Number_format& format);
    void fill_with_zeros(int columns);

    std::array<char, 128> characters;
    std::size_t length = 0;
};

} // namespace terminal

#endif
