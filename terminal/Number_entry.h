#ifndef TERMINAL_NUMBER_ENTRY_H
#define TERMINAL_NUMBER_ENTRY_H

#include "terminal/Number_text.h"

#include <cstdint>
#include <string>
#include <string_view>

namespace terminal {

/// The entry of a number, as the operator sees it: texts in the units and with the decimals in which the field shows
/// its value, never exponential, blank or filled up with zeros. It is a copy of what the field was when it was made.
class Number_entry
{
  public:
    /// A raw value or, in words for the operator, why there is none.
    struct Reading
    {
        std::uint32_t value = 0;
        std::string refusal;
    };

    Number_entry(const Number_format& format, std::uint32_t value, std::uint32_t minimum, std::uint32_t maximum);

    std::string value() const { return text(raw); }
    std::string lowest() const { return text(low); }
    std::string highest() const { return text(high); }
    int decimals() const { return format.decimals; }

    /// The raw value whose number is nearest to what is entered; from halfway between two, the one further from zero.
    /// It is exact for every entry, however long. What is shown as the present value is that value, rounded or not.
    ///
    /// The limits may be shown rounded to numbers that lie outside. So what lies beyond a limit, but not beyond what is
    /// shown as the limit, is the limit.
    Reading read(std::string_view entered) const;

  private:
    std::string text(std::uint32_t number) const;

    Number_format format;
    std::uint32_t raw;
    std::uint32_t low;  ///< raw, of the lowest number that is shown: with a negative scale the maximum
    std::uint32_t high; ///< raw, of the highest
};

} // namespace terminal

#endif
