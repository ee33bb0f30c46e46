#ifndef TESTS_TERMINAL_DRAW_POOL_BUILDER_H
#define TESTS_TERMINAL_DRAW_POOL_BUILDER_H

#include "tests/terminal/Records.h"

#include <initializer_list>
#include <vector>

/// Collects the records of a screen. Every object gets the next free id, which its adder returns; the styles that
/// nearly every screen needs have fixed ids. Objects are written from the inside out: a parent needs its children's
/// ids.
class Pool_builder
{
  public:
    using Id = std::uint16_t;

    using Type = Iso::Object_type;
    static constexpr Id none = Iso::null_id;

    struct Place
    {
        Id id;
        int x = 0;
        int y = 0;
    };
    using Places = std::vector<Place>;

    struct Field
    {
        int width;
        int height;
        Id font;
        int background = 0;
        int options = 0;
        int justification = 0;
    };

    struct Number
    {
        std::uint32_t value = 0;
        std::int32_t offset = 0;
        float scale = 1;
        int decimals = 0;
        int format = 0;
        Id variable = none;
        // Of an input number only.
        std::uint32_t minimum = 0;
        std::uint32_t maximum = 0xFFFFFFFF;
        bool enabled = true;
    };

    Id font(int colour, int size, int style = 0) { return add(Type::font_attributes, colour, size, 0, style, 0); }
    Id line_attributes(int colour, int width, std::uint16_t art = 0xFFFF)
    {
        return add(Type::line_attributes, colour, width, w(art), 0);
    }
    Id fill_attributes(int type, int colour, Id pattern = none)
    {
        return add(Type::fill_attributes, type, colour, w(pattern), 0);
    }
    Id number_variable(std::uint32_t value) { return add(Type::number_variable, d(value)); }
    Id string_variable(std::string_view text)
    {
        return add(Type::string_variable, w(static_cast<std::uint16_t>(text.size())), text);
    }

    Id rectangle(int width, int height, Id line, Id fill = none, int suppressed = 0)
    {
        return add(Type::rectangle, w(line), size(width, height), suppressed, w(fill), 0);
    }
    Id line(int width, int height, Id attributes, int direction = 0)
    {
        return add(Type::line, w(attributes), size(width, height), direction, 0);
    }
    Id ellipse(int width, int height, Id line, Id fill = none, int type = 0, int start = 0, int end = 0)
    {
        return add(Type::ellipse, w(line), size(width, height), type, start, end, w(fill), 0);
    }
    Id polygon(int width, int height, Id line, Id fill, int type, std::initializer_list<std::uint16_t> coordinates)
    {
        Bytes points;
        for (const std::uint16_t coordinate : coordinates)
            append(points, w(coordinate));
        return add(Type::polygon, size(width, height), w(line), w(fill), type, static_cast<int>(coordinates.size() / 2),
                   0, points);
    }
    Id picture(int width, int actual_width, int actual_height, int format, int options, int transparency,
               const Bytes& data)
    {
        return add(Type::picture_graphic, w(static_cast<std::uint16_t>(width)), size(actual_width, actual_height),
                   format, options, transparency, d(static_cast<std::uint32_t>(data.size())), 0, data);
    }
    Id string(const Field& field, std::string_view text, Id variable = none)
    {
        return add(Type::output_string, size(field.width, field.height), field.background, w(field.font), field.options,
                   w(variable), field.justification, w(static_cast<std::uint16_t>(text.size())), text, 0);
    }
    Id input_string(const Field& field, std::string_view text, Id variable = none)
    {
        return add(Type::input_string, size(field.width, field.height), field.background, w(field.font), w(none),
                   field.options, w(variable), field.justification, static_cast<int>(text.size()), text, 1, 0);
    }
    Id number(const Field& field, const Number& number)
    {
        return add(Type::output_number, size(field.width, field.height), field.background, w(field.font), field.options,
                   w(number.variable), d(number.value), d(static_cast<std::uint32_t>(number.offset)), f(number.scale),
                   number.decimals, number.format, field.justification, 0);
    }
    Id input_number(const Field& field, const Number& number)
    {
        return add(Type::input_number, size(field.width, field.height), field.background, w(field.font), field.options,
                   w(number.variable), d(number.value), d(number.minimum), d(number.maximum),
                   d(static_cast<std::uint32_t>(number.offset)), f(number.scale), number.decimals, number.format,
                   field.justification, static_cast<int>(number.enabled), 0);
    }
    Id input_boolean(int width, int background, Id font, int value, Id variable = none, int enabled = 1)
    {
        return add(Type::input_boolean, background, w(static_cast<std::uint16_t>(width)), w(font), w(variable), value,
                   enabled, 0);
    }
    Id input_list(int width, int height, int value, std::initializer_list<Id> items, Id variable = none)
    {
        Bytes ids;
        for (const Id item : items)
            append(ids, w(item));
        return add(Type::input_list, size(width, height), w(variable), value, static_cast<int>(items.size()), 1, 0,
                   ids);
    }
    Id pointer(Id target) { return add(Type::object_pointer, w(target)); }

    Id container(int width, int height, const Places& children, int hidden = 0)
    {
        return add(Type::container, size(width, height), hidden, static_cast<int>(children.size()), 0,
                   places(children));
    }
    Id button(int width, int height, int background, int border, int options, const Places& children = {})
    {
        return add(Type::button, size(width, height), background, border, 1, options, static_cast<int>(children.size()),
                   0, places(children));
    }
    Id key(int background, const Places& children)
    {
        return add(Type::key, background, 1, static_cast<int>(children.size()), 0, places(children));
    }
    Id soft_key_mask(int background, std::initializer_list<Id> keys)
    {
        Bytes ids;
        for (const Id key : keys)
            append(ids, w(key));
        return add(Type::soft_key_mask, background, static_cast<int>(keys.size()), 0, ids);
    }
    Id mask(int background, const Places& children, Id soft_keys = none)
    {
        return add(Type::data_mask, background, w(soft_keys), static_cast<int>(children.size()), 0, places(children));
    }
    Id working_set(Id active_mask) { return add(Type::working_set, 0, 1, w(active_mask), 0, 0, 0); }

    const Bytes& bytes() const { return all; }

  private:
    static Bytes size(int width, int height)
    {
        return join(w(static_cast<std::uint16_t>(width)), w(static_cast<std::uint16_t>(height)));
    }
    static Bytes places(const Places& children)
    {
        Bytes bytes;
        for (const Place& child : children)
            append(bytes,
                   records::at(child.id, static_cast<std::int16_t>(child.x), static_cast<std::int16_t>(child.y)));
        return bytes;
    }

    template <typename... Parts>
    Id add(Type type, const Parts&... parts)
    {
        append(all, records::record(next, type, parts...));
        return next++;
    }

    Bytes all;
    Id next = 0;
};

#endif
