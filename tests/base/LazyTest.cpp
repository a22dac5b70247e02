#include "base/Lazy.h"

#include <atomic>
#include <stdexcept>
#include <string>
#include <thread>
#include <vector>

#include <gtest/gtest.h>

TEST(Lazy, makesItsValueAtTheFirstUseAndKeepsIt)
{
    int made = 0;
    const Lazy<std::string> value([&made] {
        ++made;
        return std::string("made");
    });
    EXPECT_EQ(made, 0);
    EXPECT_EQ(*value, "made");
    EXPECT_EQ(value->size(), 4U);
    EXPECT_EQ(&*value, &*value);
    EXPECT_EQ(made, 1);
}

TEST(Lazy, makesNothingWithoutAUse)
{
    int made = 0;
    {
        const Lazy<int> value([&made] { return ++made; });
    }
    EXPECT_EQ(made, 0);
}

TEST(Lazy, makesOneValueForAllThreads)
{
    std::atomic<int> made = 0;
    const Lazy<int> value([&made] { return ++made; });
    std::vector<std::thread> threads;
    std::vector<int> seen(8);
    for (int &one : seen)
        threads.emplace_back([&value, &one] { one = *value; });
    for (std::thread &thread : threads)
        thread.join();
    EXPECT_EQ(seen, std::vector<int>(8, 1));
    EXPECT_EQ(made, 1);
}
