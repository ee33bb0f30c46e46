#ifndef VTUI_COMP_POLYGON_OBJ_H
#define VTUI_COMP_POLYGON_OBJ_H

#include "vt/Polygon_obj.h"
#include "vtui/comp/objects/Fill_attributes_obj.h"
#include "vtui/comp/objects/Has_vertices.h"
#include "vtui/comp/objects/Line_attributes_obj.h"
#include "vtui/comp/objects/Link.h"
#include "vtui/comp/objects/Object.h"

namespace VT::Comp {

class VTUI_EXPORT Polygon_obj : public Object, public Has_vertices, public Has_macros, public VT::Polygon_obj
{
  public:
    Polygon_obj() : VT::Polygon_obj(NULL_ID, nullptr, 0, 0, NULL_ID, NULL_ID, 0, 0, 0, nullptr, nullptr) {}
    ~Polygon_obj() override;

    void set_fill(Fill_attributes_obj* new_fill)
    {
        set_link(*this, fill, new_fill, &VT::Polygon_obj::set_fill_attributes);
    }
    void set_line(Line_attributes_obj* new_line)
    {
        set_link(*this, line, new_line, &VT::Polygon_obj::set_line_attributes);
    }

    /// Scales the points, then the rest.
    void __set_scale(std::uint16_t a, std::uint16_t b, std::uint16_t c, std::uint16_t d) override;

    Fill_attributes_obj* fill{nullptr};
    Line_attributes_obj* line{nullptr};
};

} // namespace VT::Comp

#endif
