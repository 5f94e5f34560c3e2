#include "element/numbers.h"

#include <gtest/gtest.h>

#include <limits>

namespace {

using map_surround::Length;
using map_surround::ToDevice;
using map_surround::Truncate;

// A compiler refuses an undefined conversion here; a processor might do as hoped.
static_assert(Truncate(-1e12) == std::numeric_limits<std::int32_t>::min());
static_assert(Truncate(1e12) == std::numeric_limits<std::int32_t>::max());
static_assert(Truncate(std::numeric_limits<double>::quiet_NaN()) == 0);

TEST(Numbers, TruncateGoesTowardZeroAndSaturates) {
    struct Row {
        double value;
        std::int32_t truncated;
    };
    constexpr double infinity = std::numeric_limits<double>::infinity();
    const struct {
        double value;
        std::int32_t truncated;
    } rows[] = {
        {0.0, 0},
        {-0.0, 0},
        {2.999, 2},
        {-2.999, -2},
        {0.5, 0},
        {2147483646.9, 2147483646},
        {2147483647.0, 2147483647},
        {2147483648.0, 2147483647},
        {1e300, 2147483647},
        {-2147483648.0, -2147483647 - 1},
        {-2147483648.9, -2147483647 - 1},
        {-1e300, -2147483647 - 1},
        {infinity, 2147483647},
        {-infinity, -2147483647 - 1},
        {std::numeric_limits<double>::quiet_NaN(), 0},
        {std::numeric_limits<double>::denorm_min(), 0},
    };
    for (const auto& row : rows) {
        EXPECT_EQ(Truncate(row.value), row.truncated) << row.value;
    }
}

TEST(Numbers, ToDeviceSaturates) {
    EXPECT_EQ(ToDevice(0), 0);
    EXPECT_EQ(ToDevice(-7), -7);
    EXPECT_EQ(ToDevice(2147483647), 2147483647);
    EXPECT_EQ(ToDevice(Length{2147483648}), 2147483647);
    EXPECT_EQ(ToDevice(std::numeric_limits<Length>::max()), 2147483647);
    EXPECT_EQ(ToDevice(Length{-2147483648}), -2147483647 - 1);
    EXPECT_EQ(ToDevice(Length{-2147483649}), -2147483647 - 1);
    EXPECT_EQ(ToDevice(std::numeric_limits<Length>::min()), -2147483647 - 1);
}

}  // namespace
