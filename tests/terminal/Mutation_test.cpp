#include "Session.h"

#include "terminal/Control.h"
#include "terminal/Nesting.h"
#include "terminal/Pool_check.h"
#include "terminal/Screen_layout.h"

#include <algorithm>

using namespace records;

namespace {

/// Marsaglia's xorshift: the same numbers on every machine.
class Random
{
  public:
    explicit Random(std::uint32_t seed) : state(seed) {}

    std::uint32_t next()
    {
        state ^= state << 13;
        state ^= state >> 17;
        state ^= state << 5;
        return state;
    }

    std::uint32_t below(std::size_t limit) { return next() % static_cast<std::uint32_t>(limit); }

  private:
    std::uint32_t state;
};

std::uint8_t interesting(Random& random)
{
    constexpr std::uint8_t bytes[] = {0, 1, 2, 3, 10, 16, 17, 26, 127, 128, 254, 255};
    return random.below(2) ? bytes[random.below(sizeof bytes)] : static_cast<std::uint8_t>(random.next());
}

Bytes mutate(Bytes bytes, Random& random)
{
    for (std::uint32_t n = 1 + random.below(3); n != 0 && !bytes.empty(); --n) {
        const std::size_t place = random.below(bytes.size());
        const auto here = bytes.begin() + static_cast<std::ptrdiff_t>(place);
        switch (random.below(8)) {
        case 0:
            bytes.erase(here);
            break;
        case 1:
            bytes.insert(here, interesting(random));
            break;
        case 2:
            bytes.resize(place + 1);
            break;
        case 3:
            *here = static_cast<std::uint8_t>(*here ^ 1u << random.below(8));
            break;
        default:
            *here = interesting(random);
            break;
        }
    }
    return bytes;
}

/// Walks everything that a renderer would read of an object, and returns the number of objects that it would draw.
std::uint32_t draw(const terminal::Object_pool& pool, terminal::Object object, unsigned depth)
{
    if (!object)
        return 0;
    EXPECT_LE(depth, terminal::Nesting::max_depth);
    std::uint32_t sum = 0;
    for (std::size_t i = 1; i < static_cast<std::size_t>(terminal::Field::n_children); ++i)
        sum += object.u32(static_cast<terminal::Field>(i));
    for (const terminal::Point point : object.points())
        sum += point.x;
    for (std::size_t i = 0; i < object.bytes().size; ++i)
        sum += object.bytes().data[i];
    volatile std::uint32_t read = sum; // so that the reading is not left out
    static_cast<void>(read);
    std::uint32_t drawn = 1;
    for (const terminal::Child child : object.children())
        drawn += draw(pool, pool.find(child.id), depth + 1);
    for (const terminal::Item item : object.items())
        drawn += draw(pool, pool.find(item.id), depth + 1);
    if (object.is(Type::object_pointer))
        drawn += draw(pool, pool.find(object.reference(terminal::Field::value)), depth + 1);
    return drawn;
}

/// What holds for every live pool, whatever was received.
void expect_sound(const terminal::Terminal& terminal)
{
    const terminal::Object_pool& pool = terminal.pool();
    ASSERT_FALSE(terminal::check_pool(pool));
    ASSERT_FALSE(terminal::Nesting().measure(pool)) << "the measures kept with the pool are no longer true";
    ASSERT_TRUE(terminal.active_mask());
    ASSERT_EQ(bytes_of(pool).size(), pool.size());
    pool.for_each([&pool](terminal::Object object) { EXPECT_LE(draw(pool, object, 1), terminal::Nesting::max_drawn); });
}

/// Touches the whole screen, and beyond, in steps, and leaves each number that opens, or enters its own text.
void touch_everywhere(Session& session, int step)
{
    terminal::Terminal& terminal = session.terminal;
    const terminal::Area screen = terminal::Screen_layout(terminal.hardware()).screen();
    for (int y = -step; y <= screen.bottom; y += step) {
        for (int x = -step; x <= screen.right; x += step) {
            session.sent.clear();
            const bool done = terminal.touch({x, y});
            ASSERT_EQ(done, !session.sent.empty()) << x << " " << y;
            if (const auto entry = terminal.entry()) {
                terminal.enter(entry->value());
                if (terminal.open_number() != null_id) {
                    ASSERT_TRUE(terminal.cancel());
                }
            }
            ASSERT_EQ(terminal.open_number(), null_id);
        }
    }
}

} // namespace

