#include "apps/Loopback_link.h"
#include "apps/gallery/Gallery.h"
#include "terminal/draw/Renderer.h"
#include "tests/terminal/draw/Golden.h"

#include <gtest/gtest.h>

#include <string>

namespace {

class GalleryAtMaskSize : public testing::TestWithParam<std::uint16_t>
{
  protected:
    GalleryAtMaskSize() : link(hardware()), gallery(GetParam()) {}

    static terminal::Hardware hardware()
    {
        terminal::Hardware sized;
        sized.mask_size = GetParam();
        return sized;
    }

    apps::Loopback_link link;
    gallery::Gallery gallery;
};

TEST_P(GalleryAtMaskSize, IsAcceptedWithoutAWarning)
{
    const VT::Result loaded = gallery.pool().load(link);
    EXPECT_TRUE(loaded) << loaded.text();
    EXPECT_TRUE(loaded.warnings.empty()) << loaded.warnings.front().text;
}

TEST_P(GalleryAtMaskSize, EveryPageLooksAsItDidWhenItWasLastLookedAt)
{
    ASSERT_TRUE(gallery.pool().load(link));
    terminal::Renderer renderer;
    for (VT::Mask_obj* page : gallery.pages()) {
        gallery.show(*page);
        const std::string name = std::string(page->get_name()) + "-" + std::to_string(GetParam());
        EXPECT_TRUE(matches_golden(renderer.draw(link.terminal), name));
    }
}

TEST_P(GalleryAtMaskSize, ComesBackAsItWasWhenTheLinkReturns)
{
    ASSERT_TRUE(gallery.pool().load(link));
    terminal::Renderer renderer;
    const QImage before = renderer.draw(link.terminal);
    link.set_down(true);
    EXPECT_NE(renderer.draw(link.terminal), before);
    link.set_down(false);
    ASSERT_TRUE(gallery.pool().load(link));
    EXPECT_EQ(renderer.draw(link.terminal), before);
}

INSTANTIATE_TEST_SUITE_P(SmallAndLarge, GalleryAtMaskSize, testing::Values(240, 480));

} // namespace
