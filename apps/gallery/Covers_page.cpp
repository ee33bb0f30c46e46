#include "apps/gallery/Covers_page.h"

#include <algorithm>
#include <string>

namespace gallery {

using namespace VT::Comp;

namespace {

constexpr int left_edge = 2, row = 15, panel_row = 50; // from the top

} // namespace

Covers_page::Coverable::Coverable(const char* name, Page_style& page_style, VT::VT_obj& component, Dimension size,
                                  std::initializer_list<VT::Button_obj*> its_buttons)
    : buttons(its_buttons), cover(page_style.elements), caption(name, page_style),
      key(page_style, caption.root(), [this] { set_disabled(!is_disabled); })
{
    children.placements[0].ref = &component;
    children.placements[1].ref = &cover.root();
    frame.placements_ptr = &children;
    resize(frame, size);
    cover.set_size(size);
}

void Covers_page::Coverable::set_disabled(bool disabled)
{
    is_disabled = disabled;
    cover.set_disabled(disabled);
    for (VT::Button_obj* button : buttons)
        button->set_enabled(!disabled);
}

Covers_page::Covers_page(Page_style& page_style)
    : Page("covers", silver, page_style),
      check_box(style, &shared.icons.half(Icon::box_checked), &shared.icons.half(Icon::box_empty)),
      toggle(shared.icons, Icon::lamp_off, Icon::lamp_on), button(style),
      labelled(&style.font_2, &words("Label"), style.null_pointer), combo(style),
      panel_toggle(shared.icons, Icon::drop_grey, Icon::drop), all_caption("All", shared),
      all_key(shared, all_caption.root(), [this] { set_all_disabled(!all_are_disabled); })
{
    add_title_bar("Covers");
    add_caption("Soft keys disable", left_edge, 6, 50);
    last_pressed.format("Last: none");
    add_text(last_pressed, style.font_1, 54, 6, 40);
    build_switches();
    build_buttons();
    build_panel();
    keys.add(all_key.root());
    mask.set_soft_key_mask(&keys);
    pool.route(*this);
}

void Covers_page::build_switches()
{
    constexpr int box_side = 6, toggle_side = 12;
    check_box.set_size(area(box_side, box_side));
    add("Check", check_box.root(), left_edge, row, area(box_side, box_side), {&check_box.button});

    const Dimension size = area(toggle_side, toggle_side);
    toggle.set_size(size);
    add("Toggle", toggle.root(), 12, row, size, {&toggle.button});
}

void Covers_page::build_buttons()
{
    const Dimension size = area(24, 24);
    button.set_icon(&shared.icons[Icon::fill]);
    button.set_text(&words("Fill tank"));
    button.caption.set_font(&shared.title_font);
    button.set_size(size);
    add("Button", button.root(), 28, row, size, {&button.button.button});

    const Dimension wide = area(38, 24);
    lighten(labelled.input.button);
    labelled.set_size(wide, {span(2), span(2)});
    Child_placement icon{&shared.icons[Icon::nozzle], 0, 0};
    centre(icon, wide);
    labelled.input.set_content(icon);
    add("Label", labelled.root(), 56, row, wide, {&labelled.input.button});
}

void Covers_page::build_panel()
{
    const Dimension size = area(92, 44), combo_size = area(44, 36), toggle_size = area(32, 36);
    combo.set_icon(&shared.icons[Icon::stop], &shared.icons[Icon::stop]);
    combo.set_text(&words("All off"));
    combo.icon_text.caption.set_font(&shared.title_font);
    combo.set_size(combo_size);
    panel_toggle.set_size(toggle_size);

    set_looks(panel_background, size, style.fill_white, style.line_black);
    panel_children.placements[0].ref = &panel_background;
    panel_children.placements[1] = {&combo.root(), at(5), at(4)};
    // At an even place, where the stipples of the cover and of a disabled button fall on the same pixels.
    panel_children.placements[2] = {&panel_toggle.root(), at(56), at(4)};
    panel.placements_ptr = &panel_children;
    resize(panel, size);
    add("Panel", panel, left_edge, panel_row, size, {&combo.button.button, &panel_toggle.button});
}

/// Says which cover it gets.
void Covers_page::add(const char* name, VT::VT_obj& component, int x, int y, Dimension size,
                      std::initializer_list<VT::Button_obj*> buttons)
{
    Coverable& part = coverables.emplace_back(name, shared, component, size, buttons);
    mask.add(part.root(), at(x), at(y));
    keys.add(part.soft_key());
    const VT::VT_obj& cover = *style.cover.root_at_size(std::max(size.width, size.height));
    constexpr int line = 4;
    add_caption(std::to_string(cover.get_width()).c_str(), x, y - line, 12);
}

void Covers_page::set_all_disabled(bool disabled)
{
    all_are_disabled = disabled;
    for (Coverable& part : coverables)
        part.set_disabled(disabled);
}

void Covers_page::handle_event(VT::Button_activation_event& event)
{
    if (event.activation_code != Iso::Activation::released)
        return;
    check_box.handle_event(event);
    const auto is = [&](const Button_widget& pressed) { return pressed.is_button_id(event.object_id); };
    for (Icon_toggle* pressed : {&toggle, &panel_toggle})
        if (is(*pressed))
            pressed->toggle();
    const char* const name = is(button.button)                              ? "button"
                             : is(labelled.input)                           ? "label"
                             : combo.is_button_or_key_id(event.object_id)   ? "combo"
                             : event.object_id == check_box.button.get_id() ? "check box"
                                                                            : "toggle";
    last_pressed.format("Last: %s", name);
}

} // namespace gallery
