#include "tests/comp/Icon_text.h"
#include "vtui/comp/widgets/Function_key.h"

#include <functional>
#include <type_traits>
#include <utility>

using namespace icon_text;

namespace {

/// A key with an action that is counted.
class FunctionKey : public Icon_text
{
  protected:
    void take(Function_key& a_key) { pool.take(a_key.key, key_id); }

    static void activate(Function_key& a_key, Iso::Object_id id, Iso::Activation activation = Iso::Activation::released)
    {
        VT::Soft_key_activation_event event{activation, id, 1, 1};
        a_key.handle_event(event);
    }

    static constexpr Iso::Object_id key_id = 0x0102;

    int runs{0};
    Function_key key{[this] { ++runs; }};
};

TEST_F(FunctionKey, IsAKeyWithAnAction)
{
    EXPECT_EQ(&key.root(), &key.key);
    EXPECT_TRUE(key.action);
    EXPECT_FALSE(Function_key().action);
    EXPECT_FALSE(Function_key(std::function<void()>()).action) << "an empty one stays empty";
    EXPECT_FALSE((std::is_convertible_v<std::function<void()>, Function_key>)) << "not by accident";
}

TEST_F(FunctionKey, RunsItsActionOnceWithEveryRelease)
{
    take(key);
    pool.live = true;
    activate(key, key_id);
    EXPECT_EQ(runs, 1);
    activate(key, key_id);
    EXPECT_EQ(runs, 2);
    EXPECT_TRUE(pool.sent.empty());
    EXPECT_TRUE(pool.uploaded.empty());
}

TEST_F(FunctionKey, TakesOverAndRunsItsActionWithoutACopyOfIt)
{
    Copied copied;
    std::function<void()> action = [this, copied] { runs += copied.times >= 0; };
    Copied::all = 0;
    Function_key other(std::move(action));
    take(other);
    activate(other, key_id);
    EXPECT_EQ(runs, 1);
    EXPECT_EQ(Copied::all, 0);
}

TEST_F(FunctionKey, DoesNothingBeforeTheRelease)
{
    take(key);
    for (const auto activation : {Iso::Activation::pressed, Iso::Activation::held, Iso::Activation::aborted,
                                  static_cast<Iso::Activation>(4), static_cast<Iso::Activation>(0xFF)})
        activate(key, key_id, activation);
    EXPECT_EQ(runs, 0);
}

TEST_F(FunctionKey, DoesNothingForOtherKeys)
{
    take(key);
    for (const Iso::Object_id id : {Iso::Object_id{0}, Iso::Object_id{0x0002}, Iso::Object_id{0x0201}, Iso::null_id})
        activate(key, id);
    EXPECT_EQ(runs, 0);
}

TEST_F(FunctionKey, IgnoresTheKeyCode)
{
    take(key);
    VT::Soft_key_activation_event event{Iso::Activation::released, key_id, 1, 99};
    key.handle_event(event);
    EXPECT_EQ(runs, 1);
    event.object_id = 0x0103;
    event.key_code = 1;
    key.handle_event(event);
    EXPECT_EQ(runs, 1);
}

TEST_F(FunctionKey, TakesAnotherAction)
{
    take(key);
    key.action = [this] { runs += 10; };
    activate(key, key_id);
    EXPECT_EQ(runs, 10);
}

TEST_F(FunctionKey, WithoutAnActionThrowsOnItsRelease)
{
    Function_key empty;
    take(empty);
    EXPECT_THROW(activate(empty, key_id), std::bad_function_call);
    EXPECT_THROW(activate(empty, key_id), std::bad_function_call) << "every time";
    key.action = nullptr;
    pool.release(empty.key);
    take(key);
    EXPECT_THROW(activate(key, key_id), std::bad_function_call);
}

TEST_F(FunctionKey, WithoutAnActionThrowsOnNothingElse)
{
    Function_key empty;
    take(empty);
    for (const auto activation : {Iso::Activation::pressed, Iso::Activation::held, Iso::Activation::aborted})
        EXPECT_NO_THROW(activate(empty, key_id, activation));
    EXPECT_NO_THROW(activate(empty, 0x0103));
}

TEST_F(FunctionKey, LetsThroughWhatItsActionThrows)
{
    take(key);
    key.action = [] { throw 7; };
    EXPECT_THROW(activate(key, key_id), int);
}

} // namespace
