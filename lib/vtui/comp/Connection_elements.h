#ifndef VTUI_COMP_CONNECTION_ELEMENTS_H
#define VTUI_COMP_CONNECTION_ELEMENTS_H

#include "vtui/comp/objects/Fill_attributes_obj.h"
#include "vtui/comp/objects/Font_attributes_obj.h"
#include "vtui/comp/objects/Line_attributes_obj.h"
#include "vtui/comp/objects/Object_pointer_obj.h"
#include "vtui/comp/objects/Rectangle_obj.h"
#include "vtui/comp/objects/String_variable_obj.h"
#include "vtui/comp/widgets/Disable_cover_widget.h"

#include <array>

namespace VT::Comp {

/// The style that all components of one pool share: fonts, lines, fills, coloured backgrounds, the bevel of buttons,
/// the numbers 0 to 255 as texts, and the covers of disabled components. The application makes one per pool, before the
/// components, and calls set_sizes() when it knows the terminal. Components keep pointers to the members: the set
/// outlives them.
class VTUI_EXPORT Connection_elements
{
  public:
    Connection_elements();

    /// Fits the set to a data mask `size` pixels wide and high: backgrounds as large as the mask, lines one pixel wide,
    /// large fonts from 480 pixels on. May be called again when the mask changes; it sends nothing, so a live pool is
    /// loaded again.
    void set_sizes(unsigned short size);

    static constexpr std::uint16_t solid = 0xFFFF;      ///< line art
    static constexpr std::uint8_t with_fill_colour = 2; ///< fill type

    // Two ladders of four sizes above the smallest one. Colour and style are the application's to set.
    Font_attributes_obj font_0;
    Font_attributes_obj font_1;
    Font_attributes_obj font_2;
    Font_attributes_obj font_3;
    Font_attributes_obj font_4;
    Font_attributes_obj font_5;
    Font_attributes_obj font_6;
    Font_attributes_obj font_7;
    Font_attributes_obj font_8;

    // Colour, width and art.
    Line_attributes_obj line_none{0, 0, 0}; ///< draws nothing
    Line_attributes_obj line_black{0, 1, solid};
    Line_attributes_obj line_111{111, 1, solid};
    Line_attributes_obj line_white{1, 1, solid};
    Line_attributes_obj line_grey_2{8, 2, solid}; ///< two pixels wide

    // Backgrounds of one colour, without a border. rect_81, rect_39 and rect_17 have no size until a component gives
    // one.
    Fill_attributes_obj fill_red{with_fill_colour, 12};
    Rectangle_obj rect_red;
    Fill_attributes_obj fill_green{with_fill_colour, 2};
    Rectangle_obj rect_green;
    Fill_attributes_obj fill_white{with_fill_colour, 1};
    Rectangle_obj rect_white;
    Fill_attributes_obj fill_195{with_fill_colour, 195};
    Rectangle_obj rect_195;
    Fill_attributes_obj fill_81{with_fill_colour, 81};
    Rectangle_obj rect_81;
    Fill_attributes_obj fill_39{with_fill_colour, 39};
    Rectangle_obj rect_39;
    Fill_attributes_obj fill_188{with_fill_colour, 188};
    Rectangle_obj rect_188;
    Fill_attributes_obj fill_17{with_fill_colour, 17};
    Rectangle_obj rect_17;
    Rectangle_obj rect_17_patterned;
    Fill_attributes_obj fill_17_patterned{with_fill_colour, 17}; ///< plain: the pattern is none

    // The two halves of a raised bevel: the dark one is the face with its right and bottom edge, the light one only the
    // top and left edge.
    Rectangle_obj rect_bevel_dark;
    Rectangle_obj rect_bevel_light;
    Fill_attributes_obj fill_59{with_fill_colour, 59};
    Line_attributes_obj line_white_b{1, 1, solid};
    Line_attributes_obj line_black_b{0, 1, solid};

    Line_attributes_obj line_black_c{0, 1, solid};
    Line_attributes_obj line_111_b{111, 1, solid};

    Object_pointer_obj null_pointer; ///< shows nothing
    Object_pointer_obj* null_pointer_ptr{&null_pointer};

    std::array<String_variable_obj<4>, 256> number_strings; ///< "0" to "255"
    String_variable_obj<1> empty_string;
    String_variable_obj<2> percent_string; ///< "%"

    Disable_cover_widget_impl<5> cover;

    // The levels of the cover by their names: no objects of their own.
    Container_obj& cover_512{cover.container};
    Container_obj& cover_256{cover.inner.container};
    Container_obj& cover_128{cover.inner.inner.container};
    Container_obj& cover_64{cover.inner.inner.inner.container};
    Picture_graphic_obj& cover_tile{cover.inner.inner.inner.inner.tile};
};

} // namespace VT::Comp

#endif
