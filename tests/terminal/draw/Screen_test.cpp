#include "terminal/draw/Renderer.h"
#include "tests/terminal/Session.h"
#include "tests/terminal/draw/Ascii.h"
#include "tests/terminal/draw/Golden.h"
#include "tests/terminal/draw/Rich_screen.h"

namespace terminal {
namespace {

using Id = Pool_builder::Id;
constexpr Id none = Pool_builder::none;

class Screen : public testing::Test
{
  protected:
    static Hardware hardware()
    {
        Hardware result;
        result.mask_size = 6;
        result.soft_key_width = 2;
        result.soft_key_height = 3;
        result.physical_soft_keys = 3;
        return result;
    }

    void load(Id mask)
    {
        builder.working_set(mask);
        ASSERT_EQ(session.load(builder.bytes()), accepted);
    }

    std::string screen(std::size_t first_key = 0) { return ascii(renderer.draw(session.terminal, first_key)); }

    Renderer renderer;
    Session session{hardware()};
    Pool_builder builder;
    Id dot = builder.rectangle(1, 1, builder.line_attributes(1, 1));
    Id wide = builder.rectangle(9, 9, none, builder.fill_attributes(2, 7));
};

TEST_F(Screen, IsBlackWithoutAPool)
{
    const QImage image = renderer.draw(session.terminal);
    EXPECT_EQ(image.width(), 10);
    EXPECT_EQ(image.height(), 6);
    EXPECT_EQ(image.pixel(9, 5), qRgb(0, 0, 0));
}

TEST_F(Screen, HasItsSoftKeysInColumnsAtTheRight)
{
    const Id first = builder.key(2, {{dot, 1, 1}});
    const Id second = builder.pointer(builder.key(3, {{wide, 1, 2}}));
    const Id third = builder.key(4, {});
    load(builder.mask(5, {{dot, 5, 5}}, builder.soft_key_mask(6, {first, second, third})));
    EXPECT_EQ(screen(), R"(
5555552244
5555552#44
5555552244
5555553366
5555553366
55555#3766
)");
}

TEST_F(Screen, LeavesACellEmptyWhereThePointerIsNull)
{
    const Id key = builder.key(2, {});
    load(builder.mask(5, {}, builder.soft_key_mask(6, {builder.pointer(none), key})));
    EXPECT_EQ(screen(), R"(
5555556666
5555556666
5555556666
5555552266
5555552266
5555552266
)");
}

TEST_F(Screen, MayStartAtALaterKey)
{
    const Id two = builder.key(2, {});
    const Id three = builder.key(3, {});
    load(builder.mask(5, {}, builder.soft_key_mask(6, {two, three})));
    EXPECT_EQ(screen(1).substr(0, 12), "\n5555553366\n");
    EXPECT_EQ(screen(9).substr(0, 12), "\n5555556666\n");
}

TEST_F(Screen, DrawsOneKeyInACellOfAnySize)
{
    const Id key = builder.key(2, {{dot, 1, 1}});
    load(builder.mask(5, {}, builder.soft_key_mask(6, {key})));
    const Object_pool& pool = session.terminal.pool();
    EXPECT_EQ(ascii(renderer.draw_key(pool, pool.find(key), 3, 2)), "\n222\n2#2\n");
    EXPECT_EQ(ascii(renderer.draw_key(pool, pool.find(dot), 3, 2)), "\n...\n...\n");
    EXPECT_EQ(ascii(renderer.draw_key(pool, Object(), 3, 2)), "\n...\n...\n");
}

TEST_F(Screen, FollowsTheCommandsOfTheApplication)
{
    const Id mask = builder.mask(5, {{dot, 0, 0}});
    load(mask);
    EXPECT_EQ(screen().substr(0, 7), "\n#55555");
    session.ask(message(0xA7, w(mask), 8));
    EXPECT_EQ(screen().substr(0, 7), "\n#88888");
}

TEST_F(Screen, ShowsAPressedButtonAsALatchedOneUntilThePressEnds)
{
    const Id button = builder.button(6, 6, 3, 4, 0);
    load(builder.mask(5, {{button, 0, 0}}));
    const std::string up = screen();
    ASSERT_TRUE(session.terminal.press({1, 1}));
    EXPECT_EQ(screen(), R"(
888888....
84444#....
84444#....
84444#....
84444#....
8#####....
)");
    ASSERT_TRUE(session.terminal.release());
    EXPECT_EQ(screen(), up);
    ASSERT_TRUE(session.terminal.press(button));
    EXPECT_NE(screen(), up) << "by the keyboard";
    ASSERT_TRUE(session.terminal.abort());
    EXPECT_EQ(screen(), up);
}

TEST_F(Screen, ShowsAPressedSoftKeyByTheEdgesOfItsCell)
{
    Hardware larger = hardware();
    larger.soft_key_width = 7;
    larger.soft_key_height = 6;
    larger.physical_soft_keys = 2;
    Session other(larger);
    const Id key = builder.key(2, {{wide, 0, 0}});
    const Id second = builder.key(3, {});
    builder.working_set(builder.mask(5, {}, builder.soft_key_mask(6, {builder.pointer(key), second})));
    ASSERT_EQ(other.load(builder.bytes()), accepted);
    const auto screen = [&] { return ascii(renderer.draw(other.terminal)); };
    const std::string up = screen();
    ASSERT_TRUE(other.terminal.press({6, 0}));
    EXPECT_EQ(screen(), R"(
55555588888883333333
55555588888883333333
55555588777##3333333
55555588777##3333333
55555588#####3333333
55555588#####3333333
)");
    ASSERT_TRUE(other.terminal.release());
    EXPECT_EQ(screen(), up);
    ASSERT_TRUE(other.terminal.press(second));
    EXPECT_NE(screen(), up) << "by the keyboard";
    ASSERT_TRUE(other.terminal.abort());
    EXPECT_EQ(screen(), up);
    ASSERT_TRUE(other.terminal.press({6, 0}));
    EXPECT_NE(screen(), up);
    EXPECT_EQ(ascii(renderer.draw_key(other.terminal.pool(), other.terminal.pool().find(key), 3, 2)), "\n777\n777\n")
        << "by itself it is not pressed";
}

TEST(RichScreen, LooksAsItDid)
{
    Pool_builder builder;
    builder.working_set(add_rich_screen(builder));
    Session session;
    ASSERT_EQ(session.load(builder.bytes()), accepted);
    Renderer renderer;
    const QImage picture = renderer.draw(session.terminal);
    EXPECT_TRUE(matches_golden(picture, "rich_screen"));
    EXPECT_EQ(renderer.draw(session.terminal), picture) << "a renderer keeps nothing from the picture before";
}

} // namespace
} // namespace terminal
