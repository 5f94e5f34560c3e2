#include <gdiplus.h>
#include <gtest/gtest.h>
#include <malloc.h>
#include <sys/resource.h>

#include <algorithm>
#include <cwchar>
#include <string>
#include <thread>
#include <vector>

#include "portable/pixels.h"

using namespace Gdiplus;

namespace {

TEST(FontFamily, OfAnUnknownNameIsNotFound) {
    for (const wchar_t* name : {L"No Such Family", L"", L"Arial Arial", L"\u5730"}) {
        const FontFamily family(name);
        EXPECT_EQ(family.GetLastStatus(), FontFamilyNotFound);
        EXPECT_FALSE(family.IsAvailable());
        const Font font(&family, 12.0f);
        EXPECT_FALSE(font.IsAvailable());
    }
}

TEST(FontFamily, OfTheSameMeasuresCountsAsFound) {
    struct Row {
        const wchar_t* name;
        const wchar_t* found;
    };
    for (const Row& row :
         {Row{L"Arial", L"Liberation Sans"}, Row{L"arial", L"Liberation Sans"},
          Row{L"Times New Roman", L"Liberation Serif"},
          Row{L"Courier New", L"Liberation Mono"},
          Row{L"Liberation Sans", L"Liberation Sans"}}) {
        const FontFamily family(row.name);
        EXPECT_EQ(family.GetLastStatus(), Ok) << row.name;
        WCHAR name[LF_FACESIZE] = {};
        EXPECT_EQ(family.GetFamilyName(name), Ok);
        EXPECT_STREQ(name, row.found);
    }
    EXPECT_TRUE(FontFamily(L"sans-serif").IsAvailable());
}

class Writing : public ::testing::Test {
protected:
    Writing() { graphics.Clear(Color(0xFFFFFFFF)); }

    std::vector<ARGB> Drawn(const wchar_t* text, const Font& of) {
        graphics.Clear(Color(0xFFFFFFFF));
        graphics.DrawString(text, -1, &of, PointF(5.0f, 5.0f), &brush);
        std::vector<ARGB> pixels;
        for (int i = 0; i < 120 * 40; ++i) {
            pixels.push_back(PixelAt(bitmap, i % 120, i / 120));
        }
        return pixels;
    }
    REAL Width(const wchar_t* text, const Font& of) {
        RectF bounds;
        graphics.MeasureString(text, -1, &of, PointF(), &bounds);
        return bounds.Width;
    }

