#ifndef VT_OUTPUT_STRING_OBJ_H
#define VT_OUTPUT_STRING_OBJ_H

#include "vt/Field_obj.h"

#include <memory>

namespace VT {

/// Shows a text: its own, or that of a string variable. Options: 1 transparent, 2 auto-wrap, 4 wrap on hyphen.
class VTUI_EXPORT Output_string_obj : public Field_obj
{
  public:
    static constexpr std::uint8_t auto_wrap = 2; ///< among the options

    /// `text` holds `length` characters and is not owned.
    Output_string_obj(Iso::Object_id id, const char* name, std::uint16_t width_, std::uint16_t height_,
                      std::uint8_t background_colour_, Iso::Object_id font_attributes_, std::uint8_t options_,
                      Iso::Object_id variable_reference_, std::uint8_t justification_, std::uint16_t text_length,
                      char* text, std::uint8_t num_macros_, const Macro_reference* macros_ = nullptr)
        : Field_obj(id, name, Iso::Object_type::output_string, width_, height_, background_colour_, font_attributes_,
                    options_, variable_reference_, justification_, num_macros_, macros_),
          length(text_length), value(text, text_length)
    {}

    Attribute_uint16 length; ///< characters of its own value; equals the value's item count
    Attribute_string value;

    /// Makes room for a value of `new_length` characters: the pool gives a buffer and the text stays as it is.
    void grow(std::uint16_t new_length);
    /// Takes over a buffer of the value's item count.
    void hold(std::unique_ptr<char[]> buffer);

    /// A specified value may be longer than the text so far.
    bool __set_by_spec(const Client::Object_specification_interface& specification) override;
    void visit(Attribute_visitor& visitor) override;

  protected:
    Output_string_obj(const Output_string_obj& other) : Field_obj(other), value(other.value) {}

  private:
    std::unique_ptr<char[]> held;
};

} // namespace VT

#endif
