#include "tests/comp/Parts.h"
#include "vtui/comp/widgets/Disable_widget.h"

#include <array>
#include <type_traits>

using namespace parts;
using VT::Comp::Connection_elements;
using VT::Comp::Dimension;
using VT::Comp::Disable_widget;

namespace {

class DisableWidget : public ::testing::Test
{
  protected:
    /// The widget's pointer, the null pointer and the covers, from the largest on, get the ids 0x1001 to 0x1007.
    void take_all()
    {
        Iso::Object_id id = pointer_id;
        VT::VT_obj* const objects[] = {&widget.state_pointer, &style.null_pointer, &style.cover_512, &style.cover_256,
                                       &style.cover_128,      &style.cover_64,     &style.cover_tile};
        for (VT::VT_obj* const object : objects)
            pool.take(*object, id++);
    }

    void go_live()
    {
        take_all();
        pool.live = true;
    }

    void expect_cover(Dimension size, const VT::VT_obj& cover)
    {
        widget.set_size(size);
        EXPECT_EQ(widget.state_pointer.states, (std::array<VT::VT_obj*, 2>{&style.null_pointer, //
                                                                           const_cast<VT::VT_obj*>(&cover)}))
            << size;
    }

    static constexpr Iso::Object_id pointer_id = 0x1001;
    static constexpr Iso::Object_id null_pointer_id = 0x1002;
    static constexpr Iso::Object_id cover_512_id = 0x1003;
    static constexpr Iso::Object_id cover_128_id = 0x1005;
    static constexpr Iso::Object_id tile_id = 0x1007;

