// Random fields against a second opinion: the same rules, written down once more with other arithmetic. What both
// machines and all builds make of them is one number.

#include "vtui/comp/widgets/Number_widget.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <cstring>
#include <limits>
#include <random>

namespace {

using VT::Comp::Number_widget;
using Specification = Number_widget::Specification;

constexpr double infinity = std::numeric_limits<double>::infinity();
constexpr double nan = std::numeric_limits<double>::quiet_NaN();
constexpr std::int32_t lowest = std::numeric_limits<std::int32_t>::min();

constexpr int rounds = 250'000;     ///< fields
constexpr int values_per_round = 4; ///< of each system
constexpr std::uint64_t expected_digest = 0x01E8BDAA2C29A5E5;

/// Draws numbers that are the same everywhere.
class Source
{
  public:
    std::uint32_t below(std::uint32_t limit) { return static_cast<std::uint32_t>((bits() >> 32) * limit >> 32); }

    /// 0 to 1, in steps of 2^-53.
    double fraction() { return static_cast<double>(bits() >> 11) * 0x1p-53; }

    template <typename T, std::size_t N>
    T one_of(const T (&choice)[N])
    {
        return choice[below(N)];
    }

    std::uint32_t raw()
    {
        const std::uint32_t edges[] = {0, 1, 0x7FFFFFFF, 0x80000000, 0x80000001, 0xFFFFFFFF};
        return below(4) == 0 ? one_of(edges) : static_cast<std::uint32_t>(bits());
    }

    /// Of any magnitude, and either sign.
    double number()
    {
        const double edges[] = {0.0,          -0.0,         0.5,          -0.5,         2147483647.0, 2147483648.0,
                                -2147483648., -2147483649., 4294967295.0, 4294967296.0, 0x1p63,       -0x1p63,
                                infinity,     -infinity,    nan,          1e300,        -1e300,       1e-300};
        const double magnitudes[] = {1, 10, 1000, 1e5, 1e9, 4e9, 1e12, 1e-3};
        if (below(8) == 0)
            return one_of(edges);
        const double sign_and_fraction = 2 * fraction() - 1;
        const double value = sign_and_fraction * one_of(magnitudes);
        return below(3) == 0 ? std::rint(value) : value;
    }

