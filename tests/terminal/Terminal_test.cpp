#include "Session.h"

using namespace records;
using terminal::Field;

namespace {

Bytes small_pool() { return join(empty_working_set(1), mask_of(1, {7}), text(7, "seven")); }

Bytes fault(std::uint16_t parent, std::uint16_t object, int code)
{
    return message(0x12, 1, w(parent), w(object), code);
}

} // namespace

TEST(Terminal, IsEmptyUntilAPoolIsEnded)
{
    Session session;
    EXPECT_TRUE(session.terminal.pool().empty());
    EXPECT_FALSE(session.terminal.working_set());
    EXPECT_FALSE(session.terminal.active_mask());
    EXPECT_FALSE(session.terminal.active_soft_key_mask());
    EXPECT_TRUE(session.transfer(small_pool()).empty());
    EXPECT_TRUE(session.terminal.pool().empty());
    EXPECT_EQ(session.end(), accepted);
    EXPECT_EQ(session.terminal.working_set().id(), working_set);
    EXPECT_EQ(session.terminal.active_mask().id(), 1);
    EXPECT_FALSE(session.terminal.active_soft_key_mask());
}

TEST(Terminal, ShowsTheActiveMaskWithItsSoftKeys)
{
    Session session;
    ASSERT_EQ(session.load(complete_pool()), accepted);
    EXPECT_EQ(session.terminal.active_mask().id(), data_mask);
    EXPECT_EQ(session.terminal.active_soft_key_mask().id(), soft_key_mask);
}

TEST(Terminal, TakesAPoolInTransfersOfAnySize)
{
    const Bytes pool = complete_pool();
    for (const std::size_t step : {std::size_t{1}, std::size_t{7}, std::size_t{100}, pool.size()}) {
        Session session;
        for (std::size_t start = 0; start < pool.size(); start += step) {
            const auto first = pool.begin() + static_cast<std::ptrdiff_t>(start);
            const auto count = static_cast<std::ptrdiff_t>(std::min(step, pool.size() - start));
            session.transfer(Bytes(first, first + count));
        }
        session.transfer({});
        EXPECT_EQ(session.end(), accepted);
        EXPECT_EQ(bytes_of(session.terminal.pool()), pool);
    }
}

TEST(Terminal, SaysWhyItRefusesAFirstPoolAndThatItHasNone)
{
    Session session;
    EXPECT_EQ(session.end(), fault(null_id, null_id, 4 | 8));
    EXPECT_EQ(session.load(join(empty_working_set(1), mask_of(1, {7}))), fault(1, 7, 2 | 8));
    EXPECT_EQ(session.load(join(empty_working_set(1), mask_of(1, {0}))), fault(1, 0, 4 | 8));
    EXPECT_EQ(session.load(join(empty_working_set(1), empty_mask(1), w(9), 99)), fault(null_id, 9, 1 | 8));
    EXPECT_TRUE(session.terminal.pool().empty());
    EXPECT_EQ(session.load(small_pool()), accepted) << "nothing of the refused pools is left";
    EXPECT_EQ(session.terminal.pool().size(), small_pool().size());
}

TEST(Terminal, ReplacesObjectsOfALivePoolAndAddsNewOnes)
{
    Session session;
    ASSERT_EQ(session.load(small_pool()), accepted);
    ASSERT_EQ(session.ask(message(0xB3, w(7), w(5), "lucky")), message(0xB3, 0xFF, 0xFF, w(7), 0));
    const std::uint32_t revision = session.terminal.revision();
    EXPECT_EQ(session.load(join(text(8, "eight"), mask_of(1, {7, 8}))), accepted);
    EXPECT_NE(session.terminal.revision(), revision);
    EXPECT_EQ(bytes_of(session.terminal.pool()),
              join(empty_working_set(1), mask_of(1, {7, 8}), text(7, "lucky"), text(8, "eight")));
    EXPECT_EQ(session.load(text(7, "a longer seven")), accepted);
    EXPECT_EQ(session.terminal.pool().find(7).text(), "a longer seven");
    EXPECT_EQ(session.load(pointer_to(7, 8)), accepted) << "an object may come back as one of another type";
    EXPECT_EQ(session.end(), accepted) << "nothing was transferred, and the pool is sound";
}

