#include "tests/gallery/Operator.h"

#include "iso11783/Font_size.h"
#include "terminal/Indirection.h"
#include "terminal/Number_text.h"
#include "terminal/draw/Text.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <stdexcept>

using Iso::Object_type;
using terminal::Area;
using terminal::Field;
using terminal::Object;
using terminal::Position;

namespace {

using Shown = Operator::Shown;

constexpr unsigned auto_wrap = 2; // among the options of a string

bool is_number(Object object) { return object.is(Object_type::input_number) || object.is(Object_type::output_number); }

std::string text_of(const terminal::Object_pool& pool, Object object)
{
    if (object.is(Object_type::output_string)) {
        const std::string_view text = terminal::holder(pool, object).text();
        return std::string(text.substr(0, text.find_last_not_of(' ') + 1));
    }
    if (!is_number(object))
        return {};
    const std::uint32_t value = terminal::number_value(pool, object);
    return std::string(terminal::Number_text(value, terminal::number_format(object), 0).text());
}

bool operator==(const Area& a, const Area& b)
{
    return a.left == b.left && a.top == b.top && a.right == b.right && a.bottom == b.bottom;
}

/// True if nothing is cut off a text in this area, of which the window is visible, and no word is torn.
bool fits(const terminal::Object_pool& pool, Object field, const std::string& text, const Area& area,
          const Area& window)
{
    if (text.empty())
        return true;
    const Iso::Font_size font = Iso::font_size(pool.find(field.reference(Field::font)).u8(Field::font_size));
    const bool wraps = field.is(Object_type::output_string) && field.u8(Field::options) & auto_wrap;
    const auto columns = static_cast<std::size_t>(area.width() / font.width);
    std::size_t widest = 0;
    bool torn = false;
    int lines = 0;
    for (std::string_view rest = text; !rest.empty(); ++lines) {
        const std::string_view line = terminal::take_line(rest, columns, {wraps, false});
        torn |= !rest.empty() && text[text.size() - rest.size() - 1] != ' ';
        widest = std::max(widest, line.size());
    }
    if (torn || widest > columns)
        return false;
    const int width = static_cast<int>(widest) * font.width;
    const int left = area.left + (field.u8(Field::justification) & 3) * (area.width() - width) / 2;
    const Area written{left, area.top, left + width, area.top + lines * font.height};
    return written.bottom <= area.bottom && (written & window) == written;
}

Position middle(const Area& area) { return {(area.left + area.right) / 2, (area.top + area.bottom) / 2}; }

/// What `parent`, which lies there, shows inside the window.
void collect(const terminal::Object_pool& pool, Object parent, Position place, const Area& window,
             std::vector<Shown>& found)
{
    bool covered = true; // the first child, where it is a number: the field's backdrop comes over it
    for (const terminal::Child child : parent.children()) {
        const Object object = terminal::shown(pool, pool.find(child.id));
        if (!object || (object.is(Object_type::container) && object.u8(Field::hidden) != 0))
            continue;
        const Area area = terminal::box_of(object).moved(place.x + child.x, place.y + child.y);
        const std::string text = text_of(pool, object);
        if (!covered || !is_number(object))
            found.push_back({text, area, object.type(), fits(pool, object, text, area, window)});
        collect(pool, object, {area.left, area.top}, area & window, found);
        covered = false;
    }
}

} // namespace

Operator::Operator(const terminal::Hardware& hardware, const std::string& settings_file)
    : link(hardware), gallery(hardware.mask_size, settings_file)
{
    for (const VT::Result& result : {gallery.pool().ask_hardware(link), gallery.pool().load(link)})
        EXPECT_TRUE(result) << result.text();
}

void Operator::turn_to(const std::string& page)
{
    for (VT::Mask_obj* mask : gallery.pages())
        if (mask->get_name() == page)
            return gallery.show(*mask);
    ADD_FAILURE() << "there is no page " << page;
}

void Operator::press(Key key)
{
    EXPECT_TRUE(link.terminal.use_key(id_of(key), Iso::Activation::pressed));
    deliver();
}

void Operator::release(Key key)
{
    EXPECT_TRUE(link.terminal.use_key(id_of(key), Iso::Activation::released));
    deliver();
}

void Operator::use(Key key)
{
    press(key);
    release(key);
}

void Operator::enter(std::size_t input, std::uint32_t raw)
{
    std::vector<Iso::Object_id> inputs;
    const auto visit = [&](Object parent, const auto& self) -> void {
        for (const terminal::Child child : parent.children()) {
            const Object object = link.terminal.pool().find(child.id);
            if (object.is(Object_type::input_number))
                inputs.push_back(child.id);
            self(object, self);
        }
    };
    visit(link.terminal.active_mask(), visit);
    EXPECT_TRUE(link.terminal.enter_number(inputs.at(input), raw));
    deliver();
}

void Operator::touch(const std::string& text) { touch_at(middle(find(text).area)); }

void Operator::touch_at(Position place)
{
    EXPECT_TRUE(link.terminal.touch(place));
    deliver();
}

void Operator::touch_in_vain(const std::string& text) { EXPECT_FALSE(link.terminal.touch(middle(find(text).area))); }

void Operator::slip_from(const std::string& text)
{
    EXPECT_TRUE(link.terminal.press(middle(find(text).area)));
    EXPECT_TRUE(link.terminal.move({-1, -1}));
    EXPECT_FALSE(link.terminal.release());
    deliver();
}

void Operator::type(const std::string& number)
{
    EXPECT_EQ(link.terminal.enter(number), "");
    deliver();
}

std::vector<Shown> Operator::screen() const
{
    std::vector<Shown> all;
    const int side = link.terminal.hardware().mask_size;
    collect(link.terminal.pool(), link.terminal.active_mask(), {0, 0}, {0, 0, side, side}, all);
    return all;
}

std::size_t Operator::count(const std::function<bool(const Shown&)>& is_meant) const
{
    const std::vector<Shown> all = screen();
    return static_cast<std::size_t>(std::count_if(all.begin(), all.end(), is_meant));
}

bool Operator::sees(const std::string& text) const
{
    return count([&](const Shown& shown) { return shown.text == text; }) != 0;
}

Shown Operator::find(const std::string& text) const
{
    for (const Shown& shown : screen())
        if (shown.text == text)
            return shown;
    throw std::out_of_range("nothing shows " + text);
}

bool Operator::sees_rectangle(const Area& area) const
{
    return count([&](const Shown& shown) { return shown.type == Object_type::rectangle && shown.area == area; }) != 0;
}

std::size_t Operator::pictures(int width) const
{
    return count(
        [&](const Shown& shown) { return shown.type == Object_type::picture_graphic && shown.area.width() == width; });
}

void Operator::look_again()
{
    gallery.deliver();
    deliver();
}

void Operator::deliver()
{
    for (std::vector<std::uint8_t> message; link.receive(message, {});)
        gallery.pool().receive(message.data(), message.size());
    for (const VT::Problem& problem : gallery.pool().take_problems())
        ADD_FAILURE() << problem.text;
}

Iso::Object_id Operator::id_of(Key key) const
{
    const auto cells = link.terminal.active_soft_key_mask().items();
    const terminal::Object_pool& pool = link.terminal.pool();
    return key < cells.size() ? terminal::id_of(terminal::shown(pool, pool.find(cells[key].id))) : Iso::null_id;
}
