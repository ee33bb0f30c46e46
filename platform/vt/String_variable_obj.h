#ifndef VT_STRING_VARIABLE_OBJ_H
#define VT_STRING_VARIABLE_OBJ_H

#include "vt/VT_obj.h"

namespace VT {

/// A text that output strings refer to.
class VTUI_EXPORT String_variable_obj : public VT_obj
{
  public:
    /// `text` holds `length` characters and is not owned.
    String_variable_obj(Iso::Object_id id, const char* name, std::uint16_t length, char* text)
        : VT_obj(id, name, Iso::Object_type::string_variable), value(text, length)
    {}

    Attribute_string value;

    /// The characters that the terminal reserves.
    std::uint16_t get_length() const { return value.item_count; }
    /// The number of characters of the text: up to the first NUL or the whole length.
    std::uint16_t num_chars() const { return value.num_chars(); }

    /// Replaces the text from character `offset` on by `length` characters at `text`, as far as they have room; sends
    /// Change String Value with the whole text if the pool is live. Reads no more of `text` than fits.
    void set_string(std::uint16_t offset, const char* text, unsigned length);

    void visit(Attribute_visitor& visitor) override;
};

} // namespace VT

#endif