TEST(Terminal, KeepsALivePoolThatAnUploadWouldBreak)
{
    Session session;
    ASSERT_EQ(session.load(small_pool()), accepted);
    const std::uint32_t revision = session.terminal.revision();
    EXPECT_EQ(session.load(join(text(7, "new"), mask_of(1, {7, 9}))), fault(1, 9, 2));
    EXPECT_EQ(session.load(join(text(7, "new"), container_of(9, {9}))), fault(9, 9, 4));
    EXPECT_EQ(session.load(record(5, Type::working_set, 0, 1, w(1), 0, 0, 0)), fault(null_id, 5, 4));
    EXPECT_EQ(session.load(join(text(7, "new"), text(7, "newer"))), fault(null_id, 7, 4));
    EXPECT_EQ(session.load(join(text(7, "new"), w(8), 22, w(100))), fault(null_id, 8, 4));
    EXPECT_EQ(session.load(record(1, Type::key, 0, 0, 0, 0)), fault(working_set, 1, 4));
    EXPECT_EQ(bytes_of(session.terminal.pool()), small_pool());
    EXPECT_EQ(session.terminal.revision(), revision);
    EXPECT_EQ(session.load(text(7, "new")), accepted);
}

TEST(Terminal, TakesNoMoreBytesThanItHasMemoryFor)
{
    terminal::Hardware hardware;
    hardware.memory = small_pool().size();
    Session session(hardware);
    session.transfer(repeat(30, 0));
    session.transfer(repeat(1000, 0));
    session.transfer(repeat(1, 0));
    EXPECT_EQ(session.end(), fault(null_id, null_id, 4 | 8));
    EXPECT_EQ(session.load(small_pool()), accepted);
    EXPECT_EQ(session.load(text(7, "SEVEN")), accepted);
    EXPECT_EQ(session.load(text(7, "longer")), fault(null_id, null_id, 4));
    EXPECT_EQ(session.terminal.pool().find(7).text(), "SEVEN");
}

TEST(Terminal, AnswersWhetherItHasMemory)
{
    terminal::Hardware hardware;
    hardware.memory = 1000;
    hardware.version = 3;
    Session session(hardware);
    EXPECT_EQ(session.ask(message(0xC0, 0xFF, d(0))), message(0xC0, 3, 0));
    EXPECT_EQ(session.ask(message(0xC0, 0xFF, d(1000))), message(0xC0, 3, 0));
    EXPECT_EQ(session.ask(message(0xC0, 0xFF, d(1001))), message(0xC0, 3, 1));
    EXPECT_EQ(session.ask(message(0xC0, 0xFF, d(0xFFFFFFFF))), message(0xC0, 3, 1));
}

TEST(Terminal, AnswersWhatItIsMadeOf)
{
    terminal::Hardware hardware;
    hardware.mask_size = 240;
    hardware.soft_key_width = 70;
    hardware.soft_key_height = 50;
    hardware.physical_soft_keys = 6;
    hardware.virtual_soft_keys = 60;
    hardware.boot_time = 12;
    Session session(hardware);
    EXPECT_EQ(session.ask(message(0xC2)), message(0xC2, 0, 0xFF, 0xFF, 70, 50, 60, 6));
    EXPECT_EQ(session.ask(message(0xC3)), message(0xC3, 0xFF, 0xFF, 0xFF, 0xFF, 0x7F, 0x7F, 0x0F));
    EXPECT_EQ(session.ask(message(0xC7)), message(0xC7, 12, 2, 3, w(240), w(240)));
    EXPECT_EQ(Session().ask(message(0xC7)), message(0xC7, 0xFF, 2, 3, w(480), w(480)));
    hardware.touch = false;
    EXPECT_EQ(Session(hardware).ask(message(0xC7)), message(0xC7, 12, 2, 0, w(240), w(240)));
}

TEST(Terminal, TellsItsStatus)
{
    Session session;
    const auto status = [&session] {
        const terminal::Frame frame = session.terminal.status(0x26);
        return Bytes(frame.begin(), frame.end());
    };
    EXPECT_EQ(status(), message(0xFE, 0x26, w(null_id), w(null_id), 0, 0xFF));
    ASSERT_EQ(session.load(complete_pool()), accepted);
    EXPECT_EQ(status(), message(0xFE, 0x26, w(data_mask), w(soft_key_mask), 0, 0xFF));
    session.ask(message(0xAD, w(working_set), w(alarm_mask)));
    EXPECT_EQ(status(), message(0xFE, 0x26, w(alarm_mask), w(null_id), 0, 0xFF));
}

