#ifndef VT_BUTTON_OBJ_H
#define VT_BUTTON_OBJ_H

#include "vt/Lists.h"
#include "vt/Sized_obj.h"

namespace VT {

/// A button of a mask. With a border its face is 8 pixels narrower and lower than its area.
class VTUI_EXPORT Button_obj : public Sized_obj, public Object_list, public Macro_list
{
  public:
    Button_obj(Iso::Object_id id, const char* name, std::uint16_t width_, std::uint16_t height_,
               std::uint8_t background_colour_, std::uint8_t border_colour_, std::uint8_t key_code_,
               std::uint8_t options_, std::uint8_t num_objects_, std::uint8_t num_macros_,
               Attribute_object_placement* objects_, const Macro_reference* macros_)
        : Sized_obj(id, name, Iso::Object_type::button, width_, height_), Object_list{objects_, num_objects_},
          Macro_list{macros_, num_macros_}, background_colour(this, background_colour_),
          border_colour(this, border_colour_), key_code(key_code_), options(options_)
    {}

    Attribute_colour background_colour;
    Attribute_colour border_colour;
    Attribute_uint8 key_code;
    // Of the options.
    static constexpr std::uint8_t latchable = 1;
    static constexpr std::uint8_t latched = 2;
    static constexpr std::uint8_t disabled = 16;

    Attribute_uint8 options; ///< these, and 4 suppress border, 8 transparent, 32 no border

    /// Sends Change Background Colour if the pool is live.
    void set_background_colour(std::uint8_t colour);

    /// Sends Enable/Disable if the pool is live.
    void set_enabled(bool enable);

    void visit(Attribute_visitor& visitor) override;
};

} // namespace VT

#endif
