#include "terminal/draw/Renderer.h"
#include "tests/terminal/Session.h"

#include <cstddef>

namespace terminal {
namespace {

std::uint32_t next_random(std::uint32_t& state)
{
    state ^= state << 13;
    state ^= state >> 17;
    state ^= state << 5;
    return state;
}

TEST(Renderer, DrawsWhateverPoolTheTerminalAccepts)
{
    const Bytes original = records::complete_pool();
    Hardware hardware;
    hardware.mask_size = 50;
    hardware.soft_key_width = 20;
    hardware.soft_key_height = 20;
    Renderer renderer;
    Session session(hardware);
    ASSERT_EQ(session.load(original), accepted);
    const QImage unchanged = renderer.draw(session.terminal);

    std::uint32_t random = 20240607;
    unsigned drawn = 0;
    unsigned different = 0;
    for (int i = 0; i < 4000; ++i) {
        Bytes pool = original;
        for (unsigned changes = 1 + next_random(random) % 4; changes > 0; --changes) {
            const std::size_t place = next_random(random) % pool.size();
            constexpr std::uint8_t nasty[] = {0x00, 0xFF, 0x7F, 0x80};
            const std::uint32_t kind = next_random(random) % 8;
            pool[place] = kind < 4 ? nasty[kind] : static_cast<std::uint8_t>(next_random(random));
        }
        if (session.load(pool) != accepted)
            continue;
        ++drawn;
        different += renderer.draw(session.terminal) != unchanged;
    }
    EXPECT_GT(drawn, 400u);
    EXPECT_GT(different, 50u);
}

} // namespace
} // namespace terminal
