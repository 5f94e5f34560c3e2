#pragma once

#include <gtest/gtest.h>

#include "page/box.h"

namespace host_tests {

inline void ExpectBox(const host::Box& box, const host::Box& expected) {
    EXPECT_DOUBLE_EQ(box.left, expected.left);
    EXPECT_DOUBLE_EQ(box.bottom, expected.bottom);
    EXPECT_DOUBLE_EQ(box.right, expected.right);
    EXPECT_DOUBLE_EQ(box.top, expected.top);
}

}  // namespace host_tests