    Bitmap bitmap{120, 40};
    Graphics graphics{&bitmap};
    SolidBrush brush{Color(0xFF000000)};
    Font font{L"Arial", 16.0f, FontStyleRegular, UnitPixel};
};

TEST_F(Writing, WithoutSmoothingHasTwoColours) {
    const auto shades = [&] {
        int count = 0;
        for (const ARGB pixel : Drawn(L"North", font)) {
            count += pixel != 0xFF000000 && pixel != 0xFFFFFFFF;
        }
        return count;
    };
    EXPECT_GT(shades(), 50);
    graphics.SetTextRenderingHint(TextRenderingHintSingleBitPerPixelGridFit);
    EXPECT_EQ(shades(), 0);
}

TEST_F(Writing, InPointsIsAsLargeAsTheResolutionMakesIt) {
    const Font points(L"Arial", 24.0f);
    const REAL at96 = Width(L"North", points);
    bitmap.SetResolution(300.0f, 300.0f);
    Graphics fine(&bitmap);
    RectF bounds;
    fine.MeasureString(L"North", -1, &points, PointF(), &bounds);
    EXPECT_NEAR(bounds.Width / at96, 300.0 / 96.0, 0.05);
    // Five letters of 722, 556, 333, 278 and 556 thousandths of an em of 32 pixels.
    EXPECT_NEAR(at96, 2.445 * 32, 3.0);
}

TEST_F(Writing, ChineseInALatinFontUsesAnotherFace) {
    EXPECT_NE(Drawn(L"\x5730", font), Drawn(L"\x56FE", font)) << "and not two boxes";
    EXPECT_EQ(Width(L"\x5730\x56FE", font), 32.0f);
    StringFormat none(StringFormatFlagsNoFontFallback);
    RectF bounds;
    graphics.MeasureString(L"\x5730", -1, &font, RectF(), &none, &bounds);
    EXPECT_NE(bounds.Width, 16.0f) << "the box of a missing character";
}

TEST_F(Writing, GoesFromRightToLeftWhereItsLettersDo) {
    // The same letters stand in the order in which they are read: the first on the right.
    const std::vector<ARGB> hebrew = Drawn(L"\x05D0\x05D5", font);
    const std::vector<ARGB> alone = Drawn(L"\x05D5", font);
    const auto leftmost = [](const std::vector<ARGB>& pixels) {
        for (int x = 0; x < 120; ++x) {
            std::vector<ARGB> column;
            for (int y = 0; y < 40; ++y) {
                column.push_back(pixels[static_cast<std::size_t>(y * 120 + x)]);
            }
            if (column != std::vector<ARGB>(40, 0xFFFFFFFF)) {
                return column;
            }
        }
        return std::vector<ARGB>();
    };
    EXPECT_EQ(leftmost(hebrew), leftmost(alone)) << "the second letter is on the left";
}

TEST_F(Writing, BreaksLinesBetweenWordsAndWithinLongOnes) {
    struct Row {
        const wchar_t* text;
        REAL width;
        int lines;
    };
    // Each letter m is 13 pixels wide, a space 4, a character of Chinese 16.
    for (const Row& row :
         {Row{L"mm mm mm", 100.0f, 1}, Row{L"mm mm mm", 60.0f, 2},
          Row{L"mm mm mm", 30.0f, 3}, Row{L"mmmm", 30.0f, 2}, Row{L"mm\nmm", 100.0f, 2},
          Row{L"m\r\n\r\nm", 100.0f, 3}, Row{L"\x5730\x56FE\x5730\x56FE", 40.0f, 2},
          Row{L"mm mm mm", 0.0f, 1}}) {
        RectF bounds;
        INT characters = 0;
        INT lines = 0;
        graphics.MeasureString(row.text, -1, &font, RectF(0, 0, row.width, 0), nullptr,
                               &bounds, &characters, &lines);
        EXPECT_EQ(lines, row.lines) << row.width;
        EXPECT_EQ(characters, static_cast<INT>(std::wcslen(row.text)));
        if (row.text[0] == 'm') {
            EXPECT_EQ(bounds.Height, 19.0f * static_cast<REAL>(row.lines))
                << "15 and 4 a line";
        }
    }
}

TEST_F(Writing, StaysInItsBoxUnlessItMayLeaveIt) {
    const RectF box(5.0f, 5.0f, 20.0f, 0.0f);
    StringFormat oneLine(StringFormatFlagsNoWrap);
    StringFormat free(StringFormatFlagsNoWrap | StringFormatFlagsNoClip);
    const auto reaches = [&](const StringFormat& format) {
        graphics.Clear(Color(0xFFFFFFFF));
        graphics.DrawString(L"North Sea", -1, &font, box, &format, &brush);
        int right = 0;
        for (int i = 0; i < 120 * 40; ++i) {
            right = PixelAt(bitmap, i % 120, i / 120) != 0xFFFFFFFF
                        ? std::max(right, i % 120)
                        : right;
        }
        return right;
    };
    EXPECT_EQ(reaches(oneLine), 24);
    EXPECT_GT(reaches(free), 60);
}

TEST_F(Writing, LargeTextIsWrittenToo) {
    const Font large(L"Arial", 5000.0f, FontStyleRegular, UnitPixel);
    EXPECT_EQ(graphics.DrawString(L"I", -1, &large, PointF(-600.0f, -3000.0f), &brush),
              Ok);
    EXPECT_EQ(PixelAt(bitmap, 60, 20), 0xFF000000) << "within the letter's stroke";
    EXPECT_NEAR(Width(L"I", large), 0.278 * 5000, 1.0);
}

// FreeType would give up on the face for good where its em had more than 16 bits.
TEST_F(Writing, UnderAnEnlargingWorldLeavesTheFontAsItIs) {
    for (const REAL scale : {25.0f, 4000.0f, 5000.0f}) {
        graphics.RotateTransform(30.0f);
        graphics.ScaleTransform(scale, scale);
        EXPECT_EQ(graphics.DrawString(L"N", -1, &font, PointF(), &brush),
                  scale < 5000.0f ? Ok : InvalidParameter);
        graphics.ResetTransform();
        graphics.RotateTransform(30.0f);
        graphics.Clear(Color(0xFFFFFFFF));
        EXPECT_EQ(graphics.DrawString(L"North", -1, &font, PointF(20, 0), &brush), Ok);
        graphics.ResetTransform();
        EXPECT_GT(PixelsOtherThan(bitmap, 0xFFFFFFFF), 50) << scale;
    }
}

TEST_F(Writing, InSeveralThreadsIsTheSameAsInOne) {
    const auto write = [](int seed) {
        Bitmap page(200, 60);
        Graphics on(&page);
        const SolidBrush ink(Color(0xFF000000));
        std::vector<ARGB> pixels;
        for (int i = 0; i < 60; ++i) {
            const FontFamily family(i % 2 == 0 ? L"Arial" : L"Times New Roman");
            const Font pen(&family, 10.0f + static_cast<REAL>(i % 7), i % 4, UnitPixel);
            const std::wstring text = std::to_wstring(seed + i) + L" \x5730\x56FE \x0633";
            on.DrawString(text.c_str(), -1, &pen, PointF(2.0f, 2.0f), &ink);
            GraphicsPath path;
            path.AddString(text.c_str(), -1, &family, 0, 14.0f, PointF(), nullptr);
            on.FillPath(&ink, &path);
        }
        for (int i = 0; i < 200 * 60; ++i) {
            pixels.push_back(PixelAt(page, i % 200, i / 200));
        }
        return pixels;
    };
    std::vector<ARGB> found[4];
    std::vector<std::thread> threads;
    for (int i = 0; i < 4; ++i) {
        threads.emplace_back([&, i] { found[i] = write(i % 2 == 0 ? 1000 : 2000); });
    }
    for (std::thread& thread : threads) {
        thread.join();
    }
    // Afterwards: what the threads share, if anything, they were the first to need.
    const std::vector<ARGB> expected[] = {write(1000), write(2000)};
    for (int i = 0; i < 4; ++i) {
        EXPECT_EQ(found[i], expected[i % 2]) << i;
    }
}

TEST_F(Writing, OfNewTextsLeavesMemoryWhereItIs) {
    const auto write = [&](int from, int count) {
        for (int i = from; i < from + count; ++i) {
            const std::wstring text = std::to_wstring(i);
            graphics.DrawString(text.c_str(), -1, &font, PointF(5.0f, 5.0f), &brush);
        }
    };
    write(0, 20000);  // more than are kept
    const std::size_t before = mallinfo2().uordblks;
    write(20000, 20000);
    const std::size_t after = mallinfo2().uordblks;
    EXPECT_LT(after, before + 200000);
}

/// No file can be opened meanwhile.
struct WithoutFiles {
    WithoutFiles() {
        getrlimit(RLIMIT_NOFILE, &before);
        const rlimit none = {0, before.rlim_max};
        setrlimit(RLIMIT_NOFILE, &none);
    }
    ~WithoutFiles() { setrlimit(RLIMIT_NOFILE, &before); }

