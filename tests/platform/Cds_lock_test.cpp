#include "cds/Head.h"

#include <QThread>
#include <gtest/gtest.h>

#include <atomic>
#include <chrono>
#include <csignal>
#include <cstdio>
#include <memory>
#include <string>
#include <sys/syscall.h>
#include <thread>
#include <unistd.h>

using namespace std::chrono_literals;

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
              ready = true;
              while (!let_go)
                  std::this_thread::sleep_for(1ms);
              lock.release();
          })
    {
        while (!ready)
            std::this_thread::sleep_for(1ms);
    }
    ~Holder()
    {
        let_go = true;
        thread.join();
    }

    void* qt_thread{nullptr};
    pid_t number{0};
    std::atomic<bool> ready{false};
    std::atomic<bool> let_go{false};
    std::thread thread;
};

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
    auto other = std::make_unique<Holder>(lock);
    std::thread releasing([&] {
        std::this_thread::sleep_for(200ms);
        other->let_go = true;
    });
    testing::internal::CaptureStderr();
    lock.debug_lock();
    EXPECT_EQ(testing::internal::GetCapturedStderr(), "");
    EXPECT_FALSE(lock.is_held_by_this_thread()) << "that is for whoever took it to write down";
    releasing.join();
    lock.unlock();
}

TEST(CdsLock, SaysWhoHoldsItForEachSecondOfWaitingAndGoesOnWaiting)
{
    MutexImp lock;
    const auto begin = std::chrono::steady_clock::now();
    auto other = std::make_unique<Holder>(lock);
    const std::string holder = " s for the lock of Qt thread " + address(other->qt_thread) + ", kernel thread " +
                               std::to_string(other->number) + "\n";
    std::thread releasing([&] {
        std::this_thread::sleep_for(2500ms);
        other->let_go = true;
    });
    testing::internal::CaptureStderr();
    lock.hold();
    const std::string said = testing::internal::GetCapturedStderr();
    EXPECT_GE(std::chrono::steady_clock::now() - begin, 2500ms);
    EXPECT_TRUE(lock.is_held_by_this_thread());
    releasing.join();
    lock.release();

    const std::string waiting = "CDS: kernel thread " + std::to_string(kernel_thread()) + " has waited ";
    EXPECT_EQ(said, waiting + "1" + holder + waiting + "2" + holder);
}

/// Asks for its own lock, for three seconds.
void wait_for_itself()
{
    MutexImp lock;
    lock.hold();
    alarm(3);
    lock.hold();
}

TEST(CdsLockDeathTest, AThreadThatWaitsForItselfSaysSo)
{
    EXPECT_EXIT(wait_for_itself(), testing::KilledBySignal(SIGALRM),
                "^CDS: kernel thread [0-9]+ has waited 1 s for the lock of Qt thread 0x[0-9a-f]+, kernel thread "
                "[0-9]+, which is itself\n");
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

TEST(CdsLock, ForgetsItsHolderBeforeTheNextOneHasIt)
{
    MutexImp lock;
    std::atomic<int> forgotten{0};
    std::thread threads[2];
    for (std::thread& thread : threads)
        thread = std::thread([&] {
            for (int i = 0; i < 50'000; ++i) {
                lock.hold();
                for (int look = 0; look < 20; ++look)
                    if (!lock.is_held_by_this_thread() || lock.qt_thread != QThread::currentThreadId())
                        ++forgotten;
                lock.release();
            }
        });
    for (std::thread& thread : threads)
        thread.join();
    EXPECT_EQ(forgotten, 0);
}

} // namespace