TEST(Terminal, ForgetsThePoolOfAnApplicationThatStartsAnew)
{
    Session session;
    EXPECT_TRUE(session.ask(message(0xFF, 1, 4)).empty());
    ASSERT_EQ(session.load(complete_pool()), accepted);
    EXPECT_TRUE(session.ask(message(0xFF, 0, 4)).empty());
    EXPECT_FALSE(session.terminal.pool().empty());
    session.transfer(text(7, "half a pool"));
    const std::uint32_t revision = session.terminal.revision();
    EXPECT_TRUE(session.ask(message(0xFF, 1, 4)).empty());
    EXPECT_TRUE(session.terminal.pool().empty());
    EXPECT_FALSE(session.terminal.active_mask());
    EXPECT_NE(session.terminal.revision(), revision);
    EXPECT_EQ(session.load(small_pool()), accepted);
}

TEST(Terminal, SaysWhichFunctionsItDoesNotKnow)
{
    Session session;
    for (const int function : {0x10, 0x20, 0x92, 0xA2, 0xBF, 0xC1, 0xD3, 0xE0, 0xFD, 0xFE})
        EXPECT_EQ(session.ask(message(function)), message(0xFD, function)) << function;
}

TEST(Terminal, SaysThatItHasNoVersionsAndKnowsNoLabel)
{
    Session session;
    const Bytes none = message(0xE0, 0);
    const Bytes not_stored = message(0xD0, 0xFF, 0xFF, 0xFF, 0xFF, 4);
    const Bytes not_loaded = message(0xD1, 0xFF, 0xFF, 0xFF, 0xFF, 2);
    const Bytes not_deleted = message(0xD2, 0xFF, 0xFF, 0xFF, 0xFF, 2);
    for (const bool has_pool : {false, true}) {
        if (has_pool) {
            ASSERT_EQ(session.load(small_pool()), accepted);
        }
        EXPECT_EQ(session.ask(message(0xDF)), none);
        EXPECT_EQ(session.ask({0xDF}), none);
        for (const char* label : {"SEEDER1", "A", "", "longer than labels are"}) {
            EXPECT_EQ(session.ask(join(0xD0, label)), not_stored) << label;
            EXPECT_EQ(session.ask(join(0xD1, label)), not_loaded) << label;
            EXPECT_EQ(session.ask(join(0xD2, label)), not_deleted) << label;
        }
        EXPECT_EQ(session.terminal.pool().empty(), !has_pool);
    }
}

TEST(Terminal, IgnoresAnswersToItsEventsAndMessagesThatAreTooShort)
{
    Session session;
    EXPECT_TRUE(session.ask({}).empty());
    for (int function = 0; function < 0x10; ++function)
        EXPECT_TRUE(session.ask(message(function)).empty());
    EXPECT_TRUE(session.ask(join(0xC0, 0xFF, 0, 0, 0)).empty());
    EXPECT_FALSE(session.ask(join(0xC0, 0xFF, 0, 0, 0, 0)).empty()) << "that has all its bytes";
    EXPECT_TRUE(session.ask({0xFF}).empty());
}

TEST(Terminal, TellsOfKeysAndButtons)
{
    Session session;
    EXPECT_FALSE(session.terminal.use_key(key, Iso::Activation::pressed)) << "there is no pool yet";
    ASSERT_EQ(session.load(complete_pool()), accepted);
    session.sent.clear();
    EXPECT_TRUE(session.terminal.use_key(key, Iso::Activation::pressed));
    EXPECT_TRUE(session.terminal.use_key(other_key, Iso::Activation::released));
    EXPECT_TRUE(session.terminal.use_button(button, Iso::Activation::held));
    EXPECT_EQ(session.sent, (std::vector<Bytes>{message(0x00, 1, w(key), w(data_mask), 40),
                                                message(0x00, 0, w(other_key), w(data_mask), 41),
                                                message(0x01, 2, w(button), w(data_mask), 42)}));
    session.ask(message(0xA1, w(button), 0));
    session.sent.clear();
    EXPECT_FALSE(session.terminal.use_button(button, Iso::Activation::pressed)) << "it is disabled";
    EXPECT_FALSE(session.terminal.use_button(key, Iso::Activation::pressed));
    EXPECT_FALSE(session.terminal.use_key(button, Iso::Activation::pressed));
    EXPECT_TRUE(session.sent.empty());
}

