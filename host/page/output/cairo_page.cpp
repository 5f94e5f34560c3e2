#include "page/output/cairo_page.h"

#include <new>
#include <stdexcept>
#include <string>
#include <variant>

#include "page/device_view.h"
#include "page/output/cairo_map.h"
#include "page/units.h"

namespace host {
namespace {

/// Begins a tag, and ends it however drawing goes: a surface with an open tag cannot be
/// used.
class Tag {
public:
    explicit Tag(cairo_t* cairo) : m_cairo(cairo) {
        cairo_tag_begin(m_cairo, kFigure, nullptr);
    }
    Tag(const Tag&) = delete;
    Tag& operator=(const Tag&) = delete;
    ~Tag() { cairo_tag_end(m_cairo, kFigure); }

private:
    static constexpr const char* kFigure = "Figure";
    cairo_t* m_cairo;
};

}  // namespace

void CheckCairo(cairo_status_t status) {
    if (status != CAIRO_STATUS_SUCCESS) {
        throw std::runtime_error(std::string("the page cannot be written: ") +
                                 cairo_status_to_string(status));
    }
}

cairo_status_t AppendToBytes(void* bytes, const unsigned char* data,
                             unsigned int length) {
    auto& all = *static_cast<std::vector<std::uint8_t>*>(bytes);
    try {
        all.insert(all.end(), data, data + length);
    } catch (const std::bad_alloc&) {
        return CAIRO_STATUS_WRITE_ERROR;
    }
    return CAIRO_STATUS_SUCCESS;
}

std::vector<std::size_t> DrawOnCairo(cairo_surface_t* surface, const Page& page,
                                     double dpi, const Progress& progress,
                                     const CairoDrawing& how) {
    std::vector<std::size_t> tags;
    const std::unique_ptr<cairo_t, void (*)(cairo_t*)> cairo(cairo_create(surface),
                                                             cairo_destroy);
    const double pixel = kPointsPerInch / dpi;
    cairo_scale(cairo.get(), pixel, pixel);
    const DeviceView view(page.Height(), dpi);
    {
        Gdiplus::CairoGraphics graphics(cairo.get(), static_cast<float>(dpi));
        if (how.prepare) {
            how.prepare(graphics);
        }
        page.Draw(graphics, dpi, progress,
                  [&](std::size_t item, const std::function<void()>& draw) {
                      const auto* const map = std::get_if<MapFrame>(&page.Items()[item]);
                      const auto drawItem = [&] {
                          if (map == nullptr) {
                              draw();
                              return;
                          }
                          DrawMapImage(surface, *map,
                                       view.ToDevice(map->frame.GetExtent()), dpi,
                                       how.print.mapImages, progress);
                      };
                      if (how.tagged.count(item) == 0) {
                          drawItem();
                          return;
                      }
                      const Tag tag(cairo.get());
                      tags.push_back(item);
                      drawItem();
                  });
    }
    if (how.print.drawn) {
        how.print.drawn();
    }
    cairo_show_page(cairo.get());
    CheckCairo(cairo_status(cairo.get()));
    return tags;
}

void FinishSurface(cairo_surface_t* surface) {
    cairo_surface_finish(surface);
    CheckCairo(cairo_surface_status(surface));
}

}  // namespace host
