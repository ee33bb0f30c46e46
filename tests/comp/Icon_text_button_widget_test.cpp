#include "tests/comp/Icon_text.h"
#include "vtui/comp/widgets/Icon_text_button_widget.h"

#include <type_traits>
#include <vector>

using namespace icon_text;

namespace {

class IconTextButtonWidget : public Icon_text
{
  protected:
    /// The inside of a button of that size: where it lies, how large it is, and where its icon and caption lie in it.
    void expect_layout(Dimension size, Point inside, Dimension inner_size, Point icon_place, Point caption_place)
    {
        SCOPED_TRACE(::testing::PrintToString(size));
        widget.set_size(size);
        EXPECT_EQ(size_of(widget.root()), size);
        EXPECT_EQ(size_of(widget.button.button), size);
        EXPECT_EQ(size_of(widget.inner), inner_size);
        EXPECT_EQ(size_of(widget.caption), Dimension(inner_size.width, 16));
        expect_place(widget.button.placements, 0, {0, 0});
        expect_place(widget.button.placements, 1, {0, 0});
        expect_place(widget.button.placements, 2, inside);
        expect_place(widget.placements, 0, icon_place);
        expect_place(widget.placements, 1, caption_place);
    }

    void take()
    {
        take_all(container_id, {&widget.root(), &widget.button.button, &widget.inner, &widget.caption, &icon,
                                &fill.variable, &style.rect_17_patterned});
    }

    /// The operator does something with a button.
    void activate(Iso::Object_id id, Iso::Activation activation = Iso::Activation::released)
    {
        VT::Button_activation_event event{activation, id, 1, 7};
        widget.handle_event(event);
    }

    static constexpr Iso::Object_id container_id = 0x1001;
    static constexpr Iso::Object_id button_id = 0x1002;
    static constexpr Iso::Object_id inner_id = 0x1003;
    static constexpr Iso::Object_id caption_id = 0x1004;
    static constexpr Iso::Object_id icon_id = 0x1005;
    static constexpr Iso::Object_id fill_id = 0x1006;
    static constexpr Iso::Object_id blank_id = 0x1007;

