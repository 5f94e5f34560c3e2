#pragma once

#include <gdiplus.h>

#include <functional>
#include <string>
#include <vector>

#include "map_surround/map_surround.h"

namespace gallery {

/// The paper of a cell; an element's front colour has to suit it.
enum class Paper { White, Dark };

/// A contact sheet: cells with an element and a caption each.
class Sheet {
public:
    /// @param cellWidth pixels, like the height, which includes the caption
    Sheet(std::wstring title, int columns, int cellWidth, int cellHeight);

    /// A cell with an element at its centre.
    template <typename Element>
    void Add(std::wstring caption, Element element, double scale = 1.0,
             Paper paper = Paper::White) {
        AddCell(std::move(caption), paper,
                [element, scale](Gdiplus::Graphics* graphics, CPoint centre) mutable {
                    element.Draw(graphics, centre, scale);
                });
    }

    /// A cell drawn by a function around the cell's centre.
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
