#ifndef TESTS_GALLERY_OPERATOR_H
#define TESTS_GALLERY_OPERATOR_H

#include "apps/Loopback_link.h"
#include "apps/gallery/Gallery.h"
#include "terminal/Area.h"

#include <cstddef>
#include <cstdint>
#include <functional>
#include <string>
#include <vector>

/// The gallery at a terminal, and somebody who reads the screen, uses the soft keys and enters numbers.
class Operator
{
  public:
    // Soft keys by their cells, page by page.
    enum Key {
        units = 0,
        up,
        down,
        all_off = 0,
        check = 0,
        toggle,
        button,
        label,
        panel,
        everything,
        deeper = 0,
        back,
        scroll_up = 0,
        scroll_down,
        scroll_left,
        scroll_right,
        rows,
        jump,
        item_up = 0,
        item_down
    };

    /// A text or a number as the terminal shows it, or an object without text: a rectangle, a picture.
    struct Shown
    {
        std::string text;
        terminal::Area area; ///< in the mask
        Iso::Object_type type;
        bool fits; ///< all of the text is inside its field, and that inside what shows it
    };

    explicit Operator(const terminal::Hardware& hardware = {}, const std::string& settings_file = ":memory:");

    /// Turns to the page of that name.
    void turn_to(const std::string& page);
    void press(Key key);
    void release(Key key);
    void use(Key key);
    /// Enters a raw number into the page's input of that number, counted from 0 as they were placed.
    void enter(std::size_t input, std::uint32_t raw);

    /// Taps with a finger on the middle of a text, or on a pixel.
    void touch(const std::string& text);
    void touch_at(terminal::Position place);
    /// Taps there, too, where nothing reacts.
    void touch_in_vain(const std::string& text);
    /// Lays a finger on the middle of a text, and lifts it outside the mask.
    void slip_from(const std::string& text);
    /// Ends the entry that is open with this number, in display units.
    void type(const std::string& number);

    /// Lets the gallery show what the machine and others have done.
    void look_again();

    /// Everything in the mask that is shown, behind pointers too, in the order of drawing, except numbers that are
    /// covered.
    std::vector<Shown> screen() const;
    bool sees(const std::string& text) const;
    /// The one that shows this text. Throws std::out_of_range if there is none.
    Shown find(const std::string& text) const;
    bool sees_rectangle(const terminal::Area& area) const;
    std::size_t count(const std::function<bool(const Shown&)>& is_meant) const;
    /// How many pictures of that width are shown.
    std::size_t pictures(int width) const;
    /// Whether there is a soft key in that cell.
    bool has(Key key) const { return id_of(key) != Iso::null_id; }

    apps::Loopback_link link;
    gallery::Gallery gallery;

  private:
    void deliver();
    Iso::Object_id id_of(Key key) const;
};

#endif
