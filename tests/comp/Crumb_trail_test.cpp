#include "tests/comp/Crumbs.h"

#include <string>
#include <type_traits>
#include <vector>

using namespace crumbs;

namespace {

using Lines = Record_text::Lines;
using Rows = std::vector<std::string>;
using CrumbTrail = Crumbs;

TEST_F(CrumbTrail, ConsistsOfPointersThatShowNothing)
{
    expect_new(trail.container, trail.placements);
    EXPECT_EQ(trail.root(), &trail.container);
    const std::vector<Object_pointer_obj*> children = pointers();
    ASSERT_EQ(trail.placements.size(), 15U);
    ASSERT_EQ(children.size(), 15U);
    for (std::size_t i = 0; i < children.size(); ++i) {
        expect_child(trail.placements, i, *children[i], {0, 0});
        EXPECT_EQ(children[i]->get_id(), VT::VT_obj::NULL_ID);
        EXPECT_STREQ(children[i]->get_name(), "");
        EXPECT_EQ(children[i]->value, VT::VT_obj::NULL_ID);
    }
    EXPECT_EQ(shown(), none);
    EXPECT_EQ(trail.num_crumbs(), 0U);
    EXPECT_EQ(trail.find_next_crumb(), 0U);
    EXPECT_FALSE(std::is_polymorphic_v<Crumb_trail>);
    EXPECT_FALSE((std::is_convertible_v<Connection_elements&, Crumb_trail>)) << "not by accident";
}

TEST_F(CrumbTrail, KnowsThePlacesOfItsPointers)
{
    static_assert(Crumb_trail::crumb_placement(0) == 0 && Crumb_trail::crumb_placement(3) == 3);
    static_assert(Crumb_trail::arrow_placement(0) == 4 && Crumb_trail::arrow_placement(2) == 6);
    static_assert(Crumb_trail::select_placement(0) == 7 && Crumb_trail::select_placement(3) == 10);
    static_assert(Crumb_trail::select_line_placement(0) == 11 && Crumb_trail::select_line_placement(3) == 14);
    EXPECT_EQ(trail.placements.placements[Crumb_trail::arrow_placement(1)].ref, &trail.arrow_pointers[1]);
}

TEST_F(CrumbTrail, BuildsItsFrameOfTwoLinesTwiceAndFourCorners)
{
    expect_new(trail.select_frame, trail.select_frame_placements);
    ASSERT_EQ(trail.select_frame_placements.size(), 8U);
    const VT::VT_obj* const children[] = {&trail.frame_horizontal_line, &trail.frame_horizontal_line,
                                          &trail.frame_vertical_line,   &trail.frame_vertical_line,
                                          &trail.corner_top_right,      &trail.corner_bottom_right,
                                          &trail.corner_top_left,       &trail.corner_bottom_left};
    for (std::size_t i = 0; i < 8; ++i)
        expect_child(trail.select_frame_placements, i, *children[i], {0, 0});
}

TEST_F(CrumbTrail, HasLinesWithoutAttributes)
{
    const auto expect_line = [](Line_obj& line, const Lines& width_height_direction) {
        EXPECT_EQ(line.get_id(), VT::VT_obj::NULL_ID);
        EXPECT_STREQ(line.get_name(), "");
        EXPECT_EQ(line.line, nullptr);
        Lines expected = width_height_direction;
        expected.insert(expected.begin(), "id line_attributes null");
        expected.emplace_back("count u8 0");
        EXPECT_EQ(Record_text::values_of(line), expected);
    };
    expect_line(trail.frame_vertical_line, {"u16 width 1", "u16 height 2000", "u8 line_direction 0"});
    expect_line(trail.frame_horizontal_line, {"u16 width 2000", "u16 height 1", "u8 line_direction 0"});
    expect_line(trail.select_line, {"u16 width 1", "u16 height 0", "u8 line_direction 1"});
}

TEST_F(CrumbTrail, HasAChevronInTheStylesLine)
{
    EXPECT_EQ(trail.arrow.polygon.line, &style.line_black_c);
    EXPECT_EQ(size_of(trail.arrow.polygon), Dimension(0, 0));
}

TEST_F(CrumbTrail, ListsTheObjectsThatNothingShowsYet)
{
    Child_placements& children = trail.placements;
    EXPECT_EQ(children.detached(0), &trail.arrow.polygon);
    EXPECT_EQ(children.detached(1), &trail.select_frame);
    EXPECT_EQ(children.detached(2), &trail.select_line);
    EXPECT_EQ(children.detached(3), nullptr);
}

TEST_F(CrumbTrail, DrawsItsCornersFrom8BitPixels)
{
    static_assert(sizeof trail.corner_pixels == std::size_t{4} * 64);
    Picture_graphic_obj* const corners[] = {&trail.corner_top_right, &trail.corner_bottom_right, &trail.corner_top_left,
                                            &trail.corner_bottom_left};
    for (std::size_t i = 0; i < 4; ++i) {
        SCOPED_TRACE(i);
        EXPECT_EQ(corners[i]->get_id(), VT::VT_obj::NULL_ID);
        EXPECT_STREQ(corners[i]->get_name(), "");
        Lines record = Record_text::values_of(*corners[i]);
        ASSERT_EQ(record.size(), 9U);
        record.pop_back();
        EXPECT_EQ(record, (Lines{"u16 width 8", "u16 actual_width 8", "u16 actual_height 8", "u8 format 2",
                                 "u8 options 0", "colour transparency_colour 0", "count u32 64", "count u8 0"}));
        EXPECT_EQ(corners[i]->raw_data, trail.corner_pixels[i]);
        EXPECT_EQ(corners[i]->get_height(), 8);
    }
}

/// The pixels of a corner: '1' for the line, '.' for the fill.
const Rows top_right{"1.......", //
                     ".11.....", //
                     "...1....", //
                     "....1...", //
                     ".....1..", //
                     "......1.", //
                     "......1.", //
                     ".......1"};
const Rows bottom_right{".......1", //
                        "......1.", //
                        "......1.", //
                        ".....1..", //
                        "....1...", //
                        "...1....", //
                        ".11.....", //
                        "1......."};
const Rows top_left{".......1", //
                    ".....11.", //
                    "....1...", //
                    "...1....", //
                    "..1.....", //
                    ".1......", //
                    ".1......", //
                    "1......."};
const Rows bottom_left{"1.......", //
                       ".1......", //
                       ".1......", //
                       "..1.....", //
                       "...1....", //
                       "....1...", //
                       ".....11.", //
                       ".......1"};

void expect_corners(const Crumb_trail& trail, std::uint8_t line, std::uint8_t fill)
{
    const auto expect_corner = [&](const Picture_graphic_obj& corner, const Rows& rows) {
        ASSERT_EQ(corner.raw_data_size, 64U);
        for (std::size_t row = 0; row < 8; ++row)
            for (std::size_t column = 0; column < 8; ++column)
                EXPECT_EQ(corner.raw_data[8 * row + column], rows[row][column] == '1' ? line : fill)
                    << row << ", " << column;
    };
    expect_corner(trail.corner_top_right, top_right);
    expect_corner(trail.corner_bottom_right, bottom_right);
    expect_corner(trail.corner_top_left, top_left);
    expect_corner(trail.corner_bottom_left, bottom_left);
}

TEST_F(CrumbTrail, RoundsItsFrameInTheStylesColours) { expect_corners(trail, 0, 17); }

TEST_F(CrumbTrail, TakesTheColoursOfTheStyleWhenItIsBuilt)
{
    style.line_black_c.colour = std::uint8_t{200};
    style.fill_17_patterned.colour = std::uint8_t{255};
    expect_corners(trail, 0, 17);
    expect_corners(Crumb_trail(style), 200, 255);
    style.fill_17_patterned.colour = std::uint8_t{200};
    expect_corners(Crumb_trail(style), 200, 200);
}

TEST_F(CrumbTrail, FillsItsCornersAsTheBackgroundIsFilled)
{
    style.rect_17_patterned.set_fill(&style.fill_81);
    expect_corners(Crumb_trail(style), 0, 81);
}

using CrumbTrailDeathTest = CrumbTrail;

TEST_F(CrumbTrailDeathTest, AVectorCannotMoveIt) { expect_no_second_in_a_vector<Crumb_trail>(style); }

} // namespace
