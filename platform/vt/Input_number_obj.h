#ifndef VT_INPUT_NUMBER_OBJ_H
#define VT_INPUT_NUMBER_OBJ_H

#include "vt/Field_obj.h"

namespace VT {

/// A number that the operator can change, between a minimum and a maximum. Options: 1 transparent, 2 leading zeros, 4
/// zero as blank, 8 truncate.
class VTUI_EXPORT Input_number_obj : public Number_field_obj
{
  public:
    Input_number_obj(Iso::Object_id id, const char* name, std::uint16_t width_, std::uint16_t height_,
                     std::uint8_t background_colour_, Iso::Object_id font_attributes_, std::uint8_t options_,
                     Iso::Object_id variable_reference_, std::uint32_t value_, std::uint32_t min, std::uint32_t max,
                     std::int32_t offset_, float scale_, std::uint8_t number_of_decimals_, std::uint8_t format_,
                     std::uint8_t justification_, std::uint8_t second_options, std::uint8_t num_macros_,
                     const Macro_reference* macros_ = nullptr)
        : Number_field_obj(id, name, Iso::Object_type::input_number, width_, height_, background_colour_,
                           font_attributes_, options_, variable_reference_, value_, offset_, scale_,
                           number_of_decimals_, format_, justification_, num_macros_, macros_),
          options_2(second_options), min_value(min), max_value(max)
    {}

    static constexpr std::uint8_t enabled = 1; ///< among options_2

    Attribute_uint8 options_2;  ///< 1 enabled, 2 real-time editing
    Attribute_uint32 min_value; ///< raw units
    Attribute_uint32 max_value; ///< raw units

    /// Lets the operator edit the number or not; sends Enable/Disable if the pool is live.
    void set_enabled(bool enable);
    /// Each sends Change Attribute if the pool is live.
    void set_min_value(std::uint32_t raw);
    void set_max_value(std::uint32_t raw);

    void visit(Attribute_visitor& visitor) override;
};

} // namespace VT

#endif