    Journal pool; // outlives what is in it
    Connection_elements style;
    Disable_widget widget{style};
};

TEST_F(DisableWidget, StartsEnabledWithTheLargestCover)
{
    EXPECT_EQ(&widget.elements, &style);
    EXPECT_EQ(&widget.root(), &widget.state_pointer);
    EXPECT_EQ(widget.state_pointer.get_id(), VT::VT_obj::NULL_ID);
    EXPECT_STREQ(widget.state_pointer.get_name(), "");
    EXPECT_EQ(widget.state_pointer.value, VT::VT_obj::NULL_ID);
    EXPECT_EQ(widget.state_pointer.states, (std::array<VT::VT_obj*, 2>{&style.null_pointer, &style.cover_512}));
    EXPECT_EQ(widget.state_pointer.state, 0U);
    EXPECT_EQ(widget.state_pointer.target, &style.null_pointer);
    EXPECT_EQ(style.null_pointer.target, nullptr) << "shows nothing";
    EXPECT_EQ(&widget.state_pointer.largest, &style.cover_512) << "for a size to come";
    EXPECT_FALSE(std::is_polymorphic_v<Disable_widget>);
    EXPECT_FALSE((std::is_convertible_v<Connection_elements&, Disable_widget>)) << "not by accident";
}

TEST_F(DisableWidget, TakesTheSmallestCoverForTheLargerSide)
{
    expect_cover({0, 0}, style.cover_tile);
    expect_cover({32, 10}, style.cover_tile);
    expect_cover({10, 32}, style.cover_tile);
    expect_cover({33, 10}, style.cover_64);
    expect_cover({10, 33}, style.cover_64);
    expect_cover({64, 64}, style.cover_64);
    expect_cover({65, 0}, style.cover_128);
    expect_cover({100, 40}, style.cover_128);
    expect_cover({0, 128}, style.cover_128);
    expect_cover({129, 10}, style.cover_256);
    expect_cover({256, 256}, style.cover_256);
    expect_cover({257, 10}, style.cover_512);
    expect_cover({10, 257}, style.cover_512);
    expect_cover({512, 512}, style.cover_512);
}

TEST_F(DisableWidget, DoesNotCutTheCover)
{
    widget.set_disabled(true);
    widget.set_size({100, 40});
    EXPECT_EQ(size_of(widget.root()), Dimension(128, 128));
    EXPECT_EQ(size_of(style.cover_128), Dimension(128, 128));
}

TEST_F(DisableWidget, CoversWhatIsDisabledAndNothingElse)
{
    widget.set_disabled(true);
    EXPECT_EQ(widget.state_pointer.state, 1U);
    EXPECT_EQ(widget.state_pointer.target, &style.cover_512) << "no size yet";
    widget.set_size({33, 10});
    EXPECT_EQ(widget.state_pointer.target, &style.cover_64);
    widget.set_disabled(false);
    EXPECT_EQ(widget.state_pointer.state, 0U);
    EXPECT_EQ(widget.state_pointer.target, &style.null_pointer);
    EXPECT_EQ(widget.state_pointer.get_width(), 0);
    widget.set_disabled(true);
    EXPECT_EQ(widget.state_pointer.target, &style.cover_64) << "by the size it has";
}

TEST_F(DisableWidget, KeepsItsStateWhenItIsSized)
{
    widget.set_size({33, 10});
    EXPECT_EQ(widget.state_pointer.state, 0U);
    EXPECT_EQ(widget.state_pointer.target, &style.null_pointer);
    widget.set_disabled(true);
    widget.set_size({10, 257});
    EXPECT_EQ(widget.state_pointer.state, 1U);
    EXPECT_EQ(widget.state_pointer.target, &style.cover_512);
}

TEST_F(DisableWidget, ShowsNothingWhenEnabledAfterASizeWhateverThatStateHadBeen)
{
    for (VT::VT_obj*& look : widget.state_pointer.states)
        look = &style.rect_red;
    widget.set_size({100, 40});
    EXPECT_EQ(widget.state_pointer.states, (std::array<VT::VT_obj*, 2>{&style.null_pointer, &style.cover_128}));
    EXPECT_EQ(widget.state_pointer.target, &style.null_pointer);
}

TEST_F(DisableWidget, SendsOneValueForEveryChange)
{
    widget.set_size({100, 40});
    go_live();
    widget.set_disabled(true);
    EXPECT_EQ(pool.news(), (Messages{numeric_value(pointer_id, cover_128_id)}));
    EXPECT_EQ(widget.state_pointer.value, cover_128_id);
    widget.set_disabled(false);
    EXPECT_EQ(pool.news(), (Messages{numeric_value(pointer_id, null_pointer_id)}));
    EXPECT_EQ(widget.state_pointer.value, null_pointer_id);
    widget.set_disabled(false);
    EXPECT_EQ(pool.news(), (Messages{numeric_value(pointer_id, null_pointer_id)})) << "the same again";
    EXPECT_TRUE(pool.uploaded.empty());
    EXPECT_TRUE(pool.reported.empty());
}

TEST_F(DisableWidget, SendsItsValueWithASizeToo)
{
    go_live();
    widget.set_size({100, 40});
    EXPECT_EQ(pool.news(), (Messages{numeric_value(pointer_id, null_pointer_id)})) << "the empty one again";
    widget.set_disabled(true);
    widget.set_size({32, 10});
    widget.set_size({512, 512});
    EXPECT_EQ(pool.news(), (Messages{numeric_value(pointer_id, cover_128_id), //
                                     numeric_value(pointer_id, tile_id),      //
                                     numeric_value(pointer_id, cover_512_id)}));
    EXPECT_TRUE(pool.uploaded.empty());
}

TEST_F(DisableWidget, SendsNothingBeforeThePoolIsLive)
{
    take_all();
    widget.set_disabled(true);
    widget.set_size({32, 10});
    EXPECT_TRUE(pool.news().empty());
    EXPECT_EQ(widget.state_pointer.value, tile_id);
}

TEST_F(DisableWidget, SendsNothingWithoutAnId)
{
    pool.live = true;
    pool.take(style.null_pointer, null_pointer_id);
    pool.take(style.cover_512, cover_512_id);
    widget.set_disabled(true);
    widget.set_size({512, 10});
    EXPECT_TRUE(pool.news().empty());
    EXPECT_EQ(widget.state_pointer.target, &style.cover_512);
    EXPECT_EQ(widget.state_pointer.value, VT::VT_obj::NULL_ID);
}

using DisableWidgetDeathTest = DisableWidget;

TEST_F(DisableWidgetDeathTest, ThereIsNoLargerCover)
{
    const death::Words no_larger_cover = death::assertion(
        "false", "../../../../lib/vtui/comp/widgets/Disable_cover_widget", 100,
        "VT::VT_obj* VT::Comp::Disable_cover_widget_impl<DEPTH>::root_at_size(uint16_t) [with unsigned int DEPTH = 5u; "
        "uint16_t = short unsigned int]");
    EXPECT_DEATH(widget.set_size({513, 1}), no_larger_cover);
    EXPECT_DEATH(widget.set_size({1, 513}), no_larger_cover);
    EXPECT_DEATH(widget.set_size({65535, 65535}), no_larger_cover);
}

TEST_F(DisableWidgetDeathTest, AVectorCannotMoveIt) { expect_no_second_in_a_vector<Disable_widget>(style); }

} // namespace
