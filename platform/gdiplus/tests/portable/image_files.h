#pragma once

#include <gdiplus.h>
#include <gtest/gtest.h>

#include <cstdlib>
#include <cwchar>
#include <filesystem>
#include <random>
#include <string>

/// The SDK's usual way to the encoder of a kind of file.
inline int GetEncoderClsid(const WCHAR* format, CLSID* clsid) {
    UINT num = 0;
    UINT size = 0;
    Gdiplus::GetImageEncodersSize(&num, &size);
    if (size == 0) {
        return -1;
    }
    Gdiplus::ImageCodecInfo* codecs = (Gdiplus::ImageCodecInfo*)(std::malloc(size));
    if (codecs == NULL) {
        return -1;
    }
    Gdiplus::GetImageEncoders(num, size, codecs);
    for (UINT j = 0; j < num; ++j) {
        if (std::wcscmp(codecs[j].MimeType, format) == 0) {
            *clsid = codecs[j].Clsid;
            std::free(codecs);
            return static_cast<int>(j);
        }
    }
    std::free(codecs);
    return -1;
}

/// A folder of the test's own, gone after it.
class ImageFiles : public ::testing::Test {
protected:
    ImageFiles()
        : folder(std::filesystem::temp_directory_path() /
                 ("gdiplus_test_" + std::to_string(std::random_device()()))) {
        std::filesystem::create_directories(folder);
    }
    ~ImageFiles() override { std::filesystem::remove_all(folder); }

    const std::filesystem::path folder;
};
