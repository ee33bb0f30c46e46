#ifndef VT_KEY_OBJ_H
#define VT_KEY_OBJ_H

#include "vt/Lists.h"
#include "vt/VT_obj.h"

namespace VT {

/// A soft key: the face that the terminal shows beside the mask. Its size is the terminal's.
class VTUI_EXPORT Key_obj : public VT_obj, public Object_list, public Macro_list
{
  public:
    Key_obj(Iso::Object_id id, const char* name, std::uint8_t background_colour_, std::uint8_t key_code_,
            std::uint8_t num_objects_, std::uint8_t num_macros_, Attribute_object_placement* objects_,
            const Macro_reference* macros_)
        : VT_obj(id, name, Iso::Object_type::key), Object_list{objects_, num_objects_}, Macro_list{macros_,
                                                                                                   num_macros_},
          background_colour(this, background_colour_), key_code(key_code_)
    {}

    Attribute_colour background_colour;
    Attribute_uint8 key_code; ///< 1 to 255; 0 is the ACK key's

    /// Sends Change Background Colour if the pool is live.
    void set_background_colour(std::uint8_t colour);

    void visit(Attribute_visitor& visitor) override;
};

} // namespace VT

#endif
