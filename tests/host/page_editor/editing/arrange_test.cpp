#include "page_editor/editing/arrange.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "page_editor/editing/resize.h"

namespace {

using host::Box;
using page_editor::AlignTo;
using page_editor::Direction;
using page_editor::Indices;
using page_editor::Order;
using ::testing::ElementsAre;

const std::vector<host::Box> kBoxes = {
    {0.0, 0.0, 10.0, 20.0}, {90.0, 50.0, 110.0, 60.0}, {20.0, 30.0, 30.0, 70.0}};

TEST(Arrange, AlignsWithTheBoxAroundAll) {
    // Around all: from 0 to 110 across, its middle at 55; from 0 to 70 upwards.
    const struct {
        AlignTo to;
        std::vector<double> offsets;  // along the direction of the alignment
        bool isAcross;
    } rows[] = {
        {AlignTo::Left, {0.0, -90.0, -20.0}, true},
        {AlignTo::Centre, {50.0, -45.0, 30.0}, true},
        {AlignTo::Right, {100.0, 0.0, 80.0}, true},
        {AlignTo::Top, {50.0, 10.0, 0.0}, false},
        {AlignTo::Middle, {25.0, -20.0, -15.0}, false},
        {AlignTo::Bottom, {0.0, -50.0, -30.0}, false},
    };
    for (const auto& row : rows) {
        const auto offsets =
            page_editor::AlignOffsets(kBoxes, row.to, page_editor::Around(kBoxes));
        for (std::size_t i = 0; i < kBoxes.size(); ++i) {
            EXPECT_EQ(row.isAcross ? offsets[i].x : offsets[i].y, row.offsets[i]);
            EXPECT_EQ(row.isAcross ? offsets[i].y : offsets[i].x, 0.0);
        }
    }
}

TEST(Arrange, DistributesWithEqualGaps) {
    // Across: 90 - 10 between the outer two, less the 10 of the inner one: gaps of 35.
    const auto across = page_editor::DistributeOffsets(kBoxes, Direction::Across);
    EXPECT_EQ(across[0].x, 0.0);
    EXPECT_EQ(across[1].x, 0.0);
    EXPECT_EQ(across[2].x, 25.0);
    // Upwards by their middles: the first (10), the third (50), the second (55). Between
    // the outer two are 50 - 20, less 40: they overlap by 5 each.
    const auto upwards = page_editor::DistributeOffsets(kBoxes, Direction::Upwards);
    EXPECT_EQ(upwards[0].y, 0.0);
    EXPECT_EQ(upwards[1].y, 0.0);
    EXPECT_EQ(upwards[2].y, -15.0);
}

TEST(Arrange, DistributesNothingOfTwo) {
    for (const CPoint2D& offset :
         page_editor::DistributeOffsets({kBoxes[0], kBoxes[1]}, Direction::Across)) {
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

TEST(Resize, StopsBeforeABoxTurnsInsideOut) {
    const host::Box box = {10.0, 10.0, 110.0, 60.0};
    const host::Box thin = page_editor::Resized(box, 3, CPoint2D(-500.0, 0.0), false);
    EXPECT_EQ(thin.left, 10.0);
    EXPECT_EQ(thin.right, 10.0 + page_editor::kSmallestSide);
    EXPECT_EQ(thin.Height(), 50.0);
    const host::Box small = page_editor::Resized(box, 4, CPoint2D(-500.0, 900.0), true);
    EXPECT_EQ(small.Width(), 2.0 * page_editor::kSmallestSide);
    EXPECT_EQ(small.Height(), page_editor::kSmallestSide);
}

}  // namespace
