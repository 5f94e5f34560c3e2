#pragma once

#include <cstddef>
#include <string>
#include <vector>

#include "page/page.h"

namespace host {

/// What stands on a page, as it is read aloud.
struct SpokenItem {
    enum class Role {
        Heading,  ///< the page's title
        Text,     ///< another line of text
        Figure,
    };

    std::size_t item;  ///< its index in Page::Items()
    Role role = Role::Figure;
    std::string text;  ///< the text itself, or the words for a figure
};

/// A page in words, for files that are read aloud, searched and listed. UTF-8, without
/// control characters.
struct PageWords {
    PageAbout about;  ///< always with a title and a language
    /// In reading order: the title and the texts above the map, the map, the legend, the
    /// scale bar, the scale, the arrow, pictures and other texts. The rest is decoration.
    std::vector<SpokenItem> items;
};

/// The words of a page: those that it was given, or else derived from its contents.
PageWords WordsOf(const Page& page);

}  // namespace host
