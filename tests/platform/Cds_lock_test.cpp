#include "cds/Access.h"
#include "tests/platform/Readable.h"

#include <QThread>
#include <gtest/gtest.h>

#include <cstdio>
#include <dlfcn.h>
#include <functional>
#include <future>
#include <optional>
#include <string>
#include <sys/syscall.h>
#include <thread>
#include <unistd.h>
#include <utility>
#include <vector>

namespace {

/// What happens while this thread waits for the lock, instead of the waiting; empty: it waits.
thread_local std::function<void()> meanwhile;
thread_local std::vector<int> patience; ///< for how long it asked for the lock, in milliseconds, each time

} // namespace

// As the program's own it comes before that of Qt, which it calls.
bool QMutex::tryLock(int timeout)
{
    static const auto original = reinterpret_cast<bool (*)(QMutex*, int)>(dlsym(RTLD_NEXT, "_ZN6QMutex7tryLockEi"));
    if (!meanwhile)
        return original(this, timeout);
    patience.push_back(timeout);
    if (timeout != 0)
        meanwhile();
    return original(this, 0);
}

namespace {

pid_t kernel_thread() { return static_cast<pid_t>(syscall(SYS_gettid)); }

std::string address(const void* pointer)
{
    char text[32];
    std::snprintf(text, sizeof text, "%p", pointer);
    return text;
}

/// A thread that holds a lock until it is told to let go.
class Holder
{
  public:
    explicit Holder(MutexImp& lock)
        : thread([this, &lock] {
              lock.hold();
              qt_thread = QThread::currentThreadId();
              number = kernel_thread();
              ready.set_value();
              end.get_future().wait();
              lock.release();
          })
    {
        ready.get_future().wait();
    }
    ~Holder()
    {
        end.set_value();
        thread.join();
    }

    void* qt_thread{nullptr};
    pid_t number{0};

  private:
    std::promise<void> ready;
    std::promise<void> end;
    std::thread thread;
};

/// What is said on standard error while this thread gets the lock by an operation; in answer to each wait for it
/// `answer` is called.
template <class Operation>
std::string said_by(Operation operation, std::function<void()> answer)
{
    patience.clear();
    meanwhile = std::move(answer);
    testing::internal::CaptureStderr();
    operation();
    meanwhile = nullptr;
    return testing::internal::GetCapturedStderr();
}

TEST(CdsLock, IsFreeAndHasNoHolderAtFirst)
{
    MutexImp lock;
    EXPECT_FALSE(lock.is_held_by_this_thread());
    EXPECT_EQ(lock.qt_thread, nullptr);
    EXPECT_EQ(lock.kernel_thread, 0);
    ASSERT_TRUE(lock.tryLock());
    lock.unlock();
}

TEST(CdsLock, KnowsItsHolderByBothNames)
{
    MutexImp lock;
    lock.hold();
    EXPECT_TRUE(lock.is_held_by_this_thread());
    EXPECT_EQ(lock.qt_thread, QThread::currentThreadId());
    EXPECT_EQ(lock.kernel_thread, kernel_thread());
    EXPECT_FALSE(lock.tryLock());
    lock.release();
    EXPECT_FALSE(lock.is_held_by_this_thread());
    EXPECT_EQ(lock.qt_thread, nullptr);
    EXPECT_EQ(lock.kernel_thread, 0);
}

TEST(CdsLock, HeldByAnotherThreadIsNotHeldByThisOne)
{
    MutexImp lock;
    {
        const Holder other(lock);
        EXPECT_FALSE(lock.is_held_by_this_thread());
        EXPECT_FALSE(lock.tryLock());
        EXPECT_EQ(lock.qt_thread, other.qt_thread);
        EXPECT_EQ(lock.kernel_thread, other.number);
        EXPECT_NE(other.number, kernel_thread());
    }
    EXPECT_TRUE(lock.tryLock());
    lock.unlock();
}

TEST(CdsLock, IsWaitedForInSilenceUpToASecond)
{
    MutexImp lock;
    std::optional<Holder> other(lock);
    EXPECT_EQ(said_by([&] { lock.debug_lock(); }, [&] { other.reset(); }), "");
    EXPECT_EQ(patience, std::vector<int>{1000});
    EXPECT_FALSE(lock.is_held_by_this_thread()) << "that is for whoever took it to write down";
    lock.unlock();
}

TEST(CdsLock, SaysWhoHoldsItForEachSecondOfWaitingAndGoesOnWaiting)
{
    MutexImp lock;
    std::optional<Holder> other(lock);
    const std::string holder = " s for the lock of Qt thread " + address(other->qt_thread) + ", kernel thread " +
                               std::to_string(other->number) + "\n";
    const auto let_go_at_last = [&] {
        if (patience.size() == 4)
            other.reset();
    };
    const std::string waiting = "CDS: kernel thread " + std::to_string(kernel_thread()) + " has waited ";
    EXPECT_EQ(said_by([&] { lock.hold(); }, let_go_at_last), waiting + "1" + holder + waiting + "2" + holder);
    EXPECT_EQ(patience, (std::vector<int>{0, 1000, 1000, 1000}));
    EXPECT_TRUE(lock.is_held_by_this_thread());
    EXPECT_EQ(lock.kernel_thread, kernel_thread());
    lock.release();
}

TEST(CdsLock, SaysThatAThreadWaitsForItself)
{
    MutexImp lock;
    lock.hold();
    const std::string self = std::to_string(kernel_thread());
    const std::string holder = address(QThread::currentThreadId()) + ", kernel thread " + self;
    const auto let_go_at_last = [&] {
        if (patience.size() == 3)
            lock.release();
    };
    EXPECT_EQ(said_by([&] { lock.hold(); }, let_go_at_last), "CDS: kernel thread " + self +
                                                                 " has waited 1 s for the lock of Qt thread " + holder +
                                                                 ", which is itself\n");
    lock.release();
}

TEST(CdsLock, IsTakenWithoutWaitingOnlyIfItIsFree)
{
    MutexImp lock;
    {
        const Holder other(lock);
        EXPECT_FALSE(lock.try_hold());
        EXPECT_EQ(lock.qt_thread, other.qt_thread);
        EXPECT_EQ(lock.kernel_thread, other.number);
    }
    ASSERT_TRUE(lock.try_hold());
    EXPECT_TRUE(lock.is_held_by_this_thread());
    EXPECT_EQ(lock.kernel_thread, kernel_thread());
    EXPECT_FALSE(lock.try_hold()) << "not even by who holds it";
    lock.release();
}

TEST(CdsLock, IsHeldByAReaderAndByAWriterAsLongAsTheyLive)
{
    int data = 0;
    CDS::Head head(data);
    {
        const CDS::Read read(head);
        EXPECT_TRUE(head.is_held_by_this_thread());
    }
    EXPECT_FALSE(head.is_held_by_this_thread());
    {
        const CDS::Write write(head);
        EXPECT_TRUE(head.is_held_by_this_thread());
    }
    EXPECT_FALSE(head.is_held_by_this_thread());
    EXPECT_TRUE(head.tryLock());
    head.unlock();
}

/// A store, somebody who watches it, and a control loop that must not wait.
class CdsTryWrite : public testing::Test
{
  protected:
    struct Watch final : CDS::Access<int, CDS::Virt_access>
    {
        using Access::Access;
        void handle_change() override
        {
            if (answer)
                answer();
        }
        std::function<void()> answer;
    };

