#include "apps/gallery/Buttons_page.h"

#include <functional>

namespace gallery {

using namespace VT::Comp;

namespace {

constexpr std::uint8_t latchable = 1, transparent = 8, no_border = 32; // options of a button

constexpr const char* look_names[] = {"plain", "latch", "bevel", "white", "blue"};
constexpr std::size_t latching = 1;

constexpr int left_edge = 2, switches_top = 58;

} // namespace

Buttons_page::Buttons_page(Page_style& page_style)
    : Page("buttons", silver, page_style), looks{Button(style.null_pointer), Button(style.null_pointer),
                                                 Button(style.null_pointer), Button(style.null_pointer),
                                                 Button(style.null_pointer)},
      background(style), border(style),
      button_border(style), commands{Icon_button(style), Icon_button(style), Icon_button(style), Icon_button(style)},
      spray(shared.icons, Icon::drop_grey, Icon::drop), lamp(shared.icons, Icon::lamp_off, Icon::lamp_on),
      left(style, &shared.icons[Icon::box_checked], &shared.icons[Icon::box_empty]),
      right(style, &shared.icons[Icon::box_checked], &shared.icons[Icon::box_empty]), all_off(style),
      sprayer(shared, area(92, 18))
{
    add_title_bar("Buttons");
    show_looks();
    show_commands();
    show_toggles();
    show_check_boxes();
    show_combo();
    mask.add(sprayer.root(), at(left_edge), at(77));
    spray.set_on(true);
    update();
    pool.route(*this);
}

void Buttons_page::show_looks()
{
    constexpr int top = 10, width = 16, height = 14, step = 19;
    add_caption("Borders", left_edge, 6, 40);
    last_pressed.format("Last: none");
    add_text(last_pressed, style.font_1, 50, 6, 44);

    const Dimension size = area(width, height);
    background.set_size(size);
    border.set_size(size);
    button_border.set_size(size);
    VT::VT_obj* const below[] = {nullptr, nullptr, &background.root(), nullptr, nullptr};
    VT::VT_obj* const above[] = {nullptr, nullptr, nullptr, &border.root(), &button_border.root()};
    constexpr std::uint8_t options[] = {0, latchable, transparent | no_border, no_border, no_border};
    int x = left_edge;
    for (std::size_t i = 0; i < looks.size(); ++i) {
        Child_placement icon{&shared.icons[Icon::nozzle], 0, 0};
        centre(icon, size);
        lighten(looks[i].button);
        looks[i].button.options = options[i];
        looks[i].set_content(icon);
        looks[i].set_size(size);
        if (below[i])
            mask.add(*below[i], at(x), at(top));
        mask.add(looks[i].root(), at(x), at(top));
        if (above[i])
            mask.add(*above[i], at(x), at(top));
        add_caption(look_names[i], x, top + height, width, VT::Field_obj::middle);
        x += step;
    }
}

void Buttons_page::show_commands()
{
    constexpr int top = 32, width = 20, height = 20, step = 24;
    constexpr const char* names[] = {"Boom up", "Boom down", "Fill tank", "Drain tank"};
    constexpr Icon pictures[] = {Icon::boom_up, Icon::boom_down, Icon::fill, Icon::drain};
    const std::function<void()> actions[] = {[this] { sprayer.set_boom(sprayer.get_boom() + 1); },
                                             [this] { sprayer.set_boom(sprayer.get_boom() - 1); },
                                             [this] { sprayer.set_level(sprayer.get_level() + 10); },
                                             [this] { sprayer.set_level(sprayer.get_level() - 10); }};
    add_caption("Icon, text and action", left_edge, 28, 90);
    int x = left_edge;
    for (std::size_t i = 0; i < commands.size(); ++i) {
        Icon_button& command = commands[i];
        command.caption.set_font(&shared.title_font); // its face is dark
        command.set_icon(&shared.icons[pictures[i]]);
        command.set_text(&words(names[i]));
        command.set_size(area(width, height));
        command.action = actions[i];
        mask.add(command.root(), at(x), at(top));
        x += step;
    }
}

void Buttons_page::show_toggles()
{
    constexpr int side = 16, step = 18;
    add_caption("Toggles", left_edge, switches_top - 4, 34);
    int x = left_edge;
    for (Icon_toggle* toggle : {&spray, &lamp}) {
        toggle->set_size(area(side, side));
        mask.add(toggle->root(), at(x), at(switches_top));
        x += step;
    }
}

void Buttons_page::show_check_boxes()
{
    constexpr int x = 41;
    add_caption("Check boxes", x, switches_top - 4, 30);
    const Dimension size = left.get_preferred_size();
    const auto show = [&](Check_box& box, const char* words, int y) {
        box.set_checked(true);
        box.set_size(size);
        mask.add(box.root(), at(x), at(y));
        add_caption(words, x + 12, y + 3, 18);
    };
    show(left, "Left", switches_top - 1);
    show(right, "Right", switches_top + 9);
}

void Buttons_page::show_combo()
{
    constexpr int x = 74, width = 20, height = 18;
    add_caption("Combo", x, switches_top - 4, 20);
    all_off.set_icon(&shared.icons.half(Icon::stop), &shared.icons[Icon::stop]);
    all_off.set_text(&words("All off"));
    all_off.icon_text.caption.set_font(&shared.title_font); // its face is dark, too
    all_off.set_size(area(width, height));
    dress(all_off.soft_key);
    mask.add(all_off.root(), at(x), at(switches_top));
    keys.add(all_off.get_soft_key());
    mask.set_soft_key_mask(&keys);
}

void Buttons_page::handle_event(VT::Button_activation_event& event)
{
    say_which(event);
    for (Icon_button& command : commands)
        command.handle_event(event);
    left.handle_event(event);
    right.handle_event(event);
    if (event.activation_code == Iso::Activation::released) {
        for (Icon_toggle* toggle : {&spray, &lamp})
            if (toggle->is_button_id(event.object_id))
                toggle->toggle();
        if (all_off.is_button_or_key_id(event.object_id))
            turn_all_off();
    }
    update();
}

void Buttons_page::handle_event(const VT::Soft_key_activation_event& event)
{
    if (event.activation_code == Iso::Activation::released && all_off.is_button_or_key_id(event.object_id))
        turn_all_off();
    update();
}

/// A latchable button tells only how it stands: pressed down, or released.
void Buttons_page::say_which(const VT::Button_activation_event& event)
{
    const bool is_pressed = event.activation_code == Iso::Activation::pressed;
    if (!is_pressed && event.activation_code != Iso::Activation::released)
        return;
    for (std::size_t i = 0; i < looks.size(); ++i) {
        if (!looks[i].is_button_id(event.object_id))
            continue;
        if (i == latching)
            last_pressed.format("Last: %s %s", look_names[i], is_pressed ? "down" : "up");
        else if (!is_pressed)
            last_pressed.format("Last: %s", look_names[i]);
    }
}

void Buttons_page::turn_all_off()
{
    spray.set_on(false);
    lamp.set_on(false);
}

void Buttons_page::update()
{
    sprayer.set_spraying(spray.is_on() && left.is_checked(), spray.is_on() && right.is_checked());
    sprayer.set_lamp(lamp.is_on());
}

} // namespace gallery
