#ifndef VT_RECTANGLE_OBJ_H
#define VT_RECTANGLE_OBJ_H

#include "vt/Lists.h"
#include "vt/Sized_obj.h"

namespace VT {

/// A rectangle, filled or not, with any of its four edges drawn.
class VTUI_EXPORT Rectangle_obj : public Sized_obj, public Macro_list
{
  public:
    Rectangle_obj(Iso::Object_id id, const char* name, Iso::Object_id line, std::uint16_t width_, std::uint16_t height_,
                  std::uint8_t suppression, Iso::Object_id fill, std::uint8_t num_macros_,
                  const Macro_reference* macros_ = nullptr)
        : Sized_obj(id, name, Iso::Object_type::rectangle, width_, height_), Macro_list{macros_, num_macros_},
          line_attributes(line), fill_attributes(fill), line_suppression(suppression)
    {}

    Attribute_object_id_spec line_attributes;
    Attribute_object_id_spec fill_attributes;
    Attribute_uint8 line_suppression; ///< edges that are not drawn: 1 top, 2 right, 4 bottom, 8 left

    /// Each sends Change Attribute if the pool is live.
    void set_line_attributes(Iso::Object_id line);
    void set_fill_attributes(Iso::Object_id fill);

    void visit(Attribute_visitor& visitor) override;
};

} // namespace VT

#endif
