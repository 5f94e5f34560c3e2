#include "map_page/safe_drawing.h"

#include <algorithm>
#include <filesystem>
#include <iterator>
#include <string>
#include <system_error>
#include <vector>

#include "page/output/output_format.h"
#include "raster_data/confined_gdal.h"
#include "system/confinement.h"
#include "system/fonts.h"

namespace map_page {
namespace {

// What libraries load on first use.
constexpr const char* kSystemPlaces[] = {"/usr", "/lib", "/lib64", "/etc/ld.so.cache",
                                         "/etc/localtime"};

std::vector<std::string> Readable(const Options& options,
                                  const host::AllowedSources& allowed) {
    std::vector<std::string> places(std::begin(kSystemPlaces), std::end(kSystemPlaces));
    for (const std::vector<std::string>& more :
         {allowed.Places(), host::FontPlaces(), host::GdalPlaces(), {options.pageFile}}) {
        places.insert(places.end(), more.begin(), more.end());
    }
    return places;
}

/// The user's own raster, and its side files: "scene.tif" with "scene.tif.ovr" and
/// "scene.tfw".
void AllowWithSideFiles(const std::string& raster, host::AllowedSources& allowed) {
    namespace fs = std::filesystem;
    allowed.Allow(raster);
    const fs::path path(raster);
    const std::string beginning = path.stem().string() + ".";
    std::error_code ignored;
    const fs::path folder = path.has_parent_path() ? path.parent_path() : ".";
    for (const fs::directory_entry& entry : fs::directory_iterator(folder, ignored)) {
        const std::string name = entry.path().filename().string();
        if (name.compare(0, beginning.size(), beginning) == 0) {
            allowed.Allow(entry.path().string());
        }
    }
}

}  // namespace

std::optional<host::AllowedSources> AllowedBy(const Options& options) {
    if (options.pageFile.empty() || options.allowAll) {
        return std::nullopt;
    }
    host::AllowedSources allowed(options.pageFile,
                                 {"--allow-outside", "--allow-remote", "--allow-all"});
    if (!options.series.empty()) {
        allowed.AllowFolderOf(options.series);
    }
    for (const std::string& folder : options.allowedFolders) {
        allowed.Allow(folder);
    }
    if (!options.picture.empty()) {
        allowed.Allow(options.picture);
    }
    for (const std::string& raster : options.rasters) {
        AllowWithSideFiles(raster, allowed);
    }
    if (options.allowRemote) {
        allowed.AllowNetwork();
    }
    return allowed;
}

void Confine(const Options& options) {
    const std::optional<host::AllowedSources> allowed = AllowedBy(options);
    host::Kept kept;
    if (allowed) {
        host::ConfineGdal(*allowed);
        kept.network = allowed->IsNetworkAllowed();
        if (!kept.network) {
            kept.readable = Readable(options, *allowed);
        }
    } else if (options.allowAll ||
               !std::all_of(options.rasters.begin(), options.rasters.end(),
                            host::IsPlainRaster)) {
        return;
    }
    host::Confine(kept);
}

}  // namespace map_page
