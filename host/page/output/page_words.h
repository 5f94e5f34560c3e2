#pragma once

#include <string>

#include "page/page.h"

namespace host {

/// What a page says of itself in words, for files that are read aloud, searched and
/// listed. UTF-8, without control characters.
struct PageWords {
    std::string title;  ///< never empty
    std::string author;
    std::string subject;
    std::string keywords;
    std::string language;  ///< its code: "de"
};

/// The words of a page: those that it was given, else those that stand on it.
PageWords WordsOf(const Page& page);

}  // namespace host
