#ifndef VT_OUTPUT_NUMBER_OBJ_H
#define VT_OUTPUT_NUMBER_OBJ_H

#include "vt/Field_obj.h"

namespace VT {

/// Shows a number. Options: 1 transparent, 2 leading zeros, 4 zero as blank, 8 truncate.
class VTUI_EXPORT Output_number_obj : public Number_field_obj
{
  public:
    Output_number_obj(Iso::Object_id id, const char* name, std::uint16_t width_, std::uint16_t height_,
                      std::uint8_t background_colour_, Iso::Object_id font_attributes_, std::uint8_t options_,
                      Iso::Object_id variable_reference_, std::uint32_t value_, std::int32_t offset_, float scale_,
                      std::uint8_t number_of_decimals_, std::uint8_t format_, std::uint8_t justification_,
                      std::uint8_t num_macros_, const Macro_reference* macros_ = nullptr)
        : Number_field_obj(id, name, Iso::Object_type::output_number, width_, height_, background_colour_,
                           font_attributes_, options_, variable_reference_, value_, offset_, scale_,
                           number_of_decimals_, format_, justification_, num_macros_, macros_)
    {}

    void visit(Attribute_visitor& visitor) override;
};

} // namespace VT

#endif
