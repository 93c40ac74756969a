// What becomes of numbers that no coordinate can hold.
#include "draw/coordinates.h"

#include <gtest/gtest.h>

namespace zorvic {
namespace {

TEST(Coordinates, AreTheNearestToAnyNumber) {
    constexpr LONG least = INT32_MIN, largest = INT32_MAX;
    constexpr double infinite = std::numeric_limits<double>::infinity();
    const volatile float none = std::numeric_limits<float>::quiet_NaN();  // compilers would know a constant's number
    EXPECT_EQ(Round(none), 0);
    for (const double huge : {2147483648.0, 1e300, infinite}) {
        EXPECT_EQ(Truncate(huge), largest);
        EXPECT_EQ(Truncate(-huge), least);
        EXPECT_EQ(Round(static_cast<float>(-huge)), least);
    }
    EXPECT_TRUE(ToRect(std::int64_t{least} - 1, INT64_MIN, std::int64_t{largest} + 1, 7) ==
                (RECT{least, least, largest, 7}));
}

}  // namespace
}  // namespace zorvic
