#pragma once

#include <gdiplus.h>

#include <string>

/// Watches the flat functions that take texts or palettes, each of which still reaches
/// libgdiplus.
namespace flat_spy {

struct Text {
    int calls = 0;
    bool null = false;     ///< of the last call
    std::u16string text;   ///< by its length where there is one, else up to the null
    int length = 0;        ///< as handed on; the text's own for a name
    bool surface = false;  ///< whether there was a graphics or path to draw on
};

/// By the calling thread, since the last Clear.
Text& Last();

/// What asking for a palette answers, and how often one was set since the last Clear.
struct Palette {
    Gdiplus::Status sizeStatus = Gdiplus::Ok;
    Gdiplus::INT moreBytes = 0;  ///< than it has
    Gdiplus::Status status = Gdiplus::Ok;
    int sets = 0;
};

Palette& Palettes();

void Clear();

}  // namespace flat_spy
