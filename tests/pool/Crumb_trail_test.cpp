// A trail in a live pool: what goes out on the way down and back, and what the terminal then holds.

#include "tests/Allocations.h"
#include "tests/pool/At_terminal.h"
#include "tests/pool/Fake_terminal.h"
#include "tests/pool/Screen.h"
#include "vtui/comp/Connection_elements.h"
#include "vtui/comp/widgets/Crumb_trail.h"

#include <algorithm>
#include <gtest/gtest.h>
#include <vector>

using Messages = std::vector<Bytes>;

namespace {

/// A trail at the top of a mask, empty, and four crumbs of the application's.
class CrumbTrailInAPool : public ::testing::Test, protected Screen
{
  protected:
    CrumbTrailInAPool()
    {
        style.set_sizes(240);
        for (C::Rectangle_obj& crumb : crumbs) {
            C::resize(crumb, {40, 40});
            crumb.set_line(&style.line_black);
            pool.add(crumb);
        }
        trail.set_size({240, 60});
        mask.add(*trail.root(), 0, 0);
    }

    void draw_lines()
    {
        for (C::Line_obj* const line : {&trail.frame_vertical_line, &trail.frame_horizontal_line, &trail.select_line})
            line->set_line(&style.line_black_c);
    }

    void load(VT::Client::Terminal_link& link)
    {
        const VT::Result result = pool.load(link);
        ASSERT_TRUE(result) << result.text();
        EXPECT_TRUE(result.warnings.empty());
    }

    static Bytes set(const C::Object_pointer_obj& pointer, const VT::VT_obj& object)
    {
        return frame(0xA8, w(pointer.get_id()), 0xFF, d(object.get_id()));
    }
    static Bytes clear(const C::Object_pointer_obj& pointer)
    {
        return frame(0xA8, w(pointer.get_id()), 0xFF, d(0xFFFF));
    }

    C::Connection_elements style;
    C::Rectangle_obj crumbs[4];
    C::Crumb_trail trail{style};
    const C::Polygon_obj& chevron{trail.arrow.polygon};
    Fake_terminal terminal;
};

TEST_F(CrumbTrailInAPool, BringsWhatNothingPointsAtYet)
{
    const VT::Result result = pool.prepare();
    ASSERT_TRUE(result) << result.text();
    for (const VT::VT_obj* const part : std::vector<const VT::VT_obj*>{
             &chevron, &trail.select_frame, &trail.select_line, &trail.frame_vertical_line,
             &trail.frame_horizontal_line, &trail.corner_top_right, &trail.corner_bottom_right, &trail.corner_top_left,
             &trail.corner_bottom_left, &style.line_black_c})
        EXPECT_NE(part->get_id(), Iso::null_id);
    EXPECT_EQ(trail.container.num_objects, 15) << "none of them is a child";
    EXPECT_EQ(trail.select_frame.num_objects, 8);
    EXPECT_EQ(chevron.num_points, 3);
    for (const C::Object_pointer_obj& pointer : trail.arrow_pointers)
        EXPECT_EQ(pointer.value, Iso::null_id);
}

TEST_F(CrumbTrailInAPool, IsLoadedWithAWarningOfEachLineWithoutAttributes)
{
    apps::Loopback_link link;
    const VT::Result result = pool.load(link);
    ASSERT_TRUE(result) << result.text();
    ASSERT_EQ(result.warnings.size(), 3U);
    for (const VT::Problem& warning : result.warnings)
        EXPECT_EQ(warning.error, VT::Error::suspicious_value);
    std::vector<Iso::Object_id> blank;
    for (const VT::Problem& warning : result.warnings)
        blank.push_back(warning.id);
    std::sort(blank.begin(), blank.end());
    std::vector<Iso::Object_id> lines =
        ids({&trail.frame_vertical_line, &trail.frame_horizontal_line, &trail.select_line});
    std::sort(lines.begin(), lines.end());
    EXPECT_EQ(blank, lines);
}

TEST_F(CrumbTrailInAPool, SendsTheWayDownAndBack)
{
    draw_lines();
    load(terminal);
    terminal.take_sent();

    auto& [crumb_0, crumb_1, crumb_2, crumb_3] = trail.crumb_pointers;
    auto& [arrow_0, arrow_1, arrow_2] = trail.arrow_pointers;
    auto& [frame_0, frame_1, frame_2, frame_3] = trail.select_pointers;
    auto& [stem_0, stem_1, stem_2, stem_3] = trail.select_line_pointers;
    const VT::VT_obj& framed = trail.select_frame;
    const VT::VT_obj& stem = trail.select_line;

    trail.add_crumb(&crumbs[0]);
    EXPECT_EQ(terminal.take_sent(), (Messages{set(crumb_0, crumbs[0]), set(frame_0, framed), set(stem_0, stem)}));
    trail.add_crumb(&crumbs[1]);
    EXPECT_EQ(terminal.take_sent(), (Messages{set(arrow_0, chevron), clear(frame_0), clear(stem_0),
                                              set(crumb_1, crumbs[1]), set(frame_1, framed), set(stem_1, stem)}));
    trail.add_crumb(&crumbs[2]);
    EXPECT_EQ(terminal.take_sent(), (Messages{set(arrow_1, chevron), clear(frame_1), clear(stem_1),
                                              set(crumb_2, crumbs[2]), set(frame_2, framed), set(stem_2, stem)}));
    trail.add_crumb(&crumbs[3]);
    EXPECT_EQ(terminal.take_sent(), (Messages{set(arrow_2, chevron), clear(frame_2), clear(stem_2),
                                              set(crumb_3, crumbs[3]), set(frame_3, framed), set(stem_3, stem)}));
    trail.add_crumb(&crumbs[0]);
    EXPECT_TRUE(terminal.take_sent().empty()) << "there is no room for a fifth";

    trail.back_crumb();
    EXPECT_EQ(terminal.take_sent(), (Messages{clear(crumb_3), clear(frame_3), clear(stem_3), clear(arrow_2),
                                              set(frame_2, framed), set(stem_2, stem)}));
    trail.back_crumb();
    EXPECT_EQ(terminal.take_sent(), (Messages{clear(crumb_2), clear(frame_2), clear(stem_2), clear(arrow_1),
                                              set(frame_1, framed), set(stem_1, stem)}));
    trail.back_crumb();
    EXPECT_EQ(terminal.take_sent(), (Messages{clear(crumb_1), clear(frame_1), clear(stem_1), clear(arrow_0),
                                              set(frame_0, framed), set(stem_0, stem)}));
    trail.back_crumb();
    EXPECT_EQ(terminal.take_sent(), (Messages{clear(crumb_0), set(arrow_2, framed), set(frame_3, stem)}));
    trail.back_crumb();
    EXPECT_TRUE(terminal.take_sent().empty());
    EXPECT_TRUE(pool.take_problems().empty());
}

TEST_F(CrumbTrailInAPool, ShowsTheCrumbsThatItHasWhenItIsLoaded)
{
    trail.add_crumb(&crumbs[2]);
    trail.add_crumb(&crumbs[0]);
    draw_lines();
    load(terminal);
    EXPECT_EQ(trail.crumb_pointers[0].value, crumbs[2].get_id());
    EXPECT_EQ(trail.crumb_pointers[1].value, crumbs[0].get_id());
    EXPECT_EQ(trail.crumb_pointers[2].value, Iso::null_id);
    EXPECT_EQ(trail.arrow_pointers[0].value, chevron.get_id());
    EXPECT_EQ(trail.select_pointers[0].value, Iso::null_id);
    EXPECT_EQ(trail.select_pointers[1].value, trail.select_frame.get_id());
    EXPECT_EQ(trail.select_line_pointers[1].value, trail.select_line.get_id());
}

TEST_F(CrumbTrailInAPool, ShowsNothingForACrumbThatWasNotAdded)
{
    draw_lines();
    load(terminal);
    terminal.take_sent();
    C::Rectangle_obj stranger;
    trail.add_crumb(&stranger);
    EXPECT_EQ(terminal.take_sent().front(), clear(trail.crumb_pointers[0]));
    const std::vector<VT::Problem> problems = pool.take_problems();
    ASSERT_EQ(problems.size(), 1U);
    EXPECT_EQ(problems[0].error, VT::Error::suspicious_value);
    EXPECT_EQ(problems[0].id, trail.crumb_pointers[0].get_id());
}

/// A terminal that, once it is quiet, takes everything and keeps nothing.
struct Drain : Fake_terminal
{
    bool quiet{false};

