#ifndef TESTS_COMP_NUMBER_FIELD_H
#define TESTS_COMP_NUMBER_FIELD_H

#include "tests/Bytes.h"
#include "tests/Fake_pool.h"
#include "vtui/comp/objects/Rectangle_obj.h"
#include "vtui/comp/widgets/Number_widget.h"

#include <gtest/gtest.h>

#include <ostream>
#include <string>
#include <utility>
#include <vector>

namespace VT::Comp {

inline bool operator==(Dimension a, Dimension b) { return a.width == b.width && a.height == b.height; }
inline bool operator==(Point a, Point b) { return a.x == b.x && a.y == b.y; }
inline std::ostream& operator<<(std::ostream& out, Dimension d) { return out << d.width << " x " << d.height; }
inline std::ostream& operator<<(std::ostream& out, Point p) { return out << p.x << ", " << p.y; }

} // namespace VT::Comp

namespace number_field {

using VT::Comp::Number_widget;
using Specification = Number_widget::Specification;
using Style = Number_widget::Style;

/// A string variable that is as long as its text.
struct Text
{
    explicit Text(std::string text)
        : buffer(std::move(text)),
          variable(VT::VT_obj::NULL_ID, nullptr, static_cast<std::uint16_t>(buffer.size()), buffer.data())
    {}

    std::string buffer;
    VT::String_variable_obj variable;
};

/// A field that writes down what its operator did.
class Listener : public Number_widget
{
  public:
    using Number_widget::Number_widget;
    void handle_input_value(double v) override { heard.push_back(v); }

    std::vector<double> heard;
};

/// A pool that writes uploads down between the messages: as transfers of which only the id is told.
class Journal final : public Fake_pool
{
  public:
    void upload(VT::VT_obj& object) override
    {
        Fake_pool::upload(object);
        sent.push_back(join(0x11, w(object.get_id())));
    }

    /// What was sent since the last time.
    Messages news() { return std::exchange(sent, {}); }
};

constexpr Specification bounded(double min, double max, double scale = 1, std::uint8_t decimals = 0,
                                Units_man::units_type type = Units_man::none)
{
    return {type, min, max, scale, decimals};
}

/// What a field borrows, and a pool for it: digits of 16 × 24 pixels, letters of 8 × 12.
class Field : public ::testing::Test
{
  protected:
    Field()
    {
        number_font.size = std::uint8_t{5};
        units_font.size = std::uint8_t{2};
    }

    Style style(std::uint32_t layout = Number_widget::right_aligned, bool input = false)
    {
        return {&number_font, &units_font, &backdrop, layout, input};
    }

    /// Numbers what a field consists of and borrows; the terminal is told all of it.
    void take(Number_widget& field)
    {
        const std::pair<VT::VT_obj*, Iso::Object_id> objects[] = {
            {&field.container, container_id}, {&field.input_number, input_id}, {&field.output_number, output_id},
            {&field.units, units_id},         {&number_font, number_font_id},  {&units_font, units_font_id},
            {&backdrop, backdrop_id},         {&mph.variable, mph_id},         {&kmh.variable, kmh_id}};
        for (const auto& [object, id] : objects) {
            pool.take(*object, id);
            pool.upload(*object);
        }
        pool.sent.clear();
        pool.uploaded.clear();
    }

    static constexpr Iso::Object_id container_id = 0x1001;
    static constexpr Iso::Object_id input_id = 0x1002;
    static constexpr Iso::Object_id output_id = 0x1003;
    static constexpr Iso::Object_id units_id = 0x1004;
    static constexpr Iso::Object_id number_font_id = 0x2001;
    static constexpr Iso::Object_id units_font_id = 0x2002;
    static constexpr Iso::Object_id backdrop_id = 0x2003;
    static constexpr Iso::Object_id mph_id = 0x2004;
    static constexpr Iso::Object_id kmh_id = 0x2005;

    Journal pool; // outlives what is in it
    VT::Comp::Font_attributes_obj number_font;
    VT::Comp::Font_attributes_obj units_font;
    VT::Comp::Rectangle_obj backdrop;
    Text mph{"mph"};
    Text kmh{"km/h"};
};

} // namespace number_field

#endif
