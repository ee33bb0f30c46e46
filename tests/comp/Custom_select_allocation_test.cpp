#include "tests/Allocations.h"
#include "tests/Fake_pool.h"
#include "vtui/comp/widgets/Custom_select_widget.h"

#include <gtest/gtest.h>

using VT::Comp::Connection_elements;
using Select = VT::Comp::Custom_select_widget<50, 2>;

namespace {

/// A live pool that only counts what it is asked to send.
class Counting_pool final : public Fake_pool
{
  public:
    Counting_pool() { live = true; }

    std::size_t count{0};

    void send(const std::uint8_t*, std::size_t, const void*, std::size_t) override { ++count; }
    void upload(VT::VT_obj&) override { ++count; }
};

TEST(CustomSelectWidget, AllocatesItsButtonsOnce)
{
    Connection_elements style;
    const std::size_t before = allocations();
    const Select list(style);
    EXPECT_EQ(allocations() - before, 1U);
}

TEST(CustomSelectWidget, AllocatesNothingAfterwards)
{
    Counting_pool pool; // outlives what is in it
    Connection_elements style;
    VT::Comp::Rectangle_obj content;
    Select list(style);
    const auto use = [&](unsigned short height) {
        const std::size_t before = allocations();
        list.set_size(200, height);
        Select::Filler filler(list.items);
        filler.add(content);
        filler.add(content);
        filler.hide_rest();
        list.set_selected(40);
        list.set_selected(1);
        list.select_up();
        list.select_down();
        VT::Button_activation_event event{Iso::Activation::released, list.items[0].button.get_id(), VT::VT_obj::NULL_ID,
                                          1};
        list.handle_event(event);
        return allocations() - before;
    };
    EXPECT_EQ(use(30), 0U);
    EXPECT_EQ(pool.count, 0U);

    Iso::Object_id id = 1;
    for (VT::VT_obj* const object :
         {static_cast<VT::VT_obj*>(&list.container), static_cast<VT::VT_obj*>(&content),
          static_cast<VT::VT_obj*>(&style.rect_17_patterned), static_cast<VT::VT_obj*>(&style.rect_bevel_dark)})
        pool.take(*object, id++);
    for (VT::Comp::Toggle_button_widget& item : list.items) {
        pool.take(item.container, id++);
        pool.take(item.button, id++);
        pool.take(item.state_pointer, id++);
    }
    EXPECT_EQ(use(31), 0U);
    EXPECT_EQ(pool.count, 3U + 250U) << "the list, two buttons, and five selections";
}

} // namespace
