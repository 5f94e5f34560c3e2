#include "recording/lines.h"

#include <charconv>
#include <cmath>
#include <cstdint>
#include <cstdio>
#include <cstdlib>

namespace recording {
namespace {

std::string Pair(int x, int y) {
    return " (" + std::to_string(x) + ", " + std::to_string(y) + ")";
}

std::string Box(int x, int y, int width, int height) {
    return Pair(x, y) + " " + std::to_string(width) + " x " + std::to_string(height);
}

std::string Box(float x, float y, float width, float height) {
    return " (" + Number(x) + ", " + Number(y) + ") " + Number(width) + " x " +
           Number(height);
}

std::string Points(const std::vector<Gdiplus::Point>& points) {
    std::string text;
    for (const Gdiplus::Point& point : points) {
        text += Pair(point.X, point.Y);
    }
    return text;
}

void AppendUtf8(std::string& out, std::uint32_t c) {
    if (c < 0x80) {
        out += static_cast<char>(c);
    } else if (c < 0x800) {
        out += static_cast<char>(0xC0 | (c >> 6));
        out += static_cast<char>(0x80 | (c & 0x3F));
    } else if (c < 0x10000) {
        out += static_cast<char>(0xE0 | (c >> 12));
        out += static_cast<char>(0x80 | ((c >> 6) & 0x3F));
        out += static_cast<char>(0x80 | (c & 0x3F));
    } else {
        out += static_cast<char>(0xF0 | (c >> 18));
        out += static_cast<char>(0x80 | ((c >> 12) & 0x3F));
        out += static_cast<char>(0x80 | ((c >> 6) & 0x3F));
        out += static_cast<char>(0x80 | (c & 0x3F));
    }
}

}  // namespace

std::string Number(float value) {
    if (value == 0.0f) {
        return "0";
    }
    if (std::isnan(value)) {
        return "nan";
    }
    char buffer[32];
    const auto result = std::to_chars(buffer, buffer + sizeof buffer, value);
    return std::string(buffer, result.ptr);
}

std::string Hex(Gdiplus::ARGB color) {
    char buffer[16];
    std::snprintf(buffer, sizeof buffer, "#%08X", static_cast<unsigned int>(color));
    return buffer;
}

std::string Quoted(const std::string& text) { return "\"" + text + "\""; }

std::string Utf8(const Gdiplus::FlatChar* text, int length) {
    std::string out;
    for (int i = 0; text != nullptr && (length < 0 ? text[i] != 0 : i < length); ++i) {
        const std::uint32_t unit = text[i];
        const bool pair = unit >= 0xD800 && unit <= 0xDBFF && i + 1 != length &&
                          text[i + 1] >= 0xDC00 && text[i + 1] <= 0xDFFF;
        if (pair) {
            const std::uint32_t low = text[++i];
            AppendUtf8(out, 0x10000 + ((unit - 0xD800) << 10) + (low - 0xDC00));
        } else {
            AppendUtf8(out, unit);
        }
    }
    return out;
}

std::string PenLook(Gdiplus::ARGB color, float width, int dashStyle,
                    const std::string& cap) {
    return "pen[" + Hex(color) + " width " + Number(width) +
           (dashStyle == 0 ? "" : " dash " + std::to_string(dashStyle)) +
           (cap.empty() ? "" : " " + cap) + "]";
}

std::string ArrowCapLook(float height, float width, bool filled) {
    return "cap[" + Number(height) + " x " + Number(width) + (filled ? " filled]" : "]");
}

std::string BrushLook(Gdiplus::ARGB color) { return "brush[" + Hex(color) + "]"; }

std::string FontLook(const std::string& family, float emSize, int style, int unit) {
    return "font[" + Quoted(family) + " " + Number(emSize) + " style " +
           std::to_string(style) + " unit " + std::to_string(unit) + "]";
}

std::string FormatLook(int flags, int alignment) {
    return "format[" + std::to_string(flags) + " align " + std::to_string(alignment) +
           "]";
}

std::string DrawLine(const std::string& pen, int x1, int y1, int x2, int y2) {
    return "GdipDrawLineI " + pen + Pair(x1, y1) + Pair(x2, y2);
}

std::string DrawRectangle(const std::string& pen, int x, int y, int width, int height) {
    return "GdipDrawRectangleI " + pen + Box(x, y, width, height);
}

std::string DrawPolygon(const std::string& pen,
                        const std::vector<Gdiplus::Point>& points) {
    return "GdipDrawPolygonI " + pen + Points(points);
}

std::string DrawPath(const std::string& pen, const std::string& path) {
    return "GdipDrawPath " + pen + " " + path;
}

std::string LinesPath(const std::vector<Gdiplus::Point>& points) {
    return "path[lines" + Points(points) + "]";
}

std::string FillRectangleI(const std::string& brush, int x, int y, int width,
                           int height) {
    return "GdipFillRectangleI " + brush + Box(x, y, width, height);
}

std::string FillRectangle(const std::string& brush, float x, float y, float width,
                          float height) {
    return "GdipFillRectangle " + brush + Box(x, y, width, height);
}

std::string FillPolygon(const std::string& brush,
                        const std::vector<Gdiplus::Point>& points, int mode) {
    return "GdipFillPolygonI " + brush + " mode " + std::to_string(mode) + Points(points);
}

std::string DrawString(const std::string& utf8, const std::string& font, float x, float y,
                       const std::string& brush, float width, float height,
                       const std::string& format) {
    return "GdipDrawString " + Quoted(utf8) + Box(x, y, width, height) + " " + font +
           " " + brush + " format " + format;
}

std::string DrawImage(const std::string& image, int x, int y, int width, int height) {
    return "GdipDrawImageRectI " + image + Box(x, y, width, height);
}

std::string TranslateWorld(float dx, float dy) {
    return "GdipTranslateWorldTransform " + Number(dx) + " " + Number(dy);
}

std::string RotateWorld(float angle) {
    return "GdipRotateWorldTransform " + Number(angle);
}

std::string ResetWorld() { return "GdipResetWorldTransform"; }

std::vector<Written> WrittenIn(const std::vector<std::string>& drawing) {
    const std::string call = "GdipDrawString \"";
    std::vector<Written> written;
    for (const std::string& line : drawing) {
        if (line.compare(0, call.size(), call) == 0) {
            const std::size_t end = line.find("\" (", call.size());
            char* comma = nullptr;
            const float x = std::strtof(line.c_str() + end + 3, &comma);
            written.push_back({line.substr(call.size(), end - call.size()), x,
                               std::strtof(comma + 1, nullptr)});
        }
    }
    return written;
}

}  // namespace recording
