#include "apps/gallery/List_page.h"

#include <algorithm>

namespace gallery {

using namespace VT::Comp;

namespace {

constexpr const char* nozzles[] = {"ISO 015", "ISO 02", "ISO 025", "ISO 03", "ISO 04", "ISO 05", "ISO 06"};

constexpr int left = 2, top = 8, width = 56, item_height = 9;
constexpr Dimension key_arrow{33, 25}; // pixels

} // namespace

List_page::List_page(Page_style& page_style)
    : Page("list", silver, page_style), list(style), up_arrow(Arrow::up, key_arrow, style.fill_17, style.line_none),
      down_arrow(Arrow::down, key_arrow, style.fill_17, style.line_none),
      up_key(shared, up_arrow.root(), [this] { step(&List::select_up); }),
      down_key(shared, down_arrow.root(), [this] { step(&List::select_down); })
{
    add_title_bar("Selection list");
    build_list();
    add_caption("Nozzle", 62, top, 32);
    add_text(chosen, style.font_2, 62, top + 5, 32);
    say_what_is_chosen();
    keys.add(up_key.root());
    keys.add(down_key.root());
    mask.set_soft_key_mask(&keys);
    pool.route(*this);
}

void List_page::build_list()
{
    list.set_size(span(width), span(item_height));
    List::Filler filler(list.items);
    for (const char* nozzle : nozzles) {
        Caption& entry = entries.emplace_back(nozzle, shared.title_font);
        entry.set_size({span(width), shared.title_font.get_font_height()});
        entry.set_justification(VT::Field_obj::middle);
        filler.add(entry.root());
    }
    filler.hide_rest();
    list.set_selected(3);
    // The list leaves its container without a height: it gets that of the entries in use.
    const VT::Comp::Child_placement& first_hidden = list.placements.placements[2 * entries.size() + 1];
    list.container.height = static_cast<std::uint16_t>(first_hidden.y);
    mask.add(*list.root(), at(left), at(top));
}

void List_page::step(void (List::*select)())
{
    (list.*select)();
    say_what_is_chosen();
}

void List_page::say_what_is_chosen() { chosen.format("%s", nozzles[list.get_selected_item()]); }

/// A terminal may name any object: a button that is hidden has no nozzle to choose.
bool List_page::shows_button(Iso::Object_id id) const
{
    return std::any_of(list.items.begin(), list.items.end(), [id](const VT::Comp::Toggle_button_widget& button) {
        return button.is_button_id(id) && !button.is_hidden();
    });
}

void List_page::handle_event(VT::Button_activation_event& event)
{
    if (!shows_button(event.object_id))
        return;
    list.handle_event(event);
    if (event.activation_code == Iso::Activation::released)
        say_what_is_chosen();
}

} // namespace gallery
