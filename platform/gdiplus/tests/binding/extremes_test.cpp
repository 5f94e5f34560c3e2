#include <gdiplus.h>
#include <gtest/gtest.h>

#include <climits>
#include <cmath>
#include <filesystem>
#include <fstream>
#include <limits>
#include <random>
#include <string>
#include <vector>

#include "binding/indexed_bmp.h"
#include "portable/pixels.h"

using namespace Gdiplus;

namespace {

constexpr int kWhole[] = {0,       1,         -1,      40000,       -40000,
                          8388608, -16777216, INT_MAX, INT_MAX - 1, INT_MIN};
const REAL kReal[] = {0.0f,
                      -1.0f,
                      1e-30f,
                      8388608.0f,
                      2147483648.0f,
                      1e20f,
                      -1e38f,
                      std::numeric_limits<REAL>::infinity(),
                      std::numeric_limits<REAL>::quiet_NaN()};

/// Nothing that is drawn, wherever it is and however large, brings the program down or
/// the surface to a state in which it draws no more.
class Extremes : public ::testing::Test {
protected:
    ~Extremes() override {
        graphics.ResetTransform();
        const SolidBrush mark(Color(0xFF123456));
        graphics.FillRectangle(&mark, 20, 20, 4, 4);
        EXPECT_EQ(PixelAt(bitmap, 22, 22), 0xFF123456);
    }

