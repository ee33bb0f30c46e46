#include "tests/comp/Parts.h"
#include "vtui/comp/widgets/Title_widget.h"

#include <type_traits>

using namespace parts;
using VT::Comp::Connection_elements;
using VT::Comp::Dimension;
using VT::Comp::Title_widget;

namespace {

using Lines = Record_text::Lines;

/// A title in letters of 12 × 16.
class TitleWidget : public ::testing::Test
{
  protected:
    TitleWidget() { style.font_3.size = std::uint8_t{3}; }

    void take_all()
    {
        pool.take(title.text_obj, text_id);
        pool.take(style.rect_17_patterned, background_id);
        pool.take(seeder.variable, seeder_id);
        take_parent(pool, title.container, container_id);
    }

    void go_live()
    {
        take_all();
        pool.live = true;
    }

    void expect_layout(Dimension size, Dimension text, Point text_place, Point background_place)
    {
        SCOPED_TRACE(::testing::PrintToString(size));
        title.set_size(size);
        EXPECT_EQ(size_of(title.container), size);
        EXPECT_EQ(size_of(title.text_obj), text);
        EXPECT_EQ(placed(title.placements, 0), background_place);
        EXPECT_EQ(written(title.placements, 0), background_place);
        EXPECT_EQ(placed(title.placements, 1), text_place);
        EXPECT_EQ(written(title.placements, 1), text_place);
    }

    static constexpr Iso::Object_id container_id = 0x1001;
    static constexpr Iso::Object_id text_id = 0x1002;
    static constexpr Iso::Object_id background_id = 0x1003;
    static constexpr Iso::Object_id seeder_id = 0x1004;

