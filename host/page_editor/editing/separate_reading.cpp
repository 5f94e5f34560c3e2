#include "page_editor/editing/separate_reading.h"

#include <chrono>
#include <functional>
#include <stdexcept>
#include <variant>

#include "page/document/item_type.h"
#include "page/document/page_error.h"
#include "page/document/page_text.h"
#include "page/map/map_layers.h"
#include "page_editor/editing/file_jobs.h"
#include "system/helper_process.h"

namespace page_editor {
namespace {

using Clock = std::chrono::steady_clock;

constexpr std::chrono::milliseconds kTellingInterval(200);

/// Passes progress on once reading takes long, and then 1 at the end.
class Telling {
public:
    explicit Telling(const host::Progress& progress) : m_progress(progress) {}
    Telling(const Telling&) = delete;
    Telling& operator=(const Telling&) = delete;
    ~Telling() {
        if (m_isTold) {
            m_progress(1.0);
        }
    }

    bool operator()(double part) {
        const Clock::time_point now = Clock::now();
        if (!m_progress || now - m_last < kTellingInterval) {
            return true;
        }
        m_last = now;
        m_isTold = true;
        return m_progress(part);
    }

private:
    const host::Progress& m_progress;
    Clock::time_point m_last = Clock::now();
    bool m_isTold = false;
};

/// Only a crash matters here: other errors appear when the editor itself reads the file.
/// @return what the job returns; empty when it throws
std::string Try(const std::string& path, const std::string& job, const std::string& input,
                const host::Progress& progress) {
    Telling telling(progress);
    try {
        return host::InHelper("reading", job, input, std::ref(telling));
    } catch (const host::WorkFailed&) {
        return {};
    } catch (const std::runtime_error& error) {
        throw host::PageError(path, error.what());
    }
}

/// The rasters and style of a map, as an item.
std::string AsItem(const host::MapLayers& layers) {
    host::MapFrame map;
    for (const auto& raster : layers.Given()) {
        map.rasterPaths.push_back(raster->Path());
        map.style = raster->Style();
    }
    map.extent = layers.Asked();
    return host::WriteItem(map);
}

}  // namespace

host::PixelImage RenderSeparately(host::MapPicture& picture, int width, int height,
                                  const host::Progress& progress) {
    Telling telling(progress);
    auto* const layers = dynamic_cast<host::MapLayers*>(&picture);
    if (layers == nullptr) {
        return picture.Render(width, height, std::ref(telling));
    }
    const std::string bytes = host::InHelper(
        "reading the rasters", kRenderMap,
        Joined({AsItem(*layers), std::to_string(width), std::to_string(height)}),
        std::ref(telling));
    host::PixelImage image = {width, height, {bytes.begin(), bytes.end()}};
    layers->Note(image);
    return image;
}

void TryRasters(const std::vector<std::string>& paths, const host::RasterStore& rasters,
                const host::Progress& progress, const std::string& pageFile) {
    for (const std::string& path : paths) {
        if (rasters.Has(path)) {
            continue;
        }
        const std::string why =
            Try(path, kReadRaster, Joined({path, pageFile}), progress);
        if (!pageFile.empty() && !why.empty()) {
            throw NotAllowed(std::string(path).append(" ").append(why));
        }
    }
}

void TryRastersOf(const std::vector<host::PageItem>& items,
                  const host::RasterStore& rasters, const host::Progress& progress,
                  const std::string& pageFile) {
    for (const host::PageItem& item : items) {
        const host::ItemType* const type = host::TypeOf(item);
        for (const host::Property& property :
             type == nullptr ? std::vector<host::Property>() : type->properties) {
            if (property.kind == host::PropertyKind::Rasters) {
                TryRasters(std::get<std::vector<std::string>>(property.read(item)),
                           rasters, progress, pageFile);
            }
        }
    }
}

void TryImage(const std::string& path, const host::Progress& progress) {
    Try(path, kReadImage, Joined({path}), progress);
}

void TryPageFile(const std::string& path, bool isHeld, const host::Progress& progress) {
    Try("", kReadPage, Joined({path, isHeld ? "held" : ""}), progress);
}

void TryItems(const std::string& lines, const host::Progress& progress) {
    Try("", kReadItems, Joined({lines}), progress);
}

}  // namespace page_editor
