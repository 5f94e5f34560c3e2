#include "raster_data/vrt_sources.h"

#include <cpl_conv.h>
#include <cpl_minixml.h>
#include <cpl_string.h>
#include <cpl_vsi.h>

#include <algorithm>
#include <array>
#include <cstdint>
#include <cstdlib>
#include <cstring>
#include <iterator>
#include <map>
#include <memory>
#include <stdexcept>
#include <utility>
#include <vector>

#include "raster_data/confined_gdal.h"
#include "raster_data/gdal_session.h"

namespace host {
namespace {

constexpr int kDeepest = 3;
constexpr std::int64_t kMostNested = 10'000;

// Elements whose text names a raster.
constexpr const char* kSources[] = {"SourceFilename", "SourceDataset"};

using Xml = std::unique_ptr<CPLXMLNode, decltype(&CPLDestroyXMLNode)>;

/// As GDAL recognises one: by its first bytes.
bool IsVrt(const std::string& path) {
    std::array<char, 1025> first{};
    VSILFILE* const file = VSIFOpenL(path.c_str(), "rb");
    if (file == nullptr) {
        return false;
    }
    VSIFReadL(first.data(), 1, first.size() - 1, file);
    VSIFCloseL(file);
    return std::strstr(first.data(), "<VRTDataset") != nullptr;
}

bool IsCalled(const CPLXMLNode& node, const char* name) {
    return node.eType == CXT_Element && EQUAL(node.pszValue, name);
}

/// Whether a node has a file read as raw bytes, a program run, or a raster opened that no
/// source element names.
bool IsNotOfRasters(const CPLXMLNode& node) {
    return IsCalled(node, "ImageOffset") || IsCalled(node, "PixelFunctionLanguage") ||
           IsCalled(node, "Group") ||
           (node.eType == CXT_Attribute && EQUAL(node.pszValue, "subClass") &&
            EQUAL(CPLGetXMLValue(&node, nullptr, ""), "VRTRawRasterBand")) ||
           (IsCalled(node, "MDI") &&
            EQUAL(CPLGetXMLValue(&node, "key", ""), "OVERVIEW_FILE"));
}

/// Rasters, and how often each is read.
using Counts = std::map<std::string, std::int64_t>;

std::string SourceIn(const CPLXMLNode& element, const std::string& vrt) {
    const char* const name = CPLGetXMLValue(&element, nullptr, "");
    const bool isRelative =
        std::atoi(CPLGetXMLValue(&element, "relativeToVRT", "0")) != 0;
    return isRelative ? CPLProjectRelativeFilename(CPLGetPath(vrt.c_str()), name) : name;
}

/// The sources of a VRT. Throws std::runtime_error for one that is not allowed.
Counts SourcesOf(const std::string& vrt) {
    Counts sources;
    const Xml xml(CPLParseXMLFile(vrt.c_str()), CPLDestroyXMLNode);
    std::vector<const CPLXMLNode*> left = {xml.get()};
    while (!left.empty()) {
        const CPLXMLNode* const node = left.back();
        left.pop_back();
        if (node == nullptr) {
            continue;
        }
        if (IsGdalConfined() && IsNotOfRasters(*node)) {
            throw std::runtime_error("is a VRT of more than rasters");
        }
        left.push_back(node->psNext);
        if (std::any_of(std::begin(kSources), std::end(kSources),
                        [node](const char* name) { return IsCalled(*node, name); })) {
            ++sources[SourceIn(*node, vrt)];
        } else {
            left.push_back(node->psChild);
        }
    }
    return sources;
}

void CheckAllowed(const std::string& source) {
    const std::string why = WhyNotAllowed(source);
    if (!why.empty()) {
        throw std::runtime_error("reads " + source + ", which " + why);
    }
}

/// Follows a VRT into those it is made of, and so on. Throws std::runtime_error with the
/// reason why it should not be read.
void CheckVrt(const std::string& raster) {
    Counts vrts = {{raster, 1}};
    std::int64_t count = 0;
    for (int depth = 1; !vrts.empty(); ++depth) {
        if (depth > kDeepest) {
            throw std::runtime_error("has VRTs in VRTs, more than " +
                                     std::to_string(kDeepest) + " deep");
        }
        Counts below;
        std::int64_t nested = 0;
        for (const auto& [vrt, times] : vrts) {
            for (const auto& [source, timesHere] : SourcesOf(vrt)) {
                CheckAllowed(source);
                const std::int64_t all = times * timesHere;
                if (IsVrt(source)) {
                    below[source] += all;
                    nested += all;
                } else {
                    count += all;
                }
            }
        }
        if ((depth > 1 || nested > 0) && count + nested > kMostNested) {
            throw std::runtime_error("has VRTs in VRTs, which stand for more than " +
                                     std::to_string(kMostNested) + " rasters");
        }
        vrts = std::move(below);
    }
}

}  // namespace

std::string WhyNotVrt(const std::string& raster) {
    const QuietGdal quiet;
    try {
        if (IsVrt(raster)) {
            CheckVrt(raster);
        }
        return {};
    } catch (const std::runtime_error& error) {
        return error.what();
    }
}

}  // namespace host
