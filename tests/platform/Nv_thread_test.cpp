// The thread that writes the non-volatile store's file.

#include "tests/platform/Nv_folder.h"

#include <csignal>
#include <pthread.h>
#include <sched.h>
#include <thread>

using namespace nv;

namespace {

/// The system's folder of the writing thread of the only store; empty if there is none.
fs::path writer()
{
    for (const auto& thread : fs::directory_iterator("/proc/self/task"))
        if (content((thread.path() / "comm").string()) == "nv_store\n")
            return thread;
    return {};
}

class NvThread : public Folder
{
  protected:
    /// Opens a store on a thread that was set up like this, and looks at the writer once it works.
    void open_on(const std::function<void()>& set_up, const std::function<void()>& look) const
    {
        std::thread([&] {
            set_up();
            Store store(path, never);
            store.flush();
            ASSERT_NE(writer(), fs::path());
            look();
        }).join();
        EXPECT_EQ(writer(), fs::path()) << "it ends with the store";
    }
};

TEST_F(NvThread, HandlesNoSignals)
{
    sigset_t before;
    pthread_sigmask(SIG_SETMASK, nullptr, &before);
    open_on([] {},
            [&] {
                const std::string status = content((writer() / "status").string());
                const std::size_t blocked = status.find("SigBlk:\t");
                ASSERT_NE(blocked, std::string::npos);
                const unsigned long long mask = std::stoull(status.substr(blocked + 8), nullptr, 16);
                for (const int signal : {SIGINT, SIGTERM, SIGHUP, SIGUSR1, SIGALRM, SIGCHLD, SIGXFSZ, SIGPIPE})
                    EXPECT_TRUE(mask >> (signal - 1) & 1) << signal;
                sigset_t own;
                pthread_sigmask(SIG_SETMASK, nullptr, &own);
                EXPECT_EQ(sigismember(&own, SIGTERM), sigismember(&before, SIGTERM)) << "the opener's are as before";
            });
}

TEST_F(NvThread, HasOrdinaryPriorityWhoeverOpensTheStore)
{
    for (const int policy : {SCHED_BATCH, SCHED_FIFO}) {
        SCOPED_TRACE(policy);
        bool is_set = false;
        open_on(
            [&] {
                sched_param high{};
                high.sched_priority = sched_get_priority_min(policy);
                is_set = pthread_setschedparam(pthread_self(), policy, &high) == 0;
            },
            [&] {
                EXPECT_TRUE(is_set || policy == SCHED_FIFO) << "which needs a permission";
                if (is_set) {
                    EXPECT_EQ(sched_getscheduler(0), policy);
                }
                EXPECT_EQ(sched_getscheduler(std::stoi(writer().filename().string())), SCHED_OTHER);
            });
    }
}

} // namespace
