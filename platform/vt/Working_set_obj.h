#ifndef VT_WORKING_SET_OBJ_H
#define VT_WORKING_SET_OBJ_H

#include "vt/Mask_obj.h"

#include <string>
#include <vector>

namespace VT {

/// The root of a pool: which mask is shown, and the face (its children) by which the operator picks the working set.
class VTUI_EXPORT Working_set_obj final : public Parent_obj
{
  public:
    explicit Working_set_obj(const char* name = nullptr, std::uint8_t background = 0)
        : Parent_obj(name, Iso::Object_type::working_set, background)
    {}

    Attribute_uint8 selectable{1}; ///< 1: the operator may pick the working set
    Attribute_object_id_spec active_mask;

    /// Puts a child of the face at x, y (pixels), over those added before.
    void add(VT_obj& child, std::int16_t x, std::int16_t y) { add_child(child, x, y); }

    /// A screen that is shown later: part of the pool, but not active.
    void add_mask(Mask_obj& mask);
    const std::vector<Mask_obj*>& get_masks() const { return masks; }

    /// Shows a mask; sends Change Active Mask if the pool is live.
    void set_active_mask(Mask_obj& mask);
    Mask_obj* get_active_mask() const { return active; }

    /// A language of the working set: two ASCII letters, as "en". 255 at most; more are ignored.
    void add_language(const char (&code)[3]);

    void visit(Attribute_visitor& visitor) override;

  private:
    Mask_obj* active{nullptr};
    std::vector<Mask_obj*> masks;
    std::string languages;
};

} // namespace VT

#endif
