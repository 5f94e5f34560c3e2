#pragma once

#include <functional>
#include <map>
#include <utility>

#include "page/map/map_picture.h"

namespace host {

/// Renders a map's picture at a size in pixels, as MapPicture::Render does.
using RenderMap =
    std::function<PixelImage(MapPicture&, int width, int height, const Progress&)>;

/// Maps as last rendered, so that a page can be redrawn without reading its rasters.
class RenderedMaps {
public:
    /// @param render how maps are rendered; by default they render themselves
    explicit RenderedMaps(RenderMap render = {}) : m_render(std::move(render)) {}

    /// A map's picture at a size in pixels: the last rendering if it has that size, else
    /// a new one. Throws what rendering throws.
    PixelImage& Of(MapPicture& picture, int width, int height, const Progress& progress) {
        PixelImage& image = m_images[&picture];
        if (image.width != width || image.height != height) {
            image = {};
            image = m_render ? m_render(picture, width, height, progress)
                             : picture.Render(width, height, progress);
        }
        return image;
    }

private:
    RenderMap m_render;
    std::map<const MapPicture*, PixelImage> m_images;
};

}  // namespace host
