#ifndef VT_LINE_ATTRIBUTES_OBJ_H
#define VT_LINE_ATTRIBUTES_OBJ_H

#include "vt/Lists.h"
#include "vt/VT_obj.h"

namespace VT {

/// How lines are drawn.
class VTUI_EXPORT Line_attributes_obj : public VT_obj, public Macro_list
{
  public:
    Line_attributes_obj(Iso::Object_id id, const char* name, std::uint8_t line_colour, std::uint8_t line_width,
                        std::uint16_t art, std::uint8_t num_macros_, const Macro_reference* macros_ = nullptr)
        : VT_obj(id, name, Iso::Object_type::line_attributes), Macro_list{macros_, num_macros_},
          colour(this, line_colour), width(line_width), line_art(art)
    {}

    Attribute_colour colour;
    Attribute_uint8 width;     ///< pixels; 0 draws nothing
    Attribute_uint16 line_art; ///< 0xFFFF: solid

    void visit(Attribute_visitor& visitor) override;
};

} // namespace VT

#endif
