#include <gdiplus.h>
#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>

#include "portable/image_files.h"
#include "portable/pixels.h"

using namespace Gdiplus;
namespace fs = std::filesystem;

namespace {

CLSID Encoder(const wchar_t* mimeType) {
    CLSID clsid = {};
    EXPECT_GE(GetEncoderClsid(mimeType, &clsid), 0);
    return clsid;
}

std::string Contents(const fs::path& file) {
    std::ifstream stream(file, std::ios::binary);
    return {std::istreambuf_iterator<char>(stream), {}};
}

TEST_F(ImageFiles, KeepTheirResolution) {
    struct Row {
        const wchar_t* mimeType;
        const wchar_t* name;
    };
    for (const Row& row : {Row{L"image/png", L"a.png"}, Row{L"image/jpeg", L"a.jpg"},
                           Row{L"image/tiff", L"a.tif"}, Row{L"image/bmp", L"a.bmp"}}) {
        const std::wstring file = (folder / row.name).wstring();
        Bitmap bitmap(4, 3, PixelFormat24bppRGB);
        bitmap.SetResolution(300.0f, 150.0f);
        const CLSID encoder = Encoder(row.mimeType);
        ASSERT_EQ(bitmap.Save(file.c_str(), &encoder), Ok) << row.mimeType;
        Bitmap read(file.c_str());
        // Some formats count dots to the metre: 300 dpi are 11,811 of them.
        EXPECT_NEAR(read.GetHorizontalResolution(), 300.0f, 0.02f) << row.mimeType;
        EXPECT_NEAR(read.GetVerticalResolution(), 150.0f, 0.02f) << row.mimeType;
    }
}

TEST_F(ImageFiles, KeepClearPixelsWhereTheFormatHasThem) {
    struct Row {
        const wchar_t* mimeType;
        const wchar_t* name;
    };
    for (const Row& row : {Row{L"image/png", L"a.png"}, Row{L"image/tiff", L"a.tif"},
                           Row{L"image/gif", L"a.gif"}}) {
        const std::wstring file = (folder / row.name).wstring();
        Bitmap bitmap(40, 30);
        Graphics graphics(&bitmap);
        const SolidBrush red(Color(0xFFFF0000));
        graphics.FillRectangle(&red, 0, 0, 20, 30);
        const CLSID encoder = Encoder(row.mimeType);
        ASSERT_EQ(bitmap.Save(file.c_str(), &encoder), Ok) << row.mimeType;
        Bitmap read(file.c_str());
        EXPECT_EQ(read.GetWidth(), 40u) << row.mimeType;
        EXPECT_EQ(PixelAt(read, 10, 10), 0xFFFF0000) << row.mimeType;
        EXPECT_EQ(PixelAt(read, 30, 10), 0u) << row.mimeType;
    }
}

TEST_F(ImageFiles, OnAFullDiskAreNotSaved) {
    Bitmap bitmap(40, 30);
    for (const wchar_t* mimeType :
         {L"image/png", L"image/jpeg", L"image/tiff", L"image/gif", L"image/bmp"}) {
        const CLSID encoder = Encoder(mimeType);
        EXPECT_EQ(bitmap.Save(L"/dev/full", &encoder), Win32Error) << mimeType;
    }
    EXPECT_TRUE(fs::exists("/dev/full"));
}

TEST_F(ImageFiles, AreNotSavedWithParametersThatHaveNoValue) {
    const std::wstring file = (folder / "a.jpg").wstring();
    Bitmap bitmap(4, 3);
    const CLSID encoder = Encoder(L"image/jpeg");
    EncoderParameters parameters = {
        1, {{EncoderQuality, 1, EncoderParameterValueTypeLong, nullptr}}};
    EXPECT_EQ(bitmap.Save(file.c_str(), &encoder, &parameters), InvalidParameter);
    EXPECT_FALSE(fs::exists(file));
}

TEST_F(ImageFiles, ThatAreMissingAreNotFound) {
    const std::wstring file = (folder / "none.png").wstring();
    EXPECT_EQ(Image(file.c_str()).GetLastStatus(), FileNotFound);
    EXPECT_EQ(Image(L"/dev/zero").GetLastStatus(), OutOfMemory)
        << "and not read for ever";
}

/// A whole file of each format, cut at every length.
TEST_F(ImageFiles, ThatAreCutAreReadOrRefused) {
    for (const wchar_t* mimeType :
         {L"image/png", L"image/jpeg", L"image/tiff", L"image/gif", L"image/bmp"}) {
        const fs::path file = folder / "cut";
        Bitmap bitmap(16, 12, PixelFormat24bppRGB);
        const CLSID encoder = Encoder(mimeType);
        ASSERT_EQ(bitmap.Save(file.wstring().c_str(), &encoder), Ok);
        const std::string whole = Contents(file);
        for (std::size_t length = 0; length < whole.size(); ++length) {
            std::ofstream(file, std::ios::binary) << whole.substr(0, length);
            Image image(file.wstring().c_str());
            EXPECT_EQ(image.GetWidth(), image.GetLastStatus() == Ok ? 16u : 0u);
        }
    }
}

TEST_F(ImageFiles, OfMorePixelsThanFitAreRefusedBeforeMemoryIsTaken) {
    // The header of a PNG file, whose checksum is not looked at before its size.
    std::string header = "\x89PNG\r\n\x1A\n";
    header +=
        std::string("\0\0\0\x0DIHDR\x00\x01\x00\x00\x00\x01\x00\x00\x08\x06\0\0\0", 21);
    header += std::string("\x9B\x39\x59\xB8", 4);
    const fs::path file = folder / "huge.png";
    std::ofstream(file, std::ios::binary) << header;
    EXPECT_EQ(Image(file.wstring().c_str()).GetLastStatus(), OutOfMemory);
    std::string bmp = std::string("BM\0\0\0\0\0\0\0\0\x36\0\0\0\x28\0\0\0", 18);
    bmp += std::string("\xFF\xFF\xFF\x7F\xFF\xFF\xFF\x7F\x01\0\x20\0", 12) +
           std::string(24, '\0');
    std::ofstream(file, std::ios::binary) << bmp;
    EXPECT_EQ(Image(file.wstring().c_str()).GetLastStatus(), OutOfMemory);
}

TEST_F(ImageFiles, OfRunsAreReadByTheirRuns) {
    // Four pixels by two, from below: a run of 3 and 1, then two as they are, and a jump.
    std::string bmp = std::string("BM\0\0\0\0\0\0\0\0\x3E\0\0\0\x28\0\0\0", 18);
    bmp += std::string("\x04\0\0\0\x02\0\0\0\x01\0\x08\0\x01\0\0\0", 16);
    bmp += std::string(12, '\0') + std::string("\x02\0\0\0\0\0\0\0", 8);
    bmp += std::string("\xFF\0\0\0\0\xFF\0\0", 8);  // blue and green
    bmp += std::string("\x03\x01\x01\0\0\0", 6);
    bmp += std::string("\0\x03\x01\0\x01\0\0\x01", 8);
    const fs::path file = folder / "runs.bmp";
    std::ofstream(file, std::ios::binary) << bmp;
    Bitmap read(file.wstring().c_str());
    ASSERT_EQ(read.GetLastStatus(), Ok);
    const ARGB blue = 0xFF0000FF;
    const ARGB green = 0xFF00FF00;
    const ARGB expected[] = {green, blue, green, blue, green, green, green, blue};
    for (int i = 0; i < 8; ++i) {
        EXPECT_EQ(PixelAt(read, i % 4, i / 4), expected[i]) << i;
    }
}

}  // namespace
