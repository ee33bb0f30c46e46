#ifndef GALLERY_SPRAYER_H
#define GALLERY_SPRAYER_H

#include "apps/gallery/Page_style.h"

#include "vtui/comp/objects/Container_obj.h"
#include "vtui/comp/objects/Has_child_placements.h"
#include "vtui/comp/objects/N_state_pointer_obj.h"
#include "vtui/comp/objects/Output_string_obj.h"
#include "vtui/comp/objects/Rectangle_obj.h"
#include "vtui/comp/objects/String_variable_obj.h"

#include <array>

namespace gallery {

/// A sprayer from behind: the tank and how full it is, the boom with its two sections at one of four heights, the work
/// lamp. It shows what the buttons of a page have done.
class Sprayer
{
  public:
    /// `size` in pixels.
    Sprayer(Page_style& shared, VT::Comp::Dimension size);

    // Each sends what it changes, if the pool is live.

    static constexpr int highest = 3, full = 100;
    /// A height from 0 to `highest`; beyond that it stays where it is.
    void set_boom(int height);
    int get_boom() const { return boom_height; }
    /// Percent, from 0 to `full`; held within that.
    void set_level(int percent);
    int get_level() const { return level; }
    void set_spraying(bool left, bool right);
    void set_lamp(bool on) { lamp.set_state(on); }

    VT::VT_obj& root() { return container; }

  private:
    template <typename T>
    class Six : public Array_array<T, 6>
    {};

    struct Section
    {
        VT::Comp::Container_obj drops;
        VT::Comp::Child_placements_array<Array_array_3> children;
    };

    void lay_out();
    VT::Comp::Point boom_place() const;
    std::uint16_t height_of_air() const;

    int boom_height{1}, level{60};
    VT::Comp::Fill_attributes_obj liquid{VT::Comp::Connection_elements::with_fill_colour, 9}; // blue
    VT::Comp::Rectangle_obj sky, tank, bar;
    VT::Comp::Rectangle_obj air; ///< covers the tank's empty part
    VT::Comp::String_variable_obj<5> level_words;
    VT::Comp::Output_string_obj level_text;
    std::array<Section, 2> sections;
    VT::Comp::Container_obj boom;
    VT::Comp::Child_placements_array<Array_array_3> boom_parts;
    VT::Comp::N_state_pointer_obj<2> lamp;
    VT::Comp::Container_obj container;
    VT::Comp::Child_placements_array<Six> parts;
};

} // namespace gallery

#endif
