#include "terminal/draw/Renderer.h"

#include "iso11783/Font_size.h"
#include "iso11783/Palette.h"
#include "terminal/Control.h"
#include "terminal/Indirection.h"
#include "terminal/Nesting.h"
#include "terminal/Number_text.h"
#include "terminal/Screen_layout.h"
#include "terminal/draw/Pictures.h"

#include <array>
#include <cstring>
#include <iterator>

namespace terminal {
namespace {

using Iso::Object_type;

constexpr int deepest = Nesting::max_depth; ///< a pool that nests deeper is refused, so this is never reached

/// What a child costs that is out of sight, an object however small it is, and a number to be made text, in units of
/// work.
constexpr int work_of_child = 4;
constexpr int work_of_object = 40;
constexpr int work_of_number = 256;

constexpr std::uint8_t black = 0;
constexpr std::uint8_t white = 1;
constexpr std::uint8_t grey = 8;

namespace field_option {
constexpr unsigned transparent = 1; ///< of numbers and strings alike
}
namespace string_option {
constexpr unsigned auto_wrap = 2, wrap_on_hyphen = 4;
}
namespace picture_option {
constexpr unsigned transparent = 1;
}

constexpr int button_border = 4;
constexpr int pressed_key_edge = 2;

Picture picture_of(Object object)
{
    const unsigned options = object.u8(Field::options);
    const Byte_view bytes = object.bytes();
    Picture picture;
    picture.data = bytes.data;
    picture.size = bytes.size;
    picture.width = object.u16(Field::actual_width);
    picture.height = object.u16(Field::actual_height);
    picture.bits = object.u8(Field::format) == 0 ? 1 : object.u8(Field::format) == 1 ? 4 : 8;
    picture.runs = options & run_length_encoded;
    if (options & picture_option::transparent)
        picture.transparent = object.u8(Field::transparency_colour);
    return picture;
}

/// Lit from the top left or, of what is pressed or latched down, from the bottom right.
void draw_edges(const View& view, const Area& box, bool down, int width)
{
    const Pen top_left{{down ? grey : white}, width};
    const Pen bottom_right{{down ? white : grey}, width};
    draw_rectangle(view, box.right, box.bottom, top_side | left_side, bottom_right, nullptr);
    draw_rectangle(view, box.right, box.bottom, bottom_side | right_side, top_left, nullptr);
}

QVector<QRgb> make_palette()
{
    QVector<QRgb> colours(256);
    for (int i = 0; i < colours.size(); ++i)
        colours[i] = 0xFF000000 | Iso::palette_rgb(static_cast<std::uint8_t>(i));
    return colours;
}

} // namespace

Renderer::Renderer(const std::string& font_folder) : glyphs(font_folder) {}

QImage Renderer::draw(const Terminal& terminal, std::size_t first_key)
{
    const Screen_layout layout(terminal.hardware());
    start(terminal.pool(), layout.screen().right, layout.screen().bottom);
    pressed = terminal.pressed();
    const View screen = canvas.view();
    screen.fill(canvas.area(), black);
    const Object mask = terminal.active_mask();
    if (mask)
        paint_mask(screen.inside(layout.mask()), mask);

    const Object key_mask = terminal.active_soft_key_mask();
    if (key_mask) {
        const std::uint8_t background = key_mask.u8(Field::background);
        const List<Item> keys = key_mask.items();
        screen.fill(layout.keys(), background);
        for (int cell = 0; cell < layout.n_cells(); ++cell) {
            const std::size_t key = first_key + static_cast<std::size_t>(cell);
            if (key < keys.size())
                paint_key(screen.inside(layout.cell(cell)), pool->find(keys[key].id), background);
        }
    }
    return finish();
}

QImage Renderer::draw_mask(const Object_pool& objects, Object mask, int size)
{
    start(objects, size, size);
    paint_mask(canvas.view(), mask);
    return finish();
}

QImage Renderer::draw_key(const Object_pool& objects, Object key, int width, int height)
{
    start(objects, width, height);
    paint_key(canvas.view(), key, black);
    return finish();
}

std::int64_t Renderer::most_work() const
{
    constexpr Area usual{0, 0, 480, 480};
    return times_painted * std::max(canvas.area().size(), usual.size());
}

void Renderer::start(const Object_pool& objects, int width, int height)
{
    pool = &objects;
    canvas.resize(width, height);
    canvas.forget_work();
    pattern.forget_work();
    glyphs.forget_work();
}

QImage Renderer::finish()
{
    pool = nullptr;
    pressed = Iso::null_id;
    static const QVector<QRgb> palette = make_palette();
    QImage result(canvas.width(), canvas.height(), QImage::Format_Indexed8);
    result.setColorTable(palette);
    for (int y = 0; y < canvas.height(); ++y)
        std::memcpy(result.scanLine(y), canvas.row(y), static_cast<std::size_t>(canvas.width()));
    return result;
}

void Renderer::paint_mask(const View& view, Object mask)
{
    view.fill(view.visible(), mask ? mask.u8(Field::background) : black);
    if (mask)
        paint_children(view, mask.children());
}

void Renderer::paint_key(const View& view, Object key, std::uint8_t mask_background)
{
    key = shown(*pool, key);
    if (!key || !key.is(Object_type::key)) {
        view.fill(view.visible(), mask_background);
        return;
    }
    view.fill(view.visible(), key.u8(Field::background));
    paint_children(view, key.children());
    if (key.id() == pressed)
        draw_edges(view, view.visible(), true, pressed_key_edge);
}

void Renderer::paint_children(const View& view, const List<Child>& children)
{
    if (view.sees_nothing() || depth >= deepest)
        return;
    ++depth;
    for (const Child child : children) {
        if (work() >= most_work())
            break;
        view.spend(work_of_child);
        // A window that starts at the child's place; each object cuts it to its own size.
        constexpr int beyond = 1 << 20;
        const View place = view.inside({child.x, child.y, child.x + beyond, child.y + beyond});
        if (!place.sees_nothing())
            paint(place, pool->find(child.id));
    }
    --depth;
}

void Renderer::paint(const View& view, Object object)
{
    view.spend(work_of_object);
    object = shown(*pool, object);
    if (!object)
        return;
    switch (object.type()) {
    case Object_type::container:
        return paint_container(view, object);
    case Object_type::button:
        return paint_button(view, object);
    case Object_type::input_boolean:
        return paint_input_boolean(view, object);
    case Object_type::input_list:
        return paint_input_list(view, object);
    case Object_type::input_string:
    case Object_type::output_string:
        return paint_string(view, object);
    case Object_type::input_number:
    case Object_type::output_number:
        return paint_number(view, object);
    case Object_type::line:
        return paint_line(view, object);
    case Object_type::rectangle:
        return paint_rectangle(view, object);
    case Object_type::ellipse:
        return paint_ellipse(view, object);
    case Object_type::polygon:
        return paint_polygon(view, object);
    case Object_type::picture_graphic:
        return paint_picture(view, object);
    default:
        return;
    }
}

void Renderer::paint_container(const View& view, Object container)
{
    if (container.u8(Field::hidden) == 0)
        paint_children(view.inside(box_of(container)), container.children());
}

/// The border is of the border colour, with edges.
void Renderer::paint_button(const View& view, Object button)
{
    const unsigned options = button.u8(Field::options);
    const Area box = box_of(button);
    Area face = box;
    if (!(options & button_option::no_border)) {
        face = {button_border, button_border, box.right - button_border, box.bottom - button_border};
        if (!(options & button_option::suppress_border)) {
            const Pen border{{button.u8(Field::border_colour)}, button_border};
            draw_rectangle(view, box.right, box.bottom, 0, border, nullptr);
            draw_edges(view, box, options & button_option::latched || button.id() == pressed, 1);
        }
    }
    const View inner = view.inside(box).inside(face);
    if (!(options & button_option::transparent))
        inner.fill(inner.visible(), button.u8(Field::background));
    paint_children(inner, button.children());
    if (!is_enabled(button) && !inner.sees_nothing()) {
        const Area visible = inner.visible();
        view.spend(visible.size());
        for (int y = visible.top; y < visible.bottom; ++y) {
            for (int x = visible.left + ((visible.left + y) & 1); x < visible.right; x += 2)
                *inner.at(x, y) = grey;
        }
    }
}

/// A tick or nothing, in a square.
void Renderer::paint_input_boolean(const View& view, Object input)
{
    const Area square = box_of(input);
    const int size = square.width();
    const View box = view.inside(square);
    box.fill(box.visible(), input.u8(Field::background));
    if (number_value(*pool, input) == 0)
        return;
    const Position tick[] = {{size / 6, size / 2}, {size * 5 / 12, size * 3 / 4}, {size * 5 / 6, size / 6}};
    const Pen pen{{font_of(input).colour}, std::max(1, size / 8)};
    draw_polygon(box, size, size, tick, std::size(tick), Polygon_type::open, pen, nullptr);
}

void Renderer::paint_input_list(const View& view, Object input)
{
    const List<Item> items = input.items();
    const std::uint32_t chosen = number_value(*pool, input);
    if (chosen >= items.size() || depth >= deepest)
        return;
    ++depth;
    paint(view.inside(box_of(input)), pool->find(items[chosen].id));
    --depth;
}

void Renderer::paint_string(const View& view, Object string)
{
    const unsigned options = string.u8(Field::options);
    const Wrapping wrapping{(options & string_option::auto_wrap) != 0, (options & string_option::wrap_on_hyphen) != 0};
    paint_text(view, string, holder(*pool, string).text(), wrapping);
}

void Renderer::paint_number(const View& view, Object number)
{
    view.spend(work_of_number);
    const int cell = Iso::font_size(font_of(number).size).width;
    const int columns = cell == 0 ? 0 : number.u16(Field::width) / cell;
    const Number_text text(number_value(*pool, number), number_format(number), columns);
    paint_text(view, number, text.text(), {});
}

void Renderer::paint_text(const View& view, Object field, std::string_view text, Wrapping wrapping)
{
    const Area box = box_of(field);
    if (!(field.u8(Field::options) & field_option::transparent))
        view.fill(box, field.u8(Field::background));
    if (find(field, Field::font))
        draw_text(view, glyphs, text, font_of(field), box.right, box.bottom, field.u8(Field::justification), wrapping);
}

void Renderer::paint_line(const View& view, Object line)
{
    const Area box = box_of(line);
    draw_line(view, box.right, box.bottom, line.u8(Field::direction) != 0, pen_of(line));
}

void Renderer::paint_rectangle(const View& view, Object rectangle)
{
    const Area box = box_of(rectangle);
    Paint paint;
    const Paint* const fill = fill_of(view.inside(box), rectangle, paint);
    draw_rectangle(view, box.right, box.bottom, rectangle.u8(Field::suppression), pen_of(rectangle), fill);
}

void Renderer::paint_ellipse(const View& view, Object ellipse)
{
    const Area box = box_of(ellipse);
    const Arc arc{static_cast<Ellipse_type>(ellipse.u8(Field::ellipse_type)), ellipse.u8(Field::start_angle),
                  ellipse.u8(Field::end_angle)};
    Paint paint;
    const Paint* const fill = fill_of(view.inside(box), ellipse, paint);
    draw_ellipse(view, box.right, box.bottom, arc, pen_of(ellipse), fill);
}

void Renderer::paint_polygon(const View& view, Object polygon)
{
    const Area box = box_of(polygon);
    std::array<Position, 255> points;
    std::size_t count = 0;
    for (const Point point : polygon.points())
        points[count++] = {point.x, point.y};
    Paint paint;
    const Paint* const fill = fill_of(view.inside(box), polygon, paint);
    draw_polygon(view, box.right, box.bottom, points.data(), count,
                 static_cast<Polygon_type>(polygon.u8(Field::polygon_type)), pen_of(polygon), fill);
}

void Renderer::paint_picture(const View& view, Object picture)
{
    draw_picture(view, picture_of(picture), picture.u16(Field::width));
}

Font Renderer::font_of(Object object) const
{
    const Object font = find(object, Field::font);
    if (!font)
        return {};
    return {font.u8(Field::colour), font.u8(Field::font_size), font.u8(Field::font_style)};
}

Pen Renderer::pen_of(Object shape) const
{
    const Object line = find(shape, Field::line_attributes);
    if (!line)
        return {};
    return {{line.u8(Field::colour)}, line.u8(Field::line_width), line.u16(Field::line_art)};
}

/// How to fill a shape that covers the view, or null. A pattern is laid out over what is there already, in a canvas of
/// its own, from the shape's top left corner, so that the shape only has to copy pixels, the transparent ones among
/// them.
const Paint* Renderer::fill_of(const View& view, Object shape, Paint& paint)
{
    enum Fill_type : std::uint8_t { none, line_colour, fill_colour, with_pattern };
    const Object fill = find(shape, Field::fill_attributes);
    if (!fill || view.sees_nothing())
        return nullptr;
    switch (fill.u8(Field::fill_type)) {
    case line_colour:
        if (!find(shape, Field::line_attributes))
            return nullptr;
        paint = pen_of(shape).paint;
        return &paint;
    case fill_colour:
        paint.colour = fill.u8(Field::colour);
        return &paint;
    case with_pattern:
        if (const Object picture = find(fill, Field::pattern)) {
            view.copy_to(pattern);
            tile_picture(view.onto(pattern), picture_of(picture));
            paint.pattern = &pattern;
            return &paint;
        }
        return nullptr;
    default:
        return nullptr;
    }
}

} // namespace terminal
