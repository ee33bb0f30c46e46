#include "vtui/comp/widgets/Number_widget.h"

#include "util/Conversion.h"
#include "util/Fatal.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <utility>

namespace VT::Comp {

namespace {

// The children, drawn in this order. The two numbers may change places.
constexpr std::size_t touch_slot = 0; ///< under all others; an input number here takes a touch anywhere on the field
constexpr std::size_t backdrop_slot = 1;
constexpr std::size_t number_slot = 2; ///< what the operator reads
constexpr std::size_t units_slot = 3;

constexpr auto source = "../../../vtui/comp/widgets/Number_widget";

constexpr double lowest_offset = std::numeric_limits<std::int32_t>::min();
constexpr double highest_offset = std::numeric_limits<std::int32_t>::max();
constexpr double most_steps = std::numeric_limits<std::uint32_t>::max();

using Specification = Number_widget::Specification;

bool is_bounded(const Specification& s) { return !(s.min == 0 && s.max == 0); }

} // namespace

Number_widget::Number_widget(const Style& style, const Specification& s0, const Specification& s1,
                             const Specification& s2, VT::String_variable_obj* units_text)
{
    construct(style, s0, s1, units_text, s2);
}

Number_widget::Number_widget(const Style& style, const Specification& s0, const Specification& s1,
                             VT::String_variable_obj* units_text)
    : Number_widget(style, s0, s1, s1, units_text)
{}

Number_widget::Number_widget(const Style& style, const Specification& all, VT::String_variable_obj* units_text)
    : Number_widget(style, all, all, all, units_text)
{}

Number_widget::Number_widget(const Style& style, VT::String_variable_obj* units_text)
    : Number_widget(style, Specification(), units_text)
{}

Number_widget::~Number_widget() = default;

void Number_widget::construct(const Style& style, const Specification& s0, const Specification& s1,
                              VT::String_variable_obj* units_text, const Specification& s2)
{
    specifications[0] = s0;
    specifications[1] = s1;
    specifications[2] = s2;
    std::fill(std::begin(units_variables), std::end(units_variables), units_text);

    input_font = style.number_font;
    input_number.set_font(input_font);
    input_number.options = VT::Field_obj::transparent;
    output_font = style.number_font;
    output_number.set_font(output_font);
    output_number.options = VT::Field_obj::transparent;
    constexpr std::uint8_t enabled = VT::Input_number_obj::enabled;
    input_number.options_2 =
        static_cast<std::uint8_t>(style.input ? input_number.options_2 | enabled : input_number.options_2 & ~enabled);
    units_font = style.units_font;
    units.set_font(units_font);
    units.options = VT::Field_obj::transparent;

    layout = style.layout;
    const bool beside = layout < stacked;
    input_number.justification = beside ? VT::Field_obj::right : VT::Field_obj::middle;
    output_number.justification = beside ? VT::Field_obj::right : VT::Field_obj::middle;
    units.justification = beside ? VT::Field_obj::left : VT::Field_obj::middle;

    // A field that is no input has its backdrop twice: there are four slots, and none may be empty.
    VT::VT_obj* const lowest = style.input ? &input_number : style.backdrop;
    placements.placements[touch_slot] = {lowest, 0, 0};
    placements.placements[backdrop_slot] = {style.backdrop, 0, 0};
    placements.placements[number_slot] = {&output_number, 0, 0};
    placements.placements[units_slot] = {&units, 0, 0};
    container.placements_ptr = &placements;
    system = Units_man::metric;
}

void Number_widget::init(VT::vtui_pool* pool, VT::String_variable_obj* units_text)
{
    for (std::size_t i = 0; i < Units_man::number_of_systems; ++i) {
        if (units_text)
            units_variables[i] = units_text;
        else if (!units_variables[i])
            units_variables[i] = Units_man::get_units_string(pool, specifications[i].units_type);
    }
    show_units();
    set_system(Units_man::metric);
}

Dimension Number_widget::get_preferred_units_size() const
{
    const VT::String_variable_obj* const text = units_variables[system];
    const std::uint16_t characters = text ? text->num_chars() : std::uint16_t{0};
    return characters == 0 ? Dimension() : text_size(characters, units_font);
}

Dimension Number_widget::get_preferred_number_size() const
{
    using Conversion::magnitude;
    using Conversion::to_int32;

    const Specification& s = specifications[system];
    int characters = s.decimals == 0 ? 1 : s.decimals + 2;
    if (!is_bounded(s) || s.min < 0)
        ++characters;
    // Rounded, not rounded up: with the leading digit it is enough, and at times one more than that. Limits beyond 32
    // bits have no magnitude above 0 and add no digit.
    const std::int32_t largest = std::max(magnitude(to_int32(s.min)), magnitude(to_int32(s.max)));
    if (largest > 0)
        characters += static_cast<int>(std::rint(std::log10(largest)));
    return text_size(static_cast<std::uint16_t>(characters), output_font);
}

Dimension Number_widget::get_preferred_size() const
{
    const Dimension number = get_preferred_number_size();
    const Dimension text = get_preferred_units_size();
    const auto sum = [](std::uint16_t a, std::uint16_t b) { return static_cast<std::uint16_t>(a + b); };
    if (layout >= stacked)
        return {std::max(number.width, text.width), sum(number.height, text.height)};
    return {sum(number.width, text.width), std::max(number.height, text.height)};
}

void Number_widget::set_size(Dimension size, Dimension new_layout_size, Point origin)
{
    layout_size = new_layout_size;
    layout_origin = origin;

    const Dimension number = get_preferred_number_size();
    resize(container, size);
    resize(units, get_preferred_units_size());
    resize(output_number, number);
    resize(input_number, placements.placements[number_slot].ref == &input_number ? number : size);
    set_layout(layout_size, layout_origin);
}

void Number_widget::set_layout(Dimension box, Point origin)
{
    Child_placement& number = placements.placements[number_slot];
    Child_placement& text = placements.placements[units_slot];
    const Dimension n = size_of(number);
    const Dimension t = size_of(units);

    const auto centre_vertically = [&] {
        number.y = centred(box.height, n.height);
        text.y = centred(box.height, t.height);
    };
    const auto align_bottoms = [&] {
        const std::int16_t bottom = std::max(position(number.y + n.height), position(text.y + t.height));
        number.y = position(bottom - n.height);
        text.y = position(bottom - t.height);
    };
    switch (layout) {
    case right_aligned:
        text.x = position(box.width - t.width);
        number.x = position(text.x - n.width);
        centre_vertically();
        align_bottoms();
        break;
    case centred_pair:
        number.x = position((box.width - (n.width + t.width)) / 2);
        text.x = position(number.x + n.width);
        centre_vertically();
        align_bottoms();
        break;
    case left_aligned:
        number.x = 0;
        text.x = position(n.width);
        centre_vertically();
        break;
    default:
        number.y = position((box.height - (n.height + t.height)) / 2);
        text.y = position(number.y + n.height);
        number.x = centred(box.width, n.width);
        text.x = centred(box.width, t.width);
        break;
    }
    for (Child_placement* const part : {&number, &text}) {
        part->x = position(part->x + origin.x);
        part->y = position(part->y + origin.y);
    }
    placements.deref();
}

void Number_widget::set_system(Units_man::units_systems new_system)
{
    system = new_system;
    Specification& s = specifications[system];
    VT::Number_field_obj* const numbers[] = {&output_number, &input_number};
    for (VT::Number_field_obj* const number : numbers)
        number->set_scale(static_cast<float>(s.scale));
    for (VT::Number_field_obj* const number : numbers)
        number->set_number_of_decimals(s.decimals);

    double offset = lowest_offset;
    double steps = most_steps;
    if (is_bounded(s)) {
        if (!(s.max > s.min))
            Fatal::assertion("max > min", source, 37,
                             "void VT::Comp::Number_widget::set_system(Units_man::units_systems)");
        const double range = s.max - s.min;
        // Counts whole display units, and none where they take more than 32 bits: such a range passes.
        if (Conversion::magnitude(Conversion::to_int32(range)) / s.scale > most_steps)
            Fatal::assertion("false", source, 48, "void VT::Comp::Number_widget::set_system(Units_man::units_systems)");
        offset = s.min / s.scale;
        steps = range / s.scale;
    } else {
        // From now on the limits are what 32 raw bits can show, and the field is bounded by them.
        s.min = lowest_offset * s.scale;
        s.max = highest_offset * s.scale;
    }
    for (VT::Number_field_obj* const number : numbers)
        number->set_offset(Conversion::round_to_int32(offset));
    input_number.set_min_value(0);
    input_number.set_max_value(Conversion::round_to_uint32(steps));

    show_units();
    set_value(value);
}

void Number_widget::show_units()
{
    units_variable = units_variables[system];
    units.set_variable(units_variable);
}

bool Number_widget::is_child(const VT::VT_obj& number)
{
    return placements.placements[touch_slot].ref == &number || placements.placements[number_slot].ref == &number;
}

/// Within the limits.
double Number_widget::held(double v) const
{
    const Specification& s = specifications[system];
    if (is_bounded(s)) {
        v = v > s.min ? v : s.min; // not a number: the lowest
        v = s.max > v ? v : s.max;
    }
    return v;
}

void Number_widget::set_value(double v)
{
    value = held(v);

    const std::uint32_t raw = Conversion::to_uint32(to_steps(value) - output_number.offset);
    output_number.set_value(raw);
    if (is_child(input_number))
        input_number.set_value(raw);
}

/// Of the display, from its zero.
double Number_widget::to_steps(double v) const
{
    const double display = v * Units_man::get(system, specifications[system].units_type);
    const double scale = input_number.scale;
    return std::rint(display / scale);
}

void Number_widget::increment(double step)
{
    set_value(value + step);
    handle_input_value(value);
}

void Number_widget::handle_input(unsigned int raw)
{
    output_number.set_value(raw);
    const Specification& s = specifications[system];
    // With the specification's own numbers. The terminal rounds min to whole steps for its offset.
    const double display = raw * s.scale + s.min;
    value = display / Units_man::get(system, s.units_type);
    handle_input_value(value);
}

void Number_widget::handle_input_value(double) {}

void Number_widget::handle_event(VT_change_numeric_value_event& event)
{
    if (event.object_id == input_number.get_id())
        handle_input(event.value);
}

void Number_widget::handle_event(const VT_information& terminal)
{
    constexpr std::uint32_t offers_covered_inputs = 9; // a maker's own kind of graphics
    if ((terminal.options & VT_information::touch_screen) != 0 || terminal.code == offers_covered_inputs)
        return;
    Child_placement& lowest = placements.placements[touch_slot];
    if (lowest.ref == &input_number)
        std::swap(lowest.ref, placements.placements[number_slot].ref);
}

void Number_widget::handle_event(Units_man& units_man) { switch_units(units_man); }

void Number_widget::switch_units(Units_man& units_man, std::optional<double> stored)
{
    const bool is_what_is_left = stored && held(*stored) == value;
    for (const auto candidate : {Units_man::metric, Units_man::imperial, Units_man::us}) {
        if (units_man.get_system_type(specifications[candidate].units_type) != candidate)
            continue;
        if (is_what_is_left)
            value = *stored;
        set_system(candidate); // of several the last one stays
    }
    set_size(size_of(container), layout_size, layout_origin);
    if (container.get_id() != VT::VT_obj::NULL_ID)
        container.upload(true);
}

} // namespace VT::Comp
