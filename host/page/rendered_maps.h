#pragma once

#include <map>

#include "page/map_picture.h"

namespace host {

/// Maps as they were last rendered, so that a page can be drawn again without reading
/// its rasters.
class RenderedMaps {
public:
    /// A map's picture at a size in pixels: as it was rendered when that was its size
    /// then, else rendered now. Throws what rendering throws.
    PixelImage& Of(MapPicture& picture, int width, int height, const Progress& progress) {
        PixelImage& image = m_images[&picture];
        if (image.width != width || image.height != height) {
            image = {};
            image = picture.Render(width, height, progress);
        }
        return image;
    }

private:
    std::map<const MapPicture*, PixelImage> m_images;
};

}  // namespace host
