#ifndef GALLERY_BUTTONS_PAGE_H
#define GALLERY_BUTTONS_PAGE_H

#include "apps/gallery/Framed_key.h"
#include "apps/gallery/Icon_toggle.h"
#include "apps/gallery/Page.h"
#include "apps/gallery/Sprayer.h"

#include "vt/Event.h"
#include "vtui/comp/widgets/Border_widget.h"
#include "vtui/comp/widgets/Button_background_widget.h"
#include "vtui/comp/widgets/Button_border_widget.h"
#include "vtui/comp/widgets/Check_box_widget.h"
#include "vtui/comp/widgets/Icon_text_button_widget.h"
#include "vtui/comp/widgets/Key_button_combo_widget.h"

#include <array>

namespace gallery {

/// All that can be pressed, and a sprayer that does what it is told. The page is routed in the place of its buttons,
/// because each of them changes the sprayer.
class Buttons_page final : public Page
{
  public:
    explicit Buttons_page(Page_style& page_style);

    void handle_event(VT::Button_activation_event& event);
    void handle_event(const VT::Soft_key_activation_event& event);

  private:
    using Button = VT::Comp::Button_widget;
    using Icon_button = VT::Comp::Icon_text_button_widget;
    using Check_box = VT::Comp::Check_box_widget;

    void show_looks();
    void show_commands();
    void show_toggles();
    void show_check_boxes();
    void show_combo();
    void say_which(const VT::Button_activation_event& event);
    void turn_all_off();
    void update();

    VT::Comp::String_variable_obj<18> last_pressed;
    std::array<Button, 5> looks;
    VT::Comp::Button_background_widget background;
    VT::Comp::Border_widget border;
    VT::Comp::Button_border_widget button_border;

    std::array<Icon_button, 4> commands;

    Icon_toggle spray, lamp;
    Check_box left, right;

    VT::Comp::Key_button_combo_widget all_off;
    VT::Soft_key_mask_obj keys;

    Sprayer sprayer;
};

} // namespace gallery

#endif
