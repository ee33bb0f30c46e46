#ifndef GALLERY_MACHINE_H
#define GALLERY_MACHINE_H

#include "cds/Head.h"

#include <condition_variable>
#include <mutex>
#include <thread>

namespace gallery {

/// What a sprayer's controllers and its screens share.
struct Machine_data
{
    // What the operator sets.
    double target_speed{12};  ///< km/h
    unsigned short rate{200}; ///< L/ha

    // What the sprayer does.
    double speed{0};    ///< km/h
    float pressure{0};  ///< bar
    double tank{2850};  ///< L
    double area{128.4}; ///< ha
};

/// A sprayer that works off a field, on a thread of its own from start() to stop(): it reads what is set and writes
/// what it does, fifty times a second.
class Machine
{
  public:
    ~Machine() { stop(); }

    void start();
    void stop();

    /// Works for so many seconds. By one thread at a time.
    void work(double seconds);

    Machine_data data; ///< guarded by `store`
    CDS::Head store{data};

  private:
    void run();

    std::mutex mutex;
    std::condition_variable stopping;
    bool is_stopping{false};
    std::thread thread;
};

} // namespace gallery

#endif