TEST(Mutation, OfAPoolGivesASoundPoolOrNone)
{
    const Bytes whole = complete_pool();
    Random random(1);
    int taken = 0;
    for (int round = 0; round < 20000; ++round) {
        Session session;
        const bool ok = session.load(mutate(whole, random)) == accepted;
        taken += ok;
        ASSERT_EQ(session.terminal.pool().empty(), !ok);
        if (ok) {
            ASSERT_NO_FATAL_FAILURE(expect_sound(session.terminal)) << "round " << round;
            ASSERT_NO_FATAL_FAILURE(touch_everywhere(session, 11)) << "round " << round;
        }
    }
    EXPECT_GT(taken, 1000);
    EXPECT_LT(taken, 19000);
}

TEST(Mutation, OfAnUpdateGivesASoundPoolOrTheOldOne)
{
    Session session;
    Random random(2);
    ASSERT_EQ(session.load(complete_pool()), accepted);
    int taken = 0;
    for (int round = 0; round < 3000; ++round) {
        if (round % 50 == 0) {
            session.terminal.disconnect();
            ASSERT_EQ(session.load(complete_pool()), accepted);
        }
        const Bytes before = bytes_of(session.terminal.pool());
        std::vector<Bytes> objects;
        session.terminal.pool().for_each([&objects](terminal::Object object) {
            objects.emplace_back(object.data(), object.data() + object.size());
        });
        const bool ok = session.load(mutate(objects[random.below(objects.size())], random)) == accepted;
        taken += ok;
        if (ok) {
            ASSERT_NO_FATAL_FAILURE(expect_sound(session.terminal)) << "round " << round;
        } else {
            ASSERT_EQ(bytes_of(session.terminal.pool()), before);
        }
    }
    EXPECT_GT(taken, 300);
    EXPECT_LT(taken, 2700);
}

TEST(Mutation, OfCommandsLeavesThePoolSound)
{
    constexpr std::uint8_t functions[] = {0xA0, 0xA1, 0xA5, 0xA6, 0xA7, 0xA8, 0xAD, 0xAE, 0xAF, 0xB3, 0xB4};
    // Two towers and pointers that can be turned to build them into one another.
    Bytes pool = complete_pool();
    for (std::uint16_t id = 100; id < 130; ++id)
        append(pool, container_of(id, {static_cast<std::uint16_t>(id + 1), static_cast<std::uint16_t>(200 + id % 5)}));
    append(pool, container_of(130, {204}));
    for (std::uint16_t id = 200; id < 205; ++id)
        append(pool, pointer_to(id, null_id));
    append(pool, mask_of(206, {100, 200, 201}));
    const auto any_id = [](Random& random) {
        const std::uint32_t choice = random.below(8);
        return static_cast<std::uint16_t>(choice < 3   ? 200 + random.below(5)
                                          : choice < 5 ? 100 + random.below(31)
                                          : choice < 7 ? random.below(52)
                                                       : random.next());
    };
    Random random(3);
    int changed = 0;
    int refused = 0;
    for (int series = 0; series < 40; ++series) {
        Session session;
        ASSERT_EQ(session.load(pool), accepted);
        for (int round = 0; round < 500; ++round) {
            Bytes command = message(functions[random.below(sizeof functions)], w(any_id(random)));
            for (std::size_t i = 3; i < command.size(); ++i)
                command[i] = interesting(random);
            if (random.below(2)) // as a pointer is turned
                command = message(0xA8, w(static_cast<std::uint16_t>(200 + random.below(5))), 0xFF, d(any_id(random)));
            if (random.below(4) == 0)
                command.push_back(interesting(random));
            const Bytes before = bytes_of(session.terminal.pool());
            const std::uint32_t revision = session.terminal.revision();
            session.ask(command);
            const Bytes after = bytes_of(session.terminal.pool());
            if (session.terminal.revision() == revision) {
                ASSERT_EQ(after, before);
                ++refused;
            } else {
                ++changed;
            }
            ASSERT_FALSE(terminal::check_pool(session.terminal.pool()));
            ASSERT_FALSE(terminal::Nesting().measure(session.terminal.pool())) << "series " << series << " " << round;
        }
        ASSERT_NO_FATAL_FAILURE(expect_sound(session.terminal));
    }
    EXPECT_GT(changed, 3000);
    EXPECT_GT(refused, 3000);
}

