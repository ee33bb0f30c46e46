#ifndef VT_FILL_ATTRIBUTES_OBJ_H
#define VT_FILL_ATTRIBUTES_OBJ_H

#include "vt/Lists.h"
#include "vt/VT_obj.h"

namespace VT {

/// How areas are filled.
class VTUI_EXPORT Fill_attributes_obj : public VT_obj, public Macro_list
{
  public:
    Fill_attributes_obj(Iso::Object_id id, const char* name, std::uint8_t fill_type, std::uint8_t fill_colour,
                        Iso::Object_id pattern, std::uint8_t num_macros_, const Macro_reference* macros_ = nullptr)
        : VT_obj(id, name, Iso::Object_type::fill_attributes), Macro_list{macros_, num_macros_}, type(fill_type),
          colour(this, fill_colour), fill_pattern(pattern)
    {}

    Attribute_uint8 type; ///< 0 none, 1 the line's colour, 2 the fill colour, 3 the pattern
    Attribute_colour colour;
    Attribute_object_id_spec fill_pattern;

    /// Sends Change Attribute if the pool is live.
    void set_fill_pattern(Iso::Object_id picture);

    void visit(Attribute_visitor& visitor) override;
};

} // namespace VT

#endif
