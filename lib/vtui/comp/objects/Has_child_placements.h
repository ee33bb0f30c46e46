#ifndef VTUI_COMP_HAS_CHILD_PLACEMENTS_H
#define VTUI_COMP_HAS_CHILD_PLACEMENTS_H

#include "vt/Attribute.h"
#include "vt/VT_obj.h"
#include "vtui/comp/objects/Array_array.h"
#include "vtui/comp/objects/Dimension.h"

#include <array>
#include <cstddef>
#include <cstdint>
#include <string_view>

namespace VT::Comp {

/// A child and where it lies in its parent.
struct VTUI_EXPORT Child_placement
{
    constexpr Child_placement() = default;
    constexpr Child_placement(VT::VT_obj* child, std::int16_t left, std::int16_t top) : ref(child), x(left), y(top) {}

    VT::VT_obj* ref{nullptr}; ///< not owned
    std::int16_t x{0};        ///< left edge, pixels from the parent's
    std::int16_t y{0};        ///< top edge, pixels from the parent's
};

/// The size of the child; a placement without one has none, and its write-out ends the process.
inline Dimension size_of(const Child_placement& placed) { return placed.ref ? size_of(*placed.ref) : Dimension(); }

/// Moves the child to the middle of a box at the parent's top left corner.
inline void centre(Child_placement& placed, Dimension box)
{
    const Dimension size = size_of(placed);
    placed.x = centred(box.width, size.width);
    placed.y = centred(box.height, size.height);
}

/// The children of one parent, as many as its component has room for. The component computes placements and writes them
/// out into the attributes that the parent's object list consists of.
class VTUI_EXPORT Child_placements
{
  public:
    /// The first of size() consecutive attributes.
    virtual VT::Attribute_object_placement* get() = 0;
    virtual std::size_t size() const = 0;
    /// Writes every placement into its attribute, in order. A placement without a child ends the process.
    virtual void deref() = 0;
    virtual ~Child_placements() = default;

    /// The placement of child `i`, for the pool: it has to find the children before they have ids.
    virtual Child_placement& placement(std::size_t i) = 0;
    /// Object `i` of those that the component shows only at times, through pointers, for the pool: it takes them in
    /// with the children. Null behind the last.
    virtual VT::VT_obj* detached(std::size_t) { return nullptr; }

  protected:
    /// Ends the process: a placement has no child. `function` is the compiler's name of the deref() that found it.
    [[noreturn]] static void no_child(std::string_view function);
};

template <template <typename> class Array_type>
class VTUI_EXPORT Child_placements_array : public Child_placements
{
  public:
    Array_type<Child_placement> placements;
    Array_type<VT::Attribute_object_placement> attributes;

    VT::Attribute_object_placement* get() override { return &attributes[0]; }
    std::size_t size() const override { return attributes.size(); }
    void deref() override;
    Child_placement& placement(std::size_t i) override { return placements[i]; }
};

/// Beside the placements, N objects that the component shows only at times.
template <template <typename> class Array_type, std::size_t N>
class VTUI_EXPORT Child_placements_and_detached : public Child_placements_array<Array_type>
{
  public:
    std::array<VT::VT_obj*, N> detached_objects{}; ///< not owned; from the front on: the pool stops at the first null

    VT::VT_obj* detached(std::size_t i) override { return i < N ? detached_objects[i] : nullptr; }
};

template <template <typename> class Array_type>
void Child_placements_array<Array_type>::deref()
{
    for (std::size_t i = 0; i < placements.size(); ++i) {
        const Child_placement& child = placements[i];
        if (!child.ref)
            no_child(__PRETTY_FUNCTION__);
        VT::Attribute_object_placement& attribute = attributes[i];
        attribute.object_id = child.ref->get_id();
        attribute.x = child.x;
        attribute.y = child.y;
    }
}

/// A parent whose children a component places.
class VTUI_EXPORT Has_child_placements
{
  public:
    Child_placements* placements_ptr{nullptr}; ///< not owned; the component's own array
};

} // namespace VT::Comp

#endif
