#pragma once

#include <gdiplus.h>

#include <memory>
#include <string>
#include <vector>

#include "map_surround/map_surround.h"

namespace gallery::annotated {

/// A drawing of an element with its dimensions, as a draughtsman adds them: dimension
/// lines between arrows, extension lines to what they measure, and marked points.
/// All coordinates are pixels.
class Drawing {
public:
    Drawing(int width, int height);

    Gdiplus::Graphics* Surface() { return m_graphics.get(); }

    /// A dimension from x1 to x2, its name above the middle of the line.
    void Across(int x1, int x2, int y, const std::wstring& name);
    /// A dimension from y1 to y2, its name to the right of the middle of the line.
    void Down(int y1, int y2, int x, const std::wstring& name);

    /// An extension line from an element to a dimension line.
    void Guide(int x1, int y1, int x2, int y2);
    void Outline(const std::vector<Gdiplus::Point>& corners);

    /// A marked point with its name beside it.
    void Mark(int x, int y, const std::wstring& name, int dx = 6, int dy = -18);
    void Note(int x, int y, const std::wstring& text);

    bool Save(const std::wstring& file);

private:
    void Arrowed(Gdiplus::Point from, Gdiplus::Point to);
    Gdiplus::RectF Measure(const std::wstring& text);

    std::unique_ptr<Gdiplus::Bitmap> m_bitmap;
    std::unique_ptr<Gdiplus::Graphics> m_graphics;
};

struct Picture {
    const wchar_t* name;  ///< the file's, without its ending
    Drawing (*draw)();
};

std::vector<Picture> TitlePictureAndFrame();
std::vector<Picture> Legends();
std::vector<Picture> NorthArrows();
std::vector<Picture> ScaleBars();

}  // namespace gallery::annotated
