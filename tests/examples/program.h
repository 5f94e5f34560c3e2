#pragma once

#include <gdiplus.h>
#include <gtest/gtest.h>

#include <cstdint>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <memory>
#include <string>

#include "map_surround/kit/gdiplus_session.h"

namespace examples {

using Session = map_surround::kit::GdiplusSession;

/// An example run in an empty folder, which is removed with this.
class Program {
public:
    Program(const std::string& file, const std::string& arguments)
        : m_folder(std::filesystem::path(testing::TempDir()) /
                   (std::filesystem::path(file).filename().string() + "_" +
                    std::to_string(reinterpret_cast<std::uintptr_t>(this)))) {
        std::filesystem::create_directories(m_folder);
        const std::string command =
            "cd '" + m_folder.string() + "' && '" + file + "' " + arguments + " > output";
        EXPECT_EQ(std::system(command.c_str()), 0) << command;
    }
    ~Program() { std::filesystem::remove_all(m_folder); }
    Program(const Program&) = delete;
    Program& operator=(const Program&) = delete;

    /// What a file that the program wrote holds; its standard output is in "output".
    std::string Contents(const std::string& name) const {
        std::ifstream file(m_folder / name, std::ios::binary);
        return {std::istreambuf_iterator<char>(file), {}};
    }

    std::unique_ptr<Gdiplus::Bitmap> Image(const std::string& name) const {
        return std::make_unique<Gdiplus::Bitmap>((m_folder / name).wstring().c_str());
    }

private:
    std::filesystem::path m_folder;
};

inline Gdiplus::ARGB PixelAt(Gdiplus::Bitmap& image, int x, int y) {
    Gdiplus::Color color;
    image.GetPixel(x, y, &color);
    return color.GetValue();
}

}  // namespace examples
