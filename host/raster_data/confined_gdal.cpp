#include "raster_data/confined_gdal.h"

#include <cpl_conv.h>
#include <cpl_vsi_virtual.h>
#include <gdal_priv.h>
#include <ogr_srs_api.h>

#include <algorithm>
#include <cerrno>
#include <cstring>
#include <filesystem>
#include <iterator>
#include <optional>
#include <string_view>
#include <system_error>

#include "raster_data/gdal_session.h"

namespace host {
namespace {

// Each reads a file and side files of the same name. VRT reads others: see vrt_sources.h.
constexpr std::string_view kFileDrivers[] = {
    "VRT",    "GTiff", "PNG",     "JPEG",           "BMP",         "GIF",
    "BIGGIF", "HFA",   "AAIGrid", "GRASSASCIIGrid", "JP2OpenJPEG", "WEBP",
    "ENVI",   "EHdr",  "DTED",    "USGSDEM",        "SRTMHGT",     "XYZ",
    "SAGA",   "PNM",   "GSAG",    "GSBG",           "GS7BG",       "RST"};

constexpr std::string_view kServiceDrivers[] = {"WMS",    "WCS",    "WMTS",  "HTTP",
                                                "OGCAPI", "STACTA", "STACIT"};

constexpr std::string_view kNeverFolders[] = {"/vsistdin", "/vsistdout", "/vsicrypt/",
                                              "/vsisparse/"};

struct Confinement {
    AllowedSources allowed;
    std::string lastRefused;
};

/// The confinement of this process.
std::optional<Confinement>& Current() {
    static std::optional<Confinement> confinement;
    return confinement;
}

template <std::size_t Count>
bool BeginsWithOneOf(std::string_view text, const std::string_view (&beginnings)[Count]) {
    return std::any_of(std::begin(beginnings), std::end(beginnings),
                       [&text](std::string_view beginning) {
                           return text.substr(0, beginning.size()) == beginning;
                       });
}

template <std::size_t Count>
bool IsOneOf(std::string_view text, const std::string_view (&list)[Count]) {
    return std::find(std::begin(list), std::end(list), text) != std::end(list);
}

/// This process's own memory, which holds only what the process writes: TIFF files.
constexpr std::string_view kMemoryFolder = "/vsimem/";

/// The file system as GDAL sees it: what is not allowed does not exist, and nothing can
/// be written.
class AllowedFilesystem : public VSIFilesystemHandler {
public:
    explicit AllowedFilesystem(VSIFilesystemHandler& files) : m_files(files) {}

    using VSIFilesystemHandler::Open;
    VSIVirtualHandle* Open(const char* path, const char* access, bool setError,
                           CSLConstList options) override {
        if (std::strpbrk(access, "wa+") != nullptr || !MayOpen(path)) {
            errno = EACCES;
            return nullptr;
        }
        return m_files.Open(path, access, setError, options);
    }

    int Stat(const char* path, VSIStatBufL* status, int flags) override {
        if (!MayOpen(path)) {
            errno = ENOENT;
            return -1;
        }
        return m_files.Stat(path, status, flags);
    }

    char** ReadDirEx(const char* path, int most) override {
        // Where only the file is allowed, its folder is not listed.
        return Current()->allowed.WhyNotFile(path).empty() ? m_files.ReadDirEx(path, most)
                                                           : nullptr;
    }

private:
    static bool MayOpen(const char* path) {
        const std::string why = Current()->allowed.WhyNotFile(path);
        std::error_code ignored;
        if (!why.empty() && std::filesystem::exists(path, ignored)) {
            Current()->lastRefused = std::string(path) + " " + why;
        }
        return why.empty();
    }

    VSIFilesystemHandler& m_files;
};

/// One of GDAL's folders, such as `/vsicurl/`, with nothing in it.
class EmptyFilesystem : public VSIFilesystemHandler {
public:
    using VSIFilesystemHandler::Open;
    VSIVirtualHandle* Open(const char* path, const char* /*access*/, bool /*setError*/,
                           CSLConstList /*options*/) override {
        Current()->lastRefused =
            std::string(path) + " " + Current()->allowed.WhyNot(path);
        errno = EACCES;
        return nullptr;
    }
    int Stat(const char* /*path*/, VSIStatBufL* /*status*/, int /*flags*/) override {
        errno = ENOENT;
        return -1;
    }
};

void ConfineFilesystems() {
    // The manager takes ownership, and forgets the previous handler.
    VSIFileManager::InstallHandler(
        "", new AllowedFilesystem(*VSIFileManager::GetHandler("")));
    const CPLStringList prefixes(VSIFileManager::GetPrefixes());
    for (int i = 0; i < prefixes.size(); ++i) {
        const std::string_view prefix = prefixes[i];
        const bool isKept = AllowedSources::IsInFiles(prefix) ||
                            prefix == kMemoryFolder ||
                            (Current()->allowed.IsNetworkAllowed() &&
                             !BeginsWithOneOf(prefix, kNeverFolders));
        if (!isKept) {
            VSIFileManager::InstallHandler(prefixes[i], new EmptyFilesystem);
        }
    }
}

void ConfineDrivers() {
    GDALDriverManager& drivers = *GetGDALDriverManager();
    for (int i = drivers.GetDriverCount() - 1; i >= 0; --i) {
        GDALDriver* const driver = drivers.GetDriver(i);
        const std::string_view name = driver->GetDescription();
        if (!IsOneOf(name, kFileDrivers) &&
            !(Current()->allowed.IsNetworkAllowed() && IsOneOf(name, kServiceDrivers))) {
            drivers.DeregisterDriver(driver);
        }
    }
}

}  // namespace

void ConfineGdal(const AllowedSources& allowed) {
    StartGdal();
    Current() = Confinement{allowed, {}};
    for (const std::string& place : GdalPlaces()) {
        Current()->allowed.Allow(place);
    }
    ConfineDrivers();
    ConfineFilesystems();
}

bool IsPlainRaster(const std::string& raster) {
    StartGdal();
    const QuietGdal quiet;
    std::error_code ignored;
    CPLStringList drivers;
    for (const std::string_view name : kFileDrivers) {
        if (name != "VRT") {
            drivers.AddString(std::string(name).c_str());
        }
    }
    return std::filesystem::is_regular_file(raster, ignored) &&
           GDALIdentifyDriverEx(raster.c_str(), GDAL_OF_RASTER, drivers.List(),
                                nullptr) != nullptr;
}

std::vector<std::string> GdalPlaces() {
    std::vector<std::string> places;
    if (const char* const table = CPLFindFile("gdal", "gdalvrt.xsd")) {
        places.emplace_back(CPLGetDirname(table));
    }
    const CPLStringList folders(OSRGetPROJSearchPaths());
    for (int i = 0; i < folders.size(); ++i) {
        places.emplace_back(folders[i]);
    }
    return places;
}

bool IsGdalConfined() { return Current().has_value(); }

std::string WhyNotAllowed(const std::string& raster) {
    return Current() ? Current()->allowed.WhyNot(raster) : "";
}

std::string WhyNotOfThisKind() {
    return Current() ? Current()->allowed.WhyNotOfThisKind() : "";
}

std::string LastRefused() { return Current() ? Current()->lastRefused : ""; }

void ForgetRefused() {
    if (Current()) {
        Current()->lastRefused.clear();
    }
}

}  // namespace host