TEST(Terminal, TellsOfInputsSelectedAndLeft)
{
    Session session;
    ASSERT_EQ(session.load(complete_pool()), accepted);
    session.sent.clear();
    EXPECT_TRUE(session.terminal.select_input(input_number, true, false));
    EXPECT_TRUE(session.terminal.select_input(input_number, true, true));
    EXPECT_TRUE(session.terminal.escape(input_number));
    EXPECT_TRUE(session.terminal.select_input(input_number, false, false));
    EXPECT_EQ(session.sent,
              (std::vector<Bytes>{message(0x03, w(input_number), 1, 0), message(0x03, w(input_number), 1, 1),
                                  message(0x04, w(input_number), 0), message(0x03, w(input_number), 0, 0)}));
    EXPECT_FALSE(session.terminal.select_input(output_number, true, false));
    EXPECT_FALSE(session.terminal.select_input(button, true, false));
    EXPECT_FALSE(session.terminal.escape(container));
}

TEST(Terminal, TellsOfNumbersThatTheOperatorEnters)
{
    Session session;
    ASSERT_EQ(session.load(complete_pool()), accepted);
    session.sent.clear();
    EXPECT_TRUE(session.terminal.enter_number(input_number, 5000));
    EXPECT_TRUE(session.terminal.enter_number(input_boolean, 0));
    EXPECT_TRUE(session.terminal.enter_number(input_list, 2));
    EXPECT_EQ(session.sent, (std::vector<Bytes>{message(0x05, w(input_number), 0xFF, d(5000)),
                                                message(0x05, w(input_boolean), 0xFF, d(0)),
                                                message(0x05, w(input_list), 0xFF, d(2))}));
    const auto value = [&session](Id id) { return session.terminal.pool().find(id).u32(Field::value); };
    EXPECT_EQ(value(input_number), 5000u);
    EXPECT_EQ(value(number_variable), 0u) << "the input boolean has a variable";
    EXPECT_EQ(value(input_boolean), 1u);
    EXPECT_EQ(value(input_list), 2u);

    session.sent.clear();
    EXPECT_FALSE(session.terminal.enter_number(input_number, 9));
    EXPECT_FALSE(session.terminal.enter_number(input_number, 5001));
    EXPECT_FALSE(session.terminal.enter_number(input_boolean, 2));
    EXPECT_FALSE(session.terminal.enter_number(input_list, 3));
    EXPECT_FALSE(session.terminal.enter_number(output_number, 1));
    EXPECT_FALSE(session.terminal.enter_number(button, 1));
    EXPECT_FALSE(session.terminal.enter_number(null_id, 1));
    session.ask(message(0xA1, w(input_number), 0));
    session.sent.clear();
    EXPECT_FALSE(session.terminal.enter_number(input_number, 100)) << "it is disabled";
    EXPECT_TRUE(session.sent.empty());
    EXPECT_EQ(value(input_number), 5000u);
}

TEST(Terminal, TellsOfTextsThatTheOperatorEnters)
{
    Session session;
    ASSERT_EQ(session.load(complete_pool()), accepted);
    session.sent.clear();
    EXPECT_TRUE(session.terminal.enter_text(input_string, "ab"));
    EXPECT_EQ(session.terminal.pool().find(string_variable).text(), "ab      ");
    EXPECT_TRUE(session.terminal.enter_text(input_string, "eightabc"));
    EXPECT_EQ(session.sent, (std::vector<Bytes>{message(0x08, w(input_string), 2, "ab"),
                                                message(0x08, w(input_string), 8, "eightabc")}));
    EXPECT_EQ(session.terminal.pool().find(string_variable).text(), "eightabc");
    EXPECT_EQ(session.terminal.pool().find(input_string).text(), "Hello") << "it has a variable";

    session.sent.clear();
    EXPECT_FALSE(session.terminal.enter_text(input_string, "nine char"));
    EXPECT_FALSE(session.terminal.enter_text(output_string, "a"));
    EXPECT_FALSE(session.terminal.enter_text(9999, "a"));
    session.ask(message(0xAF, w(input_string), 7, d(null_id)));
    session.sent.clear();
    EXPECT_TRUE(session.terminal.enter_text(input_string, "five5"));
    EXPECT_EQ(session.terminal.pool().find(input_string).text(), "five5");
    EXPECT_FALSE(session.terminal.enter_text(input_string, "sixsix"));
}
