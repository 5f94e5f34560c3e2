#pragma once

#include <gdiplus.h>

#include <functional>
#include <string>
#include <vector>

#include "map_surround/map_surround.h"

namespace gallery {

/// The paper that a cell is drawn on: what an element looks like on it depends on the
/// element's front colour.
enum class Paper { White, Dark };

/// A picture of many cells, each with an element and a caption below it.
class Sheet {
public:
    /// @param cellWidth pixels, like the height; the caption is taken from the height
    Sheet(std::wstring title, int columns, int cellWidth, int cellHeight);

    /// A cell with an element in its middle.
    template <typename Element>
    void Add(std::wstring caption, Element element, double scale = 1.0,
             Paper paper = Paper::White) {
        AddCell(std::move(caption), paper,
                [element, scale](Gdiplus::Graphics* graphics, CPoint centre) mutable {
                    element.Draw(graphics, centre, scale);
                });
    }

    /// A cell whose content is drawn around the middle of it by a function.
    void AddCell(std::wstring caption, Paper paper,
                 std::function<void(Gdiplus::Graphics*, CPoint centre)> draw);

    /// Draws all cells; false with a message on standard error when the file cannot be
    /// written.
    bool Save(const std::wstring& file) const;

private:
    struct Cell {
        std::wstring caption;
        Paper paper;
        std::function<void(Gdiplus::Graphics*, CPoint)> draw;
    };

    void DrawCell(Gdiplus::Graphics* graphics, const Cell& cell, int left, int top) const;

    std::wstring m_title;
    int m_columns;
    int m_cellWidth;
    int m_cellHeight;
    std::vector<Cell> m_cells;
};

/// One picture of the gallery.
struct Family {
    const wchar_t* name;  ///< the file's, without its ending
    Sheet (*draw)();
};

Sheet DrawNorthArrows();
Sheet DrawScaleBars();
Sheet DrawLegends();
Sheet DrawTitles();
Sheet DrawPictures();

/// One element in one style, drawn with the properties that a host would give it.
struct Element {
    std::wstring name;  ///< the file's, without its ending
    std::wstring caption;
    std::function<void(Gdiplus::Graphics*, CPoint centre)> draw;
};

constexpr int kElementWidth = 320;
constexpr int kElementHeight = 160;

/// Each element in each style.
const std::vector<Element>& Elements();

/// All of those on one sheet.
Sheet DrawContactSheet();

}  // namespace gallery
