#include <gdiplus.h>
#include <gtest/gtest.h>

#include <cstddef>
#include <fstream>
#include <string>
#include <vector>

#include "portable/image_files.h"

using namespace Gdiplus;

namespace {

void Append(std::string& bytes, unsigned value, int count) {
    for (int i = 0; i < count; ++i) {
        bytes.push_back(static_cast<char>(value >> (8 * i) & 0xFF));
    }
}

/// A TIFF file of one grey pixel, whose last four bytes say that no page follows.
std::string OnePixelTiff() {
    struct Tag {
        unsigned id;
        unsigned value;
    };
    constexpr unsigned kPixelAt = 8;
    const std::vector<Tag> tags = {{256, 1}, {257, 1}, {258, 8},
                                   {259, 1}, {262, 1}, {273, kPixelAt},
                                   {277, 1}, {278, 1}, {279, 1}};
    std::string bytes("II*\0", 4);
    Append(bytes, kPixelAt + 2, 4);
    Append(bytes, 0x80, 2);
    Append(bytes, static_cast<unsigned>(tags.size()), 2);
    for (const Tag& tag : tags) {
        Append(bytes, tag.id, 2);
        Append(bytes, 3, 2);  // a short
        Append(bytes, 1, 4);
        Append(bytes, tag.value, 4);
    }
    Append(bytes, 0, 4);
    return bytes;
}

TEST_F(ImageFiles, ThatEndWithinTheListOfPagesAreRefused) {
    const std::string whole = OnePixelTiff();
    const std::filesystem::path file = folder / "cut.tif";
    for (std::size_t length = whole.size(); length + 4 >= whole.size(); --length) {
        std::ofstream(file, std::ios::binary) << whole.substr(0, length);
        Image image(file.wstring().c_str());
        const bool isWhole = length == whole.size();
        EXPECT_EQ(image.GetLastStatus(), isWhole ? Ok : OutOfMemory) << length;
        EXPECT_EQ(image.GetWidth(), isWhole ? 1u : 0u) << length;
        EXPECT_EQ(image.NativeObject() != nullptr, isWhole) << length;
    }
}

}  // namespace
