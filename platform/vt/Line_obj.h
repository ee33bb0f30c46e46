#ifndef VT_LINE_OBJ_H
#define VT_LINE_OBJ_H

#include "vt/Lists.h"
#include "vt/Sized_obj.h"

namespace VT {

/// A straight line from corner to corner of its area.
class VTUI_EXPORT Line_obj : public Sized_obj, public Macro_list
{
  public:
    Line_obj(Iso::Object_id id, const char* name, Iso::Object_id line, std::uint16_t width_, std::uint16_t height_,
             std::uint8_t line_direction, std::uint8_t num_macros_, const Macro_reference* macros_ = nullptr)
        : Sized_obj(id, name, Iso::Object_type::line, width_, height_), Macro_list{macros_, num_macros_},
          line_attributes(line), direction(line_direction)
    {}

    Attribute_object_id_spec line_attributes;
    Attribute_uint8 direction; ///< 0 top left to bottom right, 1 bottom left to top right

    /// Sends Change Attribute if the pool is live.
    void set_line_attributes(Iso::Object_id line);

    void visit(Attribute_visitor& visitor) override;
};

} // namespace VT

#endif
