#ifndef TESTS_COMP_CRUMBS_H
#define TESTS_COMP_CRUMBS_H

#include "tests/comp/Parts.h"
#include "vtui/comp/widgets/Crumb_trail.h"

#include <initializer_list>
#include <ostream>
#include <string>
#include <vector>

namespace crumbs {

using namespace parts;
using VT::Comp::Connection_elements;
using VT::Comp::Crumb_trail;
using VT::Comp::Dimension;
using VT::Comp::Line_obj;
using VT::Comp::Object_pointer_obj;
using VT::Comp::Picture_graphic_obj;
using VT::Comp::Rectangle_obj;

/// What the pointers show, a letter each: '.' for nothing, '0' to '4' for a crumb, '>' for the chevron, '#' for the
/// frame, '|' for its stem.
struct Shown
{
    std::string crumbs, arrows, selects, select_lines;
};

inline bool operator==(const Shown& a, const Shown& b)
{
    return a.crumbs == b.crumbs && a.arrows == b.arrows && a.selects == b.selects && a.select_lines == b.select_lines;
}

inline std::ostream& operator<<(std::ostream& out, const Shown& shown)
{
    return out << shown.crumbs << ' ' << shown.arrows << ' ' << shown.selects << ' ' << shown.select_lines;
}

inline const Shown none{"....", "...", "....", "...."};
inline const Shown one{"0...", "...", "#...", "|..."};
inline const Shown two{"01..", ">..", ".#..", ".|.."};
inline const Shown three{"012.", ">>.", "..#.", "..|."};
inline const Shown four{"0123", ">>>", "...#", "...|"};

/// A trail, five crumbs for it, and a pool for all of it.
class Crumbs : public ::testing::Test
{
  protected:
    char letter(const VT::VT_obj* object) const
    {
        for (int i = 0; i < 5; ++i)
            if (object == &crumbs[i])
                return static_cast<char>('0' + i);
        return !object                          ? '.'
               : object == &trail.arrow.polygon ? '>'
               : object == &trail.select_frame  ? '#'
               : object == &trail.select_line   ? '|'
                                                : '?';
    }

    template <std::size_t N>
    std::string letters(const Object_pointer_obj (&pointers)[N]) const
    {
        std::string result;
        for (const Object_pointer_obj& pointer : pointers)
            result += letter(pointer.target);
        return result;
    }

    Shown shown() const
    {
        return {letters(trail.crumb_pointers), letters(trail.arrow_pointers), letters(trail.select_pointers),
                letters(trail.select_line_pointers)};
    }

    void add(unsigned count)
    {
        for (unsigned i = 0; i < count; ++i)
            trail.add_crumb(&crumbs[i]);
    }

    std::vector<Object_pointer_obj*> pointers()
    {
        std::vector<Object_pointer_obj*> all;
        for (Object_pointer_obj& pointer : trail.crumb_pointers)
            all.push_back(&pointer);
        for (Object_pointer_obj& pointer : trail.arrow_pointers)
            all.push_back(&pointer);
        for (Object_pointer_obj& pointer : trail.select_pointers)
            all.push_back(&pointer);
        for (Object_pointer_obj& pointer : trail.select_line_pointers)
            all.push_back(&pointer);
        return all;
    }

    void take_all()
    {
        Iso::Object_id id = first_pointer_id;
        for (Object_pointer_obj* const pointer : pointers())
            pool.take(*pointer, id++);
        id = frame_part_id;
        for (VT::VT_obj* const part : std::initializer_list<VT::VT_obj*>{
                 &trail.frame_horizontal_line, &trail.frame_vertical_line, &trail.corner_top_right,
                 &trail.corner_bottom_right, &trail.corner_top_left, &trail.corner_bottom_left})
            pool.take(*part, id++);
        id = crumb_id;
        for (Rectangle_obj& crumb : crumbs)
            pool.take(crumb, id++);
        pool.take(trail.arrow.polygon, arrow_id);
        pool.take(trail.select_line, stem_id);
        take_parent(pool, trail.select_frame, frame_id);
        take_parent(pool, trail.container, container_id);
    }

    void go_live()
    {
        take_all();
        pool.live = true;
    }

    static constexpr Iso::Object_id nothing = 0xFFFF;
    static constexpr Iso::Object_id container_id = 0x1001;
    static constexpr Iso::Object_id first_pointer_id = 0x1010; ///< crumbs, arrows, frames, stems: 0x1010 to 0x101E
    static constexpr Iso::Object_id arrow_id = 0x1021;
    static constexpr Iso::Object_id frame_id = 0x1022;
    static constexpr Iso::Object_id stem_id = 0x1023;
    static constexpr Iso::Object_id frame_part_id = 0x1030; ///< both lines, four corners
    static constexpr Iso::Object_id crumb_id = 0x2000;      ///< to 0x2004

    Journal pool; // outlives what is in it
    Connection_elements style;
    Rectangle_obj crumbs[5];
    Crumb_trail trail{style};
};

} // namespace crumbs

#endif
