#ifndef VTUI_COMP_CAPTION_H
#define VTUI_COMP_CAPTION_H

#include "vtui/comp/Connection_elements.h"
#include "vtui/comp/objects/Container_obj.h"
#include "vtui/comp/objects/Dimension.h"
#include "vtui/comp/objects/Has_child_placements.h"
#include "vtui/comp/objects/Output_string_obj.h"

#include <cstdint>

namespace VT::Comp {

/// Gives a parent its two children: a blank square of the style's until there is an icon, and a caption, in the middle
/// and wrapped.
inline void construct_icon_and_caption(Container_obj& parent, Child_placements_array<Array_array_2>& children,
                                       Output_string_obj& caption, Connection_elements& style,
                                       VT::Font_attributes_obj& font)
{
    children.placements[0] = {&style.rect_17_patterned, 0, 0};
    children.placements[1] = {&caption, 0, 0};
    parent.placements_ptr = &children;
    caption.options = VT::Field_obj::transparent | VT::Output_string_obj::auto_wrap;
    caption.justification = VT::Field_obj::middle;
    caption.set_font(&font);
}

/// Two lines high and `width` pixels wide.
inline void size_caption(Output_string_obj& caption, std::uint16_t width)
{
    resize(caption, {width, static_cast<std::uint16_t>(2 * caption.font->get_font_height())});
}

} // namespace VT::Comp

#endif
