// The order of the steps, watched from inside: this program puts its own functions before those that the libraries
// call.

#include "tests/platform/Readable.h"
#include "vtui/comp/widgets/Cds_number_widget.h"

#include <QThread>
#include <gtest/gtest.h>

#include <cstring>
#include <dlfcn.h>
#include <functional>
#include <optional>
#include <sys/eventfd.h>
#include <sys/syscall.h>
#include <unistd.h>

namespace {

/// What was so when the signal was given.
struct Signal
{
    const void* variable;
    const void* new_value;
    short stored;
    short announced;
    unsigned offset;
    unsigned extent;
    const void* options;
    bool free;
    const void* qt_thread;
    pid_t kernel_thread;
    bool readable;
};

std::optional<Signal> last_signal;
bool watching = false;

const QMutex* watched_lock = nullptr;
std::function<void()> before_unlock; ///< of the watched lock
// Of this thread's own calls.
thread_local std::function<void()> before_reading_an_event;
thread_local int events_written = 0;

/// The function that this program's one stands before.
template <class Function>
Function* original(const char* symbol)
{
    auto* const found = reinterpret_cast<Function*>(dlsym(RTLD_NEXT, symbol));
    EXPECT_TRUE(found) << symbol;
    return found;
}

} // namespace

void CDS::Head::event_signal(const void* variable, const void* new_value, unsigned offset, unsigned extent,
                             const void* options)
{
    if (watching) {
        Signal s{variable, new_value, 0, 0, offset, extent, options, tryLock(), qt_thread, kernel_thread, false};
        if (s.free)
            unlock();
        std::memcpy(&s.stored, variable, sizeof s.stored);
        std::memcpy(&s.announced, new_value, sizeof s.announced);
        s.readable = is_readable(descriptor());
        last_signal = s;
    }
    static const auto signal = original<void(Head*, const void*, const void*, unsigned, unsigned, const void*)>(
        "_ZN3CDS4Head12event_signalEPKvS2_jjS2_");
    signal(this, variable, new_value, offset, extent, options);
}

void QMutex::unlock() noexcept
{
    if (this == watched_lock)
        before_unlock();
    static const auto unlock = original<void(QMutex*)>("_ZN6QMutex6unlockEv");
    unlock(this);
}

extern "C" {

VTUI_EXPORT int eventfd_read(int descriptor, eventfd_t* count)
{
    if (before_reading_an_event)
        std::exchange(before_reading_an_event, nullptr)();
    static const auto read = original<int(int, eventfd_t*)>("eventfd_read");
    return read(descriptor, count);
}

VTUI_EXPORT int eventfd_write(int descriptor, eventfd_t count)
{
    ++events_written;
    static const auto write = original<int(int, eventfd_t)>("eventfd_write");
    return write(descriptor, count);
}
}

namespace {

using VT::Comp::Cds_number_widget;
using VT::Comp::Cds_widget_mixin;
using VT::Comp::Number_widget;

TEST(CdsOrder, AWidgetSignalsUnderTheLockWithTheOldValueInPlace)
{
    struct
    {
        double other;
        short number;
    } data{1, 5};
    CDS::Head head(data);
    Cds_number_widget<short> widget(head, data.number, Number_widget::Style(), nullptr);
    head.deliver();

    watching = true;
    widget.handle_input_value(7.4);
    watching = false;
    ASSERT_TRUE(last_signal);
    EXPECT_EQ(last_signal->variable, &data.number);
    EXPECT_NE(last_signal->new_value, &data.number);
    EXPECT_EQ(last_signal->stored, 5);
    EXPECT_EQ(last_signal->announced, 7);
    EXPECT_EQ(last_signal->offset, sizeof data.other);
    EXPECT_EQ(last_signal->extent, 1U);
    EXPECT_EQ(last_signal->options, nullptr);
    EXPECT_FALSE(last_signal->free);
    EXPECT_EQ(last_signal->qt_thread, QThread::currentThreadId());
    EXPECT_EQ(last_signal->kernel_thread, syscall(SYS_gettid));
    EXPECT_FALSE(last_signal->readable) << "the news come with the signal";

    EXPECT_EQ(data.number, 7);
    EXPECT_TRUE(is_readable(head.descriptor()));
    EXPECT_EQ(head.qt_thread, nullptr);
    EXPECT_EQ(head.kernel_thread, 0);
    EXPECT_TRUE(head.tryLock());
    head.unlock();
}

TEST(CdsOrder, AWidgetSignalsNothingWhenItReads)
{
    double data = 5;
    CDS::Head head(data);
    Cds_number_widget<double> widget(head, data, Number_widget::Style(), nullptr);
    last_signal.reset();
    watching = true;
    head.deliver();
    watching = false;
    EXPECT_EQ(widget.get_value(), 5);
    EXPECT_FALSE(last_signal);
}

/// What is so whenever a store's lock is about to be free.
class AtUnlock
{
  public:
    AtUnlock(CDS::Head& head, const int& variable)
    {
        watched_lock = &head;
        before_unlock = [this, &head, &variable] {
            ++times;
            stored = variable;
            held = held && !head.QMutex::tryLock(0);
            forgotten = forgotten && head.qt_thread == nullptr && head.kernel_thread == 0;
        };
    }
    ~AtUnlock() { watched_lock = nullptr; }
    AtUnlock(const AtUnlock&) = delete;
    AtUnlock& operator=(const AtUnlock&) = delete;

