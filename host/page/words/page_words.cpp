#include "page/words/page_words.h"

#include <algorithm>
#include <utility>

#include "map_surround/title.h"
#include "page/element_of.h"
#include "page/language.h"
#include "page/numeric_scale.h"
#include "page/placed_frame.h"
#include "page/words/alternative_text.h"
#include "system/utf8.h"

namespace host {
namespace {

/// No longer than any text of a page file.
std::wstring Shortened(std::wstring text) {
    constexpr std::size_t kMost = 10'000;
    if (text.size() > kMost) {
        text.replace(kMost - 1, std::wstring::npos, L"\u2026");
    }
    return text;
}

/// On one line, as a list of files or a window's title bar shows it, and in characters
/// that XML allows: not U+FFFE and U+FFFF.
std::string OnOneLine(std::string text) {
    for (const char* const none : {"\xEF\xBF\xBE", "\xEF\xBF\xBF"}) {
        for (std::size_t at = text.find(none); at != std::string::npos;
             at = text.find(none, at)) {
            text.replace(at, 3, "\xEF\xBF\xBD");
        }
    }
    for (char& c : text) {
        const auto byte = static_cast<unsigned char>(c);
        c = byte < 0x20 || byte == 0x7F ? ' ' : c;
    }
    return text;
}

/// A line of text that is not a scale; null for anything else, and for an empty one.
const CMapTitle* LineOf(const PageItem& item) {
    const auto* const title = ElementOf<CMapTitle>(item);
    return title == nullptr || title->GetFontValue().empty() ||
                   ElementOf<NumericScale>(item) != nullptr
               ? nullptr
               : title;
}

/// The largest line of text, the first among equals; null for none.
const CMapTitle* LargestLine(const Page& page) {
    const CMapTitle* largest = nullptr;
    for (const PageItem& item : page.Items()) {
        const CMapTitle* const line = LineOf(item);
        if (line != nullptr &&
            (largest == nullptr || line->GetFontSize() > largest->GetFontSize())) {
            largest = line;
        }
    }
    return largest;
}

/// The page's own language, else that of its first bar, as a page's words are all in one
/// language.
const Language& LanguageOf(const Page& page) {
    if (const Language* const own = FindLanguage(page.About().language)) {
        return *own;
    }
    for (const PageItem& item : page.Items()) {
        if (const auto* const bar = FrameAs<ScaleBarFrame>(item)) {
            return bar->GetLanguage();
        }
    }
    return English();
}

double MiddleOf(const PageItem& item) {
    const CBoundingBox extent = FrameOf(item).GetExtent();
    return extent.TopLeft().y - extent.GetHeight() / 2.0;
}

/// Where the texts above the map end; above the whole page where it has no map.
double TopOfMaps(const Page& page) {
    for (const PageItem& item : page.Items()) {
        if (std::holds_alternative<MapFrame>(item)) {
            return MiddleOf(item);
        }
    }
    return page.Height();
}

/// Its place in the reading order.
int TurnOf(const PageItem& item, bool isHeading, double topOfMaps) {
    constexpr MapSurroundType kInOrder[] = {SurroundLegend, SurroundScaleBar,
                                            SurroundMapTitle, SurroundNorthArrow,
                                            SurroundPicture};
    constexpr int kMap = 2;
    constexpr int kLast = 10;
    if (isHeading || std::holds_alternative<MapFrame>(item)) {
        return isHeading ? 0 : kMap;
    }
    if (LineOf(item) != nullptr) {
        return MiddleOf(item) > topOfMaps ? 1 : kLast;
    }
    const auto* const entry = std::find(std::begin(kInOrder), std::end(kInOrder),
                                        ElementOf<CMapSurround>(item)->GetItemType());
    return kMap + 1 + static_cast<int>(entry - std::begin(kInOrder));
}

std::string GivenText(const PageItem& item) {
    const auto* const map = std::get_if<MapFrame>(&item);
    const auto* const placed = FrameAs<PlacedFrame>(item);
    return map != nullptr      ? map->alternativeText
           : placed != nullptr ? placed->AlternativeText()
                               : "";
}

bool ShowsSomething(const PageItem& item) {
    const auto* const map = std::get_if<MapFrame>(&item);
    return map != nullptr ? map->picture != nullptr
                          : ElementOf<CMapSurround>(item) != nullptr;
}

}  // namespace

PageWords WordsOf(const Page& page) {
    const CMapTitle* const heading = LargestLine(page);
    const Language& language = LanguageOf(page);
    PageWords words{page.About(), {}};
    words.about.language = language.code;
    if (words.about.title.empty()) {
        words.about.title =
            Narrow(heading == nullptr ? language.spoken.map : heading->GetFontValue());
    }
    for (std::string* const text : {&words.about.title, &words.about.author,
                                    &words.about.subject, &words.about.keywords}) {
        *text = OnOneLine(*text);
    }
    const double topOfMaps = TopOfMaps(page);
    std::vector<std::pair<int, SpokenItem>> inTurn;
    for (std::size_t i = 0; i < page.Items().size(); ++i) {
        const PageItem& item = page.Items()[i];
        if (!ShowsSomething(item)) {
            continue;
        }
        using Role = SpokenItem::Role;
        const auto* const line = ElementOf<CMapTitle>(item);
        SpokenItem spoken{i, line == nullptr ? Role::Figure : Role::Text,
                          GivenText(item)};
        if (spoken.text.empty()) {
            spoken.text =
                Narrow(line == nullptr ? Shortened(AlternativeText(page, item, language))
                                       : line->GetFontValue());
        }
        const bool isHeading = line != nullptr && line == heading;
        spoken.role = isHeading ? Role::Heading : spoken.role;
        spoken.text = OnOneLine(std::move(spoken.text));
        if (!spoken.text.empty()) {
            inTurn.emplace_back(TurnOf(item, isHeading, topOfMaps), std::move(spoken));
        }
    }
    std::stable_sort(inTurn.begin(), inTurn.end(),
                     [](const auto& a, const auto& b) { return a.first < b.first; });
    for (auto& [turn, spoken] : inTurn) {
        words.items.push_back(std::move(spoken));
    }
    return words;
}

}  // namespace host
