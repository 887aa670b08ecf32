// The module state's lease: one holder at a time, and no message shown while it holds.
#include <gtest/gtest.h>

#include <atomic>
#include <thread>

#include "dib/core/module_state.h"
#include "support/memory_host.h"

using namespace ts::dib;
using tst::MemoryHost;

TEST(ModuleLease, MessagesWaitUntilTheLockIsLetGoAndKeepTheirOrder) {
    MemoryHost host;
    {
        ModuleLease lease(host);
        host.report("dibReduceColors", "Not enough memory for DIB!");
        host.message("Illegaler GIF-Block!");
        EXPECT_TRUE(host.messages.empty());
    }
    EXPECT_EQ(host.messages,
              (std::vector<std::string>{"dibReduceColors: Not enough memory for DIB!", "Illegaler GIF-Block!"}));
    host.message("shown at once");
    EXPECT_EQ(host.messages.back(), "shown at once");
}

TEST(ModuleLease, OtherThreadsWaitForTheHolder) {
    MemoryHost host;
    std::atomic<bool> entered{false};
    std::thread other;
    {
        ModuleLease lease(host);
        other = std::thread([&] {
            MemoryHost otherHost;
            ModuleLease mine(otherHost);
            entered = true;
        });
        for (int i = 0; i < 1000 && !entered; ++i) std::this_thread::yield();
        EXPECT_FALSE(entered);
    }
    other.join();
    EXPECT_TRUE(entered);
}

TEST(ModuleLease, AllLeasesShareOneState) {
    MemoryHost host;
    ModuleState* first;
    {
        ModuleLease lease(host);
        first = &lease.state();
        lease.state().gif.params.gifVersion = 87;
    }
    ModuleLease lease(host);
    EXPECT_EQ(&lease.state(), first);
    EXPECT_EQ(lease.state().gif.params.gifVersion, 87);
}
