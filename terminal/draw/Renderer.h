#ifndef TERMINAL_DRAW_RENDERER_H
#define TERMINAL_DRAW_RENDERER_H

#include "terminal/Object_pool.h"
#include "terminal/Terminal.h"
#include "terminal/draw/Canvas.h"
#include "terminal/draw/Glyphs.h"
#include "terminal/draw/Shapes.h"
#include "terminal/draw/Text.h"

#include <QImage>

#include <string>
#include <string_view>

namespace terminal {

/// Draws what a terminal shows. Pictures are exact: one byte a pixel, an index into the palette, no shades that are not
/// in the pool; their colour table is the standard's. A renderer keeps its glyphs and buffers from picture to picture
/// and is not shared between threads; the pictures it returns are their owner's.
///
/// Objects that do not exist, null references and what an object does not support are left out of the picture. So are
/// the objects that remain when the work of drawing gets out of hand, which it does only in a hostile pool: after as
/// much as it takes to paint every pixel `times_painted` times, a tenth of a second at 480 × 480 pixels. To make a
/// glyph is work, too, and is done once: where glyphs are what was too much, the next picture gets further.
class Renderer
{
  public:
    /// Throws std::runtime_error, naming the file, if a font is missing.
    explicit Renderer(const std::string& font_folder = Glyphs::default_folder());

    /// The screen as Screen_layout lays it out. `first_key` is the number of the key in the first cell, for paging.
    /// What is pressed looks so: a button as if it were latched, a soft key by edges of two pixels around its cell.
    /// Without a pool all is black.
    QImage draw(const Terminal& terminal, std::size_t first_key = 0);

    /// One data or alarm mask, `size` pixels square.
    QImage draw_mask(const Object_pool& objects, Object mask, int size);

    /// One soft key in its cell. An object pointer shows the key it points at, or an empty cell.
    QImage draw_key(const Object_pool& objects, Object key, int width, int height);

    /// What went into the last picture, in the units of Canvas, and after how much of it no further object is drawn.
    std::int64_t work() const { return canvas.work() + pattern.work() + glyphs.work(); }
    std::int64_t most_work() const;

  private:
    static constexpr int times_painted = 150;

    void start(const Object_pool& objects, int width, int height);
    QImage finish();

    void paint_mask(const View& view, Object mask);
    void paint_key(const View& view, Object key, std::uint8_t mask_background);
    void paint_children(const View& view, const List<Child>& children);
    void paint(const View& view, Object object);

    void paint_container(const View& view, Object container);
    void paint_button(const View& view, Object button);
    void paint_input_boolean(const View& view, Object input);
    void paint_input_list(const View& view, Object input);
    void paint_string(const View& view, Object string);
    void paint_number(const View& view, Object number);
    void paint_text(const View& view, Object field, std::string_view text, Wrapping wrapping);
    void paint_line(const View& view, Object line);
    void paint_rectangle(const View& view, Object rectangle);
    void paint_ellipse(const View& view, Object ellipse);
    void paint_polygon(const View& view, Object polygon);
    void paint_picture(const View& view, Object picture);

    Object find(Object object, Field reference) const { return pool->find(object.reference(reference)); }
    Font font_of(Object object) const;
    Pen pen_of(Object shape) const;
    const Paint* fill_of(const View& view, Object shape, Paint& paint);

    const Object_pool* pool = nullptr;     ///< only while drawing
    Iso::Object_id pressed = Iso::null_id; ///< only while drawing
    int depth = 0;                         ///< of nested objects
    Glyphs glyphs;
    Canvas canvas;
    Canvas pattern; ///< what fills a shape, where it is a pattern
};

} // namespace terminal

#endif
