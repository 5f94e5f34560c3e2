// Every allocation of every setter, copy and assignment fails: the element is then as it
// was before.

#include <gtest/gtest.h>

#include <filesystem>
#include <functional>
#include <memory>
#include <new>
#include <string>
#include <vector>

#include "legend/fake_sources.h"
#include "map_surround/map_surround.h"
#include "memory/allocations.h"
#include "page/catalogue.h"
#include "recording/expect.h"
#include "recording/lines.h"
#include "subjects/stage.h"
#include "subjects/subjects.h"

namespace {

using subjects::kLongText;
using subjects::Stage;

/// What an element holds that is neither drawn nor measured.
std::string HiddenTextOf(const CMapSurround&) { return {}; }
std::string HiddenTextOf(const CDrawPicture& picture) {
    return std::filesystem::path(picture.GetPath()).u8string();
}

/// Everything observable about an element: what it answers, and what a copy of it draws.
template <typename Element>
std::vector<std::string> PortraitOf(const Element& element) {
    recording::Surface surface(120, 80);
    Element copy(element);
    std::vector<std::string> lines{std::to_string(copy.GetItemType()),
                                   std::to_string(copy.GetFrontColor().GetValue()),
                                   recording::Number(copy.GetAngle()),
                                   HiddenTextOf(copy)};
    const Stage stage;
    for (int round = 0; round < 2; ++round) {
        lines.push_back(std::to_string(copy.GetSize()));
        lines.push_back(recording::Number(copy.GetAspectRatio()));
        copy.Draw(surface.Graphics(), CPoint(60, 40), 1.25);
        copy.ResetAspectRatio();
    }
    for (const recording::Call& call : stage.Calls()) {
        lines.push_back(call.line);
    }
    return lines;
}

/// Something a host does to an element.
template <typename Element>
struct Change {
    const char* name;
    std::function<void(Element&)> make;
};

template <typename Element>
std::unique_ptr<Element> Changed(std::unique_ptr<Element> element,
                                 const Change<Element>& change) {
    change.make(*element);
    return element;
}

/// @param elements makes the element that is changed, the same each time
template <typename Element>
void ExpectAllOrNothing(const std::function<std::unique_ptr<Element>()>& elements,
                        const std::vector<Change<Element>>& changes) {
    const int aliveBefore = allocations::Alive();
    for (const Change<Element>& change : changes) {
        const std::vector<std::string> before = PortraitOf(*elements());
        const std::vector<std::string> after = PortraitOf(*Changed(elements(), change));
        int failed = 0;
        for (bool asked = true; asked && failed < 10;) {
            const std::unique_ptr<Element> element = elements();
            const int aliveThen = allocations::Alive();
            bool throws = false;
            {
                const allocations::Watch watch(failed + 1);
                try {
                    change.make(*element);
                } catch (const std::bad_alloc&) {
                    throws = true;
                }
                asked = watch.Count() > failed;
            }
            EXPECT_EQ(throws, asked) << change.name;
            EXPECT_TRUE(!throws || allocations::Alive() == aliveThen) << change.name;
            EXPECT_EQ(PortraitOf(*element), throws ? before : after) << change.name;
            change.make(*element);
            EXPECT_EQ(PortraitOf(*element), after) << change.name << ", once more";
            failed += asked ? 1 : 0;
        }
        EXPECT_GT(failed, 0) << change.name << " asks for no memory";
        EXPECT_EQ(allocations::Alive(), aliveBefore) << change.name;
    }
}

/// The changes that every class has.
template <typename Element>
std::vector<Change<Element>> CopiesOf(const Element& other) {
    return {{"copying", [](Element& element) { Element copy(element); }},
            {"assigning", [&other](Element& element) { element = other; }}};
}

template <typename Element>
std::vector<Change<Element>> operator+(std::vector<Change<Element>> some,
                                       const std::vector<Change<Element>>& more) {
    some.insert(some.end(), more.begin(), more.end());
    return some;
}

/// The element of a subject, with what it explains.
template <typename Element>
std::unique_ptr<Element> Take(const std::string& family, const std::string& name) {
    static std::vector<std::unique_ptr<subjects::Sources>> explained;
    for (const subjects::Row& row : subjects::Rows()) {
        if (row.family == family && row.name == name) {
            const std::unique_ptr<subjects::Subject> subject = row.make();
            explained.push_back(std::move(subject->sources));
            return host::TakeAs<Element>(subject->element);
        }
    }
    return nullptr;
}

const std::wstring kLongFamily = L"Times New Roman";

TEST(Changes, OfATitleAreMadeOrNot) {
    const auto other = Take<CMapTitle>("Title", "long and turned");
    ExpectAllOrNothing<CMapTitle>(
        [] { return Take<CMapTitle>("Title", "of a family with a long name"); },
        CopiesOf(*other) +
            std::vector<Change<CMapTitle>>{
                {"text", [](CMapTitle& title) { title.SetFontValue(kLongText); }},
                {"family", [](CMapTitle& title) { title.SetFontStyle(kLongFamily); }},
                {"asking", [](CMapTitle& title) {
                     title.GetFontValue();
                     title.GetFontStyle();
                 }}});
}

TEST(Changes, OfALegendAreMadeOrNot) {
    fakes::Raster raster(L"raster.tif", DisplayRGB);
    const auto other = Take<CMapLegend>("Legend", "of a crowd");
    ExpectAllOrNothing<CMapLegend>(
        [] { return Take<CMapLegend>("Legend", "without what it lists"); },
        CopiesOf(*other) +
            std::vector<Change<CMapLegend>>{
                {"text", [](CMapLegend& legend) { legend.SetTitleValue(kLongFamily); }},
                {"family", [](CMapLegend& legend) { legend.SetTitle(kLongFamily); }},
                {"names", [](CMapLegend& legend) { legend.SetFileName(kLongFamily); }},
                {"sources",
                 [&](CMapLegend& legend) {
                     legend.SetDataSouce({&raster, &raster});
                 }},
                {"caption", [](CMapLegend& legend) { legend.SetBandCaption(kLongText); }},
                {"shown",
                 [](CMapLegend& legend) {
                     legend.SetShownSources({{kLongText}, {kLongText, false}});
                 }},
                {"asking", [](CMapLegend& legend) {
                     legend.GetShownSources();
                     legend.GetTitleValue();
                     legend.GetTitle();
                     legend.GetFileName();
                 }}});
}

template <typename Bar>
void ExpectBarAllOrNothing(const std::string& family) {
    const auto other = Take<Bar>(family, "with long labels and the unit before");
    other->SetUnitsName(kLongText);
    ExpectAllOrNothing<Bar>(
        [&] { return Take<Bar>(family, "plain"); },
        CopiesOf(*other) +
            std::vector<Change<Bar>>{
                {"unit", [](Bar& bar) { bar.SetUnitsName(kLongText); }},
                {"unit in Chinese", [](Bar& bar) { bar.SetUnitsName(L"Kilometre"); }},
                {"asking", [](Bar& bar) { bar.GetUnitsName(); }}});
}

TEST(Changes, OfABarAreMadeOrNot) {
    host::VisitStyles<CScaleBarBase>([](const auto& style) {
        SCOPED_TRACE(style.name);
        ExpectBarAllOrNothing<typename std::decay_t<decltype(style)>::Class>(
            style.className + 1);
    });
}

const std::wstring kLongPath = L"a folder/a file name of some length.png";

/// A picture with a path and no image, of which a host may destroy as many copies as it
/// made: the one whose image could not be allocated.
std::unique_ptr<CDrawPicture> PictureWithoutImage(const std::wstring& path, int variant) {
    const Stage stage;
    auto picture = std::make_unique<CDrawPicture>();
    for (int n = 1; picture->GetPath() != path; ++n) {
        const allocations::Watch watch(n);
        try {
            picture->Open(path.c_str());
        } catch (const std::bad_alloc&) {
            continue;
        }
    }
    picture->SetSize(50 + variant);
    picture->SetAngle(30.0f + static_cast<float>(variant));
    return picture;
}

TEST(Changes, OfAPictureAreMadeOrNot) {
    const std::unique_ptr<CDrawPicture> other = PictureWithoutImage(kLongPath, 2);
    ExpectAllOrNothing<CDrawPicture>(
        [] { return PictureWithoutImage(L"the first picture.png", 1); },
        CopiesOf(*other) +
            std::vector<Change<CDrawPicture>>{
                {"asking", [](CDrawPicture& picture) { picture.GetPath(); }}});
}

struct Opening {
    bool threw = false;
    bool opened = false;
    bool asked = false;  ///< for as many allocations as were to fail
};

Opening OpenWithout(int allocation, CDrawPicture& picture, const std::wstring& path) {
    Opening result;
    const allocations::Watch watch(allocation);
    try {
        result.opened = picture.Open(path.c_str());
    } catch (const std::bad_alloc&) {
        result.threw = true;
    }
    result.asked = watch.Count() >= allocation;
    return result;
}

// The path is stored first, and is all that can throw; then the image held is disposed
// of, and the new one may not be allocated. On Linux a long path is converted in memory
// of its own, without which the image is there and was not loaded.
TEST(Changes, OfAPicturesFileAreToldOrThrown) {
    for (const std::wstring& path :
         {std::wstring(L"b"), kLongPath, std::wstring(kLongText)}) {
        int refused = 0;
        bool asked = true;
        for (int n = 1; asked; ++n) {
            const Stage stage({recording::Mode::Silent, true, {}});
            CDrawPicture picture;
            ASSERT_TRUE(picture.Open(L"a"));
            const int size = picture.GetSize();
            const Opening opening = OpenWithout(n, picture, path);
            asked = opening.asked;
            EXPECT_EQ(picture.GetPath(), opening.threw ? L"a" : path);
            const bool imageAlive = opening.threw || opening.opened;
            EXPECT_LE(recording::LiveObjects().size(), imageAlive ? 1u : 0u);
            if (opening.threw || !opening.opened) {
                EXPECT_EQ(picture.GetSize(), size);
                EXPECT_EQ(recording::LiveObjects().size(), opening.threw ? 1u : 0u);
                refused += opening.threw ? 0 : 1;
            }
            EXPECT_TRUE(picture.Open(L"a"));
            EXPECT_EQ(picture.GetSize(), size);
            EXPECT_EQ(recording::LiveObjects().size(), 1u);
        }
        EXPECT_EQ(refused, 1) << "times that the image could not be allocated";
        EXPECT_EQ(allocations::Alive(), 0);
        EXPECT_TRUE(recording::NothingAlive());
    }
}

}  // namespace
