#ifndef VTUI_COMP_PICTURE_GRAPHIC_OBJ_H
#define VTUI_COMP_PICTURE_GRAPHIC_OBJ_H

#include "vt/Picture_graphic_obj.h"
#include "vtui/comp/objects/Object.h"

namespace VT::Comp {

class VTUI_EXPORT Picture_graphic_obj : public Object, public Has_macros, public VT::Picture_graphic_obj
{
  public:
    /// `data` holds `data_size` bytes and must outlive the picture.
    Picture_graphic_obj(std::uint16_t drawn_width, std::uint16_t picture_width, std::uint16_t picture_height,
                        std::uint8_t picture_format, std::uint8_t option_bits, std::uint8_t transparent,
                        std::uint32_t data_size, const std::uint8_t* data)
        : VT::Picture_graphic_obj(NULL_ID, nullptr, drawn_width, picture_width, picture_height, picture_format,
                                  option_bits, transparent, data_size, 0, data)
    {}
    ~Picture_graphic_obj() override;

    /// A picture drawn at another width keeps its aspect ratio.
    std::uint16_t _get_height() const override;
};

} // namespace VT::Comp

#endif
