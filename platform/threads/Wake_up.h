#ifndef THREADS_WAKE_UP_H
#define THREADS_WAKE_UP_H

#include <atomic>
#include <cerrno>
#include <cstdint>
#include <sys/eventfd.h>
#include <system_error>
#include <unistd.h>

/// Wakes a thread that waits in poll(). Whoever has something for it puts it where that thread will look, then calls
/// set(); the thread calls clear(), then looks: so nothing is missed, and at worst it looks once in vain. However often
/// it is set, it wakes once.
class Wake_up
{
  public:
    /// Throws std::system_error if the process has no descriptor left.
    Wake_up() : fd(eventfd(0, EFD_NONBLOCK | EFD_CLOEXEC))
    {
        if (fd < 0)
            throw std::system_error(errno, std::generic_category(), "eventfd");
    }
    ~Wake_up() { close(fd); }
    Wake_up(const Wake_up&) = delete;
    Wake_up& operator=(const Wake_up&) = delete;

    /// Readable (POLLIN) while it is set. To wait for, not to be read.
    int descriptor() const { return fd; }

    /// From any thread; does not block. Enters the kernel only if it was clear.
    void set()
    {
        if (!is_set.exchange(true))
            eventfd_write(fd, 1); // can only fail if it is set already
    }

    /// By the thread that waits.
    void clear()
    {
        // In this order. What is set between the two belongs to what that thread is about to look for; the other way
        // round its wake-up would be read away while it still counts as set, and none would follow.
        eventfd_t count;
        eventfd_read(fd, &count);
        is_set.exchange(false);
    }

  private:
    int fd;
    std::atomic<bool> is_set{false};
};

#endif
