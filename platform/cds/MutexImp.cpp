#include "cds/MutexImp.h"

#include <QThread>

#include <cstdio>
#include <sys/syscall.h>
#include <unistd.h>

// The thread sanitizer cannot see into Qt's mutexes and has to be told of them.
#ifdef __SANITIZE_THREAD__
#include <sanitizer/tsan_interface.h>
#define TELL_SANITIZER(call) call
#else
#define TELL_SANITIZER(call) static_cast<void>(0)
#endif

namespace {

pid_t this_kernel_thread() { return static_cast<pid_t>(syscall(SYS_gettid)); }

} // namespace

void MutexImp::hold()
{
    if (try_hold())
        return;
    debug_lock();
    write_holder_down();
}

bool MutexImp::try_hold()
{
    if (!tryLock(0))
        return false;
    write_holder_down();
    return true;
}

void MutexImp::release()
{
    qt_thread.store(nullptr, std::memory_order_relaxed);
    kernel_thread.store(0, std::memory_order_relaxed);
    unlock();
}

bool MutexImp::is_held_by_this_thread() const
{
    return qt_thread.load(std::memory_order_relaxed) == QThread::currentThreadId();
}

bool MutexImp::tryLock(int timeout)
{
    TELL_SANITIZER(__tsan_mutex_pre_lock(this, __tsan_mutex_try_lock));
    const bool taken = QMutex::tryLock(timeout);
    TELL_SANITIZER(__tsan_mutex_post_lock(
        this, taken ? __tsan_mutex_try_lock : __tsan_mutex_try_lock | __tsan_mutex_try_lock_failed, 0));
    return taken;
}

void MutexImp::debug_lock()
{
    for (int seconds = 1; !tryLock(1000); ++seconds)
        std::fprintf(stderr, "CDS: kernel thread %d has waited %d s for the lock of Qt thread %p, kernel thread %d%s\n",
                     static_cast<int>(this_kernel_thread()), seconds, qt_thread.load(),
                     static_cast<int>(kernel_thread.load()), is_held_by_this_thread() ? ", which is itself" : "");
}

void MutexImp::unlock()
{
    TELL_SANITIZER(__tsan_mutex_pre_unlock(this, 0));
    QMutex::unlock();
    TELL_SANITIZER(__tsan_mutex_post_unlock(this, 0));
}

void MutexImp::write_holder_down()
{
    qt_thread.store(QThread::currentThreadId(), std::memory_order_relaxed);
    kernel_thread.store(this_kernel_thread(), std::memory_order_relaxed);
}
