#include "page/output/page_words.h"

#include <algorithm>

#include "map_surround/title.h"
#include "page/element_of.h"
#include "page/numeric_scale.h"
#include "page/placed_frame.h"
#include "system/utf8.h"

namespace host {
namespace {

/// On one line, as a list of files or a window's frame shows it.
std::string OnOneLine(std::string text) {
    for (char& c : text) {
        const auto byte = static_cast<unsigned char>(c);
        c = byte < 0x20 || byte == 0x7F ? ' ' : c;
    }
    return text;
}

/// The largest line of text that is no scale, the first of several.
const CMapTitle* LargestTitle(const Page& page) {
    const CMapTitle* largest = nullptr;
    for (const PageItem& item : page.Items()) {
        const auto* const title = ElementOf<CMapTitle>(item);
        if (title != nullptr && ElementOf<NumericScale>(item) == nullptr &&
            !title->GetFontValue().empty() &&
            (largest == nullptr || title->GetFontSize() > largest->GetFontSize())) {
            largest = title;
        }
    }
    return largest;
}

/// That of the first bar: pages have the words of one language.
const Language& LanguageOf(const Page& page) {
    for (const PageItem& item : page.Items()) {
        if (const auto* const bar = FrameAs<ScaleBarFrame>(item)) {
            return bar->GetLanguage();
        }
    }
    return English();
}

}  // namespace

PageWords WordsOf(const Page& page) {
    const CMapTitle* const title = LargestTitle(page);
    PageWords words;
    words.title = title == nullptr ? "Map" : OnOneLine(Narrow(title->GetFontValue()));
    words.language = LanguageOf(page).code;
    return words;
}

}  // namespace host
