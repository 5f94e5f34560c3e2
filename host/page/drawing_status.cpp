#include "page/drawing_status.h"

#include <cmath>
#include <optional>

#include "map_surround/title.h"
#include "page/element_of.h"
#include "system/errors.h"

namespace host {
namespace {

constexpr double kHighestText = 65535.0;  // pixels
constexpr double kLowestElement = 8.0;  // pixels; most texts are a quarter of it or less

std::string WordsFor(Gdiplus::Status status) {
    switch (status) {
        case Gdiplus::InvalidParameter:
            return "invalid parameter";
        case Gdiplus::OutOfMemory:
            return "out of memory";
        case Gdiplus::FontFamilyNotFound:
            return "no such font";
        default:
            return "status " + std::to_string(status);
    }
}

/// In pixels; nothing for an item without an element.
std::optional<double> HeightOf(const PageItem& item, double scale) {
    const auto* const title = ElementOf<CMapTitle>(item);
    const auto* const element = ElementOf<CMapSurround>(item);
    if (element == nullptr) {
        return std::nullopt;
    }
    return scale * (title != nullptr ? title->GetFontSize() : element->GetSize());
}

}  // namespace

std::string WhyNotWritten(const PageItem& item, double scale) {
    const double pixels = HeightOf(item, scale).value_or(kLowestElement);
    const std::string isHigh = "is " + std::to_string(std::llround(pixels)) +
                               (std::llround(pixels) == 1 ? " pixel" : " pixels") +
                               " high";
    if (pixels > kHighestText) {
        return isHigh + ", and texts of at most 65535 are drawn";
    }
    return pixels < kLowestElement ? isHigh + ", too little for its text" : "";
}

bool IsTooSmallToWrite(const PageItem& item, double scale) {
    return HeightOf(item, scale).value_or(kLowestElement) < kLowestElement;
}

void CheckDrawn(const Gdiplus::Graphics& graphics, const std::string& thing,
                const std::string& why) {
    const Gdiplus::Status status = graphics.GetLastStatus();
    if (status != Gdiplus::Ok) {
        throw NamedError(thing,
                         why.empty() ? "cannot be drawn: " + WordsFor(status) : why);
    }
}

}  // namespace host