    int times{0};
    int stored{0};
    bool held{true};      ///< still
    bool forgotten{true}; ///< who held the lock, by both names
};

TEST(CdsOrder, AWidgetHasStoredBeforeTheLockIsFree)
{
    int data = 5;
    CDS::Head head(data);
    Cds_number_widget<int> widget(head, data, Number_widget::Style(), nullptr);
    const AtUnlock at_unlock(head, data);
    widget.handle_input_value(7);
    EXPECT_EQ(at_unlock.times, 1);
    EXPECT_EQ(at_unlock.stored, 7);
    EXPECT_TRUE(at_unlock.held);
}

TEST(CdsOrder, TheHolderIsForgottenBeforeTheLockIsFree)
{
    int data = 5;
    CDS::Head head(data);
    Cds_number_widget<int> widget(head, data, Number_widget::Style(), nullptr);
    const AtUnlock at_unlock(head, data);
    widget.handle_input_value(1);
    widget.read();
    head.deliver();
    EXPECT_EQ(CDS::read(head, data), 1);
    CDS::Write(head).set(data, 2);
    CDS::try_write(head, [&](CDS::Write& write) { write.set(data, 3); });
    EXPECT_GE(at_unlock.times, 5);
    EXPECT_EQ(at_unlock.stored, 3);
    EXPECT_TRUE(at_unlock.forgotten);
}

TEST(CdsOrder, TheStoreLooksAfterItsAccessesWithTheLockHeld)
{
    struct Watch final : CDS::Access<int, CDS::Virt_access>
    {
        using Access::Access;
        void handle_change() override {}
    };
    int data = 5;
    CDS::Head head(data);
    const AtUnlock at_unlock(head, data);
    {
        Watch watch(head, data);
        EXPECT_EQ(at_unlock.times, 1);
        head.deliver();
        EXPECT_EQ(at_unlock.times, 3) << "to count them, and to take one";
        watch.access.settle();
        EXPECT_EQ(at_unlock.times, 4);
    }
    EXPECT_EQ(at_unlock.times, 5);
    EXPECT_TRUE(at_unlock.held);
    EXPECT_TRUE(at_unlock.forgotten);
}

/// A variable of which a copy says who held the lock while it was made.
struct Witness
{
    Witness() = default;
    Witness(const Witness& from) : qt_thread(from.head->qt_thread), kernel_thread(from.head->kernel_thread) {}
    Witness& operator=(const Witness&) = delete;

    const CDS::Head* head{nullptr};
    const void* qt_thread{nullptr};
    pid_t kernel_thread{0};
};

class Court : public Cds_widget_mixin<Witness, Court>
{
  public:
    using Cds_widget_mixin::Cds_widget_mixin;
    static void handle_cds_value(const Witness&) {}
};

TEST(CdsOrder, AComponentThatReadsIsWrittenDownAsTheHolder)
{
    Witness data;
    CDS::Head head(data);
    data.head = &head;
    Court court(head, data);
    const Witness copy = court.read();
    EXPECT_EQ(copy.qt_thread, QThread::currentThreadId());
    EXPECT_EQ(copy.kernel_thread, syscall(SYS_gettid));
}

TEST(CdsOrder, WhatChangesWhileADeliveryBeginsIsNotMissed)
{
    int data = 0;
    CDS::Head head(data);
    Cds_number_widget<int> widget(head, data, Number_widget::Style(), nullptr);
    head.deliver();
    before_reading_an_event = [&] { CDS::Write(head).set(data, 7); };
    head.deliver();
    EXPECT_FALSE(before_reading_an_event);
    EXPECT_TRUE(widget.get_value() == 7 || is_readable(head.descriptor()));
}

TEST(WakeUpOrder, WhatIsSetWhileItIsClearedDoesNotSilenceWhatComesLater)
{
    Wake_up wake_up;
    before_reading_an_event = [&] { wake_up.set(); };
    wake_up.clear();
    EXPECT_FALSE(before_reading_an_event);
    wake_up.set();
    EXPECT_TRUE(is_readable(wake_up.descriptor()));
}

TEST(WakeUpOrder, EntersTheKernelOnlyIfItWasClear)
{
    Wake_up wake_up;
    events_written = 0;
    for (int i = 0; i < 3; ++i)
        wake_up.set();
    EXPECT_EQ(events_written, 1);
    wake_up.clear();
    wake_up.set();
    EXPECT_EQ(events_written, 2);
}

} // namespace
