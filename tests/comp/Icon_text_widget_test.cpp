#include "tests/comp/Icon_text.h"
#include "vtui/comp/widgets/Icon_text_widget.h"

#include <type_traits>
#include <vector>

using namespace icon_text;

namespace {

class IconTextWidget : public Icon_text
{
  protected:
    void expect_layout(Dimension size, Point icon_place, Point caption_place)
    {
        SCOPED_TRACE(::testing::PrintToString(size));
        widget.set_size(size);
        EXPECT_EQ(size_of(widget.container), size);
        expect_place(widget.placements, 0, icon_place);
        expect_place(widget.placements, 1, caption_place);
    }

    /// Numbers what the widget consists of and shows; the terminal is told all of it.
    void take()
    {
        take_all(container_id, {&widget.container, &widget.caption, &icon, &fill.variable, &style.rect_17_patterned});
    }

    static constexpr Iso::Object_id container_id = 0x1001;
    static constexpr Iso::Object_id caption_id = 0x1002;
    static constexpr Iso::Object_id icon_id = 0x1003;
    static constexpr Iso::Object_id fill_id = 0x1004;
    static constexpr Iso::Object_id blank_id = 0x1005;

    Icon_text_widget widget{style, nullptr};
};

TEST_F(IconTextWidget, IsABlankSquareAndACaptionAtFirst)
{
    expect_new_caption(widget.caption, style.font_1);
    expect_new(widget.container, widget.placements);
    ASSERT_EQ(widget.placements.size(), 2U);
    expect_child(widget.placements, 0, style.rect_17_patterned, {0, 0});
    expect_child(widget.placements, 1, widget.caption, {0, 0});
    EXPECT_EQ(&widget.root(), &widget.container);
    EXPECT_FALSE(widget.is_hidden());
    EXPECT_FALSE(std::is_polymorphic_v<Icon_text_widget>);
}

TEST_F(IconTextWidget, TakesAFontInsteadOfTheStyles)
{
    Icon_text_widget other(style, &style.font_4);
    expect_new_caption(other.caption, style.font_4);
}

TEST_F(IconTextWidget, PutsIconAndCaptionInTheMiddleAsOneBlock)
{
    widget.set_icon(&icon);
    expect_layout({100, 80}, {30, 20}, {0, 44});
    EXPECT_EQ(size_of(widget.caption), Dimension(100, 16));
    EXPECT_EQ(size_of(icon), Dimension(40, 24)) << "the application's";
    resize(icon, {32, 32});
    expect_layout({100, 80}, {34, 16}, {0, 48});
}

TEST_F(IconTextWidget, CutsHalfAPixelOff)
{
    widget.set_icon(&icon);
    expect_layout({101, 81}, {30, 20}, {0, 44});
    EXPECT_EQ(size_of(widget.caption), Dimension(101, 16));
    expect_layout({21, 31}, {-9, -4}, {0, 20}); // -19 / 2, -9 / 2
}

TEST_F(IconTextWidget, GivesTheCaptionTwoLinesOfItsFont)
{
    style.font_1.size = std::uint8_t{3}; // 12 × 16
    widget.set_icon(&icon);
    expect_layout({100, 80}, {30, 12}, {0, 36});
    EXPECT_EQ(size_of(widget.caption), Dimension(100, 32));

    style.font_1.size = std::uint8_t{14}; // 128 × 192
    expect_layout({100, 80}, {30, -164}, {0, -140});
    EXPECT_EQ(size_of(widget.caption), Dimension(100, 384));
}

TEST_F(IconTextWidget, LaysOutByTheFontGivenToIt)
{
    style.font_2.size = std::uint8_t{5}; // 16 × 24
    Icon_text_widget other(style, &style.font_2);
    other.set_icon(&icon);
    other.set_size({100, 80});
    EXPECT_EQ(size_of(other.caption), Dimension(100, 48));
    expect_place(other.placements, 0, {30, 4});
    expect_place(other.placements, 1, {0, 28});
}

TEST_F(IconTextWidget, CentresTheBlankSquareUntilItHasAnIcon)
{
    resize(style.rect_17_patterned, {10, 12});
    expect_layout({100, 80}, {45, 26}, {0, 38});
}

TEST_F(IconTextWidget, AddsTheHeightsIn16Bits)
{
    resize(icon, {65535, 65530});
    widget.set_icon(&icon);
    expect_layout({0, 80}, {-32767, 35}, {0, 29}); // the block is 10 high, the caption at 65565
    EXPECT_EQ(size_of(widget.caption), Dimension(0, 16));
}

TEST_F(IconTextWidget, WrapsAPlaceAt16Bits)
{
    widget.set_icon(&icon);
    expect_layout({65535, 65535}, {32747, 32747}, {0, -32765}); // the caption at 32771
    EXPECT_EQ(size_of(widget.caption), Dimension(65535, 16));
}

TEST_F(IconTextWidget, ShowsANewIconWithTheNextSizeOnly)
{
    take();
    widget.set_size({100, 80});
    const Point before = placed(widget.placements, 0);
    EXPECT_EQ(before, Point(50, 32));
    pool.live = true;
    widget.set_icon(&icon);
    expect_child(widget.placements, 0, icon, before);
    EXPECT_EQ(widget.placements.attributes[0].object_id, blank_id);
    widget.set_size({100, 80});
    expect_place(widget.placements, 0, {30, 20});
    EXPECT_EQ(widget.placements.attributes[0].object_id, icon_id);
    EXPECT_EQ(widget.placements.attributes[1].object_id, caption_id);
    EXPECT_TRUE(pool.news().empty());
}

TEST_F(IconTextWidget, KeepsATextUntilItHasAnId)
{
    pool.take(fill.variable, fill_id);
    widget.set_text(&fill.variable);
    EXPECT_EQ(widget.caption.variable, &fill.variable);
    EXPECT_EQ(widget.caption.variable_reference, VT::VT_obj::NULL_ID);
    take();
    widget.set_text(&fill.variable);
    EXPECT_EQ(widget.caption.variable_reference, fill_id);
    EXPECT_TRUE(pool.news().empty()) << "not live yet";
}

TEST_F(IconTextWidget, SendsANewTextAtOnce)
{
    take();
    pool.live = true;
    widget.set_text(&fill.variable);
    EXPECT_EQ(pool.news(), (Messages{{0xAF, 0x02, 0x10, 6, 0x04, 0x10, 0, 0}}));
    EXPECT_EQ(widget.caption.variable, &fill.variable);
    widget.set_text(nullptr);
    EXPECT_EQ(pool.news(), (Messages{{0xAF, 0x02, 0x10, 6, 0xFF, 0xFF, 0, 0}}));
    EXPECT_EQ(widget.caption.variable, nullptr);
    EXPECT_EQ(widget.caption.variable_reference, VT::VT_obj::NULL_ID);
    EXPECT_TRUE(pool.uploaded.empty());
}

TEST_F(IconTextWidget, SendsNothingWhenItIsLaidOut)
{
    take();
    pool.live = true;
    widget.set_icon(&icon);
    expect_layout({100, 80}, {30, 20}, {0, 44});
    EXPECT_TRUE(pool.news().empty());
    EXPECT_TRUE(pool.uploaded.empty());
    widget.root().upload(true);
    EXPECT_EQ(pool.uploaded, (std::vector<VT::VT_obj*>{&widget.container}));
}

TEST_F(IconTextWidget, HidesItsContainer)
{
    take();
    widget.set_hidden(true);
    EXPECT_TRUE(widget.is_hidden());
    EXPECT_TRUE(pool.news().empty()) << "not live yet";
    pool.live = true;
    widget.set_hidden(false);
    EXPECT_FALSE(widget.is_hidden());
    widget.set_hidden(true);
    EXPECT_EQ(pool.news(),
              (Messages{{0xA0, 0x01, 0x10, 1, 0xFF, 0xFF, 0xFF, 0xFF}, {0xA0, 0x01, 0x10, 0, 0xFF, 0xFF, 0xFF, 0xFF}}));
}

TEST_F(IconTextWidget, IsHiddenByExactly1)
{
    widget.container.hidden = std::uint8_t{1};
    EXPECT_TRUE(widget.is_hidden());
    widget.container.hidden = std::uint8_t{2};
    EXPECT_FALSE(widget.is_hidden());
}

using IconTextWidgetDeathTest = IconTextWidget;

TEST_F(IconTextWidgetDeathTest, ALayoutWithoutAnIconEndsTheProcess)
{
    widget.set_icon(nullptr);
    EXPECT_DEATH(widget.set_size({100, 80}), no_child("Array_array_2"));
}

TEST_F(IconTextWidgetDeathTest, AVectorCannotMoveIt)
{
    expect_no_second_in_a_vector<Icon_text_widget>(style, &style.font_2);
}

} // namespace
