#include "server/service/MemoryReserve.h"

#include <gtest/gtest.h>

#include <new>

namespace server {
namespace {

// Restores the program's new-handler at the end of a test.
class MemoryReserveTest : public testing::Test {
protected:
    MemoryReserveTest() { MemoryReserve::install(); }
    ~MemoryReserveTest() override { std::set_new_handler(before_); }
    MemoryReserveTest(const MemoryReserveTest&) = delete;
    MemoryReserveTest& operator=(const MemoryReserveTest&) = delete;

    static void findNoMemory() { std::get_new_handler()(); }

private:
    std::new_handler before_ = std::get_new_handler();
};

TEST_F(MemoryReserveTest, helpsOnceAndThenThrowsAsUsual) {
    EXPECT_NO_THROW(findNoMemory());
    EXPECT_THROW(findNoMemory(), std::bad_alloc);
}

TEST_F(MemoryReserveTest, helpsAgainOnceItIsRefilled) {
    EXPECT_NO_THROW(findNoMemory());
    MemoryReserve::refill();
    MemoryReserve::refill();
    EXPECT_NO_THROW(findNoMemory());
    EXPECT_THROW(findNoMemory(), std::bad_alloc);
}

} // namespace
} // namespace server
