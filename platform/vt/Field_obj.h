#ifndef VT_FIELD_OBJ_H
#define VT_FIELD_OBJ_H

#include "vt/Lists.h"
#include "vt/Sized_obj.h"

namespace VT {

/// A box that shows a text or a number in a font: its own value, or that of a variable.
class VTUI_EXPORT Field_obj : public Sized_obj, public Macro_list
{
  public:
    static constexpr std::uint8_t transparent = 1;          ///< among the options
    enum Horizontal : std::uint8_t { left, middle, right }; ///< in the lower bits of the justification

    Attribute_colour background_colour;
    Attribute_object_id_spec font_attributes;
    Attribute_object_id_spec variable_reference;
    Attribute_uint8 options;
    Attribute_uint8 justification; ///< bits 0-1: 0 left, 1 middle, 2 right; bits 2-3: 0 top, 1 middle, 2 bottom

    /// Each sends Change Attribute if the pool is live.
    void set_font_attributes(Iso::Object_id font);
    void set_variable_reference(Iso::Object_id variable);
    /// Sends Change Background Colour if the pool is live.
    void set_background_colour(std::uint8_t colour);

  protected:
    Field_obj(Iso::Object_id id, const char* name, Iso::Object_type type, std::uint16_t width, std::uint16_t height,
              std::uint8_t background_colour, Iso::Object_id font_attributes, std::uint8_t options,
              Iso::Object_id variable_reference, std::uint8_t justification, std::uint8_t num_macros,
              const Macro_reference* macros);

    /// What the records of all fields begin with; `all_options` are the option bits that the class knows.
    void visit_field(Attribute_visitor& visitor, std::uint8_t all_options);
    void visit_justification(Attribute_visitor& visitor, std::uint8_t attribute_id);
};

/// A field that shows (value + offset) × scale, the sum taken signed, with a number of decimals.
class VTUI_EXPORT Number_field_obj : public Field_obj
{
  public:
    Attribute_uint8 number_of_decimals;
    Attribute_uint8 format; ///< 0 fixed decimals, 1 exponential
    Attribute_uint32 value; ///< raw units
    Attribute_int32 offset; ///< raw units
    Attribute_real scale;   ///< display units per raw unit

    /// Sets the raw value; sends Change Numeric Value if the pool is live.
    void set_value(std::uint32_t raw);
    /// Each sends Change Attribute if the pool is live.
    void set_offset(std::int32_t raw);
    void set_scale(float display_units);
    void set_number_of_decimals(std::uint8_t decimals); ///< 0 to 7

  protected:
    Number_field_obj(Iso::Object_id id, const char* name, Iso::Object_type type, std::uint16_t width,
                     std::uint16_t height, std::uint8_t background_colour, Iso::Object_id font_attributes,
                     std::uint8_t options, Iso::Object_id variable_reference, std::uint32_t value, std::int32_t offset,
                     float scale, std::uint8_t number_of_decimals, std::uint8_t format, std::uint8_t justification,
                     std::uint8_t num_macros, const Macro_reference* macros);

    void visit_format(Attribute_visitor& visitor);

  private:
    std::uint8_t format_id(unsigned place) const;
};

} // namespace VT

#endif
