// The example of docs/non-volatile-store.md, run; the two are to be the same.

#include "tests/platform/Nv_folder.h"
#include "vtui/comp/objects/Rectangle_obj.h"

// The example begins here.

#include "nv_store/Store.h"
#include "nv_store/waiter_descriptor.h"
#include "vtui/comp/widgets/Nv_number_widget.h"

#include <iostream>
#include <poll.h>

using Rate = NV_store::NV_number<double, Data_item::float64>;
using Sections = NV_store::NV_number<unsigned char, Data_item::uint8>;

/// What the sprayer remembers.
struct Settings
{
    explicit Settings(const std::string& file) : store(file)
    {
        for (const std::string& name : store.lost())
            std::cerr << "the setting \"" << name << "\" is lost; see " << store.put_aside() << '\n';
    }

    NV_store::Store store; // first: it outlives its numbers
    Rate rate{store, "rate", 200};
    Sections sections{store, "sections", 7};
};

void run(Settings& settings, const VT::Comp::Number_widget::Style& look)
{
    waiter_descriptor waiter;
    VT::Comp::Nv_number_widget<Rate> field(settings.rate, look, {Units_man::volume_per_area, 0, 600, 1, 0}, nullptr);
    field.init(nullptr);                                        // with the pool
    field.handle_event(VT::Comp::Visible_event{true, &waiter}); // its mask is shown now

    settings.rate.set(180); // from any thread
    pollfd news{waiter.descriptor(), POLLIN, 0};
    poll(&news, 1, 1000); // in the loop of the thread that owns the screens
    waiter.deliver();     // fields show what has changed
    std::cout << field.get_value() << " L/ha\n";

    settings.store.set({settings.rate.to(150), settings.sections.to(5)}); // both or none, whatever happens
    settings.store.flush();                                               // the key is turned off
}

// The example ends here.

namespace {

TEST(NvExample, ShowsAndKeepsWhatIsSet)
{
    char pattern[] = "/tmp/nv_example.XXXXXX";
    ASSERT_TRUE(mkdtemp(pattern));
    const std::string file = std::string(pattern) + "/settings.db";
    {
        Settings settings(file);
        EXPECT_EQ(settings.rate.get(), 200);
        testing::internal::CaptureStdout();
        run(settings, {});
        EXPECT_EQ(testing::internal::GetCapturedStdout(), "180 L/ha\n");
    }
    {
        const Settings settings(file);
        EXPECT_EQ(settings.rate.get(), 150);
        EXPECT_EQ(settings.sections.get(), 5);
    }
    nv::fs::remove_all(pattern);
}

} // namespace
