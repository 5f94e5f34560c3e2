#pragma once

#include <gdiplus.h>

#include <cstddef>
#include <functional>
#include <limits>
#include <memory>
#include <optional>
#include <string>
#include <variant>
#include <vector>

#include "map_surround/frame.h"
#include "page/box.h"
#include "page/map/map_picture.h"
#include "page/map/rendered_maps.h"
#include "raster_data/raster_style.h"

namespace host {

/// The map on the page: a picture that fills its frame.
struct MapFrame {
    CFrameBase frame;
    std::shared_ptr<MapPicture> picture;        ///< null until the rasters are open
    std::string name = {};                      ///< UTF-8
    std::vector<std::string> rasterPaths = {};  ///< the first on top
    std::optional<Box> extent = std::nullopt;   ///< shown; else all the rasters
    /// The denominator of the scale that the frame keeps whatever its size, around the
    /// middle of the extent; NaN for none.
    double scale = std::numeric_limits<double>::quiet_NaN();
    RasterStyle style = {};            ///< of its rasters
    std::string alternativeText = {};  ///< see PlacedFrame::AlternativeText
};

/// What stands on a page: a map, or a frame with one element in it.
using PageItem = std::variant<MapFrame, std::unique_ptr<CSurroundFrame>>;

/// The frame of an item, whatever stands in it.
CFrameBase& FrameOf(PageItem& item);
const CFrameBase& FrameOf(const PageItem& item);

/// What an item is called: its name, or else its type ("map", "title").
std::string NameOf(const PageItem& item);

/// What a page says about itself in files that have a place for it; drawn nowhere. UTF-8;
/// what is empty is derived from the page's contents, or left out.
struct PageAbout {
    std::string title = {};
    std::string author = {};
    std::string subject = {};
    std::string keywords = {};
    std::string language = {};  ///< the code of a language: "de"
};

/// Draws an item's content, and may tell a file that it does.
using MarkContent =
    std::function<void(std::size_t item, const std::function<void()>& draw)>;

/// A sheet with maps and framed elements, drawn at any resolution.
///
/// Extents and sizes are in page units, y growing upwards from the bottom left corner.
/// Items are drawn in their order; of each, its shadow and background, the map's picture,
/// its border, its element. What a frame measures in device pixels (its border width and
/// its gaps) is meant for 96 dpi and grows with the resolution, so that the same page
/// looks the same at 96 and at 300 dpi.
class Page {
public:
    /// A blank white sheet. @param width, height page units, above 0
    Page(double width, double height) : m_width(width), m_height(height) {}

    double Width() const { return m_width; }
    double Height() const { return m_height; }

    void Add(MapFrame map) { m_items.emplace_back(std::move(map)); }
    void Add(std::unique_ptr<CSurroundFrame> frame) {
        m_items.emplace_back(std::move(frame));
    }

    const PageAbout& About() const { return m_about; }
    PageAbout& About() { return m_about; }

    /// In drawing order.
    const std::vector<PageItem>& Items() const { return m_items; }
    std::vector<PageItem>& Items() { return m_items; }

    /// Draws the sheet and every item on it. The surface's world transform is the
    /// identity before each item. Throws what a map's picture throws, and NamedError with
    /// the name of the first item that GDI+ did not draw completely.
    /// @param dpi device pixels per inch: an A4 page is 1754 x 1240 pixels at 150 dpi
    /// @param progress told how far the maps have been read
    /// @param mark draws the content of maps and elements, by their index in Items();
    /// frames are drawn without it
    void Draw(Gdiplus::Graphics& graphics, double dpi, const Progress& progress = {},
              const MarkContent& mark = {}) const;

    /// As Draw, but draws only these items, in the given order, on blank paper, and takes
    /// their maps from those rendered before. Where the surface has a clip, only inside
    /// it. Continues after an item that GDI+ did not draw completely.
    /// @return the reason for each of the items ("title: is 83333 pixels high, and …");
    /// empty for those that were drawn, or whose texts are only too small for the
    /// resolution
    std::vector<std::string> DrawItems(Gdiplus::Graphics& graphics, double dpi,
                                       const std::vector<std::size_t>& items,
                                       RenderedMaps& maps) const;

private:
    double m_width;
    double m_height;
    PageAbout m_about;
    std::vector<PageItem> m_items;
};

/// The size of a page in whole device pixels, at least 1 x 1.
Gdiplus::Size PixelSize(const Page& page, double dpi);

}  // namespace host