    CdsTryWrite() { head.deliver(); }

    bool try_write(int value)
    {
        return CDS::try_write(head, [&](CDS::Write& write) {
            ++calls;
            EXPECT_TRUE(head.is_held_by_this_thread());
            EXPECT_EQ(head.kernel_thread, kernel_thread());
            write.set(data, value);
        });
    }

    bool is_free()
    {
        const bool free = head.tryLock();
        if (free)
            head.unlock();
        return free;
    }

    int data{0};
    CDS::Head head{data};
    Watch watch{head, data};
    int calls{0};
};

TEST_F(CdsTryWrite, WritesLikeAnyOtherIfTheLockIsFree)
{
    EXPECT_TRUE(try_write(7));
    EXPECT_EQ(data, 7);
    EXPECT_TRUE(is_readable(head.descriptor()));
    EXPECT_EQ(head.deliver(), 1U);
    EXPECT_FALSE(head.is_held_by_this_thread());
    EXPECT_TRUE(is_free());
}

TEST_F(CdsTryWrite, ComesBackWithNothingDoneWhileAnotherThreadHoldsTheLock)
{
    {
        const Holder other(head); // as long as this lives
        EXPECT_FALSE(try_write(7));
        EXPECT_FALSE(is_free());
    }
    EXPECT_EQ(calls, 0);
    EXPECT_EQ(data, 0);
    EXPECT_FALSE(is_readable(head.descriptor()));
    EXPECT_TRUE(try_write(7)) << "the next time";
    EXPECT_EQ(data, 7);
}

TEST_F(CdsTryWrite, AsksForTheLockOnceAndWithoutPatience)
{
    const Holder other(head);
    EXPECT_EQ(said_by([&] { EXPECT_FALSE(try_write(7)); }, [] {}), "");
    EXPECT_EQ(patience, std::vector<int>{0});
    EXPECT_EQ(said_by([&] { EXPECT_FALSE(head.tryLock()); }, [] {}), "");
    EXPECT_EQ(patience, std::vector<int>{0});
}

TEST_F(CdsTryWrite, ComesBackWithNothingDoneInsideAWriteOfItsOwnThread)
{
    CDS::Write write(head);
    EXPECT_FALSE(try_write(7));
    EXPECT_TRUE(head.is_held_by_this_thread());
    EXPECT_EQ(calls, 0);
}

TEST_F(CdsTryWrite, WritesWhileAListenerIsBusy)
{
    bool written = false;
    watch.answer = [&] { std::thread([&] { written = try_write(7); }).join(); };
    try_write(1);
    EXPECT_EQ(head.deliver(), 1U);
    EXPECT_TRUE(written);
    EXPECT_EQ(data, 7);
}

TEST_F(CdsTryWrite, LetsTheLockGoWhenTheChangeThrows)
{
    int elsewhere = 0;
    EXPECT_THROW(CDS::try_write(head, [&](CDS::Write& write) { write.set(elsewhere, 1); }), std::out_of_range);
    EXPECT_TRUE(is_free());
    EXPECT_FALSE(head.is_held_by_this_thread());
}

} // namespace
