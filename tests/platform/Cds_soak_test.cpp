// Threads that write, screens that follow, an operator that enters numbers, and widgets that come and go: all at once.
// Runs for two seconds, or as many as CDS_SOAK_SECONDS says.

#include "tests/Fake_pool.h"
#include "tests/platform/Readable.h"
#include "vtui/comp/widgets/Cds_number_widget.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <atomic>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <memory>
#include <random>
#include <thread>
#include <vector>

using namespace std::chrono_literals;

namespace {

using VT::Comp::Cds_number_widget;
using VT::Comp::Number_widget;

struct Data
{
    double d;
    float f;
    unsigned char uc;
    signed char sc;
    unsigned short us;
    short s;
    int i;
    unsigned int u;
    long long ll;
    unsigned long long ull;
    long long count;   ///< these two and the array are written together
    double same_count; ///< as `count`
    long long cycles;  ///< and these two
    double same_cycles;
    int many[20];
};

/// A live terminal that looks at the store's lock whenever an object is changed.
class Watching_pool final : public Fake_pool
{
  public:
    explicit Watching_pool(const CDS::Head& store) : head(store) { live = true; }

    void send(const std::uint8_t*, std::size_t, const void*, std::size_t) override
    {
        ++changes;
        if (head.is_held_by_this_thread())
            ++changes_under_lock;
    }

    const CDS::Head& head;
    std::size_t changes{0};
    std::size_t changes_under_lock{0};
};

constexpr Number_widget::Specification wide{Units_man::none, -1e9, 1e9, 1, 0};
constexpr Number_widget::Specification narrow{Units_man::none, -50, 50, 0.5, 1};

/// A field of the screen, of whatever type.
class Field
{
  public:
    virtual ~Field() = default;
    virtual void enter(unsigned raw) = 0;
    virtual void expect_last_value() = 0;
};

template <class T>
class Field_of final : public Field
{
  public:
    Field_of(CDS::Head& head, T& bound, const Number_widget::Specification& limits, Watching_pool& pool,
             Iso::Object_id id)
        : widget(head, bound, {nullptr, nullptr, nullptr, 0, true}, limits, nullptr)
    {
        widget.init(nullptr, nullptr);
        pool.take(widget.input_number, id);
        pool.take(widget.output_number, static_cast<Iso::Object_id>(id + 1));
    }

    void enter(unsigned raw) override
    {
        VT::VT_change_numeric_value_event event{widget.input_number.get_id(), raw};
        widget.handle_event(event);
    }

    /// When all threads have ended.
    void expect_last_value() override
    {
        const auto stored = static_cast<double>(*widget.variable);
        const Number_widget::Specification& limits = widget.specifications[0];
        EXPECT_EQ(widget.get_value(), std::min(std::max(stored, limits.min), limits.max)) << typeid(T).name();
    }

  private:
    Cds_number_widget<T> widget;
};

class CdsSoak : public testing::Test
{
  protected:
    CdsSoak()
    {
        add(data.d);
        add(data.f);
        add(data.uc);
        add(data.sc);
        add(data.us);
        add(data.s);
        add(data.i);
        add(data.u);
        add(data.ll);
        add(data.ull);
        for (int& number : data.many)
            add(number);
    }

    template <class T>
    void add(T& variable)
    {
        for (const auto& limits : {wide, narrow})
            fields.push_back(make(variable, limits, static_cast<Iso::Object_id>(1000 + 2 * fields.size())));
    }

    template <class T>
    std::unique_ptr<Field> make(T& variable, const Number_widget::Specification& limits, Iso::Object_id id)
    {
        return std::make_unique<Field_of<T>>(head, variable, limits, pool, id);
    }

    /// A control loop: changes what it likes, and a few things together.
    void write(unsigned seed)
    {
        std::minstd_rand random(seed);
        const auto number = [&] { return static_cast<int>(random() % 2000) - 1000; };
        for (int i = 0; i < 300; ++i) {
            CDS::Write writing(head);
            switch (random() % 4) {
            case 0:
                writing.set(data.d, number() / 8.0);
                writing.set(data.f, static_cast<float>(number()));
                writing.set(data.ll, number());
                break;
            case 1:
                writing.set(data.uc, static_cast<unsigned char>(number()));
                writing.set(data.sc, static_cast<signed char>(number()));
                writing.set(data.us, static_cast<unsigned short>(number()));
                break;
            case 2:
                writing.set(data.s, static_cast<short>(number()));
                writing.set(data.i, number());
                writing.set(data.u, static_cast<unsigned>(number() + 1000));
                writing.set(data.ull, static_cast<unsigned long long>(number() + 1000));
                break;
            case 3:
                writing.set(data.count, data.count + 1);
                for (int& each : data.many)
                    writing.set(each, number());
                writing.set(data.same_count, static_cast<double>(data.count));
                break;
            }
        }
    }

