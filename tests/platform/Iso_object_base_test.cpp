#include "tests/Fake_pool.h"
#include "vt/Container_obj.h"
#include "vt/Object_pointer_obj.h"

#include <gtest/gtest.h>

#include <atomic>
#include <chrono>
#include <csignal>
#include <thread>

namespace {

class Pointer : public VT::Object_pointer_obj
{
  public:
    explicit Pointer(const char* name = nullptr) : VT::Object_pointer_obj(NULL_ID, name, NULL_ID) {}
};

TEST(IsoObject, TheNullIdIs65535) { EXPECT_EQ(Iso::Iso_object_base::NULL_ID, 0xFFFF); }

TEST(IsoObject, HasTheIdNameAndTypeItWasBuiltWith)
{
    const VT::Object_pointer_obj object(17, "speed", 3);
    EXPECT_EQ(object.get_id(), 17);
    EXPECT_STREQ(object.get_name(), "speed");
    EXPECT_EQ(object.get_type(), Iso::Object_type::object_pointer);
    EXPECT_EQ(object.get_pool(), nullptr);
}

TEST(IsoObject, WithoutANameHasAnEmptyOne)
{
    Pointer object;
    EXPECT_STREQ(object.get_name(), "");
    object.set_name("speed");
    EXPECT_STREQ(object.get_name(), "speed");
    object.set_name(nullptr);
    EXPECT_STREQ(object.get_name(), "");
}

TEST(IsoObject, GetsPoolAndIdFromThePool)
{
    Fake_pool pool;
    Pointer object;
    pool.take(object, 9);
    EXPECT_EQ(object.get_pool(), &pool);
    EXPECT_EQ(object.get_id(), 9);
    pool.release(object);
    EXPECT_EQ(object.get_pool(), nullptr);
    EXPECT_EQ(object.get_id(), Pointer::NULL_ID);
}

TEST(IsoObject, TellsItsPoolThatItIsDestroyed)
{
    Fake_pool pool;
    const VT::VT_obj* gone = nullptr;
    {
        Pointer object;
        pool.take(object, 9);
        gone = &object;
        EXPECT_TRUE(pool.forgotten.empty());
    }
    EXPECT_EQ(pool.forgotten, (std::vector<const VT::VT_obj*>{gone}));
}

TEST(IsoObject, ReportsANullReferenceToThePoolUnderTheAttributesName)
{
    Fake_pool pool;
    Pointer object;
    pool.take(object, 9);
    EXPECT_FALSE(object.attribute_null_check(object.value, "value"));
    EXPECT_EQ(pool.reported, (std::vector<std::string>{"9 value is the null id"}));
    EXPECT_FALSE(object.value.null_check(object, "target"));
    ASSERT_EQ(pool.reported.size(), 2U);
    EXPECT_EQ(pool.reported[1], "9 target is the null id");
}

TEST(IsoObject, ReportsNothingForAReferenceThatIsSet)
{
    Fake_pool pool;
    Pointer object;
    pool.take(object, 9);
    object.value = std::uint16_t{0};
    EXPECT_TRUE(object.attribute_null_check(object.value, "value")) << "0 is an id";
    EXPECT_TRUE(pool.reported.empty());
}

TEST(IsoObject, ChecksReferencesWithoutAPoolToo)
{
    Pointer object;
    EXPECT_FALSE(object.attribute_null_check(object.value, "value"));
    object.value = std::uint16_t{3};
    EXPECT_TRUE(object.attribute_null_check(object.value, "value"));
}

TEST(IsoObjectDeathTest, CopyingAVtObjectAborts)
{
    const VT::Container_obj original(VT::VT_obj::NULL_ID, nullptr, 240, 240, 0, 0, 0, nullptr, nullptr);
    EXPECT_EXIT(VT::Container_obj{original}, ::testing::KilledBySignal(SIGABRT), "");
}

TEST(IsoObjectLock, KeepsASecondThreadWaitingUntilItIsReleased)
{
    Pointer object;
    std::atomic<bool> entered{false};
    object.lock();
    std::thread second([&] {
        object.lock();
        entered = true;
        object.unlock();
    });
    std::this_thread::sleep_for(std::chrono::milliseconds(30));
    EXPECT_FALSE(entered);
    object.unlock();
    second.join();
    EXPECT_TRUE(entered);
}

TEST(IsoObjectLock, LetsOneThreadInAtATime)
{
    constexpr int rounds = 20000;
    Pointer object;
    int counter = 0; // no atomic: only the lock protects it
    const auto count = [&] {
        for (int i = 0; i < rounds; ++i) {
            object.lock();
            const int seen = counter;
            if (i % 64 == 0)
                std::this_thread::yield();
            counter = seen + 1;
            object.unlock();
        }
    };
    std::thread second(count);
    count();
    second.join();
    EXPECT_EQ(counter, 2 * rounds);
}

} // namespace