    rlimit before = {};
};

// A thread finds its fonts anew, once Fontconfig has read its own files.
TEST(Fonts, ThatCannotBeOpenedNowAreToldAndOpenedLater) {
    ASSERT_TRUE(FontFamily(L"Arial").IsAvailable());
    std::thread([] {
        Bitmap bitmap(60, 40);
        Graphics graphics(&bitmap);
        const SolidBrush ink(Color(0xFF000000));
        const FontFamily family(L"Arial");
        const Font font(L"Arial", 20.0f);
        {
            const WithoutFiles without;
            EXPECT_EQ(family.GetEmHeight(FontStyleBold), 0);
            EXPECT_EQ(family.GetLastStatus(), OutOfMemory);
            EXPECT_EQ(font.GetHeight(96.0f), 0.0f);
            EXPECT_EQ(font.GetLastStatus(), OutOfMemory);
            EXPECT_EQ(graphics.DrawString(L"North", -1, &font, PointF(), &ink),
                      OutOfMemory);
            EXPECT_EQ(PixelsOtherThan(bitmap, 0), 0);
        }
        EXPECT_EQ(family.GetEmHeight(FontStyleBold), 2048);
        EXPECT_GT(font.GetHeight(96.0f), 0.0f);
        EXPECT_EQ(graphics.DrawString(L"North", -1, &font, PointF(), &ink), Ok);
        EXPECT_GT(PixelsOtherThan(bitmap, 0), 0);
    }).join();
}

}  // namespace
