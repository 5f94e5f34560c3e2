#include "page_editor/editing/arrange.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace {

using page_editor::Indices;
using page_editor::Order;
using ::testing::ElementsAre;

TEST(Arrange, DistributesNothingOfTwo) {
    for (const CPoint2D& offset : page_editor::DistributeOffsets(
             {{0.0, 0.0, 10.0, 20.0}, {90.0, 50.0, 110.0, 60.0}},
             page_editor::Direction::Across)) {
        EXPECT_EQ(offset.x, 0.0);
    }
}

TEST(Arrange, PutsItemsInOrder) {
    const Indices selection = {1, 2};
    EXPECT_THAT(Reordered(5, selection, Order::ToFront), ElementsAre(0, 3, 4, 1, 2));
    EXPECT_THAT(Reordered(5, selection, Order::ToBack), ElementsAre(1, 2, 0, 3, 4));
    EXPECT_THAT(Reordered(5, selection, Order::Up), ElementsAre(0, 3, 1, 2, 4));
    EXPECT_THAT(Reordered(5, selection, Order::Down), ElementsAre(1, 2, 0, 3, 4));
    EXPECT_THAT(Reordered(3, {2}, Order::Up), ElementsAre(0, 1, 2));
    EXPECT_THAT(Reordered(3, {0}, Order::Down), ElementsAre(0, 1, 2));
    EXPECT_THAT(Reordered(0, {}, Order::Down), ElementsAre());
}

}  // namespace
