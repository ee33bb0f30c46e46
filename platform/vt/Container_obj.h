#ifndef VT_CONTAINER_OBJ_H
#define VT_CONTAINER_OBJ_H

#include "vt/Lists.h"
#include "vt/Sized_obj.h"

namespace VT {

/// Groups children and cuts them at its own edges.
class VTUI_EXPORT Container_obj : public Sized_obj, public Object_list, public Macro_list
{
  public:
    Container_obj(Iso::Object_id id, const char* name, std::uint16_t width_, std::uint16_t height_,
                  std::uint8_t hidden_, std::uint8_t num_objects_, std::uint8_t num_macros_,
                  Attribute_object_placement* objects_, const Macro_reference* macros_)
        : Sized_obj(id, name, Iso::Object_type::container, width_, height_), Object_list{objects_, num_objects_},
          Macro_list{macros_, num_macros_}, hidden(hidden_)
    {}

    Attribute_uint8 hidden; ///< 0 shown, 1 hidden

    /// Hides or shows the container; sends Hide/Show if the pool is live.
    void set_hidden(bool hide);

    /// Moves the child at `index` of the object list (pixels from the container's top left); sends Change Child
    /// Position if the pool is live. The command knows a child by its id only: where the list holds that child twice,
    /// the whole container is sent again instead. An index beyond the list, as before the pool exists, is ignored.
    void set_child_location(std::uint8_t index, std::int16_t x, std::int16_t y);
    /// Puts another object of the pool in the place of the child at `index`, at x, y. No command says that, so in a
    /// live pool the container is uploaded: always, or only if anything in it has changed.
    void set_child_location(std::uint8_t index, Iso::Object_id child, std::int16_t x, std::int16_t y, bool always);

    void visit(Attribute_visitor& visitor) override;
};

} // namespace VT

#endif
