#include "tests/Fake_pool.h"
#include "vtui/comp/objects/Container_obj.h"
#include "vtui/comp/objects/N_state_pointer_obj.h"

#include <gtest/gtest.h>

#include <type_traits>

using VT::Comp::N_state_pointer_obj;

namespace {

/// A pointer between two containers of different height.
class StatePointer : public ::testing::Test
{
  protected:
    StatePointer() { on.height = std::uint16_t{20}; }

    Fake_pool pool;
    VT::Comp::Container_obj off;
    VT::Comp::Container_obj on;
    N_state_pointer_obj<2> pointer{{&off, &on}};
};

TEST_F(StatePointer, StartsWithItsFirstState)
{
    EXPECT_EQ(pointer.state, 0U);
    EXPECT_EQ(pointer.target, &off);
    EXPECT_EQ(pointer.states, (std::array<VT::VT_obj*, 2>{&off, &on}));
    EXPECT_EQ(pointer.value, VT::VT_obj::NULL_ID);
}

TEST_F(StatePointer, KeepsAStateWithoutAnIdAsAPointer)
{
    pool.take(on, 12);
    pointer.set_state(1);
    EXPECT_EQ(pointer.state, 1U);
    EXPECT_EQ(pointer.target, &on);
    EXPECT_EQ(pointer.value, VT::VT_obj::NULL_ID);
}

TEST_F(StatePointer, IsAsLargeAsTheObjectOfItsState)
{
    EXPECT_EQ(pointer.get_height(), 240);
    pointer.set_state(1);
    EXPECT_EQ(pointer.get_height(), 20);
    EXPECT_EQ(pointer.get_width(), 240);
}

TEST_F(StatePointer, SendsTheIdOfItsStateWhenThePoolIsLive)
{
    pool.take(off, 0x0B0A);
    pool.take(on, 0x0D0C);
    pool.take(pointer, 0x0102);
    pool.live = true;
    pointer.set_state(1);
    pointer.set_state(0);
    EXPECT_EQ(pool.sent, (Messages{{0xA8, 0x02, 0x01, 0xFF, 0x0C, 0x0D, 0, 0}, //
                                   {0xA8, 0x02, 0x01, 0xFF, 0x0A, 0x0B, 0, 0}}));
    EXPECT_EQ(pointer.value, 0x0B0A);
}

TEST_F(StatePointer, ShowsNothingInAStateWithoutAnObject)
{
    N_state_pointer_obj<2> blinking({nullptr, &on});
    EXPECT_EQ(blinking.target, nullptr);
    EXPECT_EQ(blinking.get_height(), 0);
    pool.take(on, 12);
    pool.take(blinking, 13);
    blinking.set_state(1);
    EXPECT_EQ(blinking.value, 12);
    blinking.set_state(0);
    EXPECT_EQ(blinking.value, VT::VT_obj::NULL_ID);
}

} // namespace
