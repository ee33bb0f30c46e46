#ifndef VT_PICTURE_GRAPHIC_OBJ_H
#define VT_PICTURE_GRAPHIC_OBJ_H

#include "vt/Lists.h"
#include "vt/VT_obj.h"

namespace VT {

/// A bitmap of 1, 4 or 8 bits a pixel, drawn at any width with its height following.
class VTUI_EXPORT Picture_graphic_obj : public VT_obj, public Macro_list
{
  public:
    /// `raw_data` holds `raw_data_size` bytes and is not owned.
    Picture_graphic_obj(Iso::Object_id id, const char* name, std::uint16_t drawn_width, std::uint16_t picture_width,
                        std::uint16_t picture_height, std::uint8_t picture_format, std::uint8_t option_bits,
                        std::uint8_t transparent, std::uint32_t data_size, std::uint8_t num_macros_,
                        const std::uint8_t* data, const Macro_reference* macros_ = nullptr)
        : VT_obj(id, name, Iso::Object_type::picture_graphic), Macro_list{macros_, num_macros_}, width(drawn_width),
          actual_width(picture_width), actual_height(picture_height), format(picture_format), options(option_bits),
          transparency_colour(this, transparent), raw_data_size(data_size), raw_data(data)
    {}

    Attribute_uint16 width; ///< as drawn
    Attribute_uint16 actual_width;
    Attribute_uint16 actual_height;
    Attribute_uint8 format;  ///< 0 one bit a pixel, 1 four bits, 2 eight bits
    Attribute_uint8 options; ///< 1 transparent, 2 flashing, 4 run-length encoded
    Attribute_colour transparency_colour;
    std::uint32_t raw_data_size;
    const std::uint8_t* raw_data; ///< not owned

    std::uint16_t _get_width() const override;

    void visit(Attribute_visitor& visitor) override;
};

} // namespace VT

#endif
