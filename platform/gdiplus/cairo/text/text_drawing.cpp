#include <algorithm>
#include <cmath>

#include "cairo/brush.h"
#include "cairo/graphics.h"
#include "cairo/pencil.h"
#include "cairo/text/text_cache.h"
#include "cairo/unicode.h"

namespace engine {
namespace {

/// How a text meets a surface: it is laid out for the pixels if the world transform only
/// moves and scales, in world units if it rotates.
struct Placing {
    bool upright = true;
    double scale = 1.0;  ///< layout pixels per world unit
};

Placing PlacingOn(const Graphics& graphics) {
    const cairo_matrix_t device = graphics.Device();
    const bool upright =
        device.xy == 0.0 && device.yx == 0.0 && device.xx == device.yy && device.xx > 0.0;
    return {upright && graphics.ofPixels, upright ? device.xx : 1.0};
}

TextStyle StyleOf(const Family& family, double size, INT fontStyle, const RectF& box,
                  const GpStringFormat* format, double scale) {
    TextStyle style;
    style.family = &family;
    style.size = size * scale;
    style.style = fontStyle;
    style.width = box.Width > 0.0f ? box.Width * scale : 0.0;
    style.height = box.Height > 0.0f ? box.Height * scale : 0.0;
    if (format != nullptr) {
        const StringFormat& f = *From(format);
        style.flags = f.flags;
        style.alignment = f.alignment;
        style.lineAlignment = f.lineAlignment;
        style.trimming = f.trimming;
    }
    return style;
}

/// The length of a text, or up to its null; -1 for an invalid length.
std::ptrdiff_t LengthOf(const FlatChar* text, INT length) {
    if (length == -1) {
        return static_cast<std::ptrdiff_t>(std::char_traits<FlatChar>::length(text));
    }
    return length < -1 ? -1 : length;
}

constexpr double kLargestSize = 65535.0;
/// The largest em for which a file, whose units are points, has glyphs.
constexpr double kLargestText = 10000.0;

bool IsBox(const RectF& box) {
    return std::isfinite(box.X) && std::isfinite(box.Y) && !std::isnan(box.Width) &&
           !std::isnan(box.Height);
}

/// The most by which a matrix lengthens anything.
double Enlargement(const cairo_matrix_t& matrix) {
    return std::max(std::hypot(matrix.xx, matrix.yx), std::hypot(matrix.xy, matrix.yy));
}

/// The glyphs of a run moved by (x, y), without those far outside the surface.
/// @return whether all are there
bool Move(const GlyphRun& run, double x, double y, std::vector<cairo_glyph_t>& moved) {
    constexpr double most = 1 << 21;
    moved.clear();
    for (const cairo_glyph_t& glyph : run.glyphs) {
        const cairo_glyph_t there = {glyph.index, glyph.x + x, glyph.y + y};
        if (std::fabs(there.x) < most && std::fabs(there.y) < most) {
            moved.push_back(there);
        }
    }
    return moved.size() == run.glyphs.size();
}

/// Draws them with the text that they stand for, where the surface keeps texts.
void Show(cairo_t* cairo, const GlyphRun& run, const std::vector<cairo_glyph_t>& glyphs,
          bool isWhole) {
    const auto count = static_cast<int>(glyphs.size());
    if (isWhole &&
        cairo_surface_has_show_text_glyphs(cairo_get_group_target(cairo)) != 0) {
        cairo_show_text_glyphs(
            cairo, run.text.data(), static_cast<int>(run.text.size()), glyphs.data(),
            count, run.clusters.data(), static_cast<int>(run.clusters.size()),
            run.isBackward ? CAIRO_TEXT_CLUSTER_FLAG_BACKWARD
                           : static_cast<cairo_text_cluster_flags_t>(0));
    } else {
        cairo_show_glyphs(cairo, glyphs.data(), count);
    }
}

/// Draws with the corner at (x, y), under Cairo's present matrix.
void WriteGlyphs(Graphics& graphics, const TextLayout& layout, double x, double y,
                 bool upright) {
    cairo_t* const cairo = graphics.cairo;
    thread_local std::vector<cairo_glyph_t> moved;
    for (const GlyphRun& run : layout.runs) {
        const bool isWhole = Move(run, x, y, moved);
        const SizedFace& face = *run.face;
        if (upright) {
            cairo_set_scaled_font(cairo, face.glyphs.get());
        } else {
            cairo_set_font_face(cairo, face.face->glyphs.get());
            cairo_set_font_size(cairo, face.size);
            cairo_set_font_options(cairo,
                                   OptionsFor(*face.face->file, face.fit, true).get());
        }
        Show(cairo, run, moved, isWhole);
    }
}

void FillStrokes(cairo_t* cairo, const TextLayout& layout, double x, double y) {
    for (const cairo_rectangle_t& stroke : layout.strokes) {
        cairo_rectangle(cairo, x + stroke.x, y + stroke.y, stroke.width, stroke.height);
        cairo_fill(cairo);
    }
}

Extents ExtentsOf(const TextLayout& layout, const cairo_matrix_t& matrix, double x,
                  double y, double size) {
    // Slanted and stacked characters reach beyond their advances.
    double left = x + layout.left - size;
    double top = y + layout.top - size;
    double right = left + layout.width + 2.0 * size;
    double bottom = top + layout.height + 2.0 * size;
    cairo_matrix_t transform = matrix;
    Extents extents = {1e9, 1e9, -1e9, -1e9};
    for (const double cornerX : {left, right}) {
        for (const double cornerY : {top, bottom}) {
            double atX = cornerX;
            double atY = cornerY;
            cairo_matrix_transform_point(&transform, &atX, &atY);
            extents.left = std::min(extents.left, atX);
            extents.top = std::min(extents.top, atY);
            extents.right = std::max(extents.right, atX);
            extents.bottom = std::max(extents.bottom, atY);
        }
    }
    return extents;
}

/// Clips to the rectangle of a text, in Cairo's coordinates.
void ClipTo(cairo_t* cairo, double x, double y, double width, double height) {
    constexpr double far = 1 << 20;
    cairo_save(cairo);
    cairo_rectangle(cairo, width > 0.0 ? x : -far, height > 0.0 ? y : -far,
                    width > 0.0 ? width : 2 * far, height > 0.0 ? height : 2 * far);
    cairo_clip(cairo);
}

/// Fills the outlines of a text too large for glyphs: FreeType would give up on its face
/// for good.
/// @param scale layout units per world unit
GpStatus FillLarge(Graphics& graphics, TextLayout& layout, const TextStyle& style,
                   const RectF& box, double scale, ARGB color) {
    const Path& outline = OutlineOf(layout);
    cairo_t* const cairo = graphics.cairo;
    const bool clips = layout.clips && (style.flags & StringFormatFlagsNoClip) == 0;
    if (clips) {
        const cairo_matrix_t device = graphics.Device();
        cairo_set_matrix(cairo, &device);
        cairo_new_path(cairo);
        ClipTo(cairo, box.X, box.Y, style.width / scale, style.height / scale);
    }
    Pencil pencil(graphics, graphics.PixelMiddle());
    TracePath(pencil, outline, PointF(box.X, box.Y), 1.0 / scale);
    const Extents reach = pencil.IsEmpty() ? Extents() : pencil.Reach(1.0);
    Drawing drawing(graphics, reach);
    if (!pencil.IsEmpty()) {
        cairo_set_antialias(
            cairo, style.smooth ? CAIRO_ANTIALIAS_DEFAULT : CAIRO_ANTIALIAS_NONE);
        cairo_set_fill_rule(cairo, CAIRO_FILL_RULE_WINDING);
        SetColor(cairo, color);
        cairo_fill(cairo);
    }
    if (clips) {
        cairo_restore(cairo);
    }
    return drawing.Finish();
}

/// @param scale layout units per world unit
void TellLines(const Graphics& graphics, const TextLayout& layout, const TextStyle& style,
               const FlatChar* text, std::size_t length, const RectF& box, double scale) {
    const std::u32string points = CodePoints(text, length);
    for (const LaidLine& line : layout.laid) {
        const std::string words = Utf8(points.substr(line.start, line.end - line.start));
        const CairoLine told = {words.c_str(),          style.size / scale,
                                box.X + line.x / scale, box.Y + line.baseline / scale,
                                line.width / scale,     graphics.Device()};
        graphics.tellLine(graphics.lineContext, &told);
    }
}

GpStatus DrawText(Graphics& graphics, const FlatChar* text, std::size_t length,
                  const Font& font, const RectF& box, const GpStringFormat* format,
                  ARGB color) {
    const cairo_matrix_t device = graphics.Device();
    if (!IsDrawable(device) || !IsInvertible(device)) {
        return Ok;
    }
    const Placing placing = PlacingOn(graphics);
    const double size = font.size * PixelsIn(font.unit, graphics.ydpi);
    const double enlarged = Enlargement(device);
    if (!(size * enlarged <= kLargestSize)) {
        return InvalidParameter;
    }
    const bool large =
        size * enlarged > (graphics.ofPixels ? kLargestGlyphs : kLargestText);
    const double scale = placing.upright || large ? enlarged : 1.0;
    TextStyle style = StyleOf(*font.family, size, font.style, box, format, scale);
    style.fit = graphics.ofPixels;
    style.smooth = graphics.state.textHint < TextRenderingHintSingleBitPerPixelGridFit ||
                   graphics.state.textHint > TextRenderingHintSingleBitPerPixel;
    TextLayout& layout = Texts().LayoutOf(font.family, style, text, length);
    if (graphics.tellLine != nullptr) {
        TellLines(graphics, layout, style, text, length, box, scale);
    }
    if (large) {
        return FillLarge(graphics, layout, style, box, scale, color);
    }
    double x = box.X;
    double y = box.Y;
    cairo_matrix_t matrix = device;
    if (placing.upright) {
        cairo_matrix_transform_point(&device, &x, &y);
        x = std::floor(x);
        y = std::floor(y);
        matrix = kIdentity;
    }
    Drawing drawing(graphics, ExtentsOf(layout, matrix, x, y, style.size));
    cairo_t* const cairo = graphics.cairo;
    cairo_set_matrix(cairo, &matrix);
    cairo_new_path(cairo);
    const bool clips = layout.clips && (style.flags & StringFormatFlagsNoClip) == 0;
    if (clips) {
        ClipTo(cairo, x, y, style.width, style.height);
    }
    cairo_set_antialias(cairo,
                        style.smooth ? CAIRO_ANTIALIAS_DEFAULT : CAIRO_ANTIALIAS_NONE);
    SetColor(cairo, color);
    const double middle = graphics.PixelMiddle();
    WriteGlyphs(graphics, layout, x + middle, y + middle, placing.upright);
    FillStrokes(cairo, layout, x, y);
    if (clips) {
        cairo_restore(cairo);
    }
    return drawing.Finish();
}

GpStatus Measure(const Graphics& graphics, const FlatChar* text, std::size_t length,
                 const Font& font, const RectF& box, const GpStringFormat* format,
                 RectF& bounds, INT* characters, INT* lines) {
    const Placing placing = PlacingOn(graphics);
    const double scale = placing.upright ? placing.scale : 1.0;
    const double size = font.size * PixelsIn(font.unit, graphics.ydpi);
    TextStyle style = StyleOf(*font.family, size, font.style, box, format, scale);
    style.fit = graphics.ofPixels;
    if (!(style.size <= kLargestSize)) {
        return InvalidParameter;
    }
    const TextLayout& layout = Texts().LayoutOf(font.family, style, text, length);
    const auto real = [&](double pixels) { return static_cast<REAL>(pixels / scale); };
    bounds = RectF(box.X + real(layout.left), box.Y + real(layout.top),
                   real(layout.width), real(layout.height));
    if (characters != nullptr) {
        *characters = layout.characters;
    }
    if (lines != nullptr) {
        *lines = layout.lines;
    }
    return Ok;
}

GpStatus AddText(Path& path, const FlatChar* text, std::size_t length,
                 const std::shared_ptr<const Family>& family, INT style, REAL size,
                 const RectF& box, const GpStringFormat* format) {
    const TextStyle laid = StyleOf(*family, size, style, box, format, 1.0);
    TextLayout& layout = Texts().LayoutOf(family, laid, text, length);
    const Path& outline = OutlineOf(layout);
    path.Reserve(outline.points.size());
    for (std::size_t i = 0; i < outline.points.size(); ++i) {
        path.points.emplace_back(outline.points[i].X + box.X,
                                 outline.points[i].Y + box.Y);
        path.kinds.push_back(outline.kinds[i]);
    }
    path.open = false;
    return Ok;
}

}  // namespace
}  // namespace engine

