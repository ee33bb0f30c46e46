#ifndef VTUI_COMP_CUSTOM_LIST_WIDGET_H
#define VTUI_COMP_CUSTOM_LIST_WIDGET_H

#include "vtui/comp/Connection_elements.h"
#include "vtui/comp/objects/Container_obj.h"
#include "vtui/comp/objects/Has_child_placements.h"

#include <array>
#include <cstddef>
#include <cstdint>

namespace VT::Comp {

/// The part of a list that lays it out: a column of CAPACITY items, with GAP pixels below each, on the style's
/// patterned background, which is as large as the mask, however long the list is. It shows nothing until the items
/// are stacked; they belong to the list that is made of it.
template <unsigned CAPACITY, unsigned GAP>
class VTUI_EXPORT Custom_list_widget
{
  public:
    template <typename T>
    class Array_array_N : public Array_array<T, CAPACITY + 1>
    {};

    Container_obj* root() { return &container; }

    Container_obj container;
    Child_placements_array<Array_array_N> placements; ///< the background, then the items

  protected:
    using Column = std::array<VT::VT_obj*, CAPACITY>;

    /// The style outlives the list.
    explicit Custom_list_widget(Connection_elements& elements);

    /// Puts the items below each other, by the heights that they have now (hidden ones keep their room), and makes the
    /// container as high as all of them. If an item is another one or in another place than before, all placements are
    /// written out, and if the container has an id it is uploaded. Pixels; what is higher than 16 bits wraps around.
    void stack(const Column& items);
};

template <unsigned CAPACITY, unsigned GAP>
Custom_list_widget<CAPACITY, GAP>::Custom_list_widget(Connection_elements& elements)
{
    placements.placements[0] = {&elements.rect_17_patterned, 0, 0};
    for (std::size_t i = 1; i <= CAPACITY; ++i)
        placements.placements[i] = {&elements.null_pointer, 0, 0};
    container.placements_ptr = &placements;
}

template <unsigned CAPACITY, unsigned GAP>
void Custom_list_widget<CAPACITY, GAP>::stack(const Column& items)
{
    bool changed = false;
    std::uint16_t top = 0;
    for (std::size_t i = 0; i < CAPACITY; ++i) {
        Child_placement& placed = placements.placements[i + 1];
        if (placed.ref != items[i] || placed.y != position(top)) {
            placed.ref = items[i];
            placed.y = position(top); // x is not the list's
            changed = true;
        }
        top = static_cast<std::uint16_t>(top + items[i]->get_height() + GAP);
    }
    container.height = top;
    if (!changed)
        return;
    placements.deref();
    if (container.get_id() != VT::VT_obj::NULL_ID)
        container.upload(true);
}

} // namespace VT::Comp

#endif
