#include "vtui/comp/widgets/Custom_select_widget.h"

namespace VT::Comp {

template <unsigned ITEMS, unsigned GAP>
Custom_select_widget<ITEMS, GAP>::Items::Items(unsigned char buttons, Line_obj& line,
                                               std::vector<Toggle_button_widget>& all)
    : count(buttons), separator(&line), items(&all)
{}

template <unsigned ITEMS, unsigned GAP>
auto Custom_select_widget<ITEMS, GAP>::Items::column() const -> typename List::Column
{
    typename List::Column objects{};
    for (std::size_t i = 0; i < count; ++i) {
        objects[2 * i] = &(*items)[i].root();
        objects[2 * i + 1] = separator;
    }
    return objects;
}

template <unsigned ITEMS, unsigned GAP>
Custom_select_widget<ITEMS, GAP>::Filler::Filler(std::vector<Toggle_button_widget>& buttons)
    : items(&buttons), size(buttons.front().get_size())
{}

template <unsigned ITEMS, unsigned GAP>
bool Custom_select_widget<ITEMS, GAP>::Filler::add(VT::VT_obj& content)
{
    if (index == items->size())
        return false;
    Toggle_button_widget& button = (*items)[index++];
    Child_placement placed(&content, 0, 0);
    centre(placed, size);
    button.set_content(placed);
    if (button.is_hidden())
        button.set_hidden(false);
    return true;
}

template <unsigned ITEMS, unsigned GAP>
void Custom_select_widget<ITEMS, GAP>::Filler::hide_rest()
{
    for (; index < items->size(); ++index)
        if (!(*items)[index].is_hidden())
            (*items)[index].set_hidden(true);
}

template <unsigned ITEMS, unsigned GAP>
Custom_select_widget<ITEMS, GAP>::Custom_select_widget(Connection_elements& elements) : List(elements)
{
    separator.set_line(&elements.line_black_c);
    items.reserve(ITEMS); // a button cannot be moved
    for (unsigned i = 0; i < ITEMS; ++i)
        items.emplace_back(elements.rect_17_patterned, elements.rect_bevel_dark)
            .set_content({&elements.null_pointer, 0, 0});
    items.front().set_on(false); // though it is the selected one
}

template <unsigned ITEMS, unsigned GAP>
void Custom_select_widget<ITEMS, GAP>::set_size(unsigned short width, unsigned short item_height)
{
    resize(separator, {width, 1});
    for (Toggle_button_widget& button : items)
        button.set_size({width, item_height});
    this->stack(Items(ITEMS, separator, items).column());
    resize(this->container, {width, 0}); // no height, although it has just been known: the application gives one
    this->placements.deref();
}

template <unsigned ITEMS, unsigned GAP>
void Custom_select_widget<ITEMS, GAP>::handle_event(Button_activation_event& event)
{
    if (event.activation_code != Iso::Activation::released)
        return;
    last_was_ours = false;
    for (std::size_t i = 0; i < ITEMS; ++i)
        if (items[i].is_button_id(event.object_id)) {
            selected = static_cast<std::uint8_t>(i);
            items[i].set_on(true);
            last_was_ours = true;
        }
    if (!last_was_ours)
        return;
    for (Toggle_button_widget& button : items)
        if (!button.is_button_id(event.object_id))
            button.set_on(false);
}

template <unsigned ITEMS, unsigned GAP>
void Custom_select_widget<ITEMS, GAP>::set_selected(unsigned char index)
{
    if (index == selected)
        items[index].set_on(true);
    else
        select(index);
}

template <unsigned ITEMS, unsigned GAP>
void Custom_select_widget<ITEMS, GAP>::select_up()
{
    if (selected > 0)
        select(selected - 1U);
}

template <unsigned ITEMS, unsigned GAP>
void Custom_select_widget<ITEMS, GAP>::select_down()
{
    const std::size_t below = selected + 1U;
    if (below < ITEMS && !items[below].is_hidden())
        select(below);
}

template <unsigned ITEMS, unsigned GAP>
void Custom_select_widget<ITEMS, GAP>::select(std::size_t index)
{
    if (index < ITEMS)
        selected = static_cast<std::uint8_t>(index);
    for (std::size_t i = 0; i < ITEMS; ++i)
        items[i].set_on(i == index);
}

template class Custom_list_widget<100, 2>;
template class Custom_select_widget<50, 2>;

} // namespace VT::Comp
