// What is said of every property of every type, with changes made through the classes.

#include <gmock/gmock.h>

#include <algorithm>
#include <cmath>
#include <memory>
#include <nlohmann/json.hpp>
#include <random>

#include "map_surround/map_surround.h"
#include "page/document/changes.h"
#include "page/document/document_test.h"
#include "page/document/item_type.h"
#include "page/document/page_error.h"
#include "page/document/page_text.h"
#include "page/element_of.h"
#include "system/errors.h"

namespace {

using host::ItemType;
using host::ItemTypes;
using host::PageItem;
using host_tests::AllChangesOf;
using host_tests::Change;
using host_tests::ChangesOf;
using host_tests::FrameChanges;
using host_tests::MakeVisible;
using host_tests::PixelsOf;
using nlohmann::json;

using PropertyTable = host_tests::DocumentTest;

std::vector<std::string> NamesOf(const std::vector<host::Property>& properties) {
    std::vector<std::string> names;
    for (const host::Property& property : properties) {
        names.emplace_back(property.name);
    }
    return names;
}

std::vector<std::string> NamesOf(const std::vector<Change>& changes) {
    std::vector<std::string> names;
    for (const Change& change : changes) {
        names.push_back(change.property);
    }
    return names;
}

/// Whether two texts differ in a member ("left" of "frame").
bool Differs(const std::string& a, const std::string& b, const std::string& object,
             const std::string& member) {
    const auto valueIn = [&](const std::string& text) {
        const json item = json::parse(text);
        return (object.empty() ? item : item.at(object)).at(member);
    };
    return valueIn(a) != valueIn(b);
}

TEST_F(PropertyTable, HasAChangeForEveryPropertyAndAPropertyForEveryChange) {
    EXPECT_THAT(NamesOf(FrameChanges()),
                ::testing::UnorderedElementsAreArray(NamesOf(host::FrameProperties())));
    for (const ItemType& type : ItemTypes()) {
        EXPECT_THAT(NamesOf(ChangesOf(type.name, folder.Path())),
                    ::testing::UnorderedElementsAreArray(NamesOf(type.properties)))
            << type.name;
    }
}

TEST_F(PropertyTable, EveryChangeComesBackAndTakesTheSameBytes) {
    for (const ItemType& type : ItemTypes()) {
        const auto check = [&](const Change& change, const std::string& object) {
            SCOPED_TRACE(std::string(type.name) + " " + object + " " + change.property);
            PageItem item = type.make();
            EXPECT_FALSE(change.isMade(item)) << "changes nothing";
            const std::string before = WriteItem(item);
            change.make(item);
            const std::string text = WriteItem(item);
            EXPECT_TRUE(Differs(before, text, object, change.property)) << text;
            const PageItem again = host::ReadItem(text);
            EXPECT_EQ(host::TypeOf(again), &type);
            EXPECT_TRUE(change.isMade(again)) << text;
            EXPECT_EQ(WriteItem(again), text);
        };
        for (const Change& change : FrameChanges()) {
            check(change, "frame");
        }
        for (const Change& change : ChangesOf(type.name, folder.Path())) {
            check(change, "");
        }
    }
}

TEST_F(PropertyTable, AllChangesAtOnceComeBack) {
    // Changes of one box or one offset undo each other.
    const auto isOfABox = [](const Change& change) {
        return change.property == "left" || change.property == "top" ||
               change.property == "width" || change.property.rfind("offset", 0) == 0;
    };
    for (const ItemType& type : ItemTypes()) {
        PageItem item = type.make();
        std::vector<Change> changes = AllChangesOf(type.name, folder.Path());
        changes.erase(std::remove_if(changes.begin(), changes.end(), isOfABox),
                      changes.end());
        for (const Change& change : changes) {
            change.make(item);
        }
        const PageItem again = host::ReadItem(WriteItem(item));
        for (const Change& change : changes) {
            EXPECT_TRUE(change.isMade(again)) << type.name << " " << change.property;
        }
        EXPECT_EQ(WriteItem(again), WriteItem(item));
    }
}

TEST_F(PropertyTable, WhatIsReadBackIsDrawnTheSame) {
    for (const ItemType& type : ItemTypes()) {
        const bool isMap = type.name == std::string("map");  // of files that do not exist
        for (const Change& change :
             isMap ? FrameChanges() : AllChangesOf(type.name, folder.Path())) {
            PageItem item = MakeVisible(type, folder.Path());
            OpenRasters(item, store);
            change.make(item);
            host::MeasureItem(item);
            PageItem again = host::ReadItem(WriteItem(item));
            OpenRasters(item, store);
            OpenRasters(again, store);
            EXPECT_TRUE(PixelsOf(again) == PixelsOf(item))
                << type.name << " " << change.property;
        }
    }
}

TEST_F(PropertyTable, EveryNumberAtTheEndsOfItsRangeIsDrawnUnlessItIsNoFontsSize) {
    std::vector<std::string> refused;
    for (const ItemType& type : ItemTypes()) {
        std::vector<host::Property> properties = type.properties;
        properties.insert(properties.end(), host::FrameProperties().begin(),
                          host::FrameProperties().end());
        for (const host::Property& property : properties) {
            for (const double end : {property.range.lowest, property.range.highest}) {
                PageItem item = MakeVisible(type, folder.Path());
                if (property.kind == host::PropertyKind::Integer) {
                    property.write(item, static_cast<std::int32_t>(end));
                } else if (property.range.lowest < property.range.highest) {
                    property.write(item, end);
                } else {
                    continue;
                }
                SCOPED_TRACE(std::string(type.name) + " " + property.name);
                PageItem again = host::ReadItem(WriteItem(item));
                OpenRasters(again, store);
                EXPECT_EQ(WriteItem(host::ReadItem(WriteItem(again))), WriteItem(again));
                try {
                    PixelsOf(again);
                } catch (const host::NamedError&) {
                    refused.push_back(std::string(type.name) + " " + property.name + " " +
                                      std::to_string(end));
                }
            }
        }
    }
    std::vector<std::string> expected = {
        "legend fileNameSize 0.000000", "legend size 1000000.000000",
        "title fontSize 0.000000", "numeric-scale fontSize 0.000000"};
    for (const ItemType& type : ItemTypes()) {
        const std::string name = type.name;
        if (name.rfind("north-arrow", 0) == 0 || name.rfind("scale-bar", 0) == 0) {
            expected.push_back(name + " size 0.000000");
            expected.push_back(name + " size 1000000.000000");
        }
    }
    EXPECT_THAT(refused, ::testing::UnorderedElementsAreArray(expected));
}

TEST_F(PropertyTable, ABoxOfAnyNumbersKeepsEveryDigit) {
    std::mt19937 random(1);
    std::uniform_real_distribution<double> anywhere(-2000.0, 2000.0);
    std::uniform_real_distribution<double> exponent(-9.0, 4.0);
    for (int i = 0; i < 5'000; ++i) {
        const double left = anywhere(random);
        const double bottom = anywhere(random);
        const CBoundingBox box(left, bottom, left + std::pow(10.0, exponent(random)),
                               bottom + std::pow(10.0, exponent(random)));
        PageItem item = host::FindItemType("frame")->make();
        host::FrameOf(item).SetExtent(box);
        const PageItem again = host::ReadItem(WriteItem(item));
        const CBoundingBox read = host::FrameOf(again).GetExtent();
        ASSERT_EQ(read.TopLeft().x, box.TopLeft().x);
        ASSERT_EQ(read.TopLeft().y, box.TopLeft().y);
        ASSERT_EQ(read.GetWidth(), box.GetWidth()) << left;
        ASSERT_EQ(read.GetHeight(), box.GetHeight()) << bottom;
    }
}

TEST_F(PropertyTable, ATitleOfNothingHasUnknownProportions) {
    PageItem item = host::FindItemType("title")->make();
    host::MeasureItem(item);
    const std::string text = WriteItem(item);
    EXPECT_THAT(text, ::testing::HasSubstr("\"aspectRatio\":null"));
    const PageItem again = host::ReadItem(text);
    EXPECT_TRUE(std::isnan(host::ElementOf<CMapTitle>(again)->GetAspectRatio()));
    EXPECT_EQ(WriteItem(again), text);
}

/// Frames that somebody's own code might put there: of no class that a page file knows,
/// or of one that does not know what its element needs.
TEST_F(PropertyTable, AFrameOfAnotherClassIsOfNoTypeAndNotWritten) {
    auto wrong = std::make_unique<host::PlacedFrame>(std::make_unique<CScaleLine>());
    for (const PageItem& item :
         {PageItem(std::make_unique<CSurroundFrame>()),
          PageItem(std::unique_ptr<CSurroundFrame>(std::move(wrong)))}) {
        EXPECT_EQ(host::TypeOf(item), nullptr);
        EXPECT_THROW(WriteItem(item), host::PageError);
    }
}

}  // namespace
