#include <gdiplus.h>
#include <gtest/gtest.h>

#include <climits>
#include <memory>

using namespace Gdiplus;

namespace {

TEST(Color, HoldsItsBytesInTheOrderAlphaRedGreenBlue) {
    struct Row {
        Color color;
        ARGB value;
    };
    const Row rows[] = {
        {Color(), 0xFF000000},
        {Color(0x12345678), 0x12345678},
        {Color(0xFFFFFFFF), 0xFFFFFFFF},
        {Color(1, 2, 3), 0xFF010203},
        {Color(4, 1, 2, 3), 0x04010203},
        {Color(0, 0, 0, 0), 0x00000000},
        {Color(255, 255, 255, 255), 0xFFFFFFFF},
        {Color(Color::Red), 0xFFFF0000},
        {Color(Color::SteelBlue), 0xFF4682B4},
        {Color(Color::Transparent), 0x00FFFFFF},
    };
    for (const Row& row : rows) {
        EXPECT_EQ(row.color.GetValue(), row.value);
        EXPECT_EQ(row.color.GetA(), row.value >> 24);
        EXPECT_EQ(row.color.GetR(), (row.value >> 16) & 0xFF);
        EXPECT_EQ(row.color.GetG(), (row.value >> 8) & 0xFF);
        EXPECT_EQ(row.color.GetB(), row.value & 0xFF);
        EXPECT_EQ(row.color.GetAlpha(), row.color.GetA());
        EXPECT_EQ(row.color.GetRed(), row.color.GetR());
        EXPECT_EQ(row.color.GetGreen(), row.color.GetG());
        EXPECT_EQ(row.color.GetBlue(), row.color.GetB());
    }
    Color color;
    color.SetValue(0x80402010);
    EXPECT_EQ(color.GetValue(), Color::MakeARGB(0x80, 0x40, 0x20, 0x10));
}

TEST(Size, IsEmptyByDefaultAndAdds) {
    EXPECT_TRUE(Size().Empty());
    EXPECT_FALSE(Size(0, 1).Empty());
    EXPECT_TRUE((Size(1, 2) + Size(10, 20)).Equals(Size(11, 22)));
    EXPECT_TRUE((Size(1, 2) - Size(10, 20)).Equals(Size(-9, -18)));
    EXPECT_TRUE((SizeF(0.5f, 2.0f) + SizeF(1.0f, 1.0f)).Equals(SizeF(1.5f, 3.0f)));
}

TEST(Point, IsTheOriginByDefaultAndAdds) {
    EXPECT_TRUE(Point().Equals(Point(0, 0)));
    EXPECT_TRUE(Point(Size(3, 4)).Equals(Point(3, 4)));
    EXPECT_FALSE(Point(3, 4).Equals(Point(4, 3)));
    EXPECT_TRUE((Point(1, 2) + Point(10, 20)).Equals(Point(11, 22)));
    EXPECT_TRUE((Point(1, 2) - Point(10, 20)).Equals(Point(-9, -18)));
    EXPECT_TRUE(PointF().Equals(PointF(0.0f, 0.0f)));
    EXPECT_TRUE((PointF(1.5f, 2.0f) - PointF(1.0f, 1.0f)).Equals(PointF(0.5f, 1.0f)));
}

TEST(Rect, TellsItsSides) {
    EXPECT_TRUE(Rect().Equals(Rect(0, 0, 0, 0)));
    const Rect rect(Point(10, 20), Size(30, 40));
    EXPECT_TRUE(rect.Equals(Rect(10, 20, 30, 40)));
    EXPECT_EQ(rect.GetLeft(), 10);
    EXPECT_EQ(rect.GetTop(), 20);
    EXPECT_EQ(rect.GetRight(), 40);
    EXPECT_EQ(rect.GetBottom(), 60);
    Point location;
    Size size;
    Rect bounds;
    rect.GetLocation(&location);
    rect.GetSize(&size);
    rect.GetBounds(&bounds);
    EXPECT_TRUE(location.Equals(Point(10, 20)));
    EXPECT_TRUE(size.Equals(Size(30, 40)));
    EXPECT_TRUE(bounds.Equals(rect));
    EXPECT_TRUE(std::unique_ptr<Rect>(rect.Clone())->Equals(rect));
}

TEST(Rect, IsEmptyUnlessBothSidesArePositive) {
    EXPECT_FALSE(Rect(0, 0, 1, 1).IsEmptyArea());
    for (const Size& size : {Size(0, 1), Size(1, 0), Size(-1, 1), Size(1, -1)}) {
        EXPECT_TRUE(Rect(Point(), size).IsEmptyArea());
    }
}

TEST(Rect, ContainsItsLeftAndTopSidesButNotTheOthers) {
    const Rect rect(10, 20, 30, 40);
    EXPECT_TRUE(rect.Contains(10, 20));
    EXPECT_TRUE(rect.Contains(Point(39, 59)));
    EXPECT_FALSE(rect.Contains(40, 30));
    EXPECT_FALSE(rect.Contains(30, 60));
    EXPECT_FALSE(rect.Contains(9, 30));
    EXPECT_TRUE(rect.Contains(rect));
    EXPECT_TRUE(rect.Contains(Rect(11, 21, 28, 38)));
    EXPECT_FALSE(rect.Contains(Rect(11, 21, 30, 38)));
}

TEST(Rect, MeetsAndJoinsOthers) {
    const Rect a(0, 0, 10, 10);
    const Rect b(5, 6, 10, 10);
    const Rect touching(10, 0, 5, 5);
    Rect result;
    EXPECT_TRUE(Rect::Intersect(result, a, b));
    EXPECT_TRUE(result.Equals(Rect(5, 6, 5, 4)));
    EXPECT_TRUE(Rect::Union(result, a, b));
    EXPECT_TRUE(result.Equals(Rect(0, 0, 15, 16)));
    EXPECT_TRUE(a.IntersectsWith(b));
    EXPECT_FALSE(a.IntersectsWith(touching));
    EXPECT_FALSE(Rect::Intersect(result, a, touching));
    EXPECT_EQ(result.Width, 0);
    Rect self = a;
    EXPECT_TRUE(self.Intersect(b));
    EXPECT_TRUE(self.Equals(Rect(5, 6, 5, 4)));
}

/// Values that differ in one thing are not equal, in whole numbers and in floats.
template <typename SizeType, typename PointType, typename RectType>
void ExpectEachNumberToCount() {
    EXPECT_TRUE(SizeType(0, 0).Empty());
    EXPECT_FALSE(SizeType(1, 0).Empty());
    EXPECT_FALSE(SizeType(0, 1).Empty());
    EXPECT_TRUE(SizeType(1, 2).Equals(SizeType(1, 2)));
    EXPECT_FALSE(SizeType(1, 2).Equals(SizeType(3, 2)));
    EXPECT_FALSE(SizeType(1, 2).Equals(SizeType(1, 3)));
    EXPECT_TRUE((SizeType(5, 7) - SizeType(4, 5)).Equals(SizeType(1, 2)));
    EXPECT_TRUE(PointType(SizeType(3, 4)).Equals(PointType(3, 4)));
    EXPECT_FALSE(PointType(1, 2).Equals(PointType(3, 2)));
    EXPECT_FALSE(PointType(1, 2).Equals(PointType(1, 3)));

    const RectType rect(10, 20, 30, 40);
    EXPECT_TRUE(rect.Equals(RectType(10, 20, 30, 40)));
    const RectType others[] = {
        {11, 20, 30, 40}, {10, 21, 30, 40}, {10, 20, 31, 40}, {10, 20, 30, 41}};
    for (const RectType& other : others) {
        EXPECT_FALSE(rect.Equals(other));
    }

    EXPECT_FALSE(rect.IsEmptyArea());
    EXPECT_TRUE(RectType(10, 20, 0, 40).IsEmptyArea());
    EXPECT_TRUE(RectType(10, 20, 30, 0).IsEmptyArea());

    const PointType outside[] = {{9, 30}, {40, 30}, {30, 19}, {30, 60}};
    for (const PointType& point : outside) {
        EXPECT_FALSE(rect.Contains(point)) << point.X << ',' << point.Y;
    }
    EXPECT_TRUE(rect.Contains(PointType(10, 20)));

    const RectType standingOut[] = {
        {9, 21, 20, 20}, {11, 21, 30, 20}, {11, 19, 20, 20}, {11, 21, 20, 40}};
    for (const RectType& other : standingOut) {
        EXPECT_FALSE(rect.Contains(other)) << other.X << ',' << other.Y;
        EXPECT_TRUE(rect.IntersectsWith(other)) << other.X << ',' << other.Y;
    }
    EXPECT_TRUE(rect.Contains(RectType(11, 21, 20, 20)));

    const RectType beside[] = {
        {0, 30, 10, 10}, {40, 30, 10, 10}, {20, 10, 10, 10}, {20, 60, 10, 10}};
    for (const RectType& other : beside) {
        EXPECT_FALSE(rect.IntersectsWith(other)) << other.X << ',' << other.Y;
    }
}

TEST(Values, CompareEachNumber) {
    ExpectEachNumberToCount<Size, Point, Rect>();
    ExpectEachNumberToCount<SizeF, PointF, RectF>();
}

TEST(Guid, IsAllItsParts) {
    const GUID guid = {1, 2, 3, {4, 5, 6, 7, 8, 9, 10, 11}};
    GUID same = guid;
    EXPECT_TRUE(guid == same);
    EXPECT_FALSE(guid != same);
    const GUID others[] = {{0, 2, 3, {4, 5, 6, 7, 8, 9, 10, 11}},
                           {1, 0, 3, {4, 5, 6, 7, 8, 9, 10, 11}},
                           {1, 2, 0, {4, 5, 6, 7, 8, 9, 10, 11}},
                           {1, 2, 3, {0, 5, 6, 7, 8, 9, 10, 11}},
                           {1, 2, 3, {4, 5, 6, 7, 8, 9, 10, 0}}};
    for (const GUID& other : others) {
        EXPECT_TRUE(guid != other);
        EXPECT_FALSE(guid == other);
    }
}

TEST(Rect, MovesAndGrows) {
    Rect rect(10, 20, 30, 40);
    rect.Inflate(1, 2);
    EXPECT_TRUE(rect.Equals(Rect(9, 18, 32, 44)));
    rect.Inflate(Point(-1, -2));
    EXPECT_TRUE(rect.Equals(Rect(10, 20, 30, 40)));
    rect.Offset(5, -5);
    rect.Offset(Point(1, 1));
    EXPECT_TRUE(rect.Equals(Rect(16, 16, 30, 40)));
}

TEST(RectF, IsTheSameInFloats) {
    const RectF rect(PointF(0.5f, 1.0f), SizeF(2.0f, 4.0f));
    EXPECT_EQ(rect.GetRight(), 2.5f);
    EXPECT_EQ(rect.GetBottom(), 5.0f);
    EXPECT_TRUE(rect.Contains(0.5f, 1.0f));
    EXPECT_TRUE(rect.Contains(PointF(2.25f, 4.5f)));
    EXPECT_FALSE(rect.Contains(2.5f, 2.0f));
    EXPECT_TRUE(RectF().IsEmptyArea());
}

TEST(PixelFormat, TellsItsBits) {
    struct Row {
        PixelFormat format;
        UINT bits;
        bool alpha, indexed;
    };
    const Row rows[] = {
        {PixelFormat1bppIndexed, 1, false, true},
        {PixelFormat8bppIndexed, 8, false, true},
        {PixelFormat24bppRGB, 24, false, false},
        {PixelFormat32bppRGB, 32, false, false},
        {PixelFormat32bppARGB, 32, true, false},
        {PixelFormat32bppPARGB, 32, true, false},
    };
    for (const Row& row : rows) {
        EXPECT_EQ(GetPixelFormatSize(row.format), row.bits);
        EXPECT_EQ(IsAlphaPixelFormat(row.format) != 0, row.alpha);
        EXPECT_EQ(IsIndexedPixelFormat(row.format) != 0, row.indexed);
    }
}

}  // namespace
