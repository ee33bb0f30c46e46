#ifndef VT_SIZED_OBJ_H
#define VT_SIZED_OBJ_H

#include "vt/VT_obj.h"

namespace VT {

/// A parent's children as its record lists them. The pool writes the list; whoever placed the children owns it.
struct VTUI_EXPORT Object_list
{
    Attribute_object_placement* objects;
    std::uint8_t num_objects;
};

/// The macros of an object; the list is not owned.
struct VTUI_EXPORT Macro_list
{
    const Macro_reference* macros;
    std::uint8_t num_macros;

    void visit_macros(Attribute_visitor& visitor) const
    {
        visitor.count(num_macros);
        visitor.macros(macros, num_macros);
    }
};

/// Children and macros as they stand at the end of a parent's record: both counts, then both lists.
VTUI_EXPORT void visit_lists(Attribute_visitor& visitor, const Object_list& objects, const Macro_list& macros);

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