    /// A control loop that must not wait: what it could not write in one cycle it writes in another.
    void write_in_time()
    {
        bool written = false;
        for (long long cycle = 1; cycle <= 300 || !written; ++cycle) {
            written = CDS::try_write(head, [&](CDS::Write& writing) {
                writing.set(data.i, static_cast<int>(cycle));
                writing.set(data.cycles, cycle);
                writing.set(data.same_cycles, static_cast<double>(cycle));
            });
            std::this_thread::yield();
        }
    }

    /// Counts how often it saw what was written together come apart.
    void read(const std::atomic<bool>& stop)
    {
        while (!stop) {
            const Data copy = CDS::read(head, data);
            if (static_cast<double>(copy.count) != copy.same_count ||
                static_cast<double>(copy.cycles) != copy.same_cycles)
                ++torn;
            std::this_thread::yield();
        }
    }

    /// What a screen's thread does when it is woken, and nothing unless it is.
    void serve(std::chrono::milliseconds patience)
    {
        if (is_readable(head.descriptor(), patience))
            delivered += head.deliver();
    }

    Data data{};
    CDS::Head head{data};
    Watching_pool pool{head};
    std::vector<std::unique_ptr<Field>> fields;
    std::size_t delivered{0};
    std::atomic<std::size_t> torn{0};
};

TEST_F(CdsSoak, SeesAChangeOfAnObjectUnderTheLock)
{
    VT::Comp::Output_number_obj number;
    pool.take(number, 500);
    number.set_value(1);
    EXPECT_EQ(pool.changes_under_lock, 0U);
    const CDS::Read reading(head);
    number.set_value(2);
    EXPECT_EQ(pool.changes_under_lock, 1U);
}

TEST_F(CdsSoak, EveryFieldShowsTheLastValueAfterEveryStorm)
{
    const char* const wanted = std::getenv("CDS_SOAK_SECONDS");
    const auto end = std::chrono::steady_clock::now() + std::chrono::seconds(wanted ? std::atoi(wanted) : 2);
    std::minstd_rand operator_(1);
    std::atomic<bool> stop{false};
    std::thread reader([&] { read(stop); });
    std::size_t storms = 0;
    do {
        std::atomic<int> writing{4};
        std::vector<std::thread> writers;
        for (int i = 0; i < 3; ++i)
            writers.emplace_back([&, seed = static_cast<unsigned>(3 * storms) + static_cast<unsigned>(i) + 1] {
                write(seed);
                --writing;
            });
        writers.emplace_back([&] {
            write_in_time();
            --writing;
        });
        std::unique_ptr<Field> passing;
        while (writing > 0) {
            serve(1ms);
            // Raw units from the lowest limit on: a narrow field has 200 of them, a wide one more than it is given.
            fields[operator_() % fields.size()]->enter(static_cast<unsigned>(operator_() % 200));
            if (operator_() % 2)
                passing = operator_() % 2 ? make(data.d, wide, 500) : make(data.many[operator_() % 20], narrow, 500);
        }
        for (std::thread& writer : writers)
            writer.join();
        while (is_readable(head.descriptor()))
            serve(0ms);
        for (const auto& field : fields)
            field->expect_last_value();
        EXPECT_GE(data.cycles, 300);
        ++storms;
    } while (std::chrono::steady_clock::now() < end && !HasFailure());
    stop = true;
    reader.join();

    EXPECT_EQ(pool.changes_under_lock, 0U);
    EXPECT_EQ(torn, 0U);
    EXPECT_GT(pool.changes, storms);
    RecordProperty("storms", static_cast<int>(storms));
    RecordProperty("delivered", static_cast<int>(delivered));
    std::printf("%zu storms, %zu notifications delivered, %zu changes sent\n", storms, delivered, pool.changes);
}

} // namespace
