#include "terminal/Record_layout.h"

#include <initializer_list>

namespace terminal {
namespace {

using Type = Iso::Object_type;

/// The size of a part: of a field, or of one entry of a list.
enum Kind : std::uint8_t { u8, u16, u32, reference, bytes, pairs, ids, points, children };

constexpr bool is_list(Kind kind) { return kind >= bytes; }

constexpr std::uint8_t size_of(Kind kind)
{
    constexpr std::uint8_t sizes[] = {1, 2, 4, 2, 1, 2, 2, 4, 6};
    return sizes[kind];
}

constexpr Field count_of(Field list)
{
    switch (list) {
    case Field::children:
        return Field::n_children;
    case Field::items:
        return Field::n_items;
    case Field::points:
        return Field::n_points;
    case Field::macros:
        return Field::n_macros;
    case Field::languages:
        return Field::n_languages;
    default:
        return Field::length;
    }
}

/// One part of a record. The attribute number is what Change Attribute calls the field; 0 for a field that it may not
/// change, either because another command does or because it is fixed.
struct Part
{
    Field field;
    Kind kind;
    std::uint8_t attribute = 0;
    Set allowed = anything;
};

constexpr Record_layout layout(std::initializer_list<Part> parts)
{
    Record_layout result;
    result.fixed_size = 3;
    bool behind_list = false;
    for (const Part& part : parts) {
        const Slot slot{result.fixed_size, size_of(part.kind), behind_list && !is_list(part.kind)};
        result.slots[static_cast<std::size_t>(part.field)] = slot;
        if (is_list(part.kind)) {
            behind_list = true;
            const Slot count = result.slots[static_cast<std::size_t>(count_of(part.field))];
            result.lists[result.n_lists++] = {slot, count, part.allowed, part.field};
            continue;
        }
        result.fixed_size = static_cast<std::uint8_t>(result.fixed_size + slot.size);
        if (part.allowed != anything)
            result.constraints[result.n_constraints++] = {slot, part.kind == reference, part.allowed};
        if (part.attribute != 0)
            result.attributes[part.attribute] = part.field;
    }
    return result;
}

constexpr Set types(std::initializer_list<Type> list)
{
    Set set = 0;
    for (const Type type : list)
        set |= Set{1} << static_cast<unsigned>(type);
    return set;
}

constexpr Set up_to(unsigned code) { return (Set{2} << code) - 1; }

constexpr Set codes(std::initializer_list<unsigned> list)
{
    Set set = 0;
    for (const unsigned code : list)
        set |= Set{1} << code;
    return set;
}

// What may be referred to.
constexpr Set drawings = types({Type::container, Type::output_string, Type::output_number, Type::line, Type::rectangle,
                                Type::ellipse, Type::polygon, Type::picture_graphic, Type::object_pointer});
constexpr Set controls =
    types({Type::button, Type::input_boolean, Type::input_string, Type::input_number, Type::input_list});
constexpr Set keys = types({Type::key, Type::object_pointer});
constexpr Set macro = types({Type::macro});
constexpr Set masks = types({Type::data_mask, Type::alarm_mask});
constexpr Set soft_key_mask = types({Type::soft_key_mask}) | or_null;
constexpr Set font = types({Type::font_attributes}) | or_null;
constexpr Set line = types({Type::line_attributes}) | or_null;
constexpr Set fill = types({Type::fill_attributes}) | or_null;
constexpr Set validation = types({Type::input_attributes}) | or_null;
constexpr Set picture = types({Type::picture_graphic}) | or_null;
constexpr Set number_variable = types({Type::number_variable}) | or_null;
constexpr Set string_variable = types({Type::string_variable}) | or_null;

/// What most records end with.
constexpr Part macros{Field::macros, pairs, 0, macro};

// Which codes a field knows. Sets of option bits are not limited: a bit without a meaning has no effect.
constexpr Set flag = up_to(1);
constexpr Set justifications = codes({0, 1, 2, 4, 5, 6, 8, 9, 10});
constexpr Set character_sets = codes({0, 1, 2, 4, 5, 7});

constexpr std::array<Record_layout, n_types> make_layouts()
{
    using F = Field;
    std::array<Record_layout, n_types> all{};
    const auto define = [&all](Type type, std::initializer_list<Part> parts) {
        all[static_cast<std::size_t>(type)] = layout(parts);
    };
    define(Type::working_set, {{F::background, u8, 1},
                               {F::selectable, u8, 2, flag},
                               {F::active_mask, reference, 3, masks},
                               {F::n_children, u8},
                               {F::n_macros, u8},
                               {F::n_languages, u8},
                               {F::children, children, 0, drawings},
                               macros,
                               {F::languages, pairs}});
    define(Type::data_mask, {{F::background, u8, 1},
                             {F::soft_key_mask, reference, 2, soft_key_mask},
                             {F::n_children, u8},
                             {F::n_macros, u8},
                             {F::children, children, 0, drawings | controls},
                             macros});
    define(Type::alarm_mask, {{F::background, u8, 1},
                              {F::soft_key_mask, reference, 2, soft_key_mask},
                              {F::priority, u8, 3, up_to(2)},
                              {F::acoustic_signal, u8, 4, up_to(3)},
                              {F::n_children, u8},
                              {F::n_macros, u8},
                              {F::children, children, 0, drawings | controls},
                              macros});
    define(Type::container, {{F::width, u16, 1},
                             {F::height, u16, 2},
                             {F::hidden, u8, 0, flag},
                             {F::n_children, u8},
                             {F::n_macros, u8},
                             {F::children, children, 0, drawings | controls},
                             macros});
    define(Type::soft_key_mask,
           {{F::background, u8, 1}, {F::n_items, u8}, {F::n_macros, u8}, {F::items, ids, 0, keys}, macros});
    define(Type::key, {{F::background, u8, 1},
                       {F::key_code, u8, 2},
                       {F::n_children, u8},
                       {F::n_macros, u8},
                       {F::children, children, 0, drawings},
                       macros});
    define(Type::button, {{F::width, u16, 1},
                          {F::height, u16, 2},
                          {F::background, u8, 3},
                          {F::border_colour, u8, 4},
                          {F::key_code, u8, 5},
                          {F::options, u8, 6},
                          {F::n_children, u8},
                          {F::n_macros, u8},
                          {F::children, children, 0, drawings},
                          macros});
    define(Type::input_boolean, {{F::background, u8, 1},
                                 {F::width, u16, 2},
                                 {F::font, reference, 3, font},
                                 {F::variable, reference, 4, number_variable},
                                 {F::value, u8, 0, flag},
                                 {F::enabled, u8, 0, flag},
                                 {F::n_macros, u8},
                                 macros});
    define(Type::input_string, {{F::width, u16, 1},
                                {F::height, u16, 2},
                                {F::background, u8, 3},
                                {F::font, reference, 4, font},
                                {F::input_attributes, reference, 5, validation},
                                {F::options, u8, 6},
                                {F::variable, reference, 7, string_variable},
                                {F::justification, u8, 8, justifications},
                                {F::length, u8},
                                {F::bytes, bytes},
                                {F::enabled, u8, 0, flag},
                                {F::n_macros, u8},
                                macros});
    define(Type::input_number, {{F::width, u16, 1},
                                {F::height, u16, 2},
                                {F::background, u8, 3},
                                {F::font, reference, 4, font},
                                {F::options, u8, 5},
                                {F::variable, reference, 6, number_variable},
                                {F::value, u32},
                                {F::minimum, u32, 7},
                                {F::maximum, u32, 8},
                                {F::offset, u32, 9},
                                {F::scale, u32, 10},
                                {F::decimals, u8, 11, up_to(7)},
                                {F::format, u8, 12, flag},
                                {F::justification, u8, 13, justifications},
                                {F::options_2, u8, 15},
                                {F::n_macros, u8},
                                macros});
    define(Type::input_list, {{F::width, u16, 1},
                              {F::height, u16, 2},
                              {F::variable, reference, 3, number_variable},
                              {F::value, u8},
                              {F::n_items, u8},
                              {F::options, u8, 5},
                              {F::n_macros, u8},
                              {F::items, ids, 0, drawings},
                              macros});
    define(Type::output_string, {{F::width, u16, 1},
                                 {F::height, u16, 2},
                                 {F::background, u8, 3},
                                 {F::font, reference, 4, font},
                                 {F::options, u8, 5},
                                 {F::variable, reference, 6, string_variable},
                                 {F::justification, u8, 7, justifications},
                                 {F::length, u16},
                                 {F::bytes, bytes},
                                 {F::n_macros, u8},
                                 macros});
    define(Type::output_number, {{F::width, u16, 1},
                                 {F::height, u16, 2},
                                 {F::background, u8, 3},
                                 {F::font, reference, 4, font},
                                 {F::options, u8, 5},
                                 {F::variable, reference, 6, number_variable},
                                 {F::value, u32},
                                 {F::offset, u32, 7},
                                 {F::scale, u32, 8},
                                 {F::decimals, u8, 9, up_to(7)},
                                 {F::format, u8, 10, flag},
                                 {F::justification, u8, 11, justifications},
                                 {F::n_macros, u8},
                                 macros});
    define(Type::line, {{F::line_attributes, reference, 1, line},
                        {F::width, u16, 2},
                        {F::height, u16, 3},
                        {F::direction, u8, 4, flag},
                        {F::n_macros, u8},
                        macros});
    define(Type::rectangle, {{F::line_attributes, reference, 1, line},
                             {F::width, u16, 2},
                             {F::height, u16, 3},
                             {F::suppression, u8, 4},
                             {F::fill_attributes, reference, 5, fill},
                             {F::n_macros, u8},
                             macros});
    define(Type::ellipse, {{F::line_attributes, reference, 1, line},
                           {F::width, u16, 2},
                           {F::height, u16, 3},
                           {F::ellipse_type, u8, 4, up_to(3)},
                           {F::start_angle, u8, 5},
                           {F::end_angle, u8, 6},
                           {F::fill_attributes, reference, 7, fill},
                           {F::n_macros, u8},
                           macros});
    define(Type::polygon, {{F::width, u16, 1},
                           {F::height, u16, 2},
                           {F::line_attributes, reference, 3, line},
                           {F::fill_attributes, reference, 4, fill},
                           {F::polygon_type, u8, 5, up_to(3)},
                           {F::n_points, u8},
                           {F::n_macros, u8},
                           {F::points, points},
                           macros});
    define(Type::picture_graphic, {{F::width, u16, 1},
                                   {F::actual_width, u16},
                                   {F::actual_height, u16},
                                   {F::format, u8, 0, up_to(2)},
                                   {F::options, u8, 2},
                                   {F::transparency_colour, u8, 3},
                                   {F::length, u32},
                                   {F::n_macros, u8},
                                   {F::bytes, bytes},
                                   macros});
    define(Type::number_variable, {{F::value, u32}});
    define(Type::string_variable, {{F::length, u16}, {F::bytes, bytes}});
    define(Type::font_attributes, {{F::colour, u8, 1},
                                   {F::font_size, u8, 2, up_to(14)},
                                   {F::font_type, u8, 3, character_sets},
                                   {F::font_style, u8, 4},
                                   {F::n_macros, u8},
                                   macros});
    define(Type::line_attributes,
           {{F::colour, u8, 1}, {F::line_width, u8, 2}, {F::line_art, u16, 3}, {F::n_macros, u8}, macros});
    define(Type::fill_attributes, {{F::fill_type, u8, 1, up_to(3)},
                                   {F::colour, u8, 2},
                                   {F::pattern, reference, 3, picture},
                                   {F::n_macros, u8},
                                   macros});
    define(Type::input_attributes,
           {{F::validation_type, u8, 1, flag}, {F::length, u8}, {F::bytes, bytes}, {F::n_macros, u8}, macros});
    define(Type::object_pointer, {{F::value, reference, 1, drawings | controls | keys | or_null}});
    define(Type::macro, {{F::length, u16}, {F::bytes, bytes}});
    return all;
}

} // namespace

constexpr std::array<Record_layout, n_types> record_layouts = make_layouts();

} // namespace terminal
