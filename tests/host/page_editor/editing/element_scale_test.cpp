#include "page_editor/editing/element_scale.h"

#include <gtest/gtest.h>

#include "page/document/item_type.h"
#include "page/document/page_text.h"
#include "page_editor/editing/page_document.h"

namespace {

using page_editor::ElementScale;

double NumberOf(const host::PageItem& item, const char* name) {
    const host::PropertyValue value =
        host::FindProperty(host::TypeOf(item)->properties, name)->read(item);
    const auto* const integer = std::get_if<std::int32_t>(&value);
    return integer != nullptr ? *integer : std::get<double>(value);
}

/// An item of 200 by 100.
host::PageItem Item(const std::string& properties) {
    return host::ReadItem("{" + properties +
                          R"(,"frame":{"left":0,"top":100,"width":200,"height":100}})");
}

TEST(ElementScale, GivesATitleLargerType) {
    host::PageItem title =
        Item(R"("type":"title","text":"Abc","font":"Arial","fontSize":20,"offsetX":4)");
    const double size = NumberOf(title, "size");
    const ElementScale scale(title);
    EXPECT_TRUE(scale.HasProportions());
    scale.Apply(title, {0.0, 0.0, 400.0, 200.0});
    EXPECT_EQ(NumberOf(title, "fontSize"), 40.0);
    EXPECT_EQ(NumberOf(title, "offsetX"), 8.0);
    EXPECT_NEAR(NumberOf(title, "size"), 2.0 * size, 2.0);
    scale.Apply(title, {0.0, 0.0, 200.0, 100.0});  // from the start again, not from there
    EXPECT_EQ(NumberOf(title, "fontSize"), 20.0);
    EXPECT_EQ(NumberOf(title, "size"), size);
}

TEST(ElementScale, LeavesAScaleBarTrue) {
    host::PageItem bar = Item(
        R"("type":"scale-bar-line","divisionLength":40,"divisionValue":2000,"size":30)");
    ElementScale(bar).Apply(bar, {0.0, 0.0, 300.0, 150.0});
    EXPECT_EQ(NumberOf(bar, "divisionLength"), 60.0);
    EXPECT_EQ(NumberOf(bar, "divisionValue"), 3000.0);
    EXPECT_EQ(NumberOf(bar, "size"), 45.0);
}

TEST(ElementScale, LeavesNorthArrowsTheSmallerFactor) {
    host::PageItem arrow = Item(R"("type":"north-arrow-one","size":80)");
    const ElementScale scale(arrow);
    EXPECT_FALSE(scale.HasProportions());
    scale.Apply(arrow, {0.0, 0.0, 600.0, 150.0});
    EXPECT_EQ(NumberOf(arrow, "size"), 120.0);
    scale.Apply(arrow, {0.0, 0.0, 2.0, 2.0});
    EXPECT_EQ(NumberOf(arrow, "size"), 1.0);  // never to nothing
}

TEST(ElementScale, OnlyStretchesAnEmptyFrame) {
    host::PageItem frame = Item(R"("type":"frame")");
    const ElementScale scale(frame);
    EXPECT_FALSE(scale.HasElement());
    scale.Apply(frame, {1.0, 2.0, 30.0, 40.0});
    EXPECT_EQ(host::FrameOf(frame).GetExtent().GetWidth(), 29.0);
}

}  // namespace
