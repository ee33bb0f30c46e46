#ifndef VTUI_COMP_FONT_ATTRIBUTES_OBJ_H
#define VTUI_COMP_FONT_ATTRIBUTES_OBJ_H

#include "vt/Font_attributes_obj.h"
#include "vtui/comp/objects/Dimension.h"
#include "vtui/comp/objects/Object.h"

namespace VT::Comp {

class VTUI_EXPORT Font_attributes_obj : public Object, public Has_macros, public VT::Font_attributes_obj
{
  public:
    Font_attributes_obj() : VT::Font_attributes_obj(NULL_ID, nullptr, 0, 1, 0, 0, 0) {}
    ~Font_attributes_obj() override;
};

/// One line of that many characters; without a font it has no size. The width has 16 bits and wraps around.
inline Dimension text_size(std::uint16_t characters, const VT::Font_attributes_obj* font)
{
    if (!font)
        return {};
    return {static_cast<std::uint16_t>(characters * font->get_font_width()), font->get_font_height()};
}

} // namespace VT::Comp

#endif
