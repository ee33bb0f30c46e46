#ifndef VT_MASK_OBJ_H
#define VT_MASK_OBJ_H

#include "vt/Lists.h"
#include "vt/VT_obj.h"

#include <vector>

namespace VT {

/// What the application puts a screen together with: an object with a background and any number of children. The
/// children belong to the application; children are added before the pool is loaded.
class VTUI_EXPORT Parent_obj : public VT_obj, public Object_list, public Macro_list
{
  public:
    Parent_obj(const Parent_obj&) = delete;
    Parent_obj& operator=(const Parent_obj&) = delete;

    Attribute_colour background_colour;

    /// Sends Change Background Colour if the pool is live.
    void set_background_colour(std::uint8_t colour);

    /// The children in drawing order.
    const std::vector<VT_obj*>& get_children() const { return children; }

    /// For the pool: writes the object list, as far as the pool has the children: those added since then wait.
    void write_children();

  protected:
    Parent_obj(const char* name, Iso::Object_type type, std::uint8_t background)
        : VT_obj(NULL_ID, name, type), Object_list{nullptr, 0}, Macro_list{nullptr, 0},
          background_colour(this, background)
    {}

    void add_child(VT_obj& child, std::int16_t x, std::int16_t y);

  private:
    std::vector<VT_obj*> children;
    std::vector<Attribute_object_placement> placements;
};

/// A soft key mask: the keys, or pointers at keys, that a mask shows beside itself.
class VTUI_EXPORT Soft_key_mask_obj final : public Parent_obj
{
  public:
    explicit Soft_key_mask_obj(const char* name = nullptr, std::uint8_t background = 0)
        : Parent_obj(name, Iso::Object_type::soft_key_mask, background)
    {}

    /// Puts a key, or an object pointer at one, into the next cell.
    void add(VT_obj& key) { add_child(key, 0, 0); }

    void visit(Attribute_visitor& visitor) override;
};

/// A mask: a whole screen with its soft keys.
class VTUI_EXPORT Mask_obj : public Parent_obj
{
  public:
    /// Puts a child at x, y (pixels from the mask's top left corner), over those added before.
    void add(VT_obj& child, std::int16_t x, std::int16_t y) { add_child(child, x, y); }

    /// Exchanges the soft keys (null: none); sends Change Soft Key Mask if the pool is live.
    void set_soft_key_mask(Soft_key_mask_obj* keys);
    Soft_key_mask_obj* get_soft_key_mask() const { return soft_keys; }

    Attribute_object_id_spec soft_key_mask;

  protected:
    using Parent_obj::Parent_obj;

  private:
    Soft_key_mask_obj* soft_keys{nullptr};
};

class VTUI_EXPORT Data_mask_obj final : public Mask_obj
{
  public:
    explicit Data_mask_obj(const char* name = nullptr, std::uint8_t background = 0)
        : Mask_obj(name, Iso::Object_type::data_mask, background)
    {}

    void visit(Attribute_visitor& visitor) override;
};

/// A mask that the terminal shows over any other working set's screen, by its priority.
class VTUI_EXPORT Alarm_mask_obj final : public Mask_obj
{
  public:
    explicit Alarm_mask_obj(const char* name = nullptr, std::uint8_t background = 0)
        : Mask_obj(name, Iso::Object_type::alarm_mask, background)
    {}

    Attribute_uint8 priority;        ///< 0 high, 1 medium, 2 low
    Attribute_uint8 acoustic_signal; ///< 0 highest, 1 medium, 2 lowest, 3 none

    void visit(Attribute_visitor& visitor) override;
};

} // namespace VT

#endif