    Specification specification()
    {
        const double usual_scales[] = {1,       0.1, 0.01, 0.001, 1e-4, 1e-5, 1e-6, 1e-7,
                                       1.0 / 3, 0.3, 0.7,  2,     7,    0.5,  0.25, 10};
        const double odd_scales[] = {1e-30, 1e30, 1e-60, 1e60, 1e300, 1e-300, 0.0, -1, -0.1, infinity, nan};
        Specification s;
        s.units_type = static_cast<Units_man::units_type>(below(Units_man::number_of_types));
        switch (below(8)) {
        case 0:
            s.scale = fraction();
            break;
        case 1:
            s.scale = one_of(odd_scales);
            break;
        default:
            s.scale = one_of(usual_scales);
            break;
        }
        s.decimals = static_cast<std::uint8_t>(below(8) == 0 ? below(256) : below(8));
        switch (below(8)) {
        case 0:
            break; // unbounded
        case 1:
            s.min = -2147483648.0 * s.scale;
            s.max = number();
            break;
        case 2:
            s.min = number();
            s.max = number();
            break;
        case 3:
            s.max = 1 + below(1000);
            break;
        default: {
            // So many steps from a minimum, which may be between two of them.
            const double steps = below(2) ? below(100'000) : static_cast<double>(raw());
            s.min = (static_cast<double>(below(2'000'000)) - 1'000'000) * s.scale;
            if (below(4) == 0)
                s.min *= fraction();
            s.max = s.min + steps * s.scale;
        }
        }
        return s;
    }

  private:
    std::uint64_t bits() { return engine(); }

    std::mt19937_64 engine{20'461};
};

/// FNV-1a over the bytes of numbers, low byte first.
class Digest
{
  public:
    void add(std::uint64_t number)
    {
        for (int i = 0; i < 8; ++i) {
            state = (state ^ (number & 0xFF)) * 0x100000001B3;
            number >>= 8;
        }
    }

    /// All numbers that are none count as one: their bits differ between processors.
    void add(double number)
    {
        if (std::isnan(number))
            number = nan;
        std::uint64_t bits;
        std::memcpy(&bits, &number, sizeof bits);
        add(bits);
    }

    std::uint64_t get() const { return state; }

  private:
    std::uint64_t state{0xCBF29CE484222325};
};

/// The value modulo 2^32 if 64 bits can hold it, else 0.
std::uint32_t low_bits(double value)
{
    if (!(std::abs(value) < 0x1p63))
        return 0;
    const double rest = std::fmod(std::trunc(value), 0x1p32);
    return static_cast<std::uint32_t>(static_cast<long long>(rest < 0 ? rest + 0x1p32 : rest));
}

/// The whole part if 32 bits can hold it, else the lowest number.
long long whole_part(double value)
{
    const double whole = std::trunc(value);
    return std::abs(whole) <= 2147483647 ? static_cast<long long>(whole) : lowest;
}

/// How many digits a limit adds, found by counting: log10 is rounded, so a digit more begins at 10^(n + 1/2).
int digits(long long limit)
{
    int count = 0;
    for (long double step = 3.16227766016837933199889354443272L; static_cast<long double>(limit) > step; step *= 10)
        ++count;
    return count;
}

/// What a field does, told a second time.
class Model
{
  public:
    Specification specifications[3];
    std::uint32_t system{0};
    double value{0};
    float scale{1};
    std::int32_t offset{0};
    std::uint32_t highest{0};
    std::uint32_t shown{0};
    std::uint32_t input_shown{0};
    double reported{0};
    bool input{false};

    static bool unbounded(const Specification& s) { return s.min == 0.0 && s.max == 0.0; }
    const Specification& current() const { return specifications[system]; }
    double factor() const
    {
        return Units_man::get(static_cast<Units_man::units_systems>(system), current().units_type);
    }

    /// Whether the system can be shown at all.
    bool accepts(std::uint32_t s) const
    {
        const Specification& spec = specifications[s];
        if (unbounded(spec))
            return true;
        if (std::isnan(spec.min) || std::isnan(spec.max) || spec.max <= spec.min)
            return false;
        const long long range = whole_part(spec.max - spec.min);
        const double steps = static_cast<double>(range) / spec.scale; // a range is not negative, but for the mark
        return std::isnan(steps) || steps <= 4294967295.0;
    }

    void set_system(std::uint32_t s)
    {
        system = s;
        Specification& spec = specifications[s];
        scale = static_cast<float>(spec.scale);
        if (unbounded(spec)) {
            spec.min = std::ldexp(-spec.scale, 31);
            spec.max = 2147483647.0 * spec.scale;
            offset = lowest;
            highest = 0xFFFFFFFF;
        } else {
            offset = static_cast<std::int32_t>(whole_part(std::nearbyint(spec.min / spec.scale)));
            highest = low_bits(std::nearbyint((spec.max - spec.min) / spec.scale));
        }
        set_value(value);
    }

    void set_value(double v)
    {
        const Specification& s = current();
        if (!unbounded(s)) {
            if (!(v > s.min))
                v = s.min;
            if (!(s.max > v))
                v = s.max;
        }
        value = v;
        shown = low_bits(std::nearbyint(v * factor() / static_cast<double>(scale)) - offset);
        if (input)
            input_shown = shown;
    }

    void enter(std::uint32_t raw)
    {
        shown = raw;
        value = (static_cast<double>(raw) * current().scale + current().min) / factor();
        reported = value;
    }

    void step_to(double v)
    {
        set_value(v);
        reported = value;
    }

    unsigned characters() const
    {
        const Specification& s = current();
        long long largest = lowest;
        for (const double limit : {s.min, s.max}) {
            const long long whole = whole_part(limit);
            largest = std::max(largest, whole == lowest ? whole : std::abs(whole));
        }
        return (s.decimals ? s.decimals + 2U : 1U) + (unbounded(s) || s.min < 0) +
               static_cast<unsigned>(digits(largest));
    }
};

bool same(double a, double b) { return a == b || (std::isnan(a) && std::isnan(b)); }

/// A field of which a test hears what is reported, and its model.
class Pair : private Number_widget
{
  public:
    Pair(const Style& style, const Specification& s0, const Specification& s1, const Specification& s2)
        : Number_widget(style, nullptr)
    {
        construct(style, s0, s1, nullptr, s2);
        model.input = style.input;
        model.specifications[0] = s0;
        model.specifications[1] = s1;
        model.specifications[2] = s2;
    }

    bool accepts(std::uint32_t s) const { return model.accepts(s); }

    void initialise()
    {
        init(nullptr, nullptr);
        model.set_system(0);
    }
    void show(std::uint32_t s)
    {
        set_system(static_cast<Units_man::units_systems>(s));
        model.set_system(s);
    }
    void give(double v)
    {
        set_value(v);
        model.set_value(v);
    }
    void enter(std::uint32_t raw)
    {
        handle_input(raw);
        model.enter(raw);
    }
    void step(double by)
    {
        increment(by);
        model.step_to(model.value + by);
    }
    void step_back(double by)
    {
        decrement(by);
        model.step_to(model.value - by);
    }

    /// True if both agree; what the field says goes into the digest.
    bool compare(Digest& digest)
    {
        const VT::Comp::Dimension size = get_preferred_number_size();
        digest.add(std::uint64_t{output_number.value});
        digest.add(std::uint64_t{input_number.value});
        digest.add(value);
        digest.add(static_cast<std::uint64_t>(output_number.offset));
        digest.add(static_cast<double>(output_number.scale));
        digest.add(std::uint64_t{input_number.max_value});
        digest.add(std::uint64_t{size.width} << 16 | size.height);
        digest.add(reported);
        return output_number.value == model.shown && input_number.value == model.input_shown &&
               same(value, model.value) && same(reported, model.reported) && output_number.offset == model.offset &&
               input_number.offset == model.offset && same(output_number.scale, model.scale) &&
               same(input_number.scale, model.scale) && input_number.max_value == model.highest &&
               size.width == model.characters() * 6 && size.height == 8;
    }

  private:
    void handle_input_value(double v) override { reported = v; }

    Model model;
    double reported{0};
};

TEST(NumberProperty, OfRandomFieldsIsThatOfTheRulesAndTheSameOnEveryMachine)
{
    Source source;
    Digest digest;
    VT::Comp::Font_attributes_obj font; // 6 × 8
    font.size = std::uint8_t{0};
    VT::Comp::Number_widget::Style style;
    style.number_font = &font;
    int samples = 0;
    for (int round = 0; round < rounds; ++round) {
        style.input = source.below(2) == 0;
        Pair pair{style, source.specification(), source.specification(), source.specification()}; // in this order
        if (!pair.accepts(0))
            continue; // would end the process
        pair.initialise();
        for (int i = 0; i < 4; ++i) {
            const std::uint32_t system = source.below(3);
            if (!pair.accepts(system))
                continue;
            pair.show(system);
            ASSERT_TRUE(pair.compare(digest)) << "field " << round << " in system " << system;
            for (int j = 0; j < values_per_round; ++j) {
                ++samples;
                switch (source.below(5)) {
                case 0:
                    pair.enter(source.raw());
                    break;
                case 1:
                    pair.step(source.number());
                    break;
                case 2:
                    pair.step_back(source.number());
                    break;
                default:
                    pair.give(source.number());
                    break;
                }
                ASSERT_TRUE(pair.compare(digest)) << "field " << round << " in system " << system;
            }
        }
    }
    EXPECT_GT(samples, 3'000'000);
    EXPECT_EQ(digest.get(), expected_digest) << std::hex << digest.get();
}

} // namespace
