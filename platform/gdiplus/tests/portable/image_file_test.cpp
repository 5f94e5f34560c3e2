#include "portable/image_files.h"

#include <gdiplus.h>
#include <gtest/gtest.h>

#include <cwchar>
#include <filesystem>
#include <fstream>
#include <string>
#include <vector>

#include "portable/pixels.h"

using namespace Gdiplus;
namespace fs = std::filesystem;

namespace {

void Paint(Bitmap& bitmap) {
    Graphics graphics(&bitmap);
    graphics.Clear(Color(0xFFFFFFFF));
    const SolidBrush red(Color(0xFFFF0000));
    const SolidBrush blue(Color(0xFF0000FF));
    graphics.FillRectangle(&red, 0, 0, 32, 24);
    graphics.FillRectangle(&blue, 32, 24, 32, 24);
}

TEST(Encoders, AreFoundByTheirMimeType) {
    struct Row {
        const WCHAR* mimeType;
        DWORD data1;
    };
    const Row rows[] = {{L"image/bmp", 0x557CF400},
                        {L"image/jpeg", 0x557CF401},
                        {L"image/gif", 0x557CF402},
                        {L"image/tiff", 0x557CF405},
                        {L"image/png", 0x557CF406}};
    for (const Row& row : rows) {
        CLSID clsid = {};
        EXPECT_GE(GetEncoderClsid(row.mimeType, &clsid), 0) << row.mimeType;
        const CLSID expected = {
            row.data1, 0x1A04, 0x11D3, {0x9A, 0x73, 0x00, 0x00, 0xF8, 0x1E, 0xF3, 0x2E}};
        EXPECT_TRUE(clsid == expected) << row.mimeType;
    }
    CLSID untouched = {1, 2, 3, {4}};
    EXPECT_EQ(GetEncoderClsid(L"image/none", &untouched), -1);
    EXPECT_EQ(untouched.Data1, 1u);
}

TEST(Encoders, WantTheRoomTheyAskedFor) {
    UINT count = 0;
    UINT bytes = 0;
    ASSERT_EQ(GetImageEncodersSize(&count, &bytes), Ok);
    std::vector<BYTE> buffer(bytes + 100);
    auto* codecs = reinterpret_cast<ImageCodecInfo*>(buffer.data());
    EXPECT_NE(GetImageEncoders(count + 1, bytes, codecs), Ok);
    EXPECT_NE(GetImageEncoders(count, bytes - 1, codecs), Ok);
    EXPECT_NE(GetImageEncoders(count, bytes, nullptr), Ok);
    EXPECT_EQ(GetImageEncodersSize(nullptr, &bytes), InvalidParameter);
    EXPECT_EQ(GetImageEncodersSize(&count, nullptr), InvalidParameter);
}

TEST(Decoders, AreDescribedAlike) {
    UINT count = 0;
    UINT bytes = 0;
    ASSERT_EQ(GetImageDecodersSize(&count, &bytes), Ok);
    std::vector<BYTE> buffer(bytes);
    auto* codecs = reinterpret_cast<ImageCodecInfo*>(buffer.data());
    ASSERT_EQ(GetImageDecoders(count, bytes, codecs), Ok);
    bool png = false;
    for (UINT i = 0; i < count; ++i) {
        png = png || std::wcscmp(codecs[i].MimeType, L"image/png") == 0;
        EXPECT_NE(codecs[i].Flags & ImageCodecFlagsDecoder, 0u);
    }
    EXPECT_TRUE(png);
}

TEST_F(ImageFiles, GoOutAndComeBack) {
    struct Row {
        const WCHAR* mimeType;
        const WCHAR* name;
        int tolerance;
    };
    const Row rows[] = {{L"image/png", L"page.png", 0},
                        {L"image/bmp", L"page.bmp", 0},
                        {L"image/tiff", L"page.tif", 0},
                        {L"image/jpeg", L"page.jpg", 12},
                        {L"image/png", L"\u5730\u56FE.png", 0},
                        {L"image/jpeg", L"map \U0001F5FA.jpg", 12}};
    for (const Row& row : rows) {
        const std::wstring file = folder.wstring() + L"/" + row.name;
        CLSID clsid;
        ASSERT_GE(GetEncoderClsid(row.mimeType, &clsid), 0);
        {
            Bitmap bitmap(64, 48, PixelFormat24bppRGB);
            bitmap.SetResolution(150.0f, 150.0f);
            Paint(bitmap);
            ASSERT_EQ(bitmap.Save(file.c_str(), &clsid, NULL), Ok) << row.name;
        }
        Bitmap read(file.c_str());
        ASSERT_EQ(read.GetLastStatus(), Ok) << row.name;
        EXPECT_EQ(read.GetWidth(), 64u);
        EXPECT_EQ(read.GetHeight(), 48u);
        const Color red(PixelAt(read, 10, 10));
        EXPECT_NEAR(red.GetR(), 255, row.tolerance) << row.name;
        EXPECT_NEAR(red.GetB(), 0, row.tolerance) << row.name;
        const Color blue(PixelAt(read, 50, 40));
        EXPECT_NEAR(blue.GetR(), 0, row.tolerance) << row.name;
        EXPECT_NEAR(blue.GetB(), 255, row.tolerance) << row.name;
        EXPECT_EQ(PixelAt(read, 50, 10) | 0x0F0F0F0F, 0xFFFFFFFF) << row.name;
    }
    EXPECT_TRUE(fs::exists(folder / fs::u8path("\xE5\x9C\xB0\xE5\x9B\xBE.png")))
        << "under its name in UTF-8";
}

TEST_F(ImageFiles, KeepTransparencyAsPng) {
    const std::wstring file = (folder / "overlay.png").wstring();
    CLSID png;
    ASSERT_GE(GetEncoderClsid(L"image/png", &png), 0);
    Bitmap bitmap(2, 1);
    bitmap.SetPixel(0, 0, Color(0x80FF0000));
    ASSERT_EQ(bitmap.Save(file.c_str(), &png, nullptr), Ok);
    Bitmap read(file.c_str());
    EXPECT_EQ(PixelAt(read, 0, 0), 0x80FF0000);
    EXPECT_EQ(PixelAt(read, 1, 0) >> 24, 0u);
}

TEST_F(ImageFiles, ThatCannotBeWrittenSaySo) {
    Bitmap bitmap(4, 4);
    CLSID png;
    ASSERT_GE(GetEncoderClsid(L"image/png", &png), 0);
    const std::wstring file = (folder / "no such folder" / "page.png").wstring();
    EXPECT_NE(bitmap.Save(file.c_str(), &png, nullptr), Ok);
    EXPECT_NE(bitmap.GetLastStatus(), Ok);
    EXPECT_NE(bitmap.Save(folder.wstring().c_str(), &png, nullptr), Ok) << "a folder";
    EXPECT_EQ(bitmap.Save(static_cast<const WCHAR*>(nullptr), &png, nullptr),
              InvalidParameter);
    const std::wstring good = (folder / "page.png").wstring();
    EXPECT_EQ(bitmap.Save(good.c_str(), nullptr, nullptr), InvalidParameter);
    const CLSID unknown = {1, 2, 3, {4}};
    EXPECT_NE(bitmap.Save(good.c_str(), &unknown, nullptr), Ok);
    EXPECT_EQ(bitmap.Save(good.c_str(), &png, nullptr), Ok) << "the bitmap still works";
}

TEST_F(ImageFiles, ThatAreNoImagesAreNotLoaded) {
    const fs::path text = folder / "readme.png";
    std::ofstream(text) << "not a picture";
    const fs::path empty = folder / "empty.png";
    std::ofstream(empty).flush();
    for (const fs::path& file : {text, empty, folder}) {
        Image image(file.wstring().c_str());
        EXPECT_NE(image.GetLastStatus(), Ok) << file;
        EXPECT_EQ(image.GetWidth(), 0u);
    }
    Image nameless(static_cast<const WCHAR*>(nullptr));
    EXPECT_EQ(nameless.GetLastStatus(), InvalidParameter);
}

}  // namespace
