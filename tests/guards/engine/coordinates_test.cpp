// What becomes of numbers that no coordinate can hold.
#include "draw/coordinates.h"

#include <gtest/gtest.h>

namespace zorvic {
namespace {

TEST(Coordinates, AreTheNearestToAnyNumber) {
    constexpr LONG least = INT32_MIN, largest = INT32_MAX;
    constexpr double infinite = std::numeric_limits<double>::infinity();
    EXPECT_EQ(Truncate(std::numeric_limits<double>::quiet_NaN()), 0);
    EXPECT_EQ(Round(std::numeric_limits<float>::quiet_NaN()), 0);
    for (const double huge : {2147483648.0, 1e300, infinite}) {
        EXPECT_EQ(Truncate(huge), largest);
        EXPECT_EQ(Truncate(-huge), least);
        EXPECT_EQ(Round(static_cast<float>(-huge)), least);
    }
    EXPECT_EQ(Truncate(-2.9), -2);
    EXPECT_EQ(Round(-2.5F), -3);
    EXPECT_TRUE(ToRect(std::int64_t{least} - 1, INT64_MIN, std::int64_t{largest} + 1, 7) ==
                (RECT{least, least, largest, 7}));
    EXPECT_TRUE(Intersection({least, least, largest, largest}, {-1, 3, 5, 4}) == (RECT{-1, 3, 5, 4}));
    EXPECT_EQ(WidthOf({least, 0, largest, 0}), 0xFFFFFFFF);
}

}  // namespace
}  // namespace zorvic
