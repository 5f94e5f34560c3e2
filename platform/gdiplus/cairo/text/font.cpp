#include "cairo/text/font.h"

#include <algorithm>

#include "cairo/graphics.h"
#include "cairo/text/text_cache.h"

namespace engine {
namespace {

GpStatus TellMetric(const GpFontFamily* family, INT style, UINT16* value,
                    UINT16 FamilyMetrics::*metric) {
    if (!IsStyle(style)) {
        return InvalidParameter;
    }
    return Guarded([&] {
        return Tell(From(family), value, [&](const FontFamily& f) {
            return f.family->MetricsOf(style).*metric;
        });
    });
}

}  // namespace
}  // namespace engine

namespace Gdiplus::DllExports {
extern "C" {

using engine::From;
using engine::Tell;

GpStatus GdipCreateFontFamilyFromName(const FlatChar* name, GpFontCollection* collection,
                                      GpFontFamily** family) {
    if (!engine::IsRunning()) {
        return GdiplusNotInitialized;
    }
    if (name == nullptr || family == nullptr || collection != nullptr) {
        return InvalidParameter;
    }
    return engine::Guarded([&] {
        std::shared_ptr<const engine::Family> found = engine::FamilyOf(name);
        if (found == nullptr) {
            return FontFamilyNotFound;
        }
        auto* made = new engine::FontFamily;
        made->family = std::move(found);
        *family = made;
        return Ok;
    });
}

GpStatus GdipDeleteFontFamily(GpFontFamily* family) {
    return engine::Delete(From(family));
}

GpStatus GdipGetFamilyName(const GpFontFamily* family, FlatChar* name, LANGID) {
    if (family == nullptr || name == nullptr) {
        return InvalidParameter;
    }
    constexpr std::size_t room = 32;
    const std::u16string& all = From(family)->family->name;
    const std::size_t count = std::min(all.size(), room - 1);
    std::copy_n(all.begin(), count, name);
    name[count] = 0;
    return Ok;
}

GpStatus GdipIsStyleAvailable(const GpFontFamily* family, INT style, BOOL* available) {
    return Tell(family, available, [&](auto&) { return engine::IsStyle(style) ? 1 : 0; });
}

GpStatus GdipGetEmHeight(const GpFontFamily* family, INT style, UINT16* height) {
    return engine::TellMetric(family, style, height, &engine::FamilyMetrics::em);
}

GpStatus GdipGetCellAscent(const GpFontFamily* family, INT style, UINT16* ascent) {
    return engine::TellMetric(family, style, ascent, &engine::FamilyMetrics::ascent);
}

GpStatus GdipGetCellDescent(const GpFontFamily* family, INT style, UINT16* descent) {
    return engine::TellMetric(family, style, descent, &engine::FamilyMetrics::descent);
}

GpStatus GdipGetLineSpacing(const GpFontFamily* family, INT style, UINT16* spacing) {
    return engine::TellMetric(family, style, spacing, &engine::FamilyMetrics::spacing);
}

GpStatus GdipCreateFont(const GpFontFamily* family, REAL emSize, INT style, Unit unit,
                        GpFont** font) {
    const bool valid = family != nullptr && emSize > 0.0f && engine::IsStyle(style) &&
                       engine::IsUnit(unit);
    return engine::Make(font, valid, [&] {
        auto* made = new engine::Font;
        made->family = From(family)->family;
        made->size = emSize;
        made->style = style;
        made->unit = unit;
        return made;
    });
}

GpStatus GdipDeleteFont(GpFont* font) { return engine::Delete(From(font)); }

GpStatus GdipGetFontSize(GpFont* font, REAL* size) {
    return Tell(From(font), size, [](auto& f) { return f.size; });
}

GpStatus GdipGetFontStyle(GpFont* font, INT* style) {
    return Tell(From(font), style, [](auto& f) { return f.style; });
}

GpStatus GdipGetFontUnit(GpFont* font, Unit* unit) {
    return Tell(From(font), unit, [](auto& f) { return f.unit; });
}

GpStatus GdipGetFamily(GpFont* font, GpFontFamily** family) {
    return engine::Make(family, font != nullptr, [&] {
        auto* made = new engine::FontFamily;
        made->family = From(font)->family;
        return made;
    });
}

GpStatus GdipGetFontHeightGivenDPI(const GpFont* font, REAL dpi, REAL* height) {
    return engine::Guarded([&] {
        return Tell(From(font), height, [&](const engine::Font& f) {
            const engine::FamilyMetrics& m = f.family->MetricsOf(f.style);
            return f.size * engine::PixelsIn(f.unit, dpi) * static_cast<REAL>(m.spacing) /
                   static_cast<REAL>(m.em);
        });
    });
}

}  // extern "C"
}  // namespace Gdiplus::DllExports
