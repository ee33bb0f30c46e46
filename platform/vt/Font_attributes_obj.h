#ifndef VT_FONT_ATTRIBUTES_OBJ_H
#define VT_FONT_ATTRIBUTES_OBJ_H

#include "vt/Lists.h"
#include "vt/VT_obj.h"

namespace VT {

/// How texts and numbers are written.
class VTUI_EXPORT Font_attributes_obj : public VT_obj, public Macro_list
{
  public:
    Font_attributes_obj(Iso::Object_id id, const char* name, std::uint8_t font_colour, std::uint8_t font_size,
                        std::uint8_t font_type, std::uint8_t font_style, std::uint8_t num_macros_,
                        const Macro_reference* macros_ = nullptr)
        : VT_obj(id, name, Iso::Object_type::font_attributes), Macro_list{macros_, num_macros_},
          colour(this, font_colour), size(font_size), type(font_type), style(font_style)
    {}

    Attribute_colour colour;
    Attribute_uint8 size;  ///< code 0 (6 × 8) to 14 (128 × 192)
    Attribute_uint8 type;  ///< 0: ISO 8859-1
    Attribute_uint8 style; ///< 1 bold, 2 crossed out, 4 underlined, 8 italic

    /// The cell of one character, pixels.
    std::uint8_t get_font_width() const;
    std::uint8_t get_font_height() const;

    /// Takes the largest size that fits the scaled cell, or else the smallest there is.
    void __set_scale(std::uint16_t a, std::uint16_t b, std::uint16_t c, std::uint16_t d) override;
    void visit(Attribute_visitor& visitor) override;
};

} // namespace VT

#endif
