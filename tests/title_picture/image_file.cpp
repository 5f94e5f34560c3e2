#include "title_picture/image_file.h"

#include <fstream>
#include <random>
#include <vector>

namespace {

void AppendNumber(std::vector<char>& out, unsigned int value, int bytes) {
    for (int i = 0; i < bytes; ++i) {
        out.push_back(static_cast<char>(value >> (8 * i) & 0xFF));
    }
}

}  // namespace

ImageFolder::ImageFolder() {
    std::random_device random;
    do {
        m_folder = std::filesystem::temp_directory_path() /
                   ("map_surround_images_" + std::to_string(random()));
    } while (!std::filesystem::create_directory(m_folder));
}

ImageFolder::~ImageFolder() {
    std::error_code ignored;
    std::filesystem::remove_all(m_folder, ignored);
}

std::wstring ImageFolder::PathOf(const std::string& name) const {
    const std::u32string path = (m_folder / std::filesystem::u8path(name)).u32string();
    return std::wstring(path.begin(), path.end());
}

std::wstring ImageFolder::WriteBmp(const std::string& name, int width, int height,
                                   unsigned int rgb) const {
    const auto columns = static_cast<unsigned int>(width);
    const auto rows = static_cast<unsigned int>(height);
    const unsigned int headers = 14 + 40;
    const unsigned int stride = (columns * 3 + 3) / 4 * 4;
    std::vector<char> bytes = {'B', 'M'};
    AppendNumber(bytes, headers + stride * rows, 4);
    AppendNumber(bytes, 0, 4);
    AppendNumber(bytes, headers, 4);
    AppendNumber(bytes, 40, 4);
    AppendNumber(bytes, columns, 4);
    AppendNumber(bytes, rows, 4);
    AppendNumber(bytes, 1, 2);   // planes
    AppendNumber(bytes, 24, 2);  // bits in a pixel
    AppendNumber(bytes, 0, 4);   // not compressed
    AppendNumber(bytes, stride * rows, 4);
    AppendNumber(bytes, 2835, 4);  // pixels in a metre
    AppendNumber(bytes, 2835, 4);
    AppendNumber(bytes, 0, 4);
    AppendNumber(bytes, 0, 4);
    for (unsigned int row = 0; row < rows; ++row) {
        for (unsigned int column = 0; column < columns; ++column) {
            AppendNumber(bytes, rgb, 3);
        }
        bytes.resize(bytes.size() + stride - columns * 3);
    }
    std::ofstream(m_folder / std::filesystem::u8path(name), std::ios::binary)
        .write(bytes.data(), static_cast<std::streamsize>(bytes.size()));
    return PathOf(name);
}
