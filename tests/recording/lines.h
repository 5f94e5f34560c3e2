#pragma once

#include <gdiplus.h>

#include <string>
#include <vector>

/// How one flat call is written in a trace: the recorder writes what happened in these
/// words and the tests write what should, so that the two compare letter for letter.
namespace recording {

/// A float in the fewest digits that tell it from every other; "0" for minus zero.
std::string Number(float value);

/// `#AARRGGBB`
std::string Hex(Gdiplus::ARGB color);

std::string Quoted(const std::string& text);
std::string Utf8(const Gdiplus::FlatChar* text, int length);

/// What matters of an object at the time it is used.
std::string PenLook(Gdiplus::ARGB color, float width, int dashStyle = 0,
                    const std::string& cap = "");
std::string ArrowCapLook(float height, float width, bool filled);
std::string BrushLook(Gdiplus::ARGB color);
std::string FontLook(const std::string& family, float emSize, int style, int unit = 2);
std::string FormatLook(int flags, int alignment);

// The visible operations.
std::string DrawLine(const std::string& pen, int x1, int y1, int x2, int y2);
std::string DrawRectangle(const std::string& pen, int x, int y, int width, int height);
std::string DrawPolygon(const std::string& pen,
                        const std::vector<Gdiplus::Point>& points);
std::string DrawPath(const std::string& pen, const std::string& path);
std::string LinesPath(const std::vector<Gdiplus::Point>& points);
std::string FillRectangleI(const std::string& brush, int x, int y, int width, int height);
std::string FillRectangle(const std::string& brush, float x, float y, float width,
                          float height);
std::string FillPolygon(const std::string& brush,
                        const std::vector<Gdiplus::Point>& points, int mode = 0);
std::string DrawString(const std::string& utf8, const std::string& font, float x, float y,
                       const std::string& brush, float width = 0.0f, float height = 0.0f,
                       const std::string& format = "null");
std::string DrawImage(const std::string& image, int x, int y, int width, int height);
std::string TranslateWorld(float dx, float dy);
std::string RotateWorld(float angle);
std::string ResetWorld();

/// What a line of DrawString writes, and where.
struct Written {
    std::string text;
    float x, y;
};

/// What a drawing writes, in its order.
std::vector<Written> WrittenIn(const std::vector<std::string>& drawing);

}  // namespace recording
