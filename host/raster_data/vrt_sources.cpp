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

#include "raster_data/confined_gdal.h"
#include "raster_data/gdal_session.h"

namespace host {
namespace {

constexpr int kDeepest = 3;
constexpr std::int64_t kMostNested = 10'000;

// Elements whose text is the name of a raster.
constexpr const char* kSources[] = {"SourceFilename", "SourceDataset"};

using Xml = std::unique_ptr<CPLXMLNode, decltype(&CPLDestroyXMLNode)>;

/// As GDAL tells one: by what stands in the first bytes.
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

/// Whether it has a file read as bytes, a program run, or a raster opened that no element
/// of the sources names.
bool IsNotOfRasters(const CPLXMLNode& node) {
    return IsCalled(node, "ImageOffset") || IsCalled(node, "PixelFunctionLanguage") ||
           IsCalled(node, "Group") ||
           (node.eType == CXT_Attribute && EQUAL(node.pszValue, "subClass") &&
            EQUAL(CPLGetXMLValue(&node, nullptr, ""), "VRTRawRasterBand")) ||
           (IsCalled(node, "MDI") &&
            EQUAL(CPLGetXMLValue(&node, "key", ""), "OVERVIEW_FILE"));
}

// NOLINTBEGIN(misc-no-recursion): no deeper than kDeepest VRTs, and than an XML file
// nests
/// What a VRT is made of, and so on. Throws std::runtime_error with what speaks against
/// it.
class Sources {
public:
    /// The rasters that a VRT stands for; each is read as often as it is named.
    std::int64_t CountIn(const std::string& vrt, int depth = 1) {
        const auto known = m_counts.find({vrt, depth});
        if (known != m_counts.end()) {
            return known->second;
        }
        if (depth > kDeepest) {
            throw std::runtime_error("has VRTs in VRTs, more than " +
                                     std::to_string(kDeepest) + " deep");
        }
        const Xml xml(CPLParseXMLFile(vrt.c_str()), CPLDestroyXMLNode);
        const std::int64_t count = CountOfAll(xml.get(), vrt, depth);
        if (m_isNested && count > kMostNested) {
            throw std::runtime_error("has VRTs in VRTs, which stand for more than " +
                                     std::to_string(kMostNested) + " rasters");
        }
        m_counts[{vrt, depth}] = count;
        return count;
    }

private:
    /// Of a node, those after it, and all below them.
    std::int64_t CountOfAll(const CPLXMLNode* node, const std::string& vrt, int depth) {
        std::int64_t count = 0;
        for (; node != nullptr; node = node->psNext) {
            if (IsGdalConfined() && IsNotOfRasters(*node)) {
                throw std::runtime_error("is a VRT of more than rasters");
            }
            const bool isSource =
                std::any_of(std::begin(kSources), std::end(kSources),
                            [&](const char* name) { return IsCalled(*node, name); });
            count += isSource ? CountOf(*node, vrt, depth)
                              : CountOfAll(node->psChild, vrt, depth);
        }
        return count;
    }

    std::int64_t CountOf(const CPLXMLNode& element, const std::string& vrt, int depth) {
        const std::string name = CPLGetXMLValue(&element, nullptr, "");
        const bool isRelative =
            std::atoi(CPLGetXMLValue(&element, "relativeToVRT", "0")) != 0;
        const std::string source =
            isRelative ? CPLProjectRelativeFilename(CPLGetPath(vrt.c_str()), name.c_str())
                       : name;
        const std::string why = WhyNotAllowed(source);
        if (!why.empty()) {
            throw std::runtime_error("reads " + source + ", which " + why);
        }
        if (!IsVrt(source)) {
            return 1;
        }
        m_isNested = true;
        return CountIn(source, depth + 1);
    }

    bool m_isNested = false;
    std::map<std::pair<std::string, int>, std::int64_t> m_counts;
};
// NOLINTEND(misc-no-recursion)

}  // namespace

std::string WhyNotVrt(const std::string& raster) {
    const QuietGdal quiet;
    try {
        if (IsVrt(raster)) {
            Sources().CountIn(raster);
        }
        return {};
    } catch (const std::runtime_error& error) {
        return error.what();
    }
}

}  // namespace host
