#include "terminal/draw/Renderer.h"
#include "tests/terminal/Session.h"
#include "tests/terminal/draw/Pool_builder.h"

#include <random>

namespace terminal {
namespace {

using Id = Pool_builder::Id;

/// A screen of nothing but buttons and keys, each of a colour of its own, at random places in random containers, behind
/// pointers, some hidden and some more than once.
class Random_screen
{
  public:
    explicit Random_screen(std::uint32_t seed) : random(seed) {}

    void build()
    {
        std::vector<Id> things;
        for (int i = 0; i < 40; ++i) {
            constexpr int no_border = 32;
            const int kind = below(5);
            Id thing;
            if (kind < 2 || things.empty()) {
                thing = of_next_colour(builder.button(1 + below(40), 1 + below(40), next_colour(), 0, no_border));
            } else if (kind == 2) {
                thing = builder.pointer(below(8) == 0 ? Pool_builder::none : any_of(things));
            } else {
                Pool_builder::Places places;
                for (int n = below(4); n >= 0; --n)
                    places.push_back({any_of(things), below(60) - 20, below(60) - 20});
                thing = builder.container(1 + below(70), 1 + below(70), places, below(6) == 0);
            }
            things.push_back(thing);
        }
        Pool_builder::Places places;
        for (int n = 0; n < 12; ++n)
            places.push_back({any_of(things), below(120) - 20, below(120) - 20});
        Id keys[4];
        for (Id& key : keys)
            key = of_next_colour(builder.key(next_colour(), {}));
        const Id soft_keys = builder.soft_key_mask(0, {keys[0], builder.pointer(keys[1]), keys[2], keys[3], keys[0]});
        builder.working_set(builder.mask(0, places, soft_keys));
    }

    /// What is drawn in that colour, or the null id.
    Id of_colour(int colour) const
    {
        return colour < first_colour || colour >= next_colour()
                   ? Pool_builder::none
                   : coloured[static_cast<std::size_t>(colour - first_colour)];
    }

    const Bytes& bytes() const { return builder.bytes(); }

  private:
    static constexpr int first_colour = 16;

    int next_colour() const { return first_colour + static_cast<int>(coloured.size()); }
    Id of_next_colour(Id id)
    {
        coloured.push_back(id);
        return id;
    }
    int below(int end) { return static_cast<int>(random() % static_cast<unsigned>(end)); }
    Id any_of(const std::vector<Id>& things)
    {
        return things[static_cast<std::size_t>(below(static_cast<int>(things.size())))];
    }

    std::mt19937 random;
    Pool_builder builder;
    std::vector<Id> coloured;
};

TEST(TouchedPicture, IsPressedWhereTheButtonOrKeyIsDrawnAndNowhereElse)
{
    Hardware hardware;
    hardware.mask_size = 100;
    hardware.soft_key_width = 15;
    hardware.soft_key_height = 33; // three in a column, and a row of pixels left over
    hardware.physical_soft_keys = 7;
    Renderer renderer;
    int pressed = 0;
    int bare = 0;
    for (std::uint32_t seed = 1; seed <= 40; ++seed) {
        Random_screen screen(seed);
        screen.build();
        Session session(hardware);
        ASSERT_EQ(session.load(screen.bytes()), accepted);
        const QImage picture = renderer.draw(session.terminal);
        ASSERT_EQ(picture.size(), QSize(100 + 3 * 15, 100));
        for (int y = 0; y < picture.height(); ++y) {
            for (int x = 0; x < picture.width(); ++x) {
                const Id drawn = screen.of_colour(picture.pixelIndex(x, y));
                session.sent.clear();
                ASSERT_EQ(session.terminal.touch({x, y}), drawn != Pool_builder::none) << seed << ": " << x << " " << y;
                if (drawn == Pool_builder::none) {
                    ++bare;
                    continue;
                }
                ++pressed;
                ASSERT_EQ(session.sent.size(), 2u);
                ASSERT_EQ(Iso::read<std::uint16_t>(session.sent[0].data() + 2), drawn) << seed << ": " << x << " " << y;
            }
        }
    }
    EXPECT_GT(pressed, 100000);
    EXPECT_GT(bare, 50000);
}

} // namespace
} // namespace terminal
