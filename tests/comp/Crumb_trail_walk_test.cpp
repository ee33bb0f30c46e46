// Down and back: what the trail shows, and what is sent.

#include "tests/comp/Crumbs.h"

#include <string>
#include <vector>

using namespace crumbs;

namespace {

class CrumbTrailWalk : public Crumbs
{
  protected:
    // One Change Numeric Value each.
    static Bytes crumb(int slot, Iso::Object_id id) { return point(slot, id); }
    static Bytes arrow(int slot, Iso::Object_id id) { return point(4 + slot, id); }
    static Bytes select(int slot, Iso::Object_id id) { return point(7 + slot, id); }
    static Bytes select_line(int slot, Iso::Object_id id) { return point(11 + slot, id); }
    static Bytes point(int pointer, Iso::Object_id id)
    {
        return numeric_value(static_cast<Iso::Object_id>(first_pointer_id + pointer), id);
    }
};

TEST_F(CrumbTrailWalk, LeadsDownToFourCrumbs)
{
    const Shown levels[] = {none, one, two, three, four};
    for (unsigned level = 0; level <= 4; ++level) {
        EXPECT_EQ(shown(), levels[level]);
        EXPECT_EQ(trail.num_crumbs(), level);
        EXPECT_EQ(trail.find_next_crumb(), level);
        trail.add_crumb(&crumbs[level]);
    }
    EXPECT_EQ(shown(), four) << "a fifth is ignored";
    EXPECT_EQ(trail.num_crumbs(), 4U);
}

TEST_F(CrumbTrailWalk, LeadsBackToOneCrumb)
{
    add(4);
    for (const Shown& level : {three, two, one}) {
        trail.back_crumb();
        EXPECT_EQ(shown(), level);
    }
    EXPECT_EQ(trail.num_crumbs(), 1U);
    trail.add_crumb(&crumbs[1]);
    EXPECT_EQ(shown(), two) << "and down again";
}

TEST_F(CrumbTrailWalk, LeavesTheFrameOfItsFirstCrumbAndShowsItOnceMore)
{
    add(1);
    trail.back_crumb();
    EXPECT_EQ(shown(), (Shown{"....", "..#", "#..|", "|..."}));
    EXPECT_EQ(trail.num_crumbs(), 0U);
    trail.back_crumb();
    EXPECT_EQ(shown(), (Shown{"....", "..#", "#..|", "|..."})) << "it is empty";
    add(1);
    EXPECT_EQ(shown(), (Shown{"0...", "..#", "#..|", "|..."}));
    trail.add_crumb(&crumbs[1]);
    trail.add_crumb(&crumbs[2]);
    EXPECT_EQ(shown(), (Shown{"012.", ">>#", "..#|", "..|."}));
    trail.add_crumb(&crumbs[3]);
    EXPECT_EQ(shown(), four);
}

TEST_F(CrumbTrailWalk, ChangesNothingWhenThereIsNoWayBack)
{
    trail.back_crumb();
    EXPECT_EQ(shown(), none);
}

TEST_F(CrumbTrailWalk, MovesTheFrameToACrumbThatIsNone)
{
    add(2);
    trail.add_crumb(nullptr);
    EXPECT_EQ(shown(), (Shown{"01..", ">>.", "..#.", "..|."}));
    EXPECT_EQ(trail.num_crumbs(), 2U);
    trail.add_crumb(&crumbs[3]);
    EXPECT_EQ(shown(), (Shown{"013.", ">>.", "..#.", "..|."})) << "in the same place";
    EXPECT_EQ(trail.num_crumbs(), 3U);
}

TEST_F(CrumbTrailWalk, GoesBackFromTheLastCrumbThatItHas)
{
    add(2);
    trail.add_crumb(nullptr);
    trail.back_crumb();
    EXPECT_EQ(shown(), (Shown{"0...", ".>.", "#.#.", "|.|."}));
}

TEST_F(CrumbTrailWalk, MovesTheFrameToAFirstCrumbThatIsNone)
{
    trail.add_crumb(nullptr);
    EXPECT_EQ(shown(), (Shown{"....", "...", "#...", "|..."}));
    EXPECT_EQ(trail.num_crumbs(), 0U);
    trail.back_crumb();
    EXPECT_EQ(shown(), (Shown{"....", "...", "#...", "|..."}));
}

TEST_F(CrumbTrailWalk, CountsTheCrumbsBeforeTheFirstGap)
{
    add(4);
    trail.crumb_pointers[1].target = nullptr;
    EXPECT_EQ(trail.find_next_crumb(), 1U);
    EXPECT_EQ(trail.num_crumbs(), 1U);
}

TEST_F(CrumbTrailWalk, ShowsOneObjectInSeveralPlaces)
{
    trail.add_crumb(&crumbs[0]);
    trail.add_crumb(&crumbs[0]);
    EXPECT_EQ(shown(), (Shown{"00..", ">..", ".#..", ".|.."}));
}

TEST_F(CrumbTrailWalk, SendsEveryPointerThatItSetsOnTheWayDown)
{
    go_live();
    trail.add_crumb(&crumbs[0]);
    EXPECT_EQ(pool.news(), (Messages{crumb(0, crumb_id), select(0, frame_id), select_line(0, stem_id)}));
    for (int n = 1; n < 4; ++n) {
        trail.add_crumb(&crumbs[n]);
        EXPECT_EQ(pool.news(), (Messages{arrow(n - 1, arrow_id),                              //
                                         select(n - 1, nothing),                              //
                                         select_line(n - 1, nothing),                         //
                                         crumb(n, static_cast<Iso::Object_id>(crumb_id + n)), //
                                         select(n, frame_id),                                 //
                                         select_line(n, stem_id)}))
            << n;
    }
    trail.add_crumb(&crumbs[4]);
    EXPECT_TRUE(pool.news().empty()) << "a fifth is ignored";
    EXPECT_TRUE(pool.uploaded.empty());
    EXPECT_TRUE(pool.reported.empty());
}

TEST_F(CrumbTrailWalk, SendsEveryPointerThatItSetsOnTheWayBack)
{
    add(4);
    go_live();
    for (int n = 4; n > 1; --n) {
        trail.back_crumb();
        EXPECT_EQ(pool.news(), (Messages{crumb(n - 1, nothing),       //
                                         select(n - 1, nothing),      //
                                         select_line(n - 1, nothing), //
                                         arrow(n - 2, nothing),       //
                                         select(n - 2, frame_id),     //
                                         select_line(n - 2, stem_id)}))
            << n;
    }
    trail.back_crumb();
    EXPECT_EQ(pool.news(), (Messages{crumb(0, nothing), arrow(2, frame_id), select(3, stem_id)}));
    trail.back_crumb();
    EXPECT_TRUE(pool.news().empty()) << "it is empty";
    EXPECT_TRUE(pool.uploaded.empty());
}

TEST_F(CrumbTrailWalk, SendsTheBytesOfANumericValue)
{
    go_live();
    trail.add_crumb(&crumbs[2]);
    EXPECT_EQ(pool.news(), (Messages{{0xA8, 0x10, 0x10, 0xFF, 0x02, 0x20, 0, 0},
                                     {0xA8, 0x17, 0x10, 0xFF, 0x22, 0x10, 0, 0},
                                     {0xA8, 0x1B, 0x10, 0xFF, 0x23, 0x10, 0, 0}}));
    trail.back_crumb();
    EXPECT_EQ(pool.news(), (Messages{{0xA8, 0x10, 0x10, 0xFF, 0xFF, 0xFF, 0, 0},
                                     {0xA8, 0x16, 0x10, 0xFF, 0x22, 0x10, 0, 0},
                                     {0xA8, 0x1A, 0x10, 0xFF, 0x23, 0x10, 0, 0}}));
}

TEST_F(CrumbTrailWalk, SendsAsMuchForACrumbThatIsNone)
{
    go_live();
    trail.add_crumb(nullptr);
    EXPECT_EQ(pool.news(), (Messages{crumb(0, nothing), select(0, frame_id), select_line(0, stem_id)}));
    add(1);
    pool.news();
    const Messages second{arrow(0, arrow_id), select(0, nothing),  select_line(0, nothing),
                          crumb(1, nothing),  select(1, frame_id), select_line(1, stem_id)};
    trail.add_crumb(nullptr);
    EXPECT_EQ(pool.news(), second);
    trail.add_crumb(nullptr);
    EXPECT_EQ(pool.news(), second) << "the same place again";
}

TEST_F(CrumbTrailWalk, ReportsACrumbThatThePoolDoesNotHave)
{
    go_live();
    Rectangle_obj stranger;
    trail.add_crumb(&stranger);
    EXPECT_EQ(pool.news(), (Messages{crumb(0, nothing), select(0, frame_id), select_line(0, stem_id)}));
    EXPECT_EQ(pool.reported, (std::vector<std::string>{"4112 a reference leads to an object that is not in the pool"}));
    EXPECT_EQ(trail.num_crumbs(), 1U);
}

TEST_F(CrumbTrailWalk, SendsNothingBeforeThePoolIsLive)
{
    take_all();
    add(2);
    EXPECT_TRUE(pool.news().empty());
    EXPECT_EQ(trail.crumb_pointers[1].value, crumb_id + 1);
    EXPECT_EQ(trail.arrow_pointers[0].value, arrow_id);
    EXPECT_EQ(trail.select_pointers[0].value, VT::VT_obj::NULL_ID);
    EXPECT_EQ(trail.select_pointers[1].value, frame_id);
    EXPECT_EQ(trail.select_line_pointers[1].value, stem_id);
}

TEST_F(CrumbTrailWalk, RecordsItsWayWithoutIds)
{
    pool.live = true;
    pool.take(crumbs[0], crumb_id);
    add(3);
    trail.back_crumb();
    EXPECT_EQ(shown(), two);
    for (const Object_pointer_obj* const pointer : pointers())
        EXPECT_EQ(pointer->value, VT::VT_obj::NULL_ID);
    EXPECT_TRUE(pool.news().empty());
}

} // namespace
