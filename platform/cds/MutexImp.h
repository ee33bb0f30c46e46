#ifndef CDS_MUTEXIMP_H
#define CDS_MUTEXIMP_H

#include "iso11783/Export.h"

#include <QMutex>

#include <atomic>
#include <sys/types.h>

/// A QMutex that knows who holds it, so that whoever waits too long can say for whom. Not re-entrant.
class VTUI_EXPORT MutexImp : public QMutex
{
  public:
    /// Takes the lock and writes its holder down. Waits for it if it has to, by debug_lock().
    void hold();
    /// The same, but only if the lock is free. Never waits; says whether it took it.
    bool try_hold();
    void release();
    /// Exact, and asks nobody else.
    bool is_held_by_this_thread() const;

    // The steps of the two. Who takes them one by one writes the holder down itself.

    bool tryLock(int timeout = 0);
    /// Takes the lock, however long it has to wait. Says on standard error, once a second, who holds it.
    void debug_lock();
    void unlock();

    // The holder; 0 while there is none, and for a moment before and after.

    std::atomic<void*> qt_thread{nullptr}; ///< a Qt::HANDLE
    std::atomic<pid_t> kernel_thread{0};

  private:
    void write_holder_down();

    using QMutex::lock;
    using QMutex::try_lock;
    using QMutex::try_lock_for;
    using QMutex::try_lock_until;
};

#endif
