#include "sample_image.h"

#include <gdiplus.h>

#include <chrono>
#include <filesystem>
#include <vector>

#include "drawing.h"

namespace gallery {
namespace {

struct Layer {
    unsigned color;
    std::vector<Gdiplus::Point> outline;
};

void DrawLandscape(Gdiplus::Graphics* graphics) {
    const std::vector<Layer> layers = {
        {0xFFF2C14E,
         {{258, 40},
          {286, 52},
          {298, 80},
          {286, 108},
          {258, 120},
          {230, 108},
          {218, 80},
          {230, 52}}},
        {0xFF7E9BB5,
         {{0, 150},
          {70, 84},
          {120, 126},
          {190, 66},
          {280, 140},
          {360, 104},
          {360, 240},
          {0, 240}}},
        {0xFF4C7A67,
         {{0, 176}, {90, 140}, {200, 172}, {300, 146}, {360, 168}, {360, 240}, {0, 240}}},
        {0xFF2E5A46,
         {{0, 222}, {120, 190}, {240, 214}, {360, 192}, {360, 240}, {0, 240}}},
    };
    graphics->Clear(Gdiplus::Color(0xFFCFE0EC));
    for (const Layer& layer : layers) {
        const Gdiplus::SolidBrush brush{Gdiplus::Color(layer.color)};
        graphics->FillPolygon(&brush, layer.outline.data(),
                              static_cast<int>(layer.outline.size()));
    }
}

/// A name that no other process uses.
std::wstring NewFile() {
    const auto now = std::chrono::steady_clock::now().time_since_epoch().count();
    return (std::filesystem::temp_directory_path() /
            ("map_surround_gallery_" + std::to_string(now) + ".png"))
        .wstring();
}

}  // namespace

SampleImage::SampleImage() : m_file(NewFile()) {
    Gdiplus::Bitmap bitmap(360, 240);
    Gdiplus::Graphics graphics(&bitmap);
    graphics.SetSmoothingMode(Gdiplus::SmoothingModeAntiAlias);
    DrawLandscape(&graphics);
    SavePng(bitmap, m_file);
}

SampleImage::~SampleImage() {
    std::error_code ignored;
    std::filesystem::remove(m_file, ignored);
}

}  // namespace gallery