    Bitmap bitmap{100, 80};
    Graphics graphics{&bitmap};
    SolidBrush brush{Color(0x80FF0000)};
    FontFamily family{L"Arial"};
};

TEST_F(Extremes, OfShapes) {
    Bitmap picture(3, 2);
    AdjustableArrowCap cap(4.0f, 4.0f);
    for (const DashStyle dash : {DashStyleSolid, DashStyleDash}) {
        Pen pen(Color(0xFF000000), 3.0f);
        pen.SetDashStyle(dash);
        Pen arrow(Color(0xFF000000), 1.0f);
        arrow.SetCustomEndCap(&cap);
        for (const int x : kWhole) {
            for (const int y : kWhole) {
                graphics.DrawLine(&pen, 10, 10, x, y);
                graphics.DrawLine(&arrow, x, y, 10, 10);
                graphics.DrawRectangle(&pen, x, x, y, y);
                graphics.FillRectangle(&brush, x, x, y, y);
                graphics.DrawImage(&picture, x, x, y, y);
                const Point points[] = {{10, 10}, {x, y}, {y, 50}};
                graphics.DrawPolygon(&pen, points, 3);
                graphics.FillPolygon(&brush, points, 3);
                GraphicsPath path;
                path.AddRectangle(Rect(x, x, y, y));
                path.AddLines(points, 3);
                Rect bounds;
                path.GetBounds(&bounds, nullptr, &pen);
                graphics.FillPath(&brush, &path);
            }
        }
    }
}

TEST_F(Extremes, OfPensAndCaps) {
    for (const REAL width : kReal) {
        for (int dash = DashStyleSolid; dash <= DashStyleDashDotDot; ++dash) {
            Pen pen(Color(0xFF000000), width);
            pen.SetDashStyle(static_cast<DashStyle>(dash));
            AdjustableArrowCap cap(width, width);
            pen.SetCustomEndCap(&cap);
            graphics.DrawLine(&pen, 5, 5, 90, 70);
            graphics.DrawRectangle(&pen, 5, 5, 90, 70);
        }
    }
}

TEST_F(Extremes, OfFontsAndPlacesOfText) {
    for (const REAL size : kReal) {
        const Font font(&family, size, FontStyleRegular, UnitPixel);
        const Font plain(&family, 12.0f, FontStyleRegular, UnitPixel);
        for (const wchar_t* text : {L"North", L"\x5317"}) {
            graphics.DrawString(text, -1, &font, PointF(5.0f, 5.0f), &brush);
            graphics.DrawString(text, -1, &plain, PointF(size, size), &brush);
            graphics.DrawString(text, -1, &plain, RectF(5.0f, 5.0f, size, size), nullptr,
                                &brush);
            GraphicsPath path;
            path.AddString(text, -1, &family, FontStyleRegular, size, PointF(), nullptr);
            Rect bounds;
            path.GetBounds(&bounds);
            graphics.FillPath(&brush, &path);
            RectF measured;
            graphics.MeasureString(text, -1, &font, RectF(), &measured);
        }
    }
}

TEST_F(Extremes, OfSizesOfBitmaps) {
    for (const Size& size :
         {Size(INT_MAX, INT_MAX), Size(65536, 65536), Size(INT_MIN, 1)}) {
        Bitmap huge(size.Width, size.Height);
        EXPECT_NE(huge.GetLastStatus(), Ok);
        EXPECT_EQ(huge.GetWidth(), 0u);
    }
}

TEST(CallersMemory, IsNotWrittenPastItsEnd) {
    struct Row {
        PixelFormat format;
        int stride;
        Status status;
    };
    const Row rows[] = {{PixelFormat32bppARGB, 40, Ok},
                        {PixelFormat32bppRGB, -40, Ok},
                        {PixelFormat32bppARGB, 39, InvalidParameter},
                        {PixelFormat32bppARGB, 0, InvalidParameter},
                        {PixelFormat32bppARGB, -39, InvalidParameter},
                        {PixelFormat24bppRGB, 32, Ok},
                        {PixelFormat24bppRGB, 28, InvalidParameter}};
    for (const Row& row : rows) {
        std::vector<BYTE> memory(3 * 40);
        BYTE* const first = memory.data() + (row.stride < 0 ? 2 * 40 : 0);
        Bitmap bitmap(10, 3, row.stride, row.format, first);
        EXPECT_EQ(bitmap.GetLastStatus(), row.status) << row.stride;
        Graphics graphics(&bitmap);
        EXPECT_EQ(graphics.Clear(Color(0xFF112233)),
                  row.status == Ok ? Ok : InvalidParameter)
            << row.stride;
    }
}

struct SizeRow {
    INT width;
    INT height;
    UINT most;  ///< bits to a pixel that take less than 2 GiB; 0 for none
    Status otherwise;
};

TEST(VastBitmap, IsRefusedAndItsPixelsToo) {
    const SizeRow rows[] = {{32768, 1, 32, Ok},
                            {1, 65536, 32, Ok},
                            {800000000, 1, 8, OutOfMemory},
                            {INT_MAX, 1, 1, OutOfMemory},
                            {INT_MAX, INT_MAX, 0, OutOfMemory},
                            {1, INT_MIN, 0, InvalidParameter}};
    for (const SizeRow& row : rows) {
        for (const PixelFormat format :
             {PixelFormat1bppIndexed, PixelFormat8bppIndexed, PixelFormat24bppRGB,
              PixelFormat32bppARGB, PixelFormat32bppPARGB}) {
            SCOPED_TRACE(row.width);
            const bool fits = GetPixelFormatSize(format) <= row.most;
            Bitmap bitmap(row.width, row.height, format);
            EXPECT_EQ(bitmap.GetLastStatus(), fits ? Ok : row.otherwise);
            bitmap.SetPixel(row.width - 1, 0, Color(0xFF010203));
            BitmapData data = {};
            const bool isIndexed = IsIndexedPixelFormat(format) != 0;
            const UINT mode = isIndexed ? ImageLockModeRead : ImageLockModeWrite;
            const Status locked = bitmap.LockBits(nullptr, mode, format, &data);
            EXPECT_EQ(locked, fits ? Ok : InvalidParameter);
            if (locked == Ok) {
                EXPECT_EQ(bitmap.UnlockBits(&data), Ok);
            }
            const PixelFormat other =
                isIndexed ? PixelFormat4bppIndexed : PixelFormat8bppIndexed;
            EXPECT_EQ(bitmap.LockBits(nullptr, ImageLockModeWrite, other, &data),
                      InvalidParameter);
        }
    }
}

TEST(EncoderParameter, WithoutAValueIsRefused) {
    Bitmap bitmap(4, 4);
    const std::wstring name =
        std::filesystem::path(::testing::TempDir() + "without_value").wstring();
    for (const DWORD codec :
         {0x557CF400u, 0x557CF401u, 0x557CF402u, 0x557CF405u, 0x557CF406u}) {
        const CLSID encoder = {
            codec, 0x1A04, 0x11D3, {0x9A, 0x73, 0, 0, 0xF8, 0x1E, 0xF3, 0x2E}};
        for (const ULONG type : {1u, 3u, 4u, 6u}) {
            const EncoderParameters parameters = {1,
                                                  {{EncoderQuality, 1, type, nullptr}}};
            EXPECT_EQ(bitmap.Save(name.c_str(), &encoder, &parameters), InvalidParameter);
        }
    }
    EXPECT_FALSE(std::filesystem::exists(std::filesystem::path(name)));
}

struct FontRow {
    REAL size;
    Unit unit;
    bool carried;
};

// 65,535 pixels are 49,151.25 points, 682.66 inches, 204,796.9 document units, 17,339.5
// millimetres.
constexpr FontRow kFonts[] = {
    {20000.0f, UnitPixel, true},
    {65535.0f, UnitPixel, true},
    {65536.0f, UnitPixel, false},
    {65535.0f, UnitWorld, true},
    {65536.0f, UnitWorld, false},
    {49151.0f, UnitPoint, true},
    {49152.0f, UnitPoint, false},
    {682.0f, UnitInch, true},
    {683.0f, UnitInch, false},
    {204796.0f, UnitDocument, true},
    {204798.0f, UnitDocument, false},
    {17339.0f, UnitMillimeter, true},
    {17340.0f, UnitMillimeter, false},
    {2097152.0f, UnitPixel, false},
    {2147483648.0f, UnitPixel, false},
    {std::numeric_limits<REAL>::infinity(), UnitPixel, false},
};

TEST_F(Extremes, OfFontsLeaveTheirFamilyAsItIs) {
    const Font plain(&family, 40.0f, FontStyleRegular, UnitPixel);
    for (const FontRow& row : kFonts) {
        const Font font(&family, row.size, FontStyleRegular, row.unit);
        EXPECT_EQ(font.GetLastStatus(), Ok);
        EXPECT_EQ(font.GetSize(), row.size);
        const Status expected = row.carried ? Ok : InvalidParameter;
        RectF bounds;
        EXPECT_EQ(graphics.DrawString(L"North", -1, &font, PointF(5, 5), &brush),
                  expected)
            << row.size;
        EXPECT_EQ(graphics.MeasureString(L"North", -1, &font, PointF(5, 5), &bounds),
                  expected)
            << row.size;
        EXPECT_EQ(bounds.Width > 0.0f, row.carried) << row.size;
        if (row.unit == UnitPixel) {
            GraphicsPath path;
            EXPECT_EQ(path.AddString(L"North", -1, &family, FontStyleRegular, row.size,
                                     PointF(), nullptr),
                      expected)
                << row.size;
        }
        graphics.Clear(Color(0xFFFFFFFF));
        graphics.DrawString(L"H", -1, &plain, PointF(0.0f, 0.0f), &brush);
        bool inked = false;
        for (int x = 0; x < 40; ++x) {
            inked = inked || PixelAt(bitmap, x, 24) != 0xFFFFFFFF;
        }
        EXPECT_TRUE(inked) << "after " << row.size;
    }
}

struct ImageRow {
    int width;
    int height;
    Status status;
};

TEST_F(Extremes, OfImagesAreRefused) {
    for (const ImageRow& row :
         {ImageRow{32767, 1, Ok}, ImageRow{1, 32767, Ok},
          ImageRow{32768, 1, InvalidParameter}, ImageRow{1, 32768, InvalidParameter},
          ImageRow{65500, 3, InvalidParameter}}) {
        Bitmap image(row.width, row.height);
        EXPECT_EQ(image.GetLastStatus(), Ok);
        EXPECT_EQ(graphics.DrawImage(&image, 5, 5, 40, 30), row.status) << row.width;
        EXPECT_EQ(graphics.DrawImage(&image, 5.0f, 5.0f, 40.0f, 30.0f), row.status);
        EXPECT_EQ(graphics.DrawImage(&image, 5, 5), row.status);
        EXPECT_EQ(graphics.DrawImage(&image, 5.0f, 5.0f), row.status);
    }
}

struct PaletteRow {
    unsigned bits;
    unsigned colors;
    unsigned index;
    ARGB drawn;
};

TEST_F(Extremes, OfPalettesEndInBlack) {
    const std::filesystem::path file =
        std::filesystem::temp_directory_path() /
        ("gdiplus_palette_" + std::to_string(std::random_device()()) + ".bmp");
    for (const PaletteRow& row :
         {PaletteRow{4, 16, 15, 0xFF100000}, PaletteRow{4, 2, 1, 0xFF020000},
          PaletteRow{4, 2, 15, 0xFF000000}, PaletteRow{8, 256, 200, 0xFFC90000},
          PaletteRow{8, 3, 2, 0xFF030000}, PaletteRow{8, 3, 3, 0xFF000000},
          PaletteRow{8, 1, 255, 0xFF000000}}) {
        WriteIndexedBmp(file, row.bits, row.colors, row.index);
        Bitmap image(file.wstring().c_str());
        EXPECT_EQ(graphics.DrawImage(&image, 0, 0, 8, 8), Ok);
        EXPECT_EQ(PixelAt(bitmap, 4, 4), row.drawn)
            << row.bits << " bits, " << row.colors << " colours, index " << row.index;
    }
    std::filesystem::remove(file);
}

TEST_F(Extremes, OfTexts) {
    const Font font(&family, 12.0f, FontStyleRegular, UnitPixel);
    for (const std::wstring& text :
         {std::wstring(20000, L'x'), std::wstring(3, L'\0'), std::wstring(1, wchar_t(-1)),
          std::wstring(L"a\nb\tc&d\r\n")}) {
        const int length = static_cast<int>(text.size());
        EXPECT_EQ(graphics.DrawString(text.c_str(), length, &font, PointF(), &brush), Ok);
    }
}

}  // namespace
