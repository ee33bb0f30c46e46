#ifndef GALLERY_CAPTION_H
#define GALLERY_CAPTION_H

#include "vt/String_variable_obj.h"
#include "vtui/comp/objects/Dimension.h"
#include "vtui/comp/objects/Font_attributes_obj.h"
#include "vtui/comp/objects/Output_string_obj.h"

#include <string>

namespace gallery {

/// A text that stays as it is.
class Words
{
  public:
    explicit Words(const char* words)
        : text(words), variable(VT::VT_obj::NULL_ID, nullptr, static_cast<std::uint16_t>(text.size()), text.data())
    {}

  private:
    std::string text;

  public:
    VT::String_variable_obj variable;
};

/// A text that stays as it is, in an output string of its own.
class Caption
{
  public:
    enum Vertical { top, centre };

    Caption(const char* text, VT::Comp::Font_attributes_obj& font) : words(text)
    {
        string.set_font(&font);
        string.set_variable(&words.variable);
        string.options = VT::Field_obj::transparent;
    }

    void set_size(VT::Comp::Dimension size) { resize(string, size); }
    void set_justification(VT::Field_obj::Horizontal horizontal, Vertical vertical = top)
    {
        string.justification = static_cast<std::uint8_t>(horizontal | vertical << 2);
    }

    VT::VT_obj& root() { return string; }

  private:
    Words words;
    VT::Comp::Output_string_obj string;
};

} // namespace gallery

#endif
