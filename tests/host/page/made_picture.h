#pragma once

#include <gdiplus.h>

#include <cstdint>
#include <functional>
#include <utility>

#include "page/map/map_picture.h"

namespace host_tests {

/// A map of which a function tells each pixel, and that counts how often it is read.
class MadePicture : public host::MapPicture {
public:
    using Colour = std::function<Gdiplus::ARGB(int x, int y)>;
    explicit MadePicture(Colour colour) : m_colour(std::move(colour)) {}

    host::PixelImage Render(int width, int height, const host::Progress&) override {
        ++readings;
        host::PixelImage image;
        image.width = width;
        image.height = height;
        for (int i = 0; i < width * height; ++i) {
            const Gdiplus::ARGB argb = m_colour(i % width, i / width);
            for (const unsigned shift : {0U, 8U, 16U, 24U}) {
                image.bgra.push_back(static_cast<std::uint8_t>(argb >> shift));
            }
        }
        return image;
    }

    int readings = 0;

private:
    Colour m_colour;
};

}  // namespace host_tests
