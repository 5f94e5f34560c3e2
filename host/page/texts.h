#pragma once

#include <gdiplus.h>

#include <string>
#include <vector>

#include "page/page.h"

namespace host {

/// What an item writes on the page, in one font.
struct WrittenText {
    std::string family;       ///< UTF-8
    INT style;                ///< Gdiplus::FontStyle flags
    std::wstring characters;  ///< all that may be written, in any order
};

/// The texts of an item, also those that its element writes by itself in fonts of its
/// own: the numbers of a scale bar in Times New Roman. A legend's follow from its
/// rasters.
std::vector<WrittenText> TextsOf(const PageItem& item);

/// Throws PageError that names the first item with a font that is not installed.
void CheckFontsOf(const Page& page);

/// The characters that no font has, in one line an item: "title: no font has \"ཀ\"
/// (U+0F40): a box is drawn", and the legends whose texts are cut.
std::vector<std::string> RemarksOfTexts(const Page& page);

/// The same of the characters alone.
std::vector<std::string> RemarksOfMissing(const Page& page);

/// Throws NamedError that names the first item with a font that is there but cannot be
/// used, for want of memory for one: its text is boxes where it was drawn just now.
void CheckWritten(const Page& page);

}  // namespace host
