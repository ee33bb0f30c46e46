#include "apps/gallery/Machine.h"

#include <algorithm>
#include <chrono>

namespace gallery {

void Machine::start()
{
    if (thread.joinable())
        return;
    is_stopping = false;
    thread = std::thread([this] { run(); });
}

void Machine::stop()
{
    if (!thread.joinable())
        return;
    {
        const std::lock_guard locked(mutex);
        is_stopping = true;
    }
    stopping.notify_one();
    thread.join();
}

void Machine::run()
{
    using namespace std::chrono_literals;
    constexpr auto period = 20ms;
    std::unique_lock locked(mutex);
    for (auto next = std::chrono::steady_clock::now(); !is_stopping; next += period) {
        work(std::chrono::duration<double>(period).count());
        stopping.wait_until(locked, next + period, [this] { return is_stopping; });
    }
}

void Machine::work(double seconds)
{
    constexpr double boom_width = 24, full_tank = 3000;     // metres, litres
    constexpr double seconds_to_follow = 2;                 // in which the speed gets most of the way to what is set
    constexpr double usual_flow = 96, usual_pressure = 3.2; // litres a minute, bar

    CDS::Write write(store);
    const double change = (data.target_speed - data.speed) * std::min(1.0, seconds / seconds_to_follow);
    const double speed = data.speed + change;
    const double hectares = speed * boom_width / 10 * seconds / 3600;
    const double used = hectares * data.rate;
    const double flow = used / seconds * 60;
    write.set(data.speed, speed);
    write.set(data.pressure, static_cast<float>(usual_pressure * (flow / usual_flow) * (flow / usual_flow)));
    write.set(data.tank, data.tank > used ? data.tank - used : full_tank); // filled up at once
    write.set(data.area, data.area + hectares);
}

} // namespace gallery
