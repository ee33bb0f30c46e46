#ifndef GALLERY_COVERS_PAGE_H
#define GALLERY_COVERS_PAGE_H

#include "apps/gallery/Framed_key.h"
#include "apps/gallery/Icon_toggle.h"
#include "apps/gallery/Page.h"

#include "vt/Event.h"
#include "vtui/comp/widgets/Check_box_widget.h"
#include "vtui/comp/widgets/Disable_widget.h"
#include "vtui/comp/widgets/Icon_text_button_widget.h"
#include "vtui/comp/widgets/Key_button_combo_widget.h"
#include "vtui/comp/widgets/Labelled_input_widget.h"

#include <deque>
#include <initializer_list>
#include <vector>

namespace gallery {

/// Components from small to as large as the page, each with a soft key that disables it and enables it again. What is
/// disabled lies under the smallest cover that is large enough, and the terminal takes no finger on its buttons.
class Covers_page final : public Page
{
  public:
    explicit Covers_page(Page_style& page_style);

    void set_all_disabled(bool disabled);

    void handle_event(VT::Button_activation_event& event);

  private:
    /// A component, the cover over it, both cut to the component's size, and its soft key.
    class Coverable
    {
      public:
        Coverable(const char* name, Page_style& page_style, VT::VT_obj& component, VT::Comp::Dimension size,
                  std::initializer_list<VT::Button_obj*> buttons);

        void set_disabled(bool disabled);

        VT::VT_obj& root() { return frame; }
        VT::VT_obj& soft_key() { return key.root(); }

      private:
        bool is_disabled{false};
        std::vector<VT::Button_obj*> buttons;
        VT::Comp::Disable_widget cover;
        VT::Comp::Container_obj frame;
        VT::Comp::Child_placements_array<Array_array_2> children;
        Key_caption caption;
        Framed_key key;
    };

    void build_switches();
    void build_buttons();
    void build_panel();
    void add(const char* name, VT::VT_obj& component, int x, int y, VT::Comp::Dimension size,
             std::initializer_list<VT::Button_obj*> buttons);

    VT::Comp::String_variable_obj<14> last_pressed;

    VT::Comp::Check_box_widget check_box;
    Icon_toggle toggle;
    VT::Comp::Icon_text_button_widget button;
    VT::Comp::Labelled_input_widget<VT::Comp::Button_widget> labelled;

    VT::Comp::Key_button_combo_widget combo;
    Icon_toggle panel_toggle;
    VT::Comp::Rectangle_obj panel_background;
    VT::Comp::Container_obj panel;
    VT::Comp::Child_placements_array<Array_array_3> panel_children;

    std::deque<Coverable> coverables;
    Key_caption all_caption;
    Framed_key all_key;
    bool all_are_disabled{false};
    VT::Soft_key_mask_obj keys;
};

} // namespace gallery

#endif
