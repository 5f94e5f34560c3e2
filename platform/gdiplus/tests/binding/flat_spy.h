#pragma once

#include <gdiplus.h>

#include <string>

/// Watches the flat functions that take texts, each of which is still carried out.
namespace flat_spy {

struct Text {
    int calls = 0;
    bool null = false;    ///< of the last call
    std::u16string text;  ///< by its length where there is one, else up to the null
    int length = 0;       ///< as handed on; the text's own for a name
};

/// By the calling thread, since the last Clear.
Text& Last();

void Clear();

}  // namespace flat_spy
