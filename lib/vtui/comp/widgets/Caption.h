#ifndef VTUI_COMP_CAPTION_H
#define VTUI_COMP_CAPTION_H

#include "vtui/comp/objects/Dimension.h"
#include "vtui/comp/objects/Output_string_obj.h"

#include <cstdint>

namespace VT::Comp {

/// Makes a string the caption of an icon: two lines, in the middle, wrapped.
inline void construct_caption(Output_string_obj& caption, VT::Font_attributes_obj& font)
{
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
