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
    for (const gallery::Picture& picture : gallery.pictures()) {
        picture.show();
        EXPECT_TRUE(matches_golden(renderer.draw(link.terminal), picture.name + "-" + std::to_string(GetParam())));
    }
}

TEST_P(GalleryAtMaskSize, ComesBackAsItWasWhenTheLinkReturns)
{
    ASSERT_TRUE(gallery.pool().load(link));
    gallery.pictures().back().show();
    terminal::Renderer renderer;
    const QImage before = renderer.draw(link.terminal);
    link.set_down(true);
    EXPECT_NE(renderer.draw(link.terminal), before);
    link.set_down(false);
    ASSERT_TRUE(gallery.pool().load(link));
    EXPECT_EQ(renderer.draw(link.terminal), before);
}

TEST_P(GalleryAtMaskSize, LooksTheSameWithoutATouchScreenWhereInputsShowThemselves)
{
    terminal::Hardware keys_only = hardware();
    keys_only.touch = false;
    apps::Loopback_link other_link(keys_only);
    gallery::Gallery other(GetParam());
    ASSERT_TRUE(other.pool().load(other_link));
    ASSERT_TRUE(gallery.pool().load(link));
    terminal::Renderer renderer;
    const auto expect_equal = [&](const std::string& what) {
        EXPECT_EQ(renderer.draw(link.terminal), renderer.draw(other_link.terminal)) << what;
    };
    for (std::size_t i = 0; i < gallery.pages().size(); ++i) {
        gallery.show(*gallery.pages()[i]);
        other.show(*other.pages()[i]);
        expect_equal(gallery.pages()[i]->get_name());
    }
    const std::vector<gallery::Picture> pictures = gallery.pictures(), other_pictures = other.pictures();
    for (std::size_t i = 0; i < pictures.size(); ++i) {
        pictures[i].show();
        other_pictures[i].show();
        expect_equal(pictures[i].name);
    }
}

INSTANTIATE_TEST_SUITE_P(SmallAndLarge, GalleryAtMaskSize, testing::Values(240, 480));

} // namespace
