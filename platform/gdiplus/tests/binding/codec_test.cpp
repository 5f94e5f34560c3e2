#include <gdiplus.h>
#include <gtest/gtest.h>

#include <cwchar>
#include <filesystem>
#include <string>
#include <vector>

#include "portable/image_files.h"

using namespace Gdiplus;
namespace fs = std::filesystem;

namespace {

TEST(Encoders, KeepTheirTextsInTheCallersBuffer) {
    UINT count = 0;
    UINT bytes = 0;
    ASSERT_EQ(GetImageEncodersSize(&count, &bytes), Ok);
    ASSERT_GT(count, 0u);
    ASSERT_GT(bytes, count * sizeof(ImageCodecInfo));
    std::vector<BYTE> buffer(bytes + 16, 0x5A);
    auto* codecs = reinterpret_cast<ImageCodecInfo*>(buffer.data());
    ASSERT_EQ(GetImageEncoders(count, bytes, codecs), Ok);
    const BYTE* const end = buffer.data() + bytes;
    for (UINT i = 0; i < count; ++i) {
        for (const WCHAR* text : {codecs[i].CodecName, codecs[i].FormatDescription,
                                  codecs[i].FilenameExtension, codecs[i].MimeType}) {
            ASSERT_NE(text, nullptr);
            EXPECT_GE(reinterpret_cast<const BYTE*>(text),
                      reinterpret_cast<const BYTE*>(codecs + count));
            EXPECT_LE(reinterpret_cast<const BYTE*>(text + std::wcslen(text) + 1), end);
            EXPECT_GT(std::wcslen(text), 2u);
        }
        EXPECT_NE(codecs[i].Flags & ImageCodecFlagsEncoder, 0u);
        EXPECT_EQ(codecs[i].FilenameExtension[0], L'*');
        EXPECT_GE(codecs[i].SigSize, 2u);
    }
    for (std::size_t i = bytes; i < buffer.size(); ++i) {
        EXPECT_EQ(buffer[i], 0x5A) << "past the buffer";
    }
}

TEST(Encoders, ThatCannotBeCountedAreNotRead) {
    static int reads;
    reads = 0;
    const detail::FlatCodecs codecs([](UINT*, UINT*) { return Win32Error; },
                                    [](UINT, UINT, FlatCodecInfo*) {
                                        ++reads;
                                        return Ok;
                                    });
    UINT count = 1;
    UINT bytes = 1;
    EXPECT_EQ(detail::TellCodecsSize(codecs, &count, &bytes), Win32Error);
    EXPECT_EQ(count, 0u);
    EXPECT_EQ(bytes, 0u);
    EXPECT_EQ(detail::TellCodecs(codecs, 0, 0, nullptr), Win32Error);
    EXPECT_EQ(reads, 0);
}

TEST_F(ImageFiles, TakeTheQualityOfAJpeg) {
    Bitmap bitmap(64, 64, PixelFormat24bppRGB);
    for (int i = 0; i < 64 * 64; ++i) {
        bitmap.SetPixel(i % 64, i / 64, Color(static_cast<ARGB>(i) * 2654435761u));
    }
    CLSID jpeg;
    ASSERT_GE(GetEncoderClsid(L"image/jpeg", &jpeg), 0);
    const auto sizeAt = [&](ULONG quality) {
        EncoderParameters parameters;
        parameters.Count = 1;
        parameters.Parameter[0].Guid = EncoderQuality;
        parameters.Parameter[0].Type = EncoderParameterValueTypeLong;
        parameters.Parameter[0].NumberOfValues = 1;
        parameters.Parameter[0].Value = &quality;
        const fs::path file = folder / ("quality" + std::to_string(quality) + ".jpg");
        EXPECT_EQ(bitmap.Save(file.wstring().c_str(), &jpeg, &parameters), Ok);
        return fs::file_size(file);
    };
    EXPECT_LT(sizeAt(10), sizeAt(95));
}

}  // namespace
