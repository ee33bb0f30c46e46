#ifndef VTUI_COMP_CUSTOM_SELECT_WIDGET_H
#define VTUI_COMP_CUSTOM_SELECT_WIDGET_H

#include "vt/Event.h"
#include "vtui/comp/objects/Line_obj.h"
#include "vtui/comp/widgets/Custom_list_widget.h"
#include "vtui/comp/widgets/Toggle_button_widget.h"

#include <cstddef>
#include <cstdint>
#include <utility>
#include <vector>

namespace VT::Comp {

/// The line that separates a list's items: a base of the list, in which it comes first.
class VTUI_EXPORT List_separator
{
  public:
    Line_obj separator{1, 1, 1};
};

/// A list of which one item is selected: ITEMS toggle buttons below each other, each followed by a line, with GAP
/// pixels below both. The selected button is on: it has the colour of a raised face. The operator selects by a button,
/// the application by set_selected(), select_up() and select_down(). The application shows something in the first
/// buttons (Filler, or `items[i].set_content()`) and hides the others.
///
/// Route the list; or, to know when the operator has selected, route a class of the application's own that hands it the
/// events, asks was_last_button() after a release, and has an outlying_controls() that returns the list's. A terminal
/// may name a button that is hidden, and the list selects it: check get_selected_item() before you use it as an index.
template <unsigned ITEMS, unsigned GAP>
class VTUI_EXPORT Custom_select_widget : public List_separator, public Custom_list_widget<2 * ITEMS, GAP>
{
  public:
    using List = Custom_list_widget<2 * ITEMS, GAP>;

    /// What the list stacks: each of the buttons with the separator below it. For the list itself, which has no gaps:
    /// `buttons` is ITEMS.
    struct Items
    {
        Items(unsigned char buttons, Line_obj& line, std::vector<Toggle_button_widget>& all);

        typename List::Column column() const;

        unsigned char count; ///< of the buttons
        Line_obj* separator;
        std::vector<Toggle_button_widget>* items;
    };

    /// Fills the buttons of a list, one after the other, when they have got their size: once for each filling.
    struct Filler
    {
        explicit Filler(std::vector<Toggle_button_widget>& buttons);

        /// Shows an object of the pool in the middle of the next button. It stays the application's. False, and nothing
        /// done, if there is no next one. In a live pool a button is uploaded, and Hide/Show sent if it was hidden.
        bool add(VT::VT_obj& content);
        /// Hides the buttons that are left; sends Hide/Show for each that was not hidden if the pool is live.
        void hide_rest();

        std::size_t index{0}; ///< of the next button
        std::vector<Toggle_button_widget>* items;
        Dimension size; ///< of the first button, and so of all
    };

    /// The style outlives the list. Allocates the buttons, once.
    explicit Custom_select_widget(Connection_elements& elements);

    /// Pixels; from one item to the next it is `item_height` + 2 × GAP + 1, also where buttons are hidden. If an item
    /// gets another place than before and the container has an id, it is uploaded, as high as all items and as wide as
    /// it was before. Then it gets the width and, on purpose, no height: it shows nothing until the application gives
    /// it one.
    ///
    ///     list.set_size(200, 35);
    ///     list.container.height = static_cast<std::uint16_t>(number_of_items * 40); // each 35 + 5
    ///     list.root()->upload(true); // does nothing before the pool is live
    ///
    /// In a Scroll_widget its update_content_size() comes last.
    void set_size(unsigned short width, unsigned short item_height);

    using Handled_events = Event_list<Button_activation_event>;

    /// Selects the button that is released, if it is one of the list's: a message for every button of a live pool.
    void handle_event(Button_activation_event& event);
    /// True if, of the releases that handle_event() was given, the last one was of a button of the list's. A routed
    /// list is given no others: there it stays true from the first one on.
    bool was_last_button() const { return last_was_ours; }

    /// Switches button `index` on, from 0, and the others off: a message for every button of a live pool. One that is
    /// selected already is only switched on. An index beyond the last switches all off, and what was selected stays so.
    void set_selected(unsigned char index);
    /// From 0. At first that is 0, though no button is on yet.
    unsigned char get_selected_item() const { return selected; }
    /// Selects the item above, if there is one, also a hidden one.
    void select_up();
    /// Selects the item below, if there is one and it is not hidden.
    void select_down();

    /// The buttons lie in the vector, outside the list itself: the pool has to be told.
    std::pair<const void*, std::size_t> outlying_controls() const
    {
        return {items.data(), items.size() * sizeof(Toggle_button_widget)};
    }

    std::uint8_t selected{0};
    bool last_was_ours{false};
    std::vector<Toggle_button_widget> items; ///< its capacity is full: one more ends the process

  private:
    void select(std::size_t index);
};

extern template class Custom_list_widget<100, 2>;
extern template class Custom_select_widget<50, 2>;

} // namespace VT::Comp

#endif
