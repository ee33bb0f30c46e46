// A widget's write, watched from inside: this program puts its own signal before the store's.

#include "tests/platform/Readable.h"
#include "vtui/comp/widgets/Cds_number_widget.h"

#include <QThread>
#include <gtest/gtest.h>

#include <cstring>
#include <dlfcn.h>
#include <optional>
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

} // namespace

// As the program's own it comes before that of the library, which it calls.
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
    using Original = void (*)(Head*, const void*, const void*, unsigned, unsigned, const void*);
    static const auto original = reinterpret_cast<Original>(dlsym(RTLD_NEXT, "_ZN3CDS4Head12event_signalEPKvS2_jjS2_"));
    ASSERT_TRUE(original);
    original(this, variable, new_value, offset, extent, options);
}

namespace {

using VT::Comp::Cds_number_widget;
using VT::Comp::Number_widget;

TEST(CdsWriteOrder, SignalsUnderTheLockWithTheOldValueInPlace)
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

TEST(CdsWriteOrder, SignalsNothingWhenItReads)
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

} // namespace
