#pragma once

// The keys of the page file that are not properties, and its version.

#include <cstddef>
#include <string>

#include "page/page.h"
#include "page/paper.h"
#include "page/units.h"

namespace host {

constexpr int kPageVersion = 3;

constexpr const char* kVersionKey = "version";
constexpr const char* kWidthKey = "width";
constexpr const char* kHeightKey = "height";
/// What a page says of itself, all of it optional.
struct AboutKey {
    const char* name;
    const char* about;
    std::string PageAbout::*text;
};

constexpr AboutKey kAboutKeys[] = {
    {"title", "Title in the properties of files; empty for the largest line of text",
     &PageAbout::title},
    {"author", "Author, in the properties of files", &PageAbout::author},
    {"subject", "Subject, in the properties of files", &PageAbout::subject},
    {"keywords", "Keywords for searching, in the properties of files",
     &PageAbout::keywords},
    {"language",
     "Code of the language in which it is read aloud; else that of the scale bar",
     &PageAbout::language},
};

constexpr const char* kElementsKey = "elements";
constexpr const char* kTypeKey = "type";
constexpr const char* kFrameKey = "frame";

/// "elements[2]"
inline std::string PlaceOfElement(std::size_t index) {
    return std::string(kElementsKey) + "[" + std::to_string(index) + "]";
}

constexpr double kSmallestSide = UnitsFromMillimetres(kSmallestPaperMillimetres);
constexpr double kLargestSide = UnitsFromMillimetres(kLargestPaperMillimetres);

}  // namespace host
