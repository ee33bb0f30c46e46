#ifndef VT_POLYGON_OBJ_H
#define VT_POLYGON_OBJ_H

#include "vt/Lists.h"
#include "vt/Sized_obj.h"

namespace VT {

/// A polygon or an open line of points. The points are those of whoever placed them; the pool writes the list.
class VTUI_EXPORT Polygon_obj : public Sized_obj, public Macro_list
{
  public:
    Polygon_obj(Iso::Object_id id, const char* name, std::uint16_t width_, std::uint16_t height_, Iso::Object_id line,
                Iso::Object_id fill, std::uint8_t polygon_type, std::uint8_t point_count, std::uint8_t num_macros_,
                Attribute_point* point_list, const Macro_reference* macros_)
        : Sized_obj(id, name, Iso::Object_type::polygon, width_, height_), Macro_list{macros_, num_macros_},
          line_attributes(line), fill_attributes(fill), type(polygon_type), num_points(point_count), points(point_list)
    {}

    Attribute_object_id_spec line_attributes;
    Attribute_object_id_spec fill_attributes;
    Attribute_uint8 type; ///< 0 convex, 1 non-convex, 2 complex, 3 open
    std::uint8_t num_points;
    Attribute_point* points; ///< not owned

    /// Each sends Change Attribute if the pool is live.
    void set_line_attributes(Iso::Object_id line);
    void set_fill_attributes(Iso::Object_id fill);

    void visit(Attribute_visitor& visitor) override;
};

} // namespace VT

#endif
