// How far one press leads: the same for both ways of scrolling.

#include "vtui/comp/widgets/Scroll_horizontal_widget.h"
#include "vtui/comp/widgets/Scroll_widget.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstddef>
#include <initializer_list>
#include <vector>

using VT::Comp::Scroll_horizontal_widget;
using VT::Comp::Scroll_widget;

namespace {

struct Steps
{
    using Step = short (*)(unsigned short visible, unsigned short content, short current);
    Step back;
    Step on;
};

class ScrollLimits : public ::testing::TestWithParam<Steps>
{
  protected:
    /// The offsets after one step after another.
    static std::vector<short> walk(Steps::Step step, unsigned short visible, unsigned short content, short from,
                                   std::size_t steps)
    {
        std::vector<short> offsets;
        while (offsets.size() < steps)
            offsets.push_back(from = step(visible, content, from));
        return offsets;
    }

    const Steps::Step back{GetParam().back};
    const Steps::Step on{GetParam().on};
};

TEST_P(ScrollLimits, AreReachedInHalvesOfWhatIsVisible)
{
    EXPECT_EQ(walk(on, 100, 250, 0, 5), (std::vector<short>{-50, -100, -150, -150, -150}));
    EXPECT_EQ(walk(back, 100, 250, -150, 5), (std::vector<short>{-100, -50, 0, 0, 0}));
}

TEST_P(ScrollLimits, CutTheLastStep)
{
    EXPECT_EQ(walk(on, 100, 230, 0, 4), (std::vector<short>{-50, -100, -130, -130}));
    EXPECT_EQ(walk(back, 100, 230, -130, 4), (std::vector<short>{-80, -30, 0, 0}));
}

TEST_P(ScrollLimits, AreOneStepApartWhereLittleIsHidden)
{
    EXPECT_EQ(walk(on, 100, 130, 0, 2), (std::vector<short>{-30, -30}));
    EXPECT_EQ(walk(back, 100, 130, -30, 2), (std::vector<short>{0, 0}));
    EXPECT_EQ(on(100, 150, 0), -50);
    EXPECT_EQ(on(100, 151, 0), -50);
    EXPECT_EQ(on(100, 149, 0), -49);
}

TEST_P(ScrollLimits, RoundHalvesDown)
{
    EXPECT_EQ(on(101, 300, 0), -50);
    EXPECT_EQ(back(101, 300, -100), -50);
    EXPECT_EQ(on(1, 300, -7), -7) << "no step";
    EXPECT_EQ(back(1, 300, -7), -7);
    EXPECT_EQ(on(0, 300, -7), -7);
}

TEST_P(ScrollLimits, LeaveContentThatJustFitsWhereItIs)
{
    EXPECT_EQ(on(100, 100, 0), 0);
    EXPECT_EQ(back(100, 100, 0), 0);
    EXPECT_EQ(back(100, 100, -20), -20) << "no step";
    EXPECT_EQ(on(100, 100, 20), 20);
}

TEST_P(ScrollLimits, PutBackWhatLiesBeyondThem)
{
    EXPECT_EQ(on(100, 250, -500), -150);
    EXPECT_EQ(back(100, 250, 40), 0);
    EXPECT_EQ(on(100, 100, -20), 0);
    EXPECT_EQ(back(100, 100, 20), 0);
}

TEST_P(ScrollLimits, PutSmallerContentAtTheStartWhereverItWas)
{
    for (const short current : std::initializer_list<short>{-32768, -30, 0, 30, 32767}) {
        EXPECT_EQ(on(100, 99, current), 0);
        EXPECT_EQ(back(100, 99, current), 0);
        EXPECT_EQ(on(65535, 0, current), 0);
        EXPECT_EQ(back(65535, 0, current), 0);
    }
}

TEST_P(ScrollLimits, TakeSizesForUnsigned)
{
    EXPECT_EQ(on(65534, 65535, 0), -1);
    EXPECT_EQ(on(40000, 65535, 0), -20000);
    EXPECT_EQ(back(40000, 65535, -25535), -5535);
    EXPECT_EQ(on(32767, 65535, 0), -16383) << "32768 hidden pixels are the most";
}

TEST_P(ScrollLimits, WrapAroundWhereMoreIsHiddenThan16BitsTell)
{
    EXPECT_EQ(on(100, 40000, 0), 25636) << "100 - 40000";
    EXPECT_EQ(on(100, 32869, 0), 32767);
    EXPECT_EQ(back(100, 40000, -100), -50);
}

TEST_P(ScrollLimits, WrapAroundWhereAStepLeaves16Bits)
{
    EXPECT_EQ(on(40000, 65535, -20000), 25536);
    EXPECT_EQ(back(100, 250, 32767), -32719);
    EXPECT_EQ(on(100, 250, -32768), 32718);
}

/// Written down once more, plainly, in arithmetic that is wide enough.
TEST_P(ScrollLimits, HoldForAllSizesThatDoNotWrap)
{
    for (int visible = 0; visible < 40; ++visible)
        for (int content = visible; content < 130; ++content)
            for (int current = visible - content; current <= 0; ++current) {
                const int step = std::min(content - visible, visible / 2);
                const auto v = static_cast<unsigned short>(visible);
                const auto c = static_cast<unsigned short>(content);
                const auto at = static_cast<short>(current);
                ASSERT_EQ(back(v, c, at), std::min(current + step, 0)) << v << ' ' << c << ' ' << at;
                ASSERT_EQ(on(v, c, at), std::max(current - step, visible - content)) << v << ' ' << c << ' ' << at;
            }
}

INSTANTIATE_TEST_SUITE_P(UpAndDown, ScrollLimits,
                         ::testing::Values(Steps{Scroll_widget::new_location_up, Scroll_widget::new_location_down}));
INSTANTIATE_TEST_SUITE_P(LeftAndRight, ScrollLimits,
                         ::testing::Values(Steps{Scroll_horizontal_widget::new_location_left,
                                                 Scroll_horizontal_widget::new_location_right}));

} // namespace
