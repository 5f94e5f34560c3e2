#pragma once

#include <gdiplus.h>

#include <string>
#include <vector>

#include "page/page.h"

namespace host {

/// A text that an item writes on the page, in one font.
struct WrittenText {
    std::string family;       ///< UTF-8
    INT style;                ///< Gdiplus::FontStyle flags
    std::wstring characters;  ///< all that may be written, in any order
};

/// The texts of an item, including those that its element writes by itself in its own
/// fonts: the numbers of a scale bar in Times New Roman. A legend's depend on its
/// rasters.
std::vector<WrittenText> TextsOf(const PageItem& item);

/// Throws PageError that names the first item with a font that is not installed.
void CheckFontsOf(const Page& page);

/// The characters that no font has, one line per item: "title: no font has \"ཀ\"
/// (U+0F40): a box is drawn", and the legends whose texts are cut.
std::vector<std::string> RemarksOfTexts(const Page& page);

/// The missing characters only.
std::vector<std::string> RemarksOfMissing(const Page& page);

/// Throws NamedError that names the first item whose font is installed but cannot be
/// loaded, for want of memory for one: it was just drawn as boxes.
void CheckWritten(const Page& page);

}  // namespace host