    Icon_text_button_widget widget{style};
};

TEST_F(IconTextButtonWidget, IsABlankButtonAtFirst)
{
    expect_new(widget.root(), widget.button.placements);
    EXPECT_EQ(size_of(widget.button.button), Dimension(200, 200));
    expect_child(widget.button.placements, 0, widget.button.button, {0, 0});
    expect_child(widget.button.placements, 1, style.rect_17_patterned, {0, 0});
    expect_child(widget.button.placements, 2, widget.inner, {0, 0});

    expect_new_caption(widget.caption, style.font_1);
    expect_new(widget.inner, widget.placements);
    ASSERT_EQ(widget.placements.size(), 2U);
    expect_child(widget.placements, 0, style.rect_17_patterned, {0, 0});
    expect_child(widget.placements, 1, widget.caption, {0, 0});

    EXPECT_FALSE(widget.action);
    EXPECT_EQ(&widget.root(), &widget.button.container);
    EXPECT_FALSE(widget.is_hidden());
    EXPECT_FALSE(std::is_polymorphic_v<Icon_text_button_widget>);
}

TEST_F(IconTextButtonWidget, PutsTheCaptionAtTheBottomAndTheIconInTheRoomAbove)
{
    widget.set_icon(&icon);
    expect_layout({120, 100}, {12, 10}, {96, 80}, {28, 20}, {0, 64});
    EXPECT_EQ(size_of(icon), Dimension(40, 24)) << "the application's";
    resize(icon, {32, 32});
    expect_layout({120, 100}, {12, 10}, {96, 80}, {32, 16}, {0, 64});
}

TEST_F(IconTextButtonWidget, CutsFractionsOff)
{
    widget.set_icon(&icon);
    expect_layout({129, 109}, {12, 10}, {105, 89}, {32, 24}, {0, 73});
    expect_layout({11, 10}, {1, 1}, {9, 8}, {-15, -16}, {0, -8}); // -31 / 2
}

TEST_F(IconTextButtonWidget, HasNoMarginBelow10Pixels)
{
    widget.set_icon(&icon);
    expect_layout({9, 9}, {0, 0}, {9, 9}, {-15, -15}, {0, -7});
    expect_layout({9, 100}, {0, 10}, {9, 80}, {-15, 20}, {0, 64});
    expect_layout({0, 0}, {0, 0}, {0, 0}, {-20, -20}, {0, -16});
}

TEST_F(IconTextButtonWidget, WrapsAPlaceAt16Bits)
{
    widget.set_icon(&icon);
    expect_layout({65535, 65535}, {6553, 6553}, {52429, 52429}, {26194, 26194}, {0, -13123}); // the caption at 52413
    resize(icon, {65535, 65535});
    expect_layout({0, 0}, {0, 0}, {0, 0}, {-32767, 32761}, {0, -16}); // the icon at -32775
}

TEST_F(IconTextButtonWidget, GivesTheCaptionTwoLinesOfTheStylesFont)
{
    style.font_1.size = std::uint8_t{14}; // 128 × 192
    widget.set_icon(&icon);
    widget.set_size({500, 500});
    EXPECT_EQ(size_of(widget.caption), Dimension(400, 384));
    expect_place(widget.placements, 0, {180, -4});
    expect_place(widget.placements, 1, {0, 16});
}

TEST_F(IconTextButtonWidget, ShowsANewIconWithTheNextSizeOnly)
{
    take();
    widget.set_size({120, 100});
    const Point before = placed(widget.placements, 0);
    EXPECT_EQ(before, Point(48, 32));
    pool.live = true;
    widget.set_icon(&icon);
    expect_child(widget.placements, 0, icon, before);
    EXPECT_EQ(widget.placements.attributes[0].object_id, blank_id);
    EXPECT_TRUE(pool.news().empty());
    widget.set_size({120, 100});
    expect_place(widget.placements, 0, {28, 20});
    EXPECT_EQ(widget.placements.attributes[0].object_id, icon_id);
}

TEST_F(IconTextButtonWidget, SendsANewTextAtOnce)
{
    widget.set_text(&fill.variable);
    EXPECT_EQ(widget.caption.variable_reference, VT::VT_obj::NULL_ID) << "kept until it has an id";
    take();
    widget.set_text(&fill.variable);
    EXPECT_EQ(widget.caption.variable_reference, fill_id);
    EXPECT_TRUE(pool.news().empty()) << "not live yet";
    pool.live = true;
    widget.set_text(nullptr);
    widget.set_text(&fill.variable);
    EXPECT_EQ(pool.news(), (Messages{{0xAF, 0x04, 0x10, 6, 0xFF, 0xFF, 0, 0}, //
                                     {0xAF, 0x04, 0x10, 6, 0x06, 0x10, 0, 0}}));
    EXPECT_EQ(widget.caption.variable, &fill.variable);
}

TEST_F(IconTextButtonWidget, SendsNothingWhenItIsLaidOutBeforeThePoolIsLive)
{
    widget.set_size({120, 100});
    take();
    widget.set_size({60, 50});
    EXPECT_TRUE(pool.news().empty());
    EXPECT_TRUE(pool.uploaded.empty());
}

TEST_F(IconTextButtonWidget, UploadsTheButtonsContainerOnceWithEverySize)
{
    take();
    pool.live = true;
    widget.set_size({120, 100});
    widget.set_size({120, 100});
    EXPECT_EQ(pool.uploaded, (std::vector<VT::VT_obj*>{&widget.root(), &widget.root()}));
    EXPECT_EQ(pool.news(), (Messages{{0x11, 0x01, 0x10}, {0x11, 0x01, 0x10}}));
}

TEST_F(IconTextButtonWidget, UploadsTheMarginBeforeItKnowsItsSize)
{
    struct Witness final : Fake_pool
    {
        explicit Witness(Icon_text_button_widget& w) : widget(w) {}
        void upload(VT::VT_obj& object) override
        {
            EXPECT_EQ(&object, &widget.root());
            EXPECT_EQ(size_of(widget.root()), Dimension(240, 240));
            EXPECT_EQ(size_of(widget.button.button), Dimension(200, 200));
            EXPECT_EQ(size_of(widget.inner), Dimension(240, 240));
            EXPECT_EQ(size_of(widget.caption), Dimension(0, 0));
            const VT::Attribute_object_placement& content = widget.button.placements.attributes[2];
            EXPECT_EQ(content.object_id, inner_id);
            EXPECT_EQ(Point(content.x, content.y), Point(12, 10));
            ++count;
        }
        Icon_text_button_widget& widget;
        int count{0};
    } witness(widget);
    witness.take(widget.root(), container_id);
    witness.take(widget.inner, inner_id);
    witness.live = true;
    widget.set_size({120, 100});
    EXPECT_EQ(witness.count, 1);
    EXPECT_EQ(size_of(widget.root()), Dimension(120, 100));
}

TEST_F(IconTextButtonWidget, HidesItsButton)
{
    take();
    widget.set_hidden(true);
    EXPECT_TRUE(widget.is_hidden());
    EXPECT_TRUE(widget.button.is_hidden());
    EXPECT_EQ(widget.inner.hidden, 0);
    pool.live = true;
    widget.set_hidden(false);
    EXPECT_FALSE(widget.is_hidden());
    EXPECT_EQ(pool.news(), (Messages{{0xA0, 0x01, 0x10, 1, 0xFF, 0xFF, 0xFF, 0xFF}}));
    widget.root().hidden = std::uint8_t{2};
    EXPECT_TRUE(widget.is_hidden()) << "whatever is not 0";
}

TEST_F(IconTextButtonWidget, RunsItsActionOnceWithEveryRelease)
{
    int runs = 0;
    widget.action = [&] { ++runs; };
    take();
    pool.live = true;
    activate(button_id);
    EXPECT_EQ(runs, 1);
    activate(button_id);
    EXPECT_EQ(runs, 2);
    EXPECT_TRUE(pool.sent.empty());
}

TEST_F(IconTextButtonWidget, RunsItsActionWithoutACopyOfIt)
{
    int runs = 0;
    Copied copied;
    widget.action = [&, copied] { runs += copied.times >= 0; };
    Copied::all = 0;
    take();
    activate(button_id);
    EXPECT_EQ(runs, 1);
    EXPECT_EQ(Copied::all, 0);
}

TEST_F(IconTextButtonWidget, DoesNothingBeforeTheRelease)
{
    int runs = 0;
    widget.action = [&] { ++runs; };
    take();
    for (const auto activation : {Iso::Activation::pressed, Iso::Activation::held, Iso::Activation::aborted,
                                  static_cast<Iso::Activation>(4), static_cast<Iso::Activation>(0xFF)})
        activate(button_id, activation);
    EXPECT_EQ(runs, 0);
}

TEST_F(IconTextButtonWidget, DoesNothingForOtherButtons)
{
    int runs = 0;
    widget.action = [&] { ++runs; };
    take();
    for (const Iso::Object_id id : {container_id, inner_id, caption_id, icon_id, blank_id, Iso::null_id})
        activate(id);
    activate(0);
    EXPECT_EQ(runs, 0);
}

TEST_F(IconTextButtonWidget, MayHaveNoAction)
{
    take();
    pool.live = true;
    EXPECT_NO_THROW(activate(button_id));
    widget.action = [] {};
    widget.action = nullptr;
    EXPECT_NO_THROW(activate(button_id));
    EXPECT_TRUE(pool.sent.empty());
}

TEST_F(IconTextButtonWidget, LetsThroughWhatItsActionThrows)
{
    take();
    widget.action = [] { throw 7; };
    EXPECT_THROW(activate(button_id), int);
}

using IconTextButtonWidgetDeathTest = IconTextButtonWidget;

TEST_F(IconTextButtonWidgetDeathTest, ALayoutWithoutAnIconEndsTheProcess)
{
    widget.set_icon(nullptr);
    EXPECT_DEATH(widget.set_size({120, 100}), no_child("Array_array_2"));
}

TEST_F(IconTextButtonWidgetDeathTest, AVectorCannotMoveIt)
{
    expect_no_second_in_a_vector<Icon_text_button_widget>(style);
}

} // namespace
