#ifndef TESTS_COMP_CUSTOM_SELECT_H
#define TESTS_COMP_CUSTOM_SELECT_H

#include "tests/comp/Parts.h"
#include "vtui/comp/widgets/Custom_select_widget.h"

namespace custom_select {

using namespace parts;
using Iso::Activation;
using VT::Comp::Connection_elements;
using VT::Comp::Dimension;
using VT::Comp::Toggle_button_widget;
using Select = VT::Comp::Custom_select_widget<50, 2>;

constexpr std::size_t buttons = 50;

/// A list, what it borrows, and a pool for all of it.
class Custom_select : public ::testing::Test
{
  protected:
    static constexpr Iso::Object_id container_id = 0x1001;
    static constexpr Iso::Object_id separator_id = 0x1002;
    static constexpr Iso::Object_id background_id = 0x1003;
    static constexpr Iso::Object_id nothing_id = 0x1004;
    static constexpr Iso::Object_id raised_id = 0x1005;
    static constexpr Iso::Object_id content_id = 0x1006;
    static Iso::Object_id root_id(std::size_t i) { return static_cast<Iso::Object_id>(0x2000 + i); }
    static Iso::Object_id button_id(std::size_t i) { return static_cast<Iso::Object_id>(0x2100 + i); }
    static Iso::Object_id pointer_id(std::size_t i) { return static_cast<Iso::Object_id>(0x2200 + i); }

    template <class Pool>
    void number(Pool& where)
    {
        where.take(style.rect_17_patterned, background_id);
        where.take(style.null_pointer, nothing_id);
        where.take(style.rect_bevel_dark, raised_id);
        where.take(content, content_id);
        where.take(list.separator, separator_id);
        for (std::size_t i = 0; i < buttons; ++i) {
            Toggle_button_widget& item = list.items[i];
            where.take(item.state_pointer, pointer_id(i));
            where.take(item.button, button_id(i));
            list_children(item.container);
            where.take(item.container, root_id(i));
        }
        list_children(list.container);
        where.take(list.container, container_id);
    }

    void go_live()
    {
        number(pool);
        pool.live = true;
    }

    void activate(Activation code, Iso::Object_id id)
    {
        VT::Button_activation_event event{code, id, 0x3001, 1};
        list.handle_event(event);
    }
    void release(std::size_t i) { activate(Activation::released, button_id(i)); }

    /// The look of one button after the other, as a live pool tells it.
    static Messages looks(std::size_t on)
    {
        Messages all;
        for (std::size_t i = 0; i < buttons; ++i)
            all.push_back(look(i, i == on));
        return all;
    }
    static Bytes look(std::size_t i, bool on) { return numeric_value(pointer_id(i), on ? raised_id : background_id); }

    /// That item is the selected one, and its button alone is on.
    void expect_selected(std::size_t item)
    {
        EXPECT_EQ(list.get_selected_item(), item);
        expect_on(item);
    }
    void expect_on(std::size_t item)
    {
        for (std::size_t i = 0; i < buttons; ++i)
            EXPECT_EQ(list.items[i].is_on(), i == item) << "button " << i;
    }
    static constexpr std::size_t none = buttons;

    /// Buttons of that size, `step` pixels from one to the next.
    void expect_column(Dimension size, int step)
    {
        EXPECT_EQ(size_of(list.separator), Dimension(size.width, 1));
        expect_child(list.placements, 0, style.rect_17_patterned, {0, 0});
        for (std::size_t i = 0; i < buttons; ++i) {
            EXPECT_EQ(list.items[i].get_size(), size) << "button " << i;
            EXPECT_EQ(size_of(list.items[i].button), size) << "button " << i;
            const int top = static_cast<int>(i) * step;
            expect_child(list.placements, 2 * i + 1, list.items[i].root(), {0, VT::Comp::position(top)});
            expect_child(list.placements, 2 * i + 2, list.separator, {0, VT::Comp::position(top + size.height + 2)});
        }
    }

    /// The record has all children as they are placed.
    void expect_written()
    {
        for (std::size_t i = 0; i < list.placements.size(); ++i) {
            EXPECT_EQ(written(list.placements, i), placed(list.placements, i)) << "child " << i;
            EXPECT_EQ(list.placements.attributes[i].object_id, list.placements.placements[i].ref->get_id())
                << "child " << i;
        }
    }

    Journal pool; // outlives what is in it
    Connection_elements style;
    VT::Comp::Rectangle_obj content;
    Select list{style};
};

} // namespace custom_select

#endif
