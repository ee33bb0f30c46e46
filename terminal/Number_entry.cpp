#include "terminal/Number_entry.h"

#include "terminal/Decimal.h"

#include <cmath>
#include <utility>

namespace terminal {

Number_entry::Number_entry(const Number_format& field_format, std::uint32_t value, std::uint32_t minimum,
                           std::uint32_t maximum)
    : format(field_format), raw(value), low(minimum), high(maximum)
{
    format.exponential = false;
    format.zero_as_blank = false;
    if (format.scale < 0)
        std::swap(low, high);
}

std::string Number_entry::text(std::uint32_t number) const
{
    return std::string(Number_text(number, format, 0).text());
}

Number_entry::Reading Number_entry::read(std::string_view entered) const
{
    const auto refuse = [](std::string reason) { return Reading{0, std::move(reason)}; };
    if (!std::isfinite(format.scale) || format.scale == 0)
        return refuse("this field has no steps");
    const auto number = read_number(entered);
    if (!number)
        return refuse("the entry is not a number");

    // Counted upwards in what is shown, from the lowest number on.
    const int upwards = format.scale < 0 ? -1 : 1;
    const std::int64_t range = (std::int64_t{high} - low) * upwards;
    if (range < 0)
        return refuse("no number is allowed: the lowest, " + lowest() + ", is above the highest, " + highest());
    const std::int64_t wanted = entered == value() ? raw : count_steps(*number, shortest(format.scale)) - format.offset;
    const std::int64_t above = (wanted - low) * upwards;
    if (above < 0) {
        const std::string limit = lowest();
        if (compare(*number, read_number(limit).value()) < 0)
            return refuse("the entry is below the lowest number, " + limit);
        return {low, {}};
    }
    if (above > range) {
        const std::string limit = highest();
        if (compare(*number, read_number(limit).value()) > 0)
            return refuse("the entry is above the highest number, " + limit);
        return {high, {}};
    }
    return {static_cast<std::uint32_t>(wanted), {}};
}

} // namespace terminal
