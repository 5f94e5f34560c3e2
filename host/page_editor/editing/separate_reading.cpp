#include "page_editor/editing/separate_reading.h"

#include <chrono>
#include <filesystem>
#include <functional>
#include <stdexcept>
#include <system_error>
#include <variant>

#include "page/document/item_type.h"
#include "page/document/page_error.h"
#include "page/document/page_text.h"
#include "page/document/picture_file.h"
#include "page/map/map_layers.h"
#include "raster_data/confined_gdal.h"
#include "system/confinement.h"
#include "system/separate_process.h"

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

/// Only a process that dies matters here: other errors come up when the editor itself
/// reads the file.
/// @return what reading returns; empty when it throws
std::string Try(const std::string& path, const host::Progress& progress,
                const std::function<std::string()>& read) {
    Telling telling(progress);
    try {
        return host::InSeparateProcess(
            "reading", [&](const host::Progress&) { return read(); }, std::ref(telling));
    } catch (const host::WorkFailed&) {
        return {};
    } catch (const std::runtime_error& error) {
        throw host::PageError(path, error.what());
    }
}

/// @return why it cannot be opened; empty when it can
std::string ReadRaster(const std::string& path) {
    std::string why;
    const auto raster = host::GdalRaster::Open(path, why);
    if (raster == nullptr) {
        return why;
    }
    raster->GetClassifyDisplayTable();
    if (raster->GetDisplayType() == DisplayGray) {
        double low = 0.0;
        double high = 0.0;
        raster->GetRasterBand(0)->ComputeMinMax(&low, &high, true);
    }
    return {};
}

/// The same where no more is read than is allowed, and nothing else can be done. One that
/// is not there is nobody's to allow.
std::string ReadAllowedRaster(const std::string& path,
                              const host::AllowedSources& allowed) {
    host::ConfineGdal(allowed);
    host::Confine({});
    std::string why = ReadRaster(path);
    std::error_code ignored;
    const bool isNowhere =
        !host::AllowedSources::IsNoPath(path) && !std::filesystem::exists(path, ignored);
    return isNowhere ? "" : why;
}

}  // namespace

host::PixelImage RenderSeparately(host::MapPicture& picture, int width, int height,
                                  const host::Progress& progress) {
    Telling telling(progress);
    const auto* const layers = dynamic_cast<const host::MapLayers*>(&picture);
    if (layers == nullptr) {
        return picture.Render(width, height, std::ref(telling));
    }
    const std::string bytes = host::InSeparateProcess(
        "reading the rasters",
        [&](const host::Progress& tell) {
            const host::PixelImage image =
                layers->Reopened()->Render(width, height, tell);
            return std::string(image.bgra.begin(), image.bgra.end());
        },
        std::ref(telling));
    return {width, height, {bytes.begin(), bytes.end()}};
}

void TryRasters(const std::vector<std::string>& paths, const host::RasterStore& rasters,
                const host::Progress& progress, const host::AllowedSources* allowed) {
    for (const std::string& path : paths) {
        if (rasters.Has(path)) {
            continue;
        }
        const std::string why = Try(path, progress, [&] {
            return allowed != nullptr ? ReadAllowedRaster(path, *allowed)
                                      : ReadRaster(path);
        });
        if (allowed != nullptr && !why.empty()) {
            throw NotAllowed(path + " " + why);
        }
    }
}

void TryRastersOf(const std::vector<host::PageItem>& items,
                  const host::RasterStore& rasters, const host::Progress& progress,
                  const host::AllowedSources* allowed) {
    for (const host::PageItem& item : items) {
        const host::ItemType* const type = host::TypeOf(item);
        for (const host::Property& property :
             type == nullptr ? std::vector<host::Property>() : type->properties) {
            if (property.kind == host::PropertyKind::Rasters) {
                TryRasters(std::get<std::vector<std::string>>(property.read(item)),
                           rasters, progress, allowed);
            }
        }
    }
}

void TryImage(const std::string& path, const host::Progress& progress) {
    Try(path, progress, [&] { return host::CheckImageFile(path); });
}

void TryPageFile(const std::string& path, const host::Progress& progress,
                 const host::AllowedSources* allowed) {
    Try("", progress, [&] {
        if (allowed != nullptr) {
            host::Confine({});
        }
        host::CheckFilesAndFonts(host::LoadPage(path, allowed));
        return std::string();
    });
}

void TryItems(const std::string& lines, const host::Progress& progress) {
    Try("", progress, [&] {
        host::ReadItems(lines);
        return std::string();
    });
}

}  // namespace page_editor
