#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <new>

#include "map_surround/picture.h"
#include "recording/expect.h"
#include "recording/lines.h"
#include "title_picture/image_file.h"

namespace {

/// While set, there is no memory for an object that may do without.
bool outOfMemory = false;

}  // namespace

void* operator new(std::size_t size, const std::nothrow_t&) noexcept {
    return outOfMemory ? nullptr : ::operator new(size);
}

namespace {

using namespace recording;

struct SizeRow {
    unsigned int width;
    unsigned int height;
    int size;
};

TEST(DrawPicture, TakesItsSizeFromTheImage) {
    const unsigned int most = std::numeric_limits<unsigned int>::max();
    const SizeRow rows[] = {
        {1000, 1000, 100},  // / 10
        {2000, 2000, 100},  // / 20
        {500, 500, 166},    // / 3
        {1000, 500, 100},   // / 5
        {500, 1000, 200},
        {767, 767, 255},  // below 768 both ways
        {767, 768, 153},  // not both, nor above
        {768, 767, 153},
        {768, 768, 153},
        {769, 768, 153},
        {768, 769, 153},
        {769, 769, 76},  // above 768 both ways
        {1920, 1920, 192},
        {1921, 1920, 192},
        {1920, 1921, 192},
        {1921, 1921, 96},  // above 1920 both ways
        {4000, 2000, 100},
        {2000, 4000, 200},
        {1000, 900, 90},
        {300, 600, 200},
        {300, 3000, 600},
        {3000, 300, 60},
        {769, 3000, 300},
        {3000, 769, 76},
        {1, 1, 0},
        {2, 3, 1},
        {3, 4, 1},
        {1, 0, 0},
        {1, most, 858993459},
        {most, most, 214748364},
    };
    for (const SizeRow& row : rows) {
        Recording recording(Mode::RecordOnly);
        recording.ScriptImageSize(row.width, row.height);
        CDrawPicture picture;
        EXPECT_TRUE(picture.Open(L"a.png"));
        EXPECT_EQ(picture.GetSize(), row.size) << row.width << " x " << row.height;
        EXPECT_EQ(picture.GetAspectRatio(),
                  static_cast<float>(row.width) / static_cast<float>(row.height))
            << row.width << " x " << row.height;
        EXPECT_EQ(picture.GetPath(), L"a.png");
        EXPECT_EQ(picture.GetNewHeight(), 0) << "until it is measured";
    }
}

TEST(DrawPicture, OpensRealFiles) {
    const ImageFolder folder;
    const SizeRow rows[] = {{30, 20, 6}, {1, 1, 0}, {10, 900, 180}, {800, 800, 80}};
    for (const SizeRow& row : rows) {
        const std::wstring path =
            folder.WriteBmp("\xC3\xA9.bmp", static_cast<int>(row.width),
                            static_cast<int>(row.height), 0x00FF00);
        CDrawPicture picture;
        EXPECT_TRUE(picture.Open(path.c_str()));
        EXPECT_EQ(picture.GetPath(), path);
        EXPECT_EQ(picture.GetSize(), row.size);
        EXPECT_EQ(picture.GetAspectRatio(),
                  static_cast<float>(row.width) / static_cast<float>(row.height));
    }
}

TEST(DrawPicture, DisposesOfTheImageBeforeItLoadsAnother) {
    const ImageFolder folder;
    const std::wstring first = folder.WriteBmp("first.bmp", 30, 20, 0xFF0000);
    const std::wstring second = folder.WriteBmp("second.bmp", 300, 100, 0x0000FF);
    Recording recording;
    std::vector<Named> expected;
    const auto quoted = [](const std::wstring& path) {
        return Quoted(std::filesystem::path(path).u8string());
    };
    {
        CDrawPicture picture;
        EXPECT_TRUE(picture.Open(first.c_str()));
        EXPECT_TRUE(picture.Open(second.c_str()));
        EXPECT_EQ(LiveObjects().size(), 1u);
        EXPECT_EQ(picture.GetPath(), second);
        EXPECT_EQ(picture.GetSize(), 33);
        EXPECT_EQ(picture.GetAspectRatio(), 3.0f);
    }
    EXPECT_TRUE(Equal({{"first", "GdipLoadImageFromFile " + quoted(first)},
                       {"height", "GdipGetImageHeight"},
                       {"width", "GdipGetImageWidth"},
                       {"first", "GdipDisposeImage image[" + quoted(first) + "]"},
                       {"second", "GdipLoadImageFromFile " + quoted(second)},
                       {"height", "GdipGetImageHeight"},
                       {"width", "GdipGetImageWidth"},
                       {"second", "GdipDisposeImage image[" + quoted(second) + "]"}},
                      recording.Lines()));
}

TEST(DrawPicture, HoldsAnEmptyImageWhereTheFileCannotBeLoaded) {
    const ImageFolder folder;
    const std::wstring missing = folder.PathOf("missing.png");
    for (const wchar_t* path : {missing.c_str(), L"", (const wchar_t*)nullptr}) {
        Surface surface;
        CDrawPicture picture;
        picture.SetSize(40);
        Recording recording;
        EXPECT_TRUE(picture.Open(path));
        EXPECT_EQ(recording.Count(), 3);
        EXPECT_EQ(picture.GetPath(), path == nullptr ? L"" : path);
        EXPECT_EQ(picture.GetSize(), 0);
        EXPECT_TRUE(std::isnan(picture.GetAspectRatio())) << "0 / 0";
        EXPECT_TRUE(NothingAlive());

        recording.Clear();
        picture.Draw(surface.Graphics(), CPoint(100, 50), 1.0);
        EXPECT_TRUE(Equal({{"to the centre", TranslateWorld(100, 50)},
                           {"turn", RotateWorld(0)},
                           {"back", TranslateWorld(-100, -50)},
                           {"image", DrawImage("null", 100, 50, 0, 0)},
                           {"reset", ResetWorld()}},
                          recording.Lines()));
        EXPECT_EQ(surface.Graphics()->GetLastStatus(), Gdiplus::InvalidParameter);

        picture.SetSize(40);
        picture.ResetAspectRatio();
        EXPECT_EQ(picture.GetSize(), 40) << "the size is the host's";

        EXPECT_TRUE(picture.Open(folder.WriteBmp("a.bmp", 30, 20, 0).c_str()));
        EXPECT_EQ(picture.GetSize(), 6);
        EXPECT_EQ(picture.GetAspectRatio(), 1.5f);
    }
}

TEST(DrawPicture, HoldsNoImageWhereThereIsNoMemoryForOne) {
    Surface surface;
    Recording recording(Mode::RecordOnly);
    recording.ScriptImageSize(30, 20);
    CDrawPicture picture;
    EXPECT_TRUE(picture.Open(L"first.png"));
    recording.Clear();

    outOfMemory = true;
    EXPECT_FALSE(picture.Open(L"second.png"));
    outOfMemory = false;
    EXPECT_TRUE(
        Equal({{"first", "GdipDisposeImage image[\"first.png\"]"}}, recording.Lines()));
    EXPECT_TRUE(NothingAlive());
    EXPECT_EQ(picture.GetPath(), L"second.png");
    EXPECT_EQ(picture.GetSize(), 6) << "as before";
    EXPECT_EQ(picture.GetAspectRatio(), 1.5f) << "as before";

    recording.Clear();
    picture.Draw(surface.Graphics(), CPoint(100, 50), 1.0);
    EXPECT_EQ(recording.Count(), 0);
    EXPECT_TRUE(picture.Open(L"third.png"));
    EXPECT_EQ(picture.GetPath(), L"third.png");
}

}  // namespace