    Journal pool; // outlives what is in it
    Connection_elements style;
    Text seeder{"Seeder 3.1"};
    Title_widget title{style, &style.font_3};
};

TEST_F(TitleWidget, DrawsATransparentWrappedTextOverTheStylesBackground)
{
    expect_new(title.container, title.placements);
    ASSERT_EQ(title.placements.size(), 2U);
    expect_child(title.placements, 0, style.rect_17_patterned, {0, 0});
    expect_child(title.placements, 1, title.text_obj, {0, 0});
    EXPECT_EQ(&title.root(), &title.container);
    EXPECT_EQ(title.text_obj.get_id(), VT::VT_obj::NULL_ID);
    EXPECT_STREQ(title.text_obj.get_name(), "");
    EXPECT_EQ(
        Record_text::values_of(title.text_obj),
        (Lines{"u16 width 0", "u16 height 0", "colour background_colour 1", "id font_attributes null", "u8 options 3",
               "id variable_reference null", "u8 justification 0", "text value 0 ''", "count u8 0"}));
    EXPECT_EQ(title.text_obj.length, 0);
    EXPECT_EQ(title.text_obj.variable, nullptr);
    EXPECT_EQ(title.text, nullptr);
    EXPECT_FALSE(title.is_hidden());
    EXPECT_FALSE(std::is_polymorphic_v<Title_widget>);
    EXPECT_FALSE((std::is_convertible_v<Connection_elements&, Title_widget>)) << "not by accident";
}

TEST_F(TitleWidget, TakesAPlainFontOfTheVtLibrary)
{
    VT::Font_attributes_obj plain(VT::VT_obj::NULL_ID, nullptr, 0, 3, 0, 0, 0); // 12 × 16
    Title_widget other(style, &plain);
    EXPECT_EQ(other.font, &plain);
    EXPECT_EQ(other.text_obj.font, &plain);
    other.set_text(&seeder.variable);
    EXPECT_EQ(other.get_preferred_size(), Dimension(10 * 12 + 8 + 8, 16 + 4 + 8));
    other.set_size({200, 30});
    EXPECT_EQ(size_of(other.text_obj), Dimension(168, 26));
    pool.take(plain, 0x1005);
    pool.take(other.text_obj, text_id);
    other.text_obj.set_font(&plain);
    EXPECT_EQ(other.text_obj.font_attributes, 0x1005);
}

TEST_F(TitleWidget, HasTheFontGivenToItOrTheStylesFont4)
{
    EXPECT_EQ(title.font, &style.font_3);
    EXPECT_EQ(title.text_obj.font, &style.font_3);
    const Title_widget plain(style);
    EXPECT_EQ(plain.font, &style.font_4);
    EXPECT_EQ(plain.text_obj.font, &style.font_4);
    expect_child(const_cast<Title_widget&>(plain).placements, 0, style.rect_17_patterned, {0, 0});
    const Title_widget bare(style, nullptr);
    EXPECT_EQ(bare.font, nullptr);
    EXPECT_EQ(bare.text_obj.font, nullptr);
    EXPECT_EQ(bare.text_obj.font_attributes, VT::VT_obj::NULL_ID);
}

TEST_F(TitleWidget, InsetsTheTextByTheHeightOfItsFont)
{
    expect_layout({200, 30}, {168, 26}, {16, 2}, {0, -10});
    style.font_3.size = std::uint8_t{14}; // 128 × 192
    expect_layout({400, 30}, {16, 26}, {192, 2}, {0, -20});
}

TEST_F(TitleWidget, DriftsBy10PixelsWithEverySize)
{
    title.placements.placements[0].x = 3;
    expect_layout({200, 30}, {168, 26}, {16, 2}, {3, -10});
    expect_layout({200, 30}, {168, 26}, {16, 2}, {3, -20});
    expect_layout({100, 50}, {68, 46}, {16, 2}, {3, -30});
    title.set_text(&seeder.variable);
    title.set_hidden(true);
    EXPECT_EQ(placed(title.placements, 0), Point(3, -30)) << "with a size only";
}

TEST_F(TitleWidget, DriftsFromTheTopOf16BitsToTheirBottom)
{
    title.placements.placements[0].y = -32760;
    expect_layout({200, 30}, {168, 26}, {16, 2}, {0, 32766});
    expect_layout({200, 30}, {168, 26}, {16, 2}, {0, 32756});
}

TEST_F(TitleWidget, WrapsTheSizeOfATextThatHasNoRoom)
{
    expect_layout({32, 4}, {0, 0}, {16, 2}, {0, -10});
    expect_layout({31, 3}, {65535, 65535}, {16, 2}, {0, -20});
    expect_layout({0, 0}, {65504, 65532}, {16, 2}, {0, -30});
    expect_layout({65535, 65535}, {65503, 65531}, {16, 2}, {0, -40});
}

TEST_F(TitleWidget, LaysATextWithoutAFontOutFromTheEdge)
{
    Title_widget bare(style, nullptr);
    bare.set_size({200, 30});
    EXPECT_EQ(size_of(bare.text_obj), Dimension(200, 26));
    EXPECT_EQ(placed(bare.placements, 1), Point(0, 2));
}

TEST_F(TitleWidget, PrefersRoomForAllCharactersOfItsText)
{
    style.font_3.size = std::uint8_t{2}; // 8 × 12
    title.set_text(&seeder.variable);
    EXPECT_EQ(title.get_preferred_size(), Dimension(80 + 8 + 6, 12 + 4 + 6));
    seeder.buffer.replace(2, 8, 8, '\0');
    ASSERT_EQ(seeder.variable.num_chars(), 2);
    EXPECT_EQ(title.get_preferred_size(), Dimension(94, 22)) << "its length, not its present text";
}

TEST_F(TitleWidget, PrefersAMarginOnlyWithoutATextOrAFont)
{
    EXPECT_EQ(title.get_preferred_size(), Dimension(16, 12));
    Title_widget bare(style, nullptr);
    EXPECT_EQ(bare.get_preferred_size(), Dimension(8, 4));
    bare.set_text(&seeder.variable);
    EXPECT_EQ(bare.get_preferred_size(), Dimension(8, 4));
    title.set_text(&seeder.variable);
    EXPECT_EQ(title.get_preferred_size(), Dimension(120 + 16, 16 + 12));
    title.set_text(nullptr);
    EXPECT_EQ(title.get_preferred_size(), Dimension(16, 12));
}

TEST_F(TitleWidget, PrefersAWidthOf16Bits)
{
    style.font_3.size = std::uint8_t{14}; // 128 × 192
    char character = ' ';
    VT::String_variable_obj text(VT::VT_obj::NULL_ID, nullptr, 512, &character); // only its length is read
    title.set_text(&text);
    EXPECT_EQ(title.get_preferred_size(), Dimension(8 + 96, 192 + 4 + 96)) << "65536 more";
}

TEST_F(TitleWidget, KeepsATextUntilItHasAnId)
{
    pool.take(seeder.variable, seeder_id);
    pool.live = true;
    title.set_text(&seeder.variable);
    EXPECT_EQ(title.text, &seeder.variable);
    EXPECT_EQ(title.text_obj.variable, &seeder.variable) << "the link that the pool follows";
    EXPECT_EQ(title.text_obj.variable_reference, VT::VT_obj::NULL_ID);
    EXPECT_TRUE(pool.news().empty());
    pool.live = false;
    take_all();
    title.set_text(&seeder.variable);
    EXPECT_EQ(title.text_obj.variable_reference, seeder_id);
    EXPECT_TRUE(pool.news().empty()) << "not live yet";
}

TEST_F(TitleWidget, SendsANewTextAtOnce)
{
    go_live();
    title.set_text(&seeder.variable);
    EXPECT_EQ(pool.news(), (Messages{{0xAF, 0x02, 0x10, 6, 0x04, 0x10, 0, 0}}));
    title.set_text(&seeder.variable);
    EXPECT_TRUE(pool.news().empty()) << "the terminal shows it";
    title.set_text(nullptr);
    EXPECT_EQ(pool.news(), (Messages{{0xAF, 0x02, 0x10, 6, 0xFF, 0xFF, 0, 0}}));
    EXPECT_EQ(title.text, nullptr);
    EXPECT_EQ(title.text_obj.variable, nullptr);
    EXPECT_EQ(title.text_obj.variable_reference, VT::VT_obj::NULL_ID);
    EXPECT_TRUE(pool.uploaded.empty());
}

TEST_F(TitleWidget, SendsNothingWhenItIsLaidOut)
{
    go_live();
    expect_layout({200, 30}, {168, 26}, {16, 2}, {0, -10});
    EXPECT_EQ(title.placements.attributes[0].object_id, background_id);
    EXPECT_EQ(title.placements.attributes[1].object_id, text_id);
    EXPECT_TRUE(pool.news().empty());
    EXPECT_TRUE(title.root().is_changed());
    title.root().upload(true);
    EXPECT_EQ(pool.news(), (Messages{transfer(container_id)}));
}

TEST_F(TitleWidget, HidesItsContainer)
{
    title.set_hidden(true);
    EXPECT_TRUE(title.is_hidden());
    go_live();
    title.set_hidden(false);
    EXPECT_FALSE(title.is_hidden());
    title.set_hidden(true);
    EXPECT_EQ(pool.news(), (Messages{hide_show(container_id, true), hide_show(container_id, false)}));
    EXPECT_EQ(title.container.hidden, 1);
}

using TitleWidgetDeathTest = TitleWidget;

TEST_F(TitleWidgetDeathTest, ALayoutWithAnEmptySlotEndsTheProcess)
{
    for (const std::size_t slot : {0U, 1U}) {
        Title_widget broken(style);
        broken.placements.placements[slot].ref = nullptr;
        EXPECT_DEATH(broken.set_size({200, 30}), no_child("Array_array_2")) << slot;
    }
}

TEST_F(TitleWidgetDeathTest, AVectorCannotMoveIt) { expect_no_second_in_a_vector<Title_widget>(style); }

} // namespace
