#ifndef VT_SIZED_OBJ_H
#define VT_SIZED_OBJ_H

#include "vt/VT_obj.h"

namespace VT {

/// An object with a width and a height of its own.
class VTUI_EXPORT Sized_obj : public VT_obj
{
  public:
    Attribute_uint16 width;
    Attribute_uint16 height;

    std::uint16_t _get_width() const override;
    std::uint16_t _get_height() const override;

    /// Sets both sides and, if the pool is live, sends Change Size.
    void change_size(std::uint16_t new_width, std::uint16_t new_height);

  protected:
    Sized_obj(Iso::Object_id id, const char* name, Iso::Object_type type, std::uint16_t w, std::uint16_t h)
        : VT_obj(id, name, type), width(w), height(h)
    {}

    /// Width and height carry neighbouring ids, the width's first.
    void visit_size(Attribute_visitor& visitor, std::uint8_t width_id)
    {
        visitor.attribute({"width", width_id, Axis::x}, width);
        visitor.attribute({"height", static_cast<std::uint8_t>(width_id + 1), Axis::y}, height);
    }
};

} // namespace VT

#endif