namespace Gdiplus::DllExports {
extern "C" {

using engine::From;

GpStatus GdipDrawString(GpGraphics* graphics, const FlatChar* text, INT length,
                        const GpFont* font, const GpRectF* layout,
                        const GpStringFormat* format, const GpBrush* brush) {
    if (graphics == nullptr || text == nullptr || layout == nullptr || brush == nullptr ||
        !engine::IsBox(*layout)) {
        return InvalidParameter;
    }
    return engine::Guarded([&] {
        const std::ptrdiff_t units = engine::LengthOf(text, length);
        if (units == 0) {
            return Ok;  // which needs no font
        }
        if (units < 0 || font == nullptr) {
            return InvalidParameter;
        }
        return engine::DrawText(*From(graphics), text, static_cast<std::size_t>(units),
                                *From(font), *layout, format, From(brush)->color);
    });
}

GpStatus GdipMeasureString(GpGraphics* graphics, const FlatChar* text, INT length,
                           const GpFont* font, const GpRectF* layout,
                           const GpStringFormat* format, GpRectF* bounds,
                           INT* codepointsFitted, INT* linesFilled) {
    if (graphics == nullptr || text == nullptr || font == nullptr || layout == nullptr ||
        bounds == nullptr || !engine::IsBox(*layout)) {
        return InvalidParameter;
    }
    return engine::Guarded([&] {
        const std::ptrdiff_t units = engine::LengthOf(text, length);
        if (units < 0) {
            return InvalidParameter;
        }
        return engine::Measure(*From(graphics), text, static_cast<std::size_t>(units),
                               *From(font), *layout, format, *bounds, codepointsFitted,
                               linesFilled);
    });
}

GpStatus GdipAddPathString(GpPath* path, const FlatChar* text, INT length,
                           const GpFontFamily* family, INT style, REAL emSize,
                           const GpRectF* layout, const GpStringFormat* format) {
    if (path == nullptr || text == nullptr || family == nullptr || layout == nullptr ||
        !engine::IsBox(*layout) || !engine::IsStyle(style) || !(emSize > 0.0f) ||
        !(emSize <= engine::kLargestSize)) {
        return InvalidParameter;
    }
    return engine::Guarded([&] {
        const std::ptrdiff_t units = engine::LengthOf(text, length);
        if (units <= 0) {
            return units < 0 ? InvalidParameter : Ok;
        }
        return engine::AddText(*From(path), text, static_cast<std::size_t>(units),
                               From(family)->family, style, emSize, *layout, format);
    });
}

}  // extern "C"
}  // namespace Gdiplus::DllExports
