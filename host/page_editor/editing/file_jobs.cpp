#include "page_editor/editing/file_jobs.h"

#include <cstdint>
#include <filesystem>
#include <system_error>

#include "page/document/page_error.h"
#include "page/document/page_text.h"
#include "page/document/picture_file.h"
#include "page/document/raster_store.h"
#include "page/map/map_layers.h"
#include "page/output/page_output.h"
#include "page/texts.h"
#include "raster_data/confined_gdal.h"
#include "system/allowed_sources.h"
#include "system/confinement.h"
#include "system/errors.h"
#include "system/gdiplus_session.h"
#include "system/number_text.h"

namespace page_editor {
namespace {

std::vector<std::string> FieldsOf(const std::string& input) {
    std::vector<std::string> fields;
    std::size_t from = 0;
    for (std::size_t to = 0; (to = input.find('\0', from)) != std::string::npos;
         from = to + 1) {
        fields.push_back(input.substr(from, to - from));
    }
    return fields;
}

template <typename Bytes>
std::string StringOf(const Bytes& bytes) {
    return {bytes.begin(), bytes.end()};
}

/// @return why it cannot be opened; empty when it can
std::string ReadWhole(const std::string& path) {
    std::string why;
    const auto raster = host::GdalRaster::Open(path, why);
    if (raster == nullptr) {
        return why;
    }
    raster->GetClassifyDisplayTable();
    raster->RampColours();
    if (raster->GetDisplayType() == DisplayGray) {
        double low = 0.0;
        double high = 0.0;
        raster->GetRasterBand(0)->ComputeMinMax(&low, &high, true);
    }
    return {};
}

/// Confined to what a page file may have read. A missing raster needs no permission.
std::string ReadRaster(const std::string& input, const host::Progress&) {
    const std::vector<std::string> fields = FieldsOf(input);
    const std::string& path = fields.at(0);
    const std::string& pageFile = fields.at(1);
    if (pageFile.empty()) {
        return ReadWhole(path);
    }
    host::ConfineGdal(host::AllowedSources(pageFile));
    host::Confine({});
    std::string why = ReadWhole(path);
    std::error_code ignored;
    const bool isNowhere =
        !host::AllowedSources::IsNoPath(path) && !std::filesystem::exists(path, ignored);
    return isNowhere ? "" : why;
}

std::string ReadImage(const std::string& input, const host::Progress&) {
    const host::GdiplusSession session;
    return host::CheckImageFile(FieldsOf(input).at(0));
}

std::string ReadPage(const std::string& input, const host::Progress&) {
    const std::vector<std::string> fields = FieldsOf(input);
    const host::GdiplusSession session;
    const host::AllowedSources allowed(fields.at(0));
    const bool isHeld = !fields.at(1).empty();
    if (isHeld) {
        host::Confine({});
    }
    host::CheckFilesAndFonts(host::LoadPage(fields.at(0), isHeld ? &allowed : nullptr));
    return {};
}

std::string ReadItems(const std::string& input, const host::Progress&) {
    const host::GdiplusSession session;
    host::ReadItems(FieldsOf(input).at(0));
    return {};
}

std::string RenderMap(const std::string& input, const host::Progress& progress) {
    const std::vector<std::string> fields = FieldsOf(input);
    const host::GdiplusSession session;
    const host::PageItem item = host::ReadItem(fields.at(0));
    const auto& map = std::get<host::MapFrame>(item);
    return StringOf(
        host::RasterStore()
            .Map(map.rasterPaths, map.extent, map.style)
            ->Render(std::stoi(fields.at(1)), std::stoi(fields.at(2)), progress)
            .bgra);
}

std::string DrawPage(const std::string& input, const host::Progress& progress) {
    const std::vector<std::string> fields = FieldsOf(input);
    return host::Naming(fields.at(0), [&] {
        const host::GdiplusSession session;
        host::RasterStore rasters;
        host::Page page = host::ReadPage(fields.at(3), {});
        host::CheckFilesAndFonts(page);
        host::CheckFontsOf(page);
        host::OpenRasters(page, rasters);
        double dpi = 0.0;
        host::ParseNumber(fields.at(2), dpi);
        return StringOf(host::EncodePage(
            page, static_cast<host::OutputFormat>(std::stoi(fields.at(1))), dpi, progress,
            {}, {static_cast<host::MapImages>(std::stoi(fields.at(4)))}));
    });
}

}  // namespace

host::Jobs FileJobs() {
    return {{kReadRaster, ReadRaster}, {kReadImage, ReadImage}, {kReadPage, ReadPage},
            {kReadItems, ReadItems},   {kRenderMap, RenderMap}, {kDrawPage, DrawPage}};
}

std::string Joined(const std::vector<std::string>& fields) {
    std::string joined;
    for (const std::string& field : fields) {
        joined += field + '\0';
    }
    return joined;
}

}  // namespace page_editor
