// What becomes of numbers that no coordinate can hold.
#include "draw/coordinates.h"

#include <gtest/gtest.h>

namespace zorvic {
namespace {

TEST(Coordinates, AreTheNearestToAnyNumber) {
    const volatile double none = NAN, huge = 1e300;  // compilers would know what becomes of constants
    EXPECT_EQ(Truncate(none), 0);
    EXPECT_EQ(Truncate(huge), INT32_MAX);
    EXPECT_EQ(Truncate(-huge), INT32_MIN);
    EXPECT_TRUE(ToRect(INT64_MIN, -3, 3, INT64_MAX) == (RECT{INT32_MIN, -3, 3, INT32_MAX}));
}

}  // namespace
}  // namespace zorvic
