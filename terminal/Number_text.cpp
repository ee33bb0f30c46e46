#include "terminal/Number_text.h"

#include "terminal/Decimal.h"

#include <algorithm>
#include <charconv>
#include <cmath>

namespace terminal {
namespace {

constexpr int most_decimals = 7; ///< what the standard allows

/// Drops the last `count` decimal digits.
std::uint64_t dropped(std::uint64_t digits, int count, bool truncate)
{
    if (count > 19)
        return 0;
    std::uint64_t unit = 1;
    for (int i = 0; i < count; ++i)
        unit *= 10;
    const std::uint64_t rest = digits % unit;
    return digits / unit + (!truncate && rest != 0 && rest >= unit - rest);
}

/// The decimal digits of a number.
class Digits
{
  public:
    explicit Digits(std::uint64_t number)
        : length(std::to_chars(characters.data(), characters.data() + characters.size(), number).ptr -
                 characters.data())
    {}

    std::string_view text() const { return {characters.data(), static_cast<std::size_t>(length)}; }
    int size() const { return static_cast<int>(length); }

  private:
    std::array<char, 20> characters{};
    std::ptrdiff_t length;
};

} // namespace

Number_format number_format(Object number)
{
    constexpr unsigned leading_zeros = 2, zero_as_blank = 4, truncate = 8;
    const unsigned options = number.u8(Field::options);
    Number_format format;
    format.offset = number.s32(Field::offset);
    format.scale = number.f32(Field::scale);
    format.decimals = number.u8(Field::decimals);
    format.exponential = number.u8(Field::format) != 0;
    format.truncate = options & truncate;
    format.leading_zeros = options & leading_zeros;
    format.zero_as_blank = options & zero_as_blank;
    return format;
}

Number_text::Number_text(std::uint32_t value, const Number_format& format, int columns)
{
    const std::int64_t sum = std::int64_t{value} + format.offset;
    if (!std::isfinite(format.scale)) {
        const bool number = !std::isnan(format.scale) && sum != 0;
        append(!number ? "nan" : (format.scale < 0) == (sum < 0) ? "inf" : "-inf");
        return;
    }
    // Less than 2^33 times less than 10^9 is less than 2^63.
    const Decimal scale = shortest(format.scale);
    const std::int64_t product = sum * scale.digits;
    if (product == 0 && format.zero_as_blank)
        return;

    append('-');
    const auto digits = static_cast<std::uint64_t>(product < 0 ? -product : product);
    if (format.exponential)
        append_exponential(digits, scale.exponent, format);
    else
        append_fixed(digits, scale.exponent, format);
    const std::string_view mantissa = text().substr(0, text().find('e'));
    const bool negative = product < 0 && mantissa.find_first_of("123456789") != std::string_view::npos;
    if (!negative) {
        std::copy(characters.data() + 1, characters.data() + length, characters.data());
        --length;
    }
    if (format.leading_zeros)
        fill_with_zeros(columns);
}

void Number_text::append(std::string_view more)
{
    std::copy(more.begin(), more.end(), characters.data() + length);
    length += more.size();
}

void Number_text::append_fixed(std::uint64_t digits, int exponent, const Number_format& format)
{
    const int decimals = std::clamp(format.decimals, 0, most_decimals);
    const int shift = exponent + decimals;
    const Digits kept(shift < 0 ? dropped(digits, -shift, format.truncate) : digits);
    const int zeros_behind = digits == 0 ? 0 : std::max(0, shift);
    const int zeros_before = std::max(0, decimals + 1 - kept.size() - zeros_behind);

    for (int i = 0; i < zeros_before; ++i)
        append('0');
    append(kept.text());
    for (int i = 0; i < zeros_behind; ++i)
        append('0');
    if (decimals > 0) {
        char* const point = characters.data() + length - decimals;
        std::copy_backward(point, characters.data() + length, characters.data() + length + 1);
        *point = '.';
        ++length;
    }
}

void Number_text::append_exponential(std::uint64_t digits, int exponent, const Number_format& format)
{
    const int decimals = std::clamp(format.decimals, 0, most_decimals);
    const int size = Digits(digits).size();
    const Digits kept(size > decimals + 1 ? dropped(digits, size - decimals - 1, format.truncate) : digits);
    // Rounding 9.99 up gives a digit more, and all but the first one are then 0.
    int power = digits == 0 ? 0 : size - 1 + exponent + (kept.size() > std::min(size, decimals + 1));

    const std::string_view mantissa = kept.text();
    append(mantissa[0]);
    if (decimals > 0) {
        append('.');
        for (std::size_t i = 1; i <= static_cast<std::size_t>(decimals); ++i)
            append(i < mantissa.size() ? mantissa[i] : '0');
    }
    append('e');
    append(power < 0 ? '-' : '+');
    power = std::abs(power);
    if (power < 10)
        append('0');
    append(Digits(static_cast<std::uint64_t>(power)).text());
}

void Number_text::fill_with_zeros(int columns)
{
    const std::size_t wanted = std::min(static_cast<std::size_t>(std::max(columns, 0)), characters.size());
    if (length >= wanted)
        return;
    const std::size_t sign = characters[0] == '-';
    const std::size_t zeros = wanted - length;
    std::copy_backward(characters.data() + sign, characters.data() + length, characters.data() + wanted);
    std::fill_n(characters.data() + sign, zeros, '0');
    length = wanted;
}

} // namespace terminal
