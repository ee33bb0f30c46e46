#ifndef VTUI_COMP_PLACEMENT_WIDGET_H
#define VTUI_COMP_PLACEMENT_WIDGET_H

#include "vtui/comp/objects/Container_obj.h"
#include "vtui/comp/objects/Dimension.h"
#include "vtui/comp/objects/Has_child_placements.h"

#include <cstdint>

namespace VT::Comp {

/// Shows one object of the application's, aligned inside a box. Content larger than the box overhangs, evenly on both
/// sides where it is centred. The application gives the content, sizes the box, and places root() in a mask.
class VTUI_EXPORT Placement_widget
{
  public:
    enum class Justification : std::uint32_t {
        centre = 0, ///< in the middle, both ways
        left = 1,   ///< at the left edge, in the middle vertically
        top = 2,    ///< at the top edge, in the middle horizontally
    };

    explicit Placement_widget(Justification initial);

    /// The object to show; it stays the caller's. It is laid out by the next set_size().
    void set_content(VT::VT_obj* object);
    /// Takes effect with the next set_size().
    void set_justification(Justification new_justification);
    /// Makes the container `box` pixels large and aligns the content in it. Sends nothing: in a live pool follow with
    /// root().upload(true). Ends the process if there is no content.
    void set_size(Dimension box);

    Container_obj& root() { return container; }
    std::uint16_t get_width() const { return container.width; }
    std::uint16_t get_height() const { return container.height; }

    Container_obj container;
    Child_placements_array<Array_array_1> content;
    Justification justification;
};

} // namespace VT::Comp

#endif
