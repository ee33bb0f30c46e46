#ifndef GALLERY_NUMBER_PAGE_H
#define GALLERY_NUMBER_PAGE_H

#include "apps/gallery/Arrow.h"
#include "apps/gallery/Page.h"
#include "apps/gallery/Unit_choice.h"

#include "pool/Pool.h"
#include "vt/Event.h"
#include "vtui/comp/objects/Has_child_placements.h"
#include "vtui/comp/objects/Key_obj.h"
#include "vtui/comp/widgets/Number_widget.h"

#include <deque>

namespace gallery {

/// What the pages of numbers share: the style set, the pool whose events they take, the choice of units, and the looks
/// of title bar and soft keys. It outlives them.
struct Number_style
{
    Number_style(VT::Comp::Connection_elements& elements, std::uint16_t side, VT::Pool& objects);

    VT::Comp::Connection_elements& elements;
    const std::uint16_t mask_size;
    VT::Pool& pool;
    Unit_choice units;
    VT::Comp::Font_attributes_obj title_font;
    VT::Comp::Font_attributes_obj key_font;
    VT::Comp::Rectangle_obj key_frame;
};

/// A page of number fields: a title bar that says which units are chosen, a soft key that chooses the next ones, and
/// two that step one field up and down, which arrows beside it mark. The page that derives from it routes its fields
/// and, after them, itself.
class Number_page : public Page
{
  public:
    /// The operator used a soft key: it acts when it is released.
    void handle_event(const VT::Soft_key_activation_event& event);

  protected:
    Number_page(const char* name, const char* title, Number_style& shared);
    ~Number_page() = default;

    /// How a field looks on a page of numbers.
    VT::Comp::Number_widget::Style look(std::uint32_t layout, VT::VT_obj& backdrop) const;

    /// The soft keys step `field` by `step` engineering units. Puts the arrows, 4 by 4 each, at x, y.
    void set_stepped(VT::Comp::Number_widget& field, double step, int x, int y);

    /// A text that the application changes, in the mask.
    void add_text(VT::String_variable_obj& text, VT::Comp::Font_attributes_obj& font, int x, int y, int width);

    VT::Pool& pool;

  private:
    struct Arrow_key
    {
        Arrow_key(Arrow::Direction direction, Number_style& shared);

        VT::Comp::Key_obj key;
        Arrow arrow;
        VT::Comp::Child_placements_array<Array_array_2> children;
    };

    struct Units_key
    {
        explicit Units_key(Number_style& shared);

        VT::Comp::Key_obj key;
        Caption caption;
        VT::Comp::Output_string_obj name;
        VT::Comp::Child_placements_array<Array_array_3> children;
    };

    Unit_choice& units;
    VT::Comp::Rectangle_obj title_bar;
    std::deque<VT::Comp::Output_string_obj> texts;
    Units_key units_key;
    Arrow_key up_key;
    Arrow_key down_key;
    VT::Soft_key_mask_obj keys;

    VT::Comp::Number_widget* stepped{nullptr};
    double stepped_by{0};
    Arrow up_mark;
    Arrow down_mark;
};

} // namespace gallery

#endif
