#include <gdiplus.h>
#include <gtest/gtest.h>

#include <limits>
#include <vector>

#include "portable/pixels.h"

using namespace Gdiplus;

namespace {

constexpr ARGB kFaint = 0x05C81E0A;  // hardly there, and not to be lost

/// A bitmap over memory of the test's own.
struct Memory {
    Memory(PixelFormat format, int width, int height, ARGB color = 0)
        : pixels(static_cast<std::size_t>(width * height), color),
          bitmap(width, height, 4 * width, format,
                 reinterpret_cast<BYTE*>(pixels.data())) {}

    std::vector<ARGB> pixels;
    Bitmap bitmap;
    Graphics graphics{&bitmap};
};

TEST(StraightPixels, AreDrawnInPlace) {
    Memory memory(PixelFormat32bppARGB, 4, 2);
    const SolidBrush half(Color(0x80FF8000));
    EXPECT_EQ(memory.graphics.FillRectangle(&half, 1, 0, 2, 1), Ok);
    // Straight, as it was asked for, and seen without a lock.
    EXPECT_EQ(memory.pixels,
              (std::vector<ARGB>{0, 0x80FF8000, 0x80FF8000, 0, 0, 0, 0, 0}));
}

TEST(StraightPixels, ThatAreNotTouchedStayAsTheyAre) {
    Memory memory(PixelFormat32bppARGB, 40, 30, kFaint);
    memory.pixels[3] = 0x00FFFFFF;  // clear, and white
    const Pen pen(Color(0xFF000000));
    EXPECT_EQ(memory.graphics.DrawLine(&pen, 0, 5, 39, 29), Ok);
    EXPECT_EQ(memory.pixels[3], 0x00FFFFFFu);
    EXPECT_EQ(memory.pixels[39], kFaint);
    EXPECT_EQ(memory.pixels[40 * 5], 0xFF000000);
}

TEST(StraightPixels, KeepWhatTheHostWritesBetweenDrawings) {
    Memory memory(PixelFormat32bppARGB, 4, 1, 0xFFFFFFFF);
    const SolidBrush red(Color(0xFFFF0000));
    memory.graphics.FillRectangle(&red, 0, 0, 1, 1);
    memory.pixels[1] = kFaint;
    memory.graphics.FillRectangle(&red, 2, 0, 1, 1);
    BitmapData data;
    ASSERT_EQ(
        memory.bitmap.LockBits(nullptr, ImageLockModeRead, PixelFormat32bppARGB, &data),
        Ok);
    memory.bitmap.UnlockBits(&data);
    EXPECT_EQ(memory.pixels,
              (std::vector<ARGB>{0xFFFF0000, kFaint, 0xFFFF0000, 0xFFFFFFFF}));
}

TEST(StraightPixels, BlendAsPremultipliedOnesDo) {
    for (const ARGB under : {0u, 0x40FF0000u, 0xFF00FF00u, 0x01FFFFFFu}) {
        for (const ARGB over : {0x80FF8000u, 0xFF123456u, 0x10000000u}) {
            Memory straight(PixelFormat32bppARGB, 2, 1);
            Memory premultiplied(PixelFormat32bppPARGB, 2, 1);
            const SolidBrush brush{Color(over)};
            for (Memory* memory : {&straight, &premultiplied}) {
                memory->bitmap.SetPixel(0, 0, Color(under));
                memory->graphics.FillRectangle(&brush, 0, 0, 1, 1);
            }
            EXPECT_EQ(PixelAt(straight.bitmap, 0, 0), PixelAt(premultiplied.bitmap, 0, 0))
                << std::hex << over << " over " << under;
        }
    }
}

TEST(StraightPixels, ThatWereOpaqueMayBecomeClearAgain) {
    Bitmap bitmap(4, 1);
    Graphics graphics(&bitmap);
    graphics.Clear(Color(0xFFFFFFFF));
    graphics.SetClip(Rect(1, 0, 1, 1));
    graphics.Clear(Color(0x80FF8000));
    graphics.ResetClip();
    EXPECT_EQ(PixelAt(bitmap, 0, 0), 0xFFFFFFFF);
    EXPECT_EQ(PixelAt(bitmap, 1, 0), 0x80FF8000);
    const SolidBrush clear(Color(0x00000000));
    graphics.FillRectangle(&clear, 0, 0, 4, 1);
    EXPECT_EQ(PixelAt(bitmap, 1, 0), 0x80FF8000);
}

TEST(Clear, WritesTheClipAndNoMore) {
    constexpr ARGB around = 0xFF445566;
    for (const PixelFormat format : {PixelFormat24bppRGB, PixelFormat32bppRGB,
                                     PixelFormat32bppARGB, PixelFormat32bppPARGB}) {
        for (const ARGB color : {0xFFFFFFFF, 0xFF112233, 0xFF000000}) {
            Bitmap bitmap(6, 5, format);
            Graphics graphics(&bitmap);
            graphics.Clear(Color(around));
            EXPECT_EQ(PixelsOtherThan(bitmap, around), 0);
            graphics.SetClip(Rect(2, 1, 3, 3));
            graphics.Clear(Color(color));
            EXPECT_EQ(PixelsOtherThan(bitmap, around), 9) << std::hex << color;
            EXPECT_EQ(PixelsOtherThan(bitmap, color), 21) << std::hex << color;
            EXPECT_EQ(PixelAt(bitmap, 4, 3), color);
            EXPECT_EQ(PixelAt(bitmap, 5, 3), around);
        }
    }
}

TEST(ThreeBytePixels, AreDrawnInPlaceAndNoFurther) {
    constexpr int stride = 16;  // five pixels and a byte over
    std::vector<BYTE> memory(3 * stride, 0xEE);
    GpBitmap* native = nullptr;
    ASSERT_EQ(DllExports::GdipCreateBitmapFromScan0(5, 3, stride, PixelFormat24bppRGB,
                                                    memory.data(), &native),
              Ok);
    GpGraphics* graphics = nullptr;
    ASSERT_EQ(DllExports::GdipGetImageGraphicsContext(native, &graphics), Ok);
    const SolidBrush brush(Color(0xFF112233));
    EXPECT_EQ(
        DllExports::GdipFillRectangleI(graphics, brush.NativeObject(), -9, 1, 99, 1), Ok);
    DllExports::GdipDeleteGraphics(graphics);
    DllExports::GdipDisposeImage(native);
    std::vector<BYTE> expected(3 * stride, 0xEE);
    for (std::size_t x = 0; x < 5; ++x) {
        expected[stride + 3 * x] = 0x33;
        expected[stride + 3 * x + 1] = 0x22;
        expected[stride + 3 * x + 2] = 0x11;
    }
    EXPECT_EQ(memory, expected);
}

// The binding asks first, of any flat functions; these are asked themselves.
TEST(LockedPixels, AreNoMoreThanABitmapMayHave) {
    using namespace DllExports;
    GpBitmap* bitmap = nullptr;
    ASSERT_EQ(GdipCreateBitmapFromScan0(40000, 20000, 0, PixelFormat1bppIndexed, nullptr,
                                        &bitmap),
              Ok);
    BitmapData data;
    EXPECT_EQ(GdipBitmapLockBits(bitmap, nullptr, ImageLockModeRead, PixelFormat32bppARGB,
                                 &data),
              OutOfMemory);
    const Rect area(0, 0, 40000, 2);
    EXPECT_EQ(
        GdipBitmapLockBits(bitmap, &area, ImageLockModeRead, PixelFormat32bppARGB, &data),
        Ok);
    EXPECT_EQ(data.Stride, 160000);
    EXPECT_EQ(GdipBitmapUnlockBits(bitmap, &data), Ok);
    GdipDisposeImage(bitmap);
}

TEST(Rows, MayGoUpwards) {
    std::vector<ARGB> memory(2 * 3, 0xFFFFFFFF);
    Bitmap bitmap(2, 3, -8, PixelFormat32bppRGB,
                  reinterpret_cast<BYTE*>(memory.data() + 4));
    Graphics graphics(&bitmap);
    const SolidBrush brush(Color(0xFF0000FF));
    graphics.FillRectangle(&brush, 0, 0, 2, 1);
    EXPECT_EQ(memory[4] & 0xFFFFFF, 0x0000FFu) << "the top row is the last";
    EXPECT_EQ(memory[0] & 0xFFFFFF, 0xFFFFFFu);
}

TEST(PixelOffset, OfHalfPutsLinesBetweenPixels) {
    Memory memory(PixelFormat32bppRGB, 6, 4, 0xFFFFFFFF);
    memory.graphics.SetSmoothingMode(SmoothingModeAntiAlias);
    const Pen pen(Color(0xFF000000), 2.0f);
    memory.graphics.SetPixelOffsetMode(PixelOffsetModeHalf);
    memory.graphics.DrawLine(&pen, -5, 2, 20, 2);
    EXPECT_EQ(PixelAt(memory.bitmap, 3, 0), 0xFFFFFFFF);
    EXPECT_EQ(PixelAt(memory.bitmap, 3, 1), 0xFF000000);
    EXPECT_EQ(PixelAt(memory.bitmap, 3, 2), 0xFF000000);
    EXPECT_EQ(PixelAt(memory.bitmap, 3, 3), 0xFFFFFFFF);
}

struct ClipRow {
    CombineMode mode;
    int inside;  ///< of two squares of 4 that share a square of 2
};

TEST(Interpolation, LooksAtEveryPixelOnlyInHighQuality) {
    Bitmap stripes(80, 8);
    for (int i = 0; i < 80 * 8; ++i) {
        stripes.SetPixel(i % 80, i / 80, Color(i % 10 == 0 ? 0xFF000000 : 0xFFFFFFFF));
    }
    struct Row {
        InterpolationMode mode;
        int lightest;
        int darkest;
    };
    // A tenth of the pixels is black, and none of those in the middle of ten.
    for (const Row& row : {Row{InterpolationModeBilinear, 255, 255},
                           Row{InterpolationModeHighQualityBicubic, 250, 200}}) {
        Bitmap page(8, 8);
        Graphics graphics(&page);
        graphics.SetInterpolationMode(row.mode);
        graphics.DrawImage(&stripes, 0, 0, 8, 8);
        const int grey = static_cast<int>(PixelAt(page, 4, 4) & 255);
        EXPECT_LE(grey, row.lightest) << row.mode;
        EXPECT_GE(grey, row.darkest) << row.mode;
    }
}

TEST(Clip, CombinesByItsMode) {
    for (const ClipRow& row :
         {ClipRow{CombineModeReplace, 16}, ClipRow{CombineModeIntersect, 4},
          ClipRow{CombineModeUnion, 28}, ClipRow{CombineModeXor, 24},
          ClipRow{CombineModeExclude, 12}, ClipRow{CombineModeComplement, 12}}) {
        Bitmap bitmap(12, 12);
        Graphics graphics(&bitmap);
        graphics.SetClip(Rect(1, 1, 4, 4));
        EXPECT_EQ(graphics.SetClip(Rect(3, 3, 4, 4), row.mode), Ok);
        const SolidBrush brush(Color(0xFF000000));
        graphics.FillRectangle(&brush, 0, 0, 12, 12);
        EXPECT_EQ(PixelsOtherThan(bitmap, 0), row.inside) << row.mode;
    }
}

TEST(Clip, TurnsWithTheWorldAndComesBackWithTheState) {
    Bitmap bitmap(20, 20);
    Graphics graphics(&bitmap);
    const GraphicsState before = graphics.Save();
    graphics.TranslateTransform(10.0f, 10.0f);
    graphics.RotateTransform(45.0f);
    graphics.SetClip(RectF(-5.0f, -5.0f, 10.0f, 10.0f));
    graphics.ResetTransform();
    const SolidBrush brush(Color(0xFF000000));
    graphics.FillRectangle(&brush, 0, 0, 20, 20);
    EXPECT_EQ(PixelAt(bitmap, 10, 4), 0xFF000000) << "the corner at the top";
    EXPECT_EQ(PixelAt(bitmap, 5, 5), 0u) << "beside it";
    EXPECT_NEAR(PixelsOtherThan(bitmap, 0), 100, 12);
    EXPECT_EQ(graphics.Restore(before), Ok);
    graphics.FillRectangle(&brush, 0, 0, 20, 20);
    EXPECT_EQ(PixelsOtherThan(bitmap, 0xFF000000), 0);
}

TEST(World, ThatIsNoNumberDrawsNothingAndSpoilsNothing) {
    Bitmap bitmap(10, 10);
    Graphics graphics(&bitmap);
    const SolidBrush brush(Color(0xFF000000));
    const Font font(L"Arial", 12.0f);
    const Pen pen(Color(0xFF000000), 3.0f);
    for (const REAL bad : {std::numeric_limits<REAL>::quiet_NaN(),
                           std::numeric_limits<REAL>::infinity(), 1e30f, 0.0f}) {
        graphics.ScaleTransform(bad, bad);
        graphics.RotateTransform(bad);
        graphics.FillRectangle(&brush, 1, 1, 5, 5);
        graphics.DrawLine(&pen, 1, 1, 5, 5);
        graphics.DrawString(L"N", -1, &font, PointF(1, 1), &brush);
        graphics.ResetTransform();
    }
    graphics.Clear(Color(0xFFFFFFFF));
    graphics.FillRectangle(&brush, 2, 2, 3, 3);
    EXPECT_EQ(PixelsOtherThan(bitmap, 0xFFFFFFFF), 9);
}

}  // namespace
