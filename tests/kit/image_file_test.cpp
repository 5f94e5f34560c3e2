#include "map_surround/kit/image_file.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <limits>

#include "title_picture/image_file.h"

namespace {

using namespace map_surround::kit;

TEST(MimeType, GoesWithTheEnding) {
    struct Row {
        const wchar_t* file;
        const wchar_t* mimeType;
    };
    const Row rows[] = {
        {L"plan.png", L"image/png"},
        {L"plan.JPG", L"image/jpeg"},
        {L"a.b/c.jpeg", L"image/jpeg"},
        {L"plan.tif", L"image/tiff"},
        {L"plan.Tiff", L"image/tiff"},
        {L".bmp", L"image/bmp"},
        {L"plan.png.gif", L"image/gif"},
        {L"plan", L""},
        {L"plan.", L""},
        {L"plan.pdf", L""},
    };
    for (const Row& row : rows) {
        EXPECT_EQ(MimeTypeOf(row.file), row.mimeType);
    }
}

TEST(Encoder, IsThatOfTheMimeType) {
    EXPECT_TRUE(EncoderOf(L"image/png").has_value());
    EXPECT_FALSE(EncoderOf(L"image/x-none").has_value());
    EXPECT_FALSE(EncoderOf(L"").has_value());
}

TEST(SavedImage, HasItsResolution) {
    const ImageFolder folder;
    for (const char* name : {"page.png", "page.jpg", "page.tif", "page.bmp"}) {
        SCOPED_TRACE(name);
        const std::wstring file = folder.PathOf(name);
        {
            Gdiplus::Bitmap bitmap(12, 8, PixelFormat32bppARGB);
            ASSERT_EQ(SaveImage(bitmap, file, 300.0), Gdiplus::Ok);
        }
        Gdiplus::Bitmap saved(file.c_str());
        EXPECT_EQ(saved.GetWidth(), 12u);
        EXPECT_NEAR(saved.GetHorizontalResolution(), 300.0, 0.05);
        EXPECT_NEAR(saved.GetVerticalResolution(), 300.0, 0.05);
    }
}

TEST(SavedImage, TellsWhyItIsNot) {
    const ImageFolder folder;
    const std::wstring file = folder.PathOf("page.png");
    Gdiplus::Bitmap bitmap(12, 8);
    EXPECT_EQ(SaveImage(bitmap, folder.PathOf("page.pdf"), 300.0),
              Gdiplus::UnknownImageFormat);
    EXPECT_NE(SaveImage(bitmap, folder.PathOf("no folder/page.png"), 300.0), Gdiplus::Ok);
    for (const double dpi : {0.0, -1.0, std::numeric_limits<double>::quiet_NaN()}) {
        EXPECT_EQ(SaveImage(bitmap, file, dpi), Gdiplus::InvalidParameter);
    }
    for (const std::wstring& unwanted : {file, folder.PathOf("page.pdf")}) {
        EXPECT_FALSE(std::filesystem::exists(unwanted));
    }
}

}  // namespace