    bool send(const std::uint8_t* message, std::size_t size) override
    {
        return quiet || Fake_terminal::send(message, size);
    }
};

TEST_F(CrumbTrailInAPool, NeedsNoMemoryOnTheWay)
{
    draw_lines();
    Drain drain;
    load(drain);
    drain.quiet = true;
    const std::size_t before = allocations();
    for (C::Rectangle_obj& crumb : crumbs)
        trail.add_crumb(&crumb);
    for (int i = 0; i < 4; ++i)
        trail.back_crumb();
    trail.set_size({480, 120});
    trail.root()->upload(true);
    EXPECT_EQ(allocations(), before);
    EXPECT_TRUE(pool.is_live());
}

/// The same trail on a terminal that understands it.
class CrumbTrailAtATerminal : public CrumbTrailInAPool
{
  protected:
    void SetUp() override
    {
        draw_lines();
        load(link);
    }

    /// True if terminal and application agree on every byte, and the terminal has refused nothing.
    void expect_agreement()
    {
        deliver(link, pool);
        EXPECT_TRUE(pool.take_problems().empty());
        EXPECT_TRUE(pool.is_live());
        Bytes ours;
        ASSERT_TRUE(pool.serialise(ours));
        EXPECT_EQ(records_in(link.terminal), ours);
    }

    apps::Loopback_link link;
};

TEST_F(CrumbTrailAtATerminal, AgreesWithItAllTheWayDownAndBack)
{
    expect_agreement();
    for (C::Rectangle_obj& crumb : crumbs) {
        trail.add_crumb(&crumb);
        expect_agreement();
    }
    for (unsigned left = 4; left > 0; --left) {
        EXPECT_EQ(trail.num_crumbs(), left);
        trail.back_crumb();
        expect_agreement();
    }
}

TEST_F(CrumbTrailAtATerminal, IsShownInAnotherSizeByAnUploadOfItsRoot)
{
    trail.add_crumb(&crumbs[0]);
    trail.set_size({480, 120});
    trail.root()->upload(true);
    expect_agreement();
}

} // namespace
