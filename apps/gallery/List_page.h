#ifndef GALLERY_LIST_PAGE_H
#define GALLERY_LIST_PAGE_H

#include "apps/gallery/Arrow.h"
#include "apps/gallery/Framed_key.h"
#include "apps/gallery/Page.h"

#include "vt/Event.h"
#include "vtui/comp/widgets/Custom_select_widget.h"

#include <cstddef>
#include <deque>
#include <utility>

namespace gallery {

/// A choice of one of seven, by finger and by soft keys; the list's other buttons are hidden. The page is routed in the
/// place of its list, because it says what is chosen.
class List_page final : public Page
{
  public:
    explicit List_page(Page_style& page_style);

    void handle_event(VT::Button_activation_event& event);
    std::pair<const void*, std::size_t> outlying_controls() const { return list.outlying_controls(); }

  private:
    using List = VT::Comp::Custom_select_widget<50, 2>;

    void build_list();
    void step(void (List::*select)());
    void say_what_is_chosen();
    bool shows_button(Iso::Object_id id) const;

    std::deque<Caption> entries;
    List list;
    VT::Comp::String_variable_obj<20> chosen;
    Arrow up_arrow, down_arrow;
    Framed_key up_key, down_key;
    VT::Soft_key_mask_obj keys;
};

} // namespace gallery

#endif