TEST(Mutation, OfEveryKindOfMessageEndsWell)
{
    Session session;
    Random random(4);
    for (int round = 0; round < 20000; ++round) {
        if (session.terminal.pool().empty()) {
            ASSERT_EQ(session.load(complete_pool()), accepted);
        }
        Bytes bytes(random.below(14));
        std::generate(bytes.begin(), bytes.end(), [&random] { return interesting(random); });
        session.sent.clear();
        session.terminal.select_input(input_number, true, true);
        session.sent.clear();
        session.terminal.receive(bytes.data(), bytes.size());
        ASSERT_LE(session.sent.size(), 2u) << "an answer, and that a number is closed";
        const terminal::Object input = session.terminal.pool().find(session.terminal.open_number());
        ASSERT_TRUE(!input || (input.is(Type::input_number) && terminal::is_enabled(input)));
        for (const Bytes& answer : session.sent)
            ASSERT_EQ(answer.size(), Iso::frame_size);
    }
    session.terminal.disconnect();
    EXPECT_EQ(session.load(complete_pool()), accepted);
}

TEST(Mutation, OfCommandsLeavesEveryPressWholeAndOfOneKind)
{
    constexpr std::uint8_t functions[] = {0xA0, 0xA1, 0xA5, 0xA6, 0xA7, 0xA8, 0xAD, 0xAE, 0xAF, 0xB4};
    enum Change : std::uint8_t { released, pressed, held, aborted };
    Session session;
    Random random(5);
    Bytes open; // the message with which the press that goes on began
    int presses = 0, ended_by_command = 0;
    const auto follow = [&] {
        for (Bytes& told : session.sent) {
            if (told[0] > 1) // no activation
                continue;
            const std::uint8_t change = told[1];
            const bool latch = (told[0] == 1 && open.empty() && change == released) ||
                               (change == pressed && session.terminal.pressed() == null_id && session.sent.size() == 1);
            if (latch)
                continue;
            ASSERT_EQ(change == pressed, open.empty());
            told[1] = pressed;
            if (change == pressed)
                open = told;
            ASSERT_EQ(told, open) << "all messages name the same";
            if (change == released || change == aborted)
                open.clear();
        }
        const terminal::Object thing = session.terminal.pool().find(session.terminal.pressed());
        ASSERT_EQ(static_cast<bool>(thing), session.terminal.pressed() != null_id);
        ASSERT_EQ(!open.empty(), thing && (thing.is(Type::key) || thing.is(Type::button)));
        session.sent.clear();
    };
    const auto place = [&] {
        return terminal::Position{static_cast<int>(random.below(550)) - 5, static_cast<int>(random.below(490)) - 5};
    };
    for (int round = 0; round < 100000; ++round) {
        terminal::Terminal& terminal = session.terminal;
        if (round % 20 == 0) {
            terminal.disconnect();
            open.clear();
            ASSERT_EQ(session.load(complete_pool()), accepted);
            session.sent.clear();
        }
        switch (random.below(8)) {
        case 0:
        case 1:
            presses += random.below(2) ? terminal.press(place())
                                       : terminal.press(static_cast<std::uint16_t>(random.below(18)));
            break;
        case 2:
            terminal.release();
            break;
        case 3:
            terminal.move(place());
            break;
        case 4:
            random.below(4) ? terminal.hold() : terminal.abort();
            break;
        default:
            Bytes command =
                message(functions[random.below(sizeof functions)], w(static_cast<std::uint16_t>(random.below(20))));
            for (std::size_t i = 3; i < command.size(); ++i)
                command[i] = interesting(random);
            if (random.below(2)) // disable or enable a control, show another mask
                command = random.below(2)
                              ? message(0xA1, w(container + static_cast<int>(random.below(6))),
                                        static_cast<int>(random.below(2)))
                              : message(0xAD, w(working_set), w(data_mask + static_cast<int>(random.below(2))));
            const bool was_pressed = terminal.pressed() != null_id;
            terminal.receive(command.data(), command.size());
            ended_by_command += was_pressed && terminal.pressed() == null_id;
            break;
        }
        terminal.cancel();
        ASSERT_NO_FATAL_FAILURE(follow()) << "round " << round;
    }
    EXPECT_GT(presses, 2000);
    EXPECT_GT(ended_by_command, 400);
}
