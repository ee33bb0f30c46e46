// Threads that set, screens that follow, operators that enter numbers, and fields that come and go: all at once. Runs
// for two seconds, or as many as NV_SOAK_SECONDS says.

#include "tests/platform/Nv_folder.h"
#include "vtui/comp/widgets/Nv_number_widget.h"

#include <atomic>
#include <deque>
#include <memory>
#include <random>
#include <thread>
#include <utility>

using namespace nv;
using namespace std::chrono_literals;

namespace {

std::chrono::seconds duration()
{
    const char* const seconds = std::getenv("NV_SOAK_SECONDS");
    return std::chrono::seconds(seconds ? std::atoi(seconds) : 2);
}

/// A thread that owns fields, and the waiter that they hear of changes by.
class Screen
{
  public:
    Screen(std::deque<Long>& shown, unsigned seed) : numbers(shown), random(seed)
    {
        for (Long& number : numbers) {
            fields.push_back(std::make_unique<Field>(number, *this));
            fields.back()->show(true);
        }
    }

    void run(const std::atomic<bool>& is_over)
    {
        while (!is_over) {
            if (is_ready(waiter, 20))
                delivered += waiter.deliver();
            disturb();
        }
    }

    /// What is left when all threads have ended.
    void deliver_rest()
    {
        is_calm = true;
        while (waiter.deliver() != 0) {
        }
    }

    void expect_last_values() const
    {
        for (std::size_t i = 0; i < fields.size(); ++i)
            if (fields[i]->is_shown) {
                EXPECT_EQ(fields[i]->get_value(), static_cast<double>(numbers[i].get())) << i;
            }
        EXPECT_GT(delivered, 10U);
        EXPECT_GT(entries, 10U);
    }

  private:
    class Field final : public VT::Comp::Nv_number_widget<Long>
    {
      public:
        Field(Long& number, Screen& owner)
            : Nv_number_widget(number, Style(), {Units_man::none, 0, 4e9, 1, 0}, nullptr), screen(owner)
        {
            init(nullptr);
        }

        using Nv_number_widget::handle_event;
        void handle_event() override
        {
            Nv_number_widget::handle_event();
            if (++screen.changes % 16 == 0)
                screen.disturb();
        }
        void show(bool visible)
        {
            is_shown = visible;
            handle_event(VT::Comp::Visible_event{visible, &screen.waiter});
        }

        bool is_shown{false};

      private:
        Screen& screen;
    };

    /// Exchanges, hides or shows one of the fields, or enters a number; also from within a notification.
    void disturb()
    {
        const std::size_t i = random() % fields.size();
        switch (random() % 8) {
        case 0: // not destroyed yet, because it may be the one that is being notified
            old_fields.push_back(std::exchange(fields[i], std::make_unique<Field>(numbers[i], *this)));
            if (old_fields.size() > 3)
                old_fields.pop_front();
            fields[i]->show(true);
            break;
        case 1:
            fields[i]->show(false);
            break;
        case 2:
        case 3:
            if (!is_calm) {
                fields[i]->handle_input(static_cast<unsigned>(random() % 1'000'000));
                ++entries;
            }
            break;
        default:
            fields[i]->show(true);
        }
    }

    std::deque<Long>& numbers;
    std::mt19937 random;
    waiter_descriptor waiter;
    std::vector<std::unique_ptr<Field>> fields;
    std::deque<std::unique_ptr<Field>> old_fields;
    bool is_calm{false}; ///< the operator has gone home
    std::size_t changes{0};
    std::size_t delivered{0};
    std::size_t entries{0};
};

class NvSoak : public Folder
{};

TEST_F(NvSoak, LosesNoLastValue)
{
    constexpr std::size_t items = 12;
    std::vector<long long> last;
    {
        Store store(path, 5ms);
        std::deque<Long> numbers;
        for (std::size_t i = 0; i < items; ++i)
            numbers.emplace_back(store, std::to_string(i));
        Screen screens[] = {{numbers, 1}, {numbers, 2}};

        std::atomic<bool> is_over{false};
        std::vector<std::thread> threads;
        for (unsigned seed = 0; seed < 4; ++seed)
            threads.emplace_back([&, seed] {
                std::mt19937 random(seed);
                for (long long n = 1; !is_over; ++n) {
                    Long& one = numbers[random() % items];
                    Long& other = numbers[random() % items];
                    if (n % 3 == 0)
                        store.set({one.to(n), other.to(n)});
                    else
                        one.set(one.get() + 1);
                    if (n % 200 == 0)
                        store.flush();
                    else if (n % 10 == 0)
                        std::this_thread::sleep_for(100us);
                }
            });
        for (Screen& screen : screens)
            threads.emplace_back([&] { screen.run(is_over); });
        std::this_thread::sleep_for(duration());
        is_over = true;
        for (std::thread& thread : threads)
            thread.join();

        for (Screen& screen : screens)
            screen.deliver_rest();
        for (const Screen& screen : screens)
            screen.expect_last_values();
        store.flush();
        EXPECT_EQ(store.take_problem(), "");
        for (const Long& number : numbers)
            last.push_back(number.get());
    }
    Store store(path);
    for (std::size_t i = 0; i < items; ++i)
        EXPECT_EQ(Long(store, std::to_string(i)).get(), last[i]);
}

} // namespace
